#include "services/pictures/child_work_posix.h"

#include "core/disk/native_file.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <fstream>

#include <fcntl.h>
#include <poll.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace tavmoor {

namespace {

using Clock = std::chrono::steady_clock;

/// Lowers one limit of this process, never above the hard one.
void Limit(int resource, rlim_t value) {
    rlimit limit{};
    if (getrlimit(static_cast<__rlimit_resource>(resource), &limit) != 0) {
        return;
    }
    limit.rlim_cur =
        limit.rlim_max == RLIM_INFINITY || value < limit.rlim_max ? value : limit.rlim_max;
    setrlimit(static_cast<__rlimit_resource>(resource), &limit);
}

/// The size of this process in bytes; 0 where the system does not tell it.
rlim_t SizeOfProcess() {
    rlim_t pages = 0;
    std::ifstream("/proc/self/statm") >> pages;
    return pages * static_cast<rlim_t>(sysconf(_SC_PAGESIZE));
}

/// Ends this process as soon as its parent does, which alone watches over its time.
void DieWithParent(pid_t parent) {
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    if (getppid() != parent) { // it died before the call
        _exit(1);
    }
}

/// Closes all files of the program: a lock, a pipe or the connection to the display would stay open
/// beyond its end.
/// @return `output` under its new number
int KeepStandardFilesAnd(int output) {
    constexpr int Kept = STDERR_FILENO + 1;
    if (output != Kept && dup2(output, Kept) < 0) {
        _exit(1);
    }
    close_range(Kept + 1, ~0U, 0); // kernels before 5.9 leave them open
    return Kept;
}

/// The child's whole life. It must not come back into the program, whose buffers it holds copies
/// of.
[[noreturn]] void LiveAsChild(const std::function<std::string()>& work, const ChildLimits& limits,
                              pid_t parent, int output) {
    DieWithParent(parent);
    for (const int number : {SIGSEGV, SIGABRT, SIGBUS, SIGFPE, SIGILL, SIGTERM, SIGINT}) {
        std::signal(number, SIG_DFL);
    }
    Limit(RLIMIT_CORE, 0);
    Limit(RLIMIT_CPU, static_cast<rlim_t>(limits.time.count()));
    if (const rlim_t size = SizeOfProcess(); size > 0) {
        Limit(RLIMIT_AS, size + limits.memory);
    }
    // The library's complaints about a damaged file concern nobody.
    if (const int nowhere = open("/dev/null", O_WRONLY | O_CLOEXEC); nowhere >= 0) {
        dup2(nowhere, STDOUT_FILENO);
        dup2(nowhere, STDERR_FILENO);
    }
    output = KeepStandardFilesAnd(output);
    try {
        _exit(WriteAll(output, work()) ? 1 : 0);
    } catch (...) {
        _exit(1);
    }
}

/// Reads until the other end is closed.
/// @return false at the deadline, beyond the limit, or when reading fails
bool ReadAll(int file, std::size_t limit, Clock::time_point deadline, std::string& bytes) {
    std::array<char, 65536> block{};
    for (;;) {
        const auto left =
            std::chrono::duration_cast<std::chrono::milliseconds>(deadline - Clock::now()).count();
        pollfd wait{file, POLLIN, 0};
        const int ready = left > 0 ? poll(&wait, 1, static_cast<int>(left)) : 0;
        if (ready == 0 || (ready < 0 && errno != EINTR)) {
            return false;
        }
        if (ready < 0) {
            continue;
        }
        const ssize_t count = read(file, block.data(), block.size());
        if (count == 0) {
            return true;
        }
        if (count < 0 || bytes.size() + static_cast<std::size_t>(count) > limit) {
            return false;
        }
        bytes.append(block.data(), static_cast<std::size_t>(count));
    }
}

bool EndedWell(pid_t child) {
    int status = 0;
    while (waitpid(child, &status, 0) < 0) {
        if (errno != EINTR) {
            return false;
        }
    }
    return WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

} // namespace

std::optional<std::string> DoInChild(const std::function<std::string()>& work,
                                     const ChildLimits& limits) {
    std::array<int, 2> ends{};
    if (pipe2(ends.data(), O_CLOEXEC) != 0) {
        return std::nullopt;
    }
    const pid_t parent = getpid();
    const pid_t child = fork();
    if (child == 0) {
        LiveAsChild(work, limits, parent, ends[1]);
    }
    close(ends[1]);
    std::string bytes;
    bool isWhole = false;
    if (child > 0) {
        isWhole = ReadAll(ends[0], limits.output, Clock::now() + limits.time, bytes);
        if (!isWhole) {
            kill(child, SIGKILL);
        }
        isWhole = EndedWell(child) && isWhole;
    }
    close(ends[0]);
    return isWhole ? std::optional(std::move(bytes)) : std::nullopt;
}

} // namespace tavmoor
