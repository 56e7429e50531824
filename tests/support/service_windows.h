#pragma once

#include "core/files/document_path.h"
#include "services/windows/program_session.h"
#include "services/windows/skinned_window.h"
#include "services/windows/window_registry.h"
#include "support/scripted_answers.h"
#include "support/scripted_dialogs.h"
#include "support/temporary_folder.h"

#include <QAbstractScrollArea>
#include <QWidget>

#include <gtest/gtest.h>

namespace tavmoor::test {

/// The windows of the services, in a program folder of its own, clicked and typed in.
class ServiceWindows : public testing::Test {
protected:
    ServiceWindows();
    ~ServiceWindows() override;

    /// The control of a window under its object name; a missing one fails the test.
    template <typename Control = QWidget>
    static Control& Find(QWidget& window, const char* name) {
        auto* control = window.findChild<Control*>(QString::fromLatin1(name));
        if (control == nullptr) {
            throw std::runtime_error(std::string("no control ") + name);
        }
        return *control;
    }

    /// Presses a control with the left mouse button, in its middle or at a place in it.
    static void Click(QWidget& control);
    static void ClickAt(QWidget& control, QPoint place);
    static void Click(QWidget& window, const char* name) { Click(Find(window, name)); }
    static void DoubleClick(QWidget& window, const char* name);
    /// Replaces the text of a field as a user does, key by key.
    static void Type(QWidget& window, const char* name, const QString& text);
    static void PressKey(QWidget& control, Qt::Key key, Qt::KeyboardModifiers modifiers = {});
    /// Drops a native file or folder on a control.
    /// @return false when the control does not take it
    static bool Drop(QWidget& control, const std::filesystem::path& path);
    /// Lets events run and deferred deletions take place.
    static void Settle();

    /// The window, when it is loaded and shown.
    [[nodiscard]] SkinnedWindow* Shown(WindowName name) const;
    ProgramContext Context() { return {session, windows}; }
    ProjectDocument& Document() { return session.document; }

    TemporaryFolder folder;
    ProgramSession session;
    WindowRegistry windows;
};

} // namespace tavmoor::test
