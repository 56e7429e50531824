#include <benchmark/benchmark.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

// Time from the start of a process to its painted window, and the most memory it took. Run it with
// a display, or with QT_QPA_PLATFORM=offscreen.

namespace {

/// @return kilobytes of memory at most; 0 when the program failed
long RunToItsEnd(const char* program) {
    pid_t child = 0;
    std::string path(program);
    char* arguments[] = {path.data(), nullptr};
    if (posix_spawn(&child, program, nullptr, nullptr, arguments, environ) != 0) {
        return 0;
    }
    int status = 0;
    rusage usage{};
    wait4(child, &status, 0, &usage);
    return WIFEXITED(status) && WEXITSTATUS(status) == 0 ? usage.ru_maxrss : 0;
}

void Start(benchmark::State& state, const char* program) {
    long memory = 0;
    for (auto _ : state) {
        memory = RunToItsEnd(program);
        if (memory == 0) {
            state.SkipWithError("the program did not start");
            return;
        }
    }
    state.counters["memory_MB"] = static_cast<double>(memory) / 1024;
}

/// The program's own splash would only measure its three seconds; and a program that ends at its
/// first paint must not look like a crash to the user's own next start.
void PrepareStarts() {
    const auto folder = std::filesystem::path(TAVMOOR_START_MAIN).parent_path();
    std::ofstream(folder / "tavmoor.ini") << "[Settings]\r\nSplashscreen=0\r\n";
    setenv("XDG_DATA_HOME", (folder / "data").c_str(), 1);
}

} // namespace

int main(int argc, char** argv) {
    PrepareStarts();
    for (const auto& [name, program] : {std::pair{"StartMainWindow", TAVMOOR_START_MAIN},
                                        std::pair{"StartEmptyQtWindow", TAVMOOR_START_EMPTY}}) {
        benchmark::RegisterBenchmark(name, Start, program)
            ->UseRealTime()
            ->Unit(benchmark::kMillisecond)
            ->MinTime(3.0);
    }
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return EXIT_SUCCESS;
}
