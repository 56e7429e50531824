#pragma once

#include "build/build_events.h"

#include <functional>
#include <string>

namespace tavmoor::test {

/// Writes down what a build tells, one line for each, and lets a test look or meddle meanwhile.
class RecordingBuildEvents final : public BuildEvents {
public:
    std::string log;
    BuiltPackage package;
    /// Takes each line before it is written down, and gives it back, changed at will.
    std::function<std::string(std::string line)> onLine = [](std::string line) { return line; };

    void Status(std::string_view text) override { Add("status " + std::string(text)); }
    void ShowMessage(std::string_view text, std::string_view title,
                     BuildMessageKind kind) override {
        const char* mark = kind == BuildMessageKind::Critical ? "critical [" : "message [";
        Add(mark + std::string(title) + "] " + std::string(text));
    }
    void ColourName(ColorValue colour) override { Add("colour " + std::to_string(colour)); }
    void ReplaceName(std::string_view name) override { Add("name " + std::string(name)); }
    void MarkFolder() override { Add("mark folder"); }
    void EnableBuild(bool enabled) override { Add(enabled ? "enable" : "disable"); }
    void CheckingFile(std::string_view path) override { Add("check " + std::string(path)); }
    void PackingFile(std::string_view path) override { Add("pack " + std::string(path)); }
    void PackageProgress(std::uint64_t done, std::uint64_t total) override {
        Add("packed " + std::to_string(done) + "/" + std::to_string(total));
    }
    void PackageWritten(const BuiltPackage& written) override { package = written; }
    void LetEventsRun() override { Add("events"); }
    void Wait(std::chrono::milliseconds time) override {
        Add("wait " + std::to_string(time.count()));
    }
    void StartAutorun(std::string_view path) override { Add("start " + std::string(path)); }

private:
    void Add(std::string line) { log += onLine(std::move(line)) + "\n"; }
};

} // namespace tavmoor::test
