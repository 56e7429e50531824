#include "disc/marked_programs.h"

#include "core/files/document_path.h"
#include "core/files/file_store.h"
#include "core/text/maker.h"
#include "core/text/path_text.h"
#include "disc/version_block.h"

namespace tavmoor {

std::vector<std::string> MarkedProgramsIn(std::string_view folder) {
    std::vector<std::string> marked;
    for (const std::string& name : FileNamesIn(folder, ".exe")) {
        std::string path = WithBackslash(folder) + name;
        const auto native = FindNativePath(path);
        if (native && ReadCompanyName(*native) == MakerMarker) {
            marked.push_back(std::move(path));
        }
    }
    return marked;
}

void DeleteMarkedPrograms(std::string_view folder) {
    for (const std::string& path : MarkedProgramsIn(folder)) {
        DeleteFileIgnoringErrors(path);
    }
}

} // namespace tavmoor
