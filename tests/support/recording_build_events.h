#pragma once

#include "build/build_events.h"

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace tavmoor::test {

/// Writes down what a build tells, in its order, and lets a test look or meddle at each moment.
class RecordingBuildEvents final : public BuildEvents {
public:
    std::vector<std::string> log;
    std::function<void(const std::string& entry)> onEntry = [](const std::string&) {};

    void Status(std::string_view text) override { Add("status " + std::string(text)); }
    void ShowMessage(std::string_view text, std::string_view title,
                     BuildMessageKind kind) override {
        const std::string mark = kind == BuildMessageKind::Critical ? "critical" : "message";
        Add(mark + " [" + std::string(title) + "] " + std::string(text));
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
    void LetEventsRun() override { Add("events"); }
    void Wait(std::chrono::milliseconds time) override {
        Add("wait " + std::to_string(time.count()));
    }
    void StartAutorun(std::string_view path) override { Add("start " + std::string(path)); }

private:
    void Add(const std::string& entry) {
        log.push_back(entry);
        onEntry(entry);
    }
};

} // namespace tavmoor::test
