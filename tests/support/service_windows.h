#pragma once

#include "core/files/document_path.h"
#include "services/windows/program_session.h"
#include "services/windows/skinned_window.h"
#include "services/windows/window_registry.h"
#include "support/control.h"
#include "support/scripted_answers.h"
#include "support/scripted_dialogs.h"
#include "support/temporary_folder.h"

namespace tavmoor::test {

/// The windows of the services, in a program folder of its own, clicked and typed in.
class ServiceWindows : public testing::Test {
protected:
    ServiceWindows();
    ~ServiceWindows() override;

    /// The control of a window under its object name; a missing one fails the test.
    template <typename Type = QWidget>
    static Type& Find(QWidget& window, const char* name) {
        return Control(window, name).As<Type>();
    }
    static void Click(QWidget& control) { ClickAt(control, control.rect().center()); }
    static void Click(QWidget& window, const char* name) { Control(window, name).Click(); }
    static void ClickAt(QWidget& control, QPoint place) { Control::ClickAt(control, place); }
    static void PressKey(QWidget& control, Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        Control::Press(control, key, modifiers);
    }
    static void Settle() { test::Settle(); }

    /// The window, when it is loaded and shown.
    [[nodiscard]] SkinnedWindow* Shown(WindowName name) const;
    ProgramContext Context() { return {session, windows}; }
    ProjectDocument& Document() { return session.document; }

    TemporaryFolder folder;
    ProgramSession session;
    WindowRegistry windows;
};

} // namespace tavmoor::test
