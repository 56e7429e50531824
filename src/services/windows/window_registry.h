#pragma once

#include "services/windows/main_window_commands.h"
#include "services/windows/program_window.h"
#include "services/windows/window_name.h"

#include <QPointer>

#include <functional>
#include <map>

class QAbstractButton;

namespace tavmoor {

struct ProgramSession;

/// How windows find each other: by name, through the factories that the program registers at start.
/// A layer can so open a window of a layer above it.
class WindowRegistry {
public:
    using Factory = std::function<ProgramWindow*()>;

    void Register(WindowName name, Factory factory);
    /// True for a window that this version of the program has.
    [[nodiscard]] bool Stands(WindowName name) const;

    /// Loads the window, or takes the loaded one, without showing it. It must stand.
    ProgramWindow& Load(WindowName name);
    /// The loaded window, or null.
    [[nodiscard]] ProgramWindow* Find(WindowName name) const;
    /// Loads and shows a window; one that is open already comes to the front.
    ProgramWindow& Open(WindowName name);
    /// Opens a window in place of the main window, which comes back when that one closes.
    ProgramWindow& OpenFromMain(WindowName name);
    /// Unloads the window when it is loaded.
    void Unload(WindowName name);
    /// Unloads every window but the main window.
    void UnloadAll();

    void SetMain(MainWindowCommands* main) { main_ = main; }
    /// The main window's operations; null while there is none.
    [[nodiscard]] MainWindowCommands* Main() const { return main_; }

private:
    std::map<WindowName, Factory> factories_;
    std::map<WindowName, QPointer<ProgramWindow>> loaded_;
    MainWindowCommands* main_ = nullptr;
};

/// What every window is given.
struct ProgramContext {
    ProgramSession& session;
    WindowRegistry& windows;
};

/// Switches a button off, with a tooltip that says why, while its window does not stand.
/// @return true when the button may be used
bool EnableWhenStanding(QAbstractButton& button, const WindowRegistry& windows, WindowName name);

} // namespace tavmoor
