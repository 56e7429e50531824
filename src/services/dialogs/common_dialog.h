#pragma once

#include "core/document/project_document.h"
#include "services/dialogs/dialog_responder.h"

#include <QPointer>
#include <QWidget>

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace tavmoor {

/// The program's control around the standard dialogs: set its properties, call the method of a
/// dialog, read the properties. Each window that lets a file, folder, font or colour be chosen has
/// one. It has no surface; as a control it measures 555 by 540.
///
/// Texts are in the system's code page, paths in document form. A chosen path that the document
/// cannot say, one too long for its buffer, or such a name of a font, is refused with a message;
/// the dialog then counts as cancelled.
class CommonDialog {
public:
    static constexpr int Width = 555;
    static constexpr int Height = 540;

    /// A cancelled ShowSave, ShowFont or ShowColor throws RuntimeError 5 instead of returning.
    bool CancelError = false;
    QPointer<QWidget> hOwner; ///< the dialogs are modal to its window
    /// Handed to the dialogs: without the bits of 224 to open and save, the bits of 15 alone to
    /// ShowColor. Qt's dialogs heed none of them.
    std::int32_t flags = 0;
    std::string DialogTitle;
    std::string DialogPrompt; ///< of ShowFolder, ShowRun and ShowRestart
    bool Bold = false;
    bool Italic = false;
    bool StrikeThru = false;
    bool Underline = false;
    std::string FontName;
    double FontSize = 0;    ///< points; 0 lets the dialog begin with the usual size
    std::string DefaultExt; ///< with or without a dot; for names that are typed without one
    /// The name or path to begin with, then the chosen path; "" after a cancelled dialog.
    std::string FileName;
    std::string FileTitle;        ///< the chosen path's file name
    std::string Filter;           ///< "name|patterns" pairs, such as "All files (*.*)| *.*"
    std::int32_t FilterIndex = 0; ///< from 1 on, in and out; 0 begins with the first filter
    /// The folder to begin in, or a file whose folder and name the dialog begins with. Where
    /// neither exists, and for "", the program's folder.
    std::string InitDir;
    ColorValue RGBResult = 0; ///< of ShowColor and ShowFont, in and out

    /// Native folders that file dialogs list among their places, such as the recovery folder.
    std::vector<std::filesystem::path> SidebarFolders;

    /// Lets an existing file be chosen. Never throws for a cancel.
    void ShowOpen();
    /// Lets a file be named.
    /// @throws RuntimeError 5 on cancel with CancelError
    void ShowSave();
    /// @throws RuntimeError 5 on cancel with CancelError
    void ShowColor();
    /// FontName, FontSize, Bold, Italic, StrikeThru, Underline and RGBResult, in and out. They
    /// stay as they are when the dialog is cancelled, a system colour also when the user leaves
    /// the colour alone.
    /// @throws RuntimeError 5 on cancel with CancelError
    void ShowFont();
    /// Lets a folder be chosen. The result is in LastFolder(); InitDir and DialogTitle are ""
    /// afterwards.
    void ShowFolder();
    /// The folder that the last ShowFolder of any CommonDialog gave, "" when it was cancelled. No
    /// backslash at its end but for the root of a drive.
    static const std::string& LastFolder() noexcept { return lastFolder_; }

    // The rest is for other users of the control: the program's own windows use none of it.

    std::string AppName; ///< title of ShowAbout
    QIcon hIcon;         ///< of ShowAbout; ShowIcon sets it

    /// Of ShowIcon, in pixels: 16 or 32.
    [[nodiscard]] std::int32_t IconSize() const noexcept { return iconSize_; }
    /// Any number but 16 gives 32.
    void SetIconSize(std::int32_t size) noexcept { iconSize_ = size == 16 ? 16 : 32; }

    std::int32_t HelpCommand = 0;
    std::string HelpFile;
    std::string HelpKey;

    /// Runs a dialog by its number: 0 open, 1 save, 2 colour, 3 font, 4 printer, 5 help, 6 about,
    /// 7 folder, 8 format, 9 icon, 10 object properties, 11 restart, 12 run, 13 shut down. Other
    /// numbers do nothing.
    void SetAction(std::int16_t number);
    void ShowPrinter();
    /// HelpFile with HelpCommand and HelpKey.
    void ShowHelp();
    /// AppName as title, DialogTitle as text, hIcon.
    void ShowAbout();
    /// Formats the drive of InitDir.
    void ShowFormat();
    /// Sets hIcon to the icon of the file FileName in IconSize.
    void ShowIcon();
    /// The properties of the file FileName.
    void ShowObjectProp();
    void ShowRestart();
    void ShowRun();
    void ShowShutDown();
    /// Searches below InitDir.
    void ShowFindFiles();

private:
    using FileDialogMethod = std::optional<FileAnswer> (DialogResponder::*)(const FileRequest&);

    bool RunFileDialog(FileDialogMethod method);
    [[nodiscard]] FileRequest MakeFileRequest() const;
    void ThrowIfCancelIsError(const char* dialog) const;
    void Shell(ShellDialog dialog, std::string_view path);
    /// The document form of a chosen path; nothing, after a message, for one that is refused.
    [[nodiscard]] std::optional<std::string> Accept(const QString& path, std::size_t longest) const;
    /// False, after a message, for a text that has no place in the code page.
    [[nodiscard]] bool AcceptText(const QString& text) const;
    void Refuse(const QString& chosen, const QString& objection) const;

    static inline std::string lastFolder_;
    std::int32_t iconSize_ = 32;
};

} // namespace tavmoor
