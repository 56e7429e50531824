#include "console.h"

#include "core/build_folder.h"
#include "core/document_path.h"

#include <array>
#include <cerrno>
#include <cstdlib>
#include <spawn.h>
#include <system_error>
#include <unistd.h>

extern char** environ;

namespace tavmoor::cli {

std::vector<std::string> CommandLineArguments(int count, char** values) {
    return {values + 1, values + count};
}

std::filesystem::path NativeArgument(const std::string& utf8) {
    return IsDocumentForm(utf8) ? NativePath(TextArgument(utf8)) : FromUtf8(utf8);
}

void PrepareConsole() {}

bool OutputIsTerminal() {
    return isatty(STDOUT_FILENO) == 1;
}

void StartAutorunProgram(const std::filesystem::path& program) {
    std::string wine = "wine";
    std::string path = program.string();
    const std::array<char*, 3> arguments{wine.data(), path.data(), nullptr};
    pid_t child = 0;
    const int error =
        posix_spawnp(&child, wine.c_str(), nullptr, nullptr, arguments.data(), environ);
    if (error == ENOENT) {
        throw CommandFailure("the autorun was built but not started: Wine is not installed");
    }
    if (error != 0) {
        throw CommandFailure("the autorun was built but not started: " +
                             std::generic_category().message(error));
    }
}

std::filesystem::path MakePrivateTemporaryFolder() {
    std::string path = (NativePath(TemporaryPath()) / "TAVMOORbuild-XXXXXX").string();
    if (mkdtemp(path.data()) == nullptr) {
        throw CommandFailure("no folder for working files can be made at " + path + ": " +
                             std::generic_category().message(errno));
    }
    return path;
}

} // namespace tavmoor::cli
