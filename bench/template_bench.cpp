#include "work_folder.h"

#include "core/files/document_path.h"
#include "templates/template_catalogue.h"

#include <benchmark/benchmark.h>

#include <fstream>

namespace tavmoor::bench {

namespace {

constexpr int Templates = 1000;

std::filesystem::path MakeTemplates() {
    const auto folder = WorkFolder("templates");
    for (int i = 0; i < Templates; ++i) {
        const std::string name = "Template " + std::to_string(i);
        const auto own = folder / ("Group " + std::to_string(i % 20)) / name;
        std::filesystem::create_directories(own);
        std::ofstream(own / (name + ".tavt"))
            << "[Template]\r\nName=" << name << "\r\ncommand number=8\r\n";
        std::ofstream(own / "opis.rtf") << "{\\rtf1}";
    }
    return folder;
}

void CatalogueOfThousand(benchmark::State& state) {
    const std::string folder = DocumentPath(MakeTemplates());
    for (auto _ : state) {
        const TemplateCatalogue catalogue = ReadTemplateCatalogue(folder);
        if (catalogue.names.size() != Templates) {
            state.SkipWithError("a template was not found");
        }
    }
}

BENCHMARK(CatalogueOfThousand)->Unit(benchmark::kMillisecond);

} // namespace

} // namespace tavmoor::bench
