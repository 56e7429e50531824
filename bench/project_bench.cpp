#include "full_project.h"
#include "work_folder.h"

#include "core/document/project_reader.h"
#include "core/document/project_reset.h"
#include "core/document/project_writer.h"
#include "core/files/document_path.h"
#include "core/files/file_store.h"

#include <benchmark/benchmark.h>
#include <glib.h>

#include <fstream>

namespace tavmoor::bench {

namespace {

class Silent final : public ProjectReaderListener {};

std::string MakeProject(const std::filesystem::path& folder) {
    std::ofstream(folder / "button.gif") << "GIF89a";
    std::string path = DocumentPath(folder / "full.tavp");
    WriteProject(*FullProject(DocumentPath(folder / "button.gif")), path);
    return path;
}

void OpenFrom(const ProfileFile& file, ProjectDocument& document) {
    ResetProjectSettings(document);
    ResetObjects(document);
    Silent listener;
    ReadProjectFrom(file, document, "", listener);
    MakeButtonsLive(document, ButtonRowsIn(file));
}

/// Opening as the program does it (both resets, every key asked for, pictures checked) and the
/// whole text of a save.
void ProjectOpenAndSave(benchmark::State& state) {
    const std::string path = MakeProject(WorkFolder("project"));
    auto document = std::make_unique<ProjectDocument>(NewProjectDocument());
    for (auto _ : state) {
        OpenFrom(ProfileFile::Load(path), *document);
        benchmark::DoNotOptimize(ProjectText(*document));
    }
}

/// The same with a save that is flushed to the disk.
void ProjectOpenAndDurableSave(benchmark::State& state) {
    const std::string path = MakeProject(WorkFolder("project"));
    auto document = std::make_unique<ProjectDocument>(NewProjectDocument());
    for (auto _ : state) {
        OpenFrom(ProfileFile::Load(path), *document);
        WriteProject(*document, path);
    }
}

struct Key {
    std::string section;
    std::string name;
};

std::vector<Key> KeysOf(const std::string& path) {
    const ProfileFile file = ProfileFile::Load(path);
    std::vector<Key> keys;
    for (const ProfileFile::Entry& entry : file.Entries()) {
        keys.push_back({std::string(entry.section), std::string(entry.key)});
    }
    return keys;
}

/// GLib's parser on the same file, with a look-up of every key that stands in it.
void GLibLoadAndLookUp(benchmark::State& state) {
    const std::string path = MakeProject(WorkFolder("glib"));
    const std::string native = NativePath(path).string();
    const std::vector<Key> keys = KeysOf(path);
    for (auto _ : state) {
        GKeyFile* file = g_key_file_new();
        if (!g_key_file_load_from_file(file, native.c_str(), G_KEY_FILE_NONE, nullptr)) {
            state.SkipWithError("the file was not parsed");
        }
        for (const Key& key : keys) {
            gchar* value =
                g_key_file_get_value(file, key.section.c_str(), key.name.c_str(), nullptr);
            benchmark::DoNotOptimize(value);
            g_free(value);
        }
        g_key_file_free(file);
    }
    state.counters["keys"] = static_cast<double>(keys.size());
}

BENCHMARK(ProjectOpenAndSave)->Unit(benchmark::kMicrosecond);
BENCHMARK(GLibLoadAndLookUp)->Unit(benchmark::kMicrosecond);
BENCHMARK(ProjectOpenAndDurableSave)->UseRealTime()->Unit(benchmark::kMicrosecond);

} // namespace

} // namespace tavmoor::bench
