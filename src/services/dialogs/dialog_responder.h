#pragma once

#include "services/dialogs/shell_dialogs.h"

#include <QColor>
#include <QIcon>
#include <QString>
#include <QStringList>

#include <array>
#include <cstdint>
#include <optional>

class QWidget;

namespace tavmoor {

// What CommonDialog asks the user for. Paths are native; "" stands for "none given".

struct FileRequest {
    QWidget* owner = nullptr;
    QString title;
    QString filter;           ///< pairs parted by '|', as ParseFilter takes them
    int filterIndex = 1;      ///< the filter to begin with, from 1 on; others count as 1
    QString folder;           ///< to begin in
    QString file;             ///< name to begin with
    QString defaultExtension; ///< without the dot; added to a name that is typed without one
    std::uint32_t flags = 0;
    QStringList sidebarFolders; ///< listed among the dialog's places
};

struct FileAnswer {
    QString path;
    int filterIndex = 1; ///< the filter that was on at last
};

struct FolderRequest {
    QWidget* owner = nullptr;
    QString title;
    QString prompt;
    QString folder; ///< to begin in
    std::uint32_t flags = 0;
};

/// The colours that a colour dialog lets the user keep.
using CustomColors = std::array<QColor, 16>;

struct ColorRequest {
    QWidget* owner = nullptr;
    QString title;
    QColor color;
    CustomColors customColors;
    std::uint32_t flags = 0;
};

struct ColorAnswer {
    QColor color;
    CustomColors customColors;
};

/// What a font dialog begins with and what it gives back.
struct FontChoice {
    QString family;
    double points = 0; ///< 0 is the usual size
    bool bold = false;
    bool italic = false;
    bool underline = false;
    bool strikeOut = false;
    QColor color;

    bool operator==(const FontChoice&) const = default;
};

struct FontRequest {
    QWidget* owner = nullptr;
    QString title;
    FontChoice font;
    std::uint32_t flags = 0;
};

struct PrinterRequest {
    QWidget* owner = nullptr;
    QString title;
    std::uint32_t flags = 0;
};

struct AboutRequest {
    QWidget* owner = nullptr;
    QString title;
    QString text;
    QIcon icon;
};

/// Shows the dialogs that CommonDialog asks for, and waits for each one's end. The answers are
/// empty when the user cancelled. See ServiceSlot for putting another one in place of Qt's.
class DialogResponder {
public:
    virtual ~DialogResponder() = default;

    /// Lets an existing file be chosen.
    virtual std::optional<FileAnswer> OpenFile(const FileRequest& request) = 0;
    /// Lets a file be named; asks before a name that exists is given back.
    virtual std::optional<FileAnswer> SaveFile(const FileRequest& request) = 0;
    virtual std::optional<QString> Folder(const FolderRequest& request) = 0;
    virtual std::optional<ColorAnswer> Color(const ColorRequest& request) = 0;
    virtual std::optional<FontChoice> Font(const FontRequest& request) = 0;
    /// Lets a printer be set up; true when it was.
    virtual bool Printer(const PrinterRequest& request) = 0;
    virtual void About(const AboutRequest& request) = 0;
    /// The icon of a file in a size, 16 or 32 pixels; a null icon when the file has none.
    virtual QIcon FileIcon(const QString& path, int size) = 0;
    /// As tavmoor::ShowShellDialog.
    virtual bool Shell(const ShellRequest& request) = 0;

protected:
    DialogResponder() = default;
    DialogResponder(const DialogResponder&) = default;
    DialogResponder& operator=(const DialogResponder&) = default;
};

/// Who shows the dialogs now: the replacement, else Qt's dialogs.
DialogResponder& Dialogs();

} // namespace tavmoor
