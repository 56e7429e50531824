#include "support/service_windows.h"

#include "services/shared/service_window_list.h"
#include "support/user_input.h"

#include <QApplication>
#include <QtTest/QTest>

namespace tavmoor::test {

ServiceWindows::ServiceWindows() {
    session.programFolder = folder.Document("program");
    session.settingsPath = folder.Document("program/tavmoor.ini");
    std::filesystem::create_directories(folder.Native("program"));
    qputenv("XDG_DATA_HOME", QByteArray::fromStdString(folder.Native("data").string()));
    RegisterServiceWindows(Context());
}

ServiceWindows::~ServiceWindows() {
    windows.UnloadAll();
    Settle();
}

void ServiceWindows::ClickAt(QWidget& control, QPoint place) {
    ASSERT_TRUE(control.isEnabled()) << control.objectName().toStdString();
    ASSERT_TRUE(control.isVisible()) << control.objectName().toStdString();
    QTest::mouseClick(&control, Qt::LeftButton, {}, place);
    Settle();
}

void ServiceWindows::Click(QWidget& control) {
    ClickAt(control, control.rect().center());
}

void ServiceWindows::DoubleClick(QWidget& window, const char* name) {
    auto& control = Find(window, name);
    auto* area = qobject_cast<QAbstractScrollArea*>(&control);
    QTest::mouseDClick(area != nullptr ? area->viewport() : &control, Qt::LeftButton);
    Settle();
}

void ServiceWindows::Type(QWidget& window, const char* name, const QString& text) {
    auto& control = Find(window, name);
    control.setFocus();
    QTest::keyClick(&control, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(&control, Qt::Key_Delete);
    TypeText(control, text);
    Settle();
}

void ServiceWindows::PressKey(QWidget& control, Qt::Key key, Qt::KeyboardModifiers modifiers) {
    QTest::keyClick(&control, key, modifiers);
    Settle();
}

bool ServiceWindows::Drop(QWidget& control, const std::filesystem::path& path) {
    const bool taken = DropPath(control, path);
    Settle();
    return taken;
}

void ServiceWindows::Settle() {
    QApplication::processEvents();
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

SkinnedWindow* ServiceWindows::Shown(WindowName name) const {
    SkinnedWindow* window = windows.Find(name);
    return window != nullptr && window->isVisible() ? window : nullptr;
}

} // namespace tavmoor::test
