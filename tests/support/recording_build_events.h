#pragma once

#include "disc/build_events.h"
#include "support/recording_package_events.h"

namespace tavmoor::test {

/// Writes down all that a build tells.
class RecordingBuildEvents final : public RecordingPackageEvents<BuildEvents> {
public:
    BuiltPackage package;

    void Status(std::string_view text) override { Add("status " + std::string(text)); }
    void ShowMessage(std::string_view text, std::string_view title,
                     BuildMessageKind kind) override {
        const char* mark = kind == BuildMessageKind::Critical ? "critical [" : "message [";
        Add(mark + std::string(title) + "] " + std::string(text));
    }
    void ColorName(ColorValue color) override { Add("colour " + std::to_string(color)); }
    void ReplaceName(std::string_view name) override { Add("name " + std::string(name)); }
    void MarkFolder() override { Add("mark folder"); }
    void EnableBuild(bool enabled) override { Add(enabled ? "enable" : "disable"); }
    void CheckingFile(std::string_view path) override { Add("check " + std::string(path)); }
    void PackageWritten(const BuiltPackage& written) override { package = written; }
    void Wait(std::chrono::milliseconds time) override {
        Add("wait " + std::to_string(time.count()));
    }
    void StartAutorun(std::string_view path) override { Add("start " + std::string(path)); }
};

} // namespace tavmoor::test
