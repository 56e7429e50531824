#include "services/system/session_fonts_platform.h"

namespace tavmoor {

// There are no session fonts here: a font is installed for the user, or known to one program alone.

bool PlatformAddFont(const std::filesystem::path& /*file*/) {
    return true;
}

bool PlatformRemoveFont(const std::filesystem::path& /*file*/) {
    return true;
}

} // namespace tavmoor
