#include "work_folder.h"

#include "core/files/document_path.h"
#include "package/package_writer.h"

#include <benchmark/benchmark.h>

#include <sys/resource.h>

namespace tavmoor::bench {

namespace {

/// The peak of the whole process so far; run this benchmark alone to read it.
double PeakMegabytes() {
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return static_cast<double>(usage.ru_maxrss) / 1024.0;
}

void PackageOfOneGigabyte(benchmark::State& state) {
    const auto folder = WorkFolder("package");
    std::vector<std::string> list;
    for (const auto& file : BigFiles()) {
        list.push_back(DocumentPath(file));
    }
    class Silent final : public PackageEvents {
    } events;
    for (auto _ : state) {
        WritePackage(list, DocumentPath(folder), events);
        state.PauseTiming();
        std::filesystem::remove(folder / "autorun.arn");
        state.ResumeTiming();
    }
    state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations() * BigFilesSize));
    state.counters["peak_MB"] = PeakMegabytes();
}

void CatOfOneGigabyte(benchmark::State& state) {
    const auto folder = WorkFolder("cat");
    const std::string command = CatCommand(folder / "all");
    for (auto _ : state) {
        RunShell(command);
        state.PauseTiming();
        std::filesystem::remove(folder / "all");
        state.ResumeTiming();
    }
    state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations() * BigFilesSize));
}

BENCHMARK(PackageOfOneGigabyte)->UseRealTime()->Unit(benchmark::kMillisecond)->Iterations(1);
BENCHMARK(CatOfOneGigabyte)->UseRealTime()->Unit(benchmark::kMillisecond)->Iterations(1);

} // namespace

} // namespace tavmoor::bench
