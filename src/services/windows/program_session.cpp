#include "services/windows/program_session.h"

#include "core/files/build_folder.h"
#include "core/text/path_text.h"

namespace tavmoor {

std::string CompressFolder(const ProgramSettings& settings) {
    const std::string& folder = settings.buildFolder;
    return folder.empty() || folder == DefaultCompressFolder ? BuildFolder() : folder;
}

std::string InProgramFolder(const ProgramSession& session, std::string_view name) {
    return WithBackslash(session.programFolder) + std::string(name);
}

} // namespace tavmoor
