#pragma once

#include <QPointer>
#include <QRect>

#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <string>

class QAbstractButton;

namespace tavmoor {

struct ProgramSession;
class SkinnedWindow;

/// All windows of the program by their names; what has no window of its own yet is named as well.
enum class WindowName : std::uint8_t {
    Form1,  ///< main window
    Form2,  ///< picture preview
    Form3,  ///< program settings
    Form4,  ///< descriptions of the fixed commands
    Form5,  ///< program splash
    Form6,  ///< back window
    Form7,  ///< templates
    Form8,  ///< final step
    Form9,  ///< fonts
    Form10, ///< additional commands
    Form11, ///< menu titles
    Form12, ///< effects
    Form13, ///< autorun check
    Form14, ///< start messages
    Form15, ///< expiry date and shortcuts
    Form16, ///< canvas
    Form17, ///< design panel
    frmAbout,
    menu1, ///< drop-down of the main window
    menu2, ///< colour menu
    PicPrev,
    ButtonPropertiesWindow,
};

/// What other windows may ask of the main window; it answers them itself.
class MainWindowCommands {
public:
    virtual ~MainWindowCommands() = default;

    virtual void ShowMainSettings() = 0;
    virtual void OpenTemplateWindow() = 0;
    /// The folder browser of `Command32`.
    virtual void BrowseCdFolder() = 0;
    virtual void HidePanels() = 0;
    virtual void RestoreHint() = 0;
    /// The preview of a chosen picture in `Form2`, when previews are on.
    virtual void ShowPicturePreview(const std::string& path) = 0;
    /// Shows the document afresh in the panel that is visible, the title and the folder line.
    virtual void ShowDocument() = 0;
    virtual void FocusCdFolder() = 0;
    /// Ends what `MP3Play1` plays.
    virtual void StopSound() = 0;
    /// Screen geometry of the window, in logical pixels.
    [[nodiscard]] virtual QRect Geometry() const = 0;
    virtual void MoveTo(QPoint place) = 0;
    virtual void SetVisible(bool visible) = 0;
    [[nodiscard]] virtual bool IsVisible() const = 0;

protected:
    MainWindowCommands() = default;
    MainWindowCommands(const MainWindowCommands&) = default;
    MainWindowCommands& operator=(const MainWindowCommands&) = default;
};

/// How windows find each other: by name, through the factories that the program registers at start.
/// A layer can so open a window of a layer above it.
class WindowRegistry {
public:
    using Factory = std::function<SkinnedWindow*()>;

    void Register(WindowName name, Factory factory);
    /// True for a window that this version of the program has.
    [[nodiscard]] bool Stands(WindowName name) const;

    /// Loads the window, or takes the loaded one, without showing it. It must stand.
    SkinnedWindow& Load(WindowName name);
    /// The loaded window, or null.
    [[nodiscard]] SkinnedWindow* Find(WindowName name) const;
    /// Loads and shows a window; one that is open already comes to the front.
    SkinnedWindow& Open(WindowName name);
    /// Opens a window in place of the main window, which comes back when that one closes.
    SkinnedWindow& OpenFromMain(WindowName name);
    /// Unloads the window when it is loaded.
    void Unload(WindowName name);
    /// Unloads every window but the main window.
    void UnloadAll();

    void SetMain(MainWindowCommands* main) { main_ = main; }
    /// The main window's operations; null while there is none.
    [[nodiscard]] MainWindowCommands* Main() const { return main_; }

    /// Screen geometry of the open design panel, in logical pixels.
    [[nodiscard]] std::optional<QRect> DesignPanelGeometry() const;

private:
    std::map<WindowName, Factory> factories_;
    std::map<WindowName, QPointer<SkinnedWindow>> loaded_;
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
