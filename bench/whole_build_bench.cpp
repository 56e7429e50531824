#include "work_folder.h"

#include "core/document/project_reset.h"
#include "core/document/project_writer.h"
#include "core/files/document_path.h"

#include <benchmark/benchmark.h>

#include <fstream>

namespace tavmoor::bench {

namespace {

namespace fs = std::filesystem;

/// A project of 1 GB of videos with a template beside it.
std::string MakeProject(const fs::path& folder) {
    std::ofstream(folder / "template.tavt") << "[Template]\r\nName=Bench\r\n";
    std::ofstream(folder / "template.tavexe") << std::string(2U << 20U, 'x');
    auto document = std::make_unique<ProjectDocument>(NewProjectDocument());
    document->OsnovnaPodesavanja.Sablon = DocumentPath(folder / "template.tavt");
    document->OsnovniPodaci.exename = "bench.exe";
    for (std::size_t i = 0; i < BigFiles().size(); ++i) {
        document->Video[i + 1].VideoFajl = DocumentPath(BigFiles()[i]);
    }
    WriteProject(*document, DocumentPath(folder / "bench.tavp"));
    return (folder / "bench.tavp").string();
}

/// @param temporary where the build folder lies: in the disc's file system or in another one
void Build(benchmark::State& state, const fs::path& temporary) {
    const fs::path folder = WorkFolder("build");
    const fs::path disc = folder / "disc";
    const std::string command = "TMPDIR='" + temporary.string() + "' '" TAVMOOR_CLI "' build '" +
                                MakeProject(folder) + "' --cd-folder '" + disc.string() +
                                "' >/dev/null";
    for (auto _ : state) {
        state.PauseTiming();
        fs::remove_all(disc);
        fs::create_directories(disc);
        fs::create_directories(temporary);
        state.ResumeTiming();
        RunShell(command);
    }
    fs::remove_all(folder);
}

void BuildOfOneGigabyteOnOneFileSystem(benchmark::State& state) {
    Build(state, fs::path(TAVMOOR_BENCH_FOLDER) / "temporary");
}

void BuildOfOneGigabyteAcrossFileSystems(benchmark::State& state) {
    Build(state, "/dev/shm/tavmoor-bench");
    std::error_code ignored;
    fs::remove_all("/dev/shm/tavmoor-bench", ignored);
}

BENCHMARK(BuildOfOneGigabyteOnOneFileSystem)
    ->UseRealTime()
    ->Unit(benchmark::kMillisecond)
    ->Iterations(1);
BENCHMARK(BuildOfOneGigabyteAcrossFileSystems)
    ->UseRealTime()
    ->Unit(benchmark::kMillisecond)
    ->Iterations(1);

} // namespace

} // namespace tavmoor::bench
