#pragma once

#include "services/dialogs/dialog_answers.h"
#include "services/windows/window_registry.h"

#include <QString>

#include <functional>
#include <optional>
#include <string>
#include <string_view>

class QWidget;

namespace tavmoor {

// How the main window's panels let the user choose files and fonts for a field. All paths have
// document form; a cancelled dialog gives nothing and changes nothing.

inline constexpr std::string_view AutorunPictureFilter =
    "Picture file(jpg, bmp, gif)|*.jpg;*.bmp;*.gif";
inline constexpr std::string_view ScreenPictureFilter =
    "Picture file(jpg, bmp, gif)|*.jpg;*.bmp;*.gif;*.wmf;*.emf;*.ico;*.cur";
inline constexpr std::string_view AllFilesFilter = "All files (*.*)| *.*";

/// What a file dialog of a field shows.
struct FilePick {
    std::string_view title;
    std::string_view filter;
    std::string initialFolder; ///< or a file, whose folder counts; "" is the program's folder
};

/// Lets a file be chosen; the name is not checked.
std::optional<std::string> PickFile(QWidget& owner, const FilePick& pick);

/// Lets a file be chosen whose name may stand on a disc; another name is refused with a message.
std::optional<std::string> PickCheckedFile(QWidget& owner, const FilePick& pick);

/// The picture picker: begins at the field's file or in the last picture folder, keeps the folder,
/// and shows the chosen picture in the preview window. That it loads is not tested here.
/// @param store puts the chosen path into its field, before the preview comes up
void PickPicture(ProgramContext context, QWidget& owner, std::string_view title,
                 std::string_view filter, const std::string& current,
                 const std::function<void(const std::string& path)>& store);

/// A picture that was dropped on its field: the name check, the last picture folder and the preview
/// as for a chosen one.
void TakePicture(ProgramContext context, QWidget& owner, const std::string& path,
                 const std::function<void(const std::string& path)>& store);

/// Lets a font be chosen, beginning with the given one ("" for name or size gives the dialog none).
std::optional<PickedFont> PickFont(QWidget& owner, const PickedFont& current,
                                   std::string_view title = {});

} // namespace tavmoor
