#pragma once

#include "services/dialogs/dialog_responder.h"

namespace tavmoor {

/// Qt's dialogs, which are the platform's own where it has one. A file dialog with folders of its
/// own among the places is always Qt's, since the platform's cannot show them; so are the colour
/// dialog, for its custom colours, and the font dialog, for its colour.
class QtDialogs final : public DialogResponder {
public:
    std::optional<FileAnswer> OpenFile(const FileRequest& request) override;
    std::optional<FileAnswer> SaveFile(const FileRequest& request) override;
    std::optional<QString> Folder(const FolderRequest& request) override;
    std::optional<ColorAnswer> Color(const ColorRequest& request) override;
    std::optional<FontChoice> Font(const FontRequest& request) override;
    bool Printer(const PrinterRequest& request) override;
    void About(const AboutRequest& request) override;
    QIcon FileIcon(const QString& path, int size) override;
    bool Shell(const ShellRequest& request) override;
};

} // namespace tavmoor
