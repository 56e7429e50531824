#pragma once

#include "menu/menu_model.h"

#include <functional>
#include <string>
#include <string_view>
#include <variant>

namespace tavmoor {

// Texts here are UTF-8, paths of the Windows form.

/// What the system's shell is to open.
struct StartRequest {
    std::string file;       ///< a path or an address
    std::string parameters; ///< "" for none
    std::string folder;     ///< working folder; "" for none
};

/// Why a command cannot even be tried.
struct CommandRefusal {
    std::string reason;
};

/// True when a file or folder lies at the path.
using PathExists = std::function<bool(const std::string& path)>;

/// What a command starts.
///  - A file: relative to the disc's folder unless absolute; a leading backslash, which chosen
///    targets have, means the disc's folder, not the drive's root. A bare program name that the
///    disc does not hold is left to the system's search.
///  - A page: http, https and ftp alone; "http://" is added where no scheme stands. A target
///    without scheme that lies on the disc is opened as a file.
///  - A letter: "mailto:" is added; the parameter is the subject, or the whole query when it is
///    one.
/// @param discFolder folder of the autorun program
std::variant<StartRequest, CommandRefusal>
ResolveCommand(const MenuCommand& command, std::string_view discFolder, const PathExists& exists);

} // namespace tavmoor
