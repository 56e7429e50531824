#pragma once

#include <QPoint>
#include <QRect>

#include <string>

namespace tavmoor {

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

} // namespace tavmoor
