#include "process.h"

#include "console.h"
#include "core/files/build_folder.h"
#include "core/files/document_path.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <spawn.h>
#include <system_error>
#include <unistd.h>

namespace tavmoor::cli {

namespace {

volatile std::sig_atomic_t interrupted = 0;

} // namespace

std::vector<std::string> CommandLineArguments(int count, char** values) {
    return {values + 1, values + count};
}

std::filesystem::path NativeArgument(const std::string& utf8) {
    return IsDocumentForm(utf8) ? NativePath(TextArgument(utf8)) : FromUtf8(utf8);
}

void PrepareConsole() {
    std::signal(SIGPIPE, SIG_IGN); // the failing write tells it
}

void CatchInterrupts() {
    for (const int number : {SIGINT, SIGTERM, SIGHUP}) {
        struct sigaction action {};
        sigaction(number, nullptr, &action);
        if (action.sa_handler != SIG_IGN) {
            action = {};
            action.sa_handler = [](int) { interrupted = 1; };
            sigaction(number, &action, nullptr);
        }
    }
}

bool IsInterrupted() {
    return interrupted != 0;
}

bool OutputIsTerminal() {
    return isatty(STDOUT_FILENO) == 1;
}

void StartAutorunProgram(const std::filesystem::path& program) {
    std::string wine = "wine";
    std::string path = program.string();
    const std::array<char*, 3> arguments{wine.data(), path.data(), nullptr};
    posix_spawnattr_t attributes;
    sigset_t defaults;
    sigemptyset(&defaults);
    sigaddset(&defaults, SIGPIPE); // ignored here, and the child would inherit that
    posix_spawnattr_init(&attributes);
    posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETSIGDEF);
    posix_spawnattr_setsigdefault(&attributes, &defaults);
    pid_t child = 0;
    const int error =
        posix_spawnp(&child, wine.c_str(), nullptr, &attributes, arguments.data(), environ);
    posix_spawnattr_destroy(&attributes);
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
