#pragma once

#include "services/controls/status_label.h"
#include "services/controls/value_label.h"
#include "support/user_input.h"

#include <QAbstractButton>
#include <QAbstractScrollArea>
#include <QAbstractSlider>
#include <QVariant>
#include <QtTest/QTest>

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>

namespace tavmoor::test {

/// Lets events run and deferred deletions take place.
inline void Settle() {
    QApplication::processEvents();
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

/// A control of a window under its object name: what a user does with it and sees of it. It is
/// looked up each time; a missing one fails the test. Texts are in UTF-8.
class Control {
public:
    Control(QWidget& window, const char* name) : window_(&window), name_(name) {}

    template <typename Type = QWidget>
    [[nodiscard]] Type& As() const {
        auto* control = window_->findChild<Type*>(QString::fromLatin1(name_));
        if (control == nullptr) {
            throw std::runtime_error(std::string("no control ") + name_);
        }
        return *control;
    }
    operator QWidget&() const { return As(); } // NOLINT: a control is its widget

    /// Presses the left mouse button in the middle of the control, or at a place in it.
    void Click() const { ClickAt(As(), As().rect().center()); }
    void ClickAt(QPoint place) const { ClickAt(As(), place); }
    static void ClickAt(QWidget& control, QPoint place) {
        ASSERT_TRUE(control.isEnabled()) << control.objectName().toStdString();
        ASSERT_TRUE(control.isVisible()) << control.objectName().toStdString();
        QTest::mouseClick(&control, Qt::LeftButton, {}, place);
        Settle();
    }
    void DoubleClick() const {
        auto* area = window_->findChild<QAbstractScrollArea*>(QString::fromLatin1(name_));
        QTest::mouseDClick(area != nullptr ? area->viewport() : &As(), Qt::LeftButton);
        Settle();
    }
    void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) const {
        Press(As(), key, modifiers);
    }
    static void Press(QWidget& control, Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(&control, key, modifiers);
        Settle();
    }
    /// Replaces the text of a field, key by key.
    void Type(const std::string& text) const {
        As().setFocus();
        QTest::keyClick(&As(), Qt::Key_A, Qt::ControlModifier);
        QTest::keyClick(&As(), Qt::Key_Delete);
        TypeText(As(), QString::fromStdString(text));
        Settle();
    }
    /// Drops a native file or folder on the control; false when it does not take it.
    [[nodiscard]] bool Drop(const std::filesystem::path& path) const {
        const bool taken = DropPath(As(), path);
        Settle();
        return taken;
    }
    void Tick(bool ticked = true) const { As<QAbstractButton>().setChecked(ticked); }
    void Slide(int value) const { As<QAbstractSlider>().setValue(value); }

    /// All of the text, also where only a part of it has room.
    [[nodiscard]] std::string Text() const {
        if (const auto* value = qobject_cast<ValueLabel*>(&As())) {
            return value->FullText().toStdString();
        }
        if (const auto* status = qobject_cast<StatusLabel*>(&As())) {
            return status->Text().toStdString();
        }
        const QVariant lines = As().property("plainText");
        return (lines.isValid() ? lines : As().property("text")).toString().toStdString();
    }
    [[nodiscard]] std::string Tooltip() const { return As().toolTip().toStdString(); }
    [[nodiscard]] QColor Color(QPalette::ColorRole role) const {
        As().ensurePolished();
        return As().palette().color(role);
    }
    [[nodiscard]] bool IsTicked() const { return As<QAbstractButton>().isChecked(); }
    [[nodiscard]] bool IsEnabled() const { return As().isEnabled(); }
    [[nodiscard]] bool IsVisible() const { return As().isVisible(); }
    [[nodiscard]] bool IsRefused() const { return As().property("refused").toBool(); }

private:
    QWidget* window_;
    const char* name_;
};

/// A window or panel with its controls under names that say what they are for.
class Page {
public:
    explicit Page(QWidget& window) : window_(&window) {}

    [[nodiscard]] Control At(const char* name) const { return {*window_, name}; }

private:
    QWidget* window_;
};

} // namespace tavmoor::test
