#pragma once

#include "disc/build_events.h"
#include "support/recording_package_events.h"

namespace tavmoor::test {

/// Writes down all that a build tells, and answers its questions.
class RecordingBuildEvents final : public RecordingPackageEvents<BuildEvents> {
public:
    bool saysYes = false;

    void Status(std::string_view text) override { Add("status " + std::string(text)); }
    void CheckingFile(std::string_view path) override { Add("check " + std::string(path)); }
    void PlacingProgress(std::uint64_t done, std::uint64_t total) override {
        Add("placed " + std::to_string(done) + "/" + std::to_string(total));
    }
    bool Ask(BuildQuestion /*question*/, std::string_view text) override {
        Add("ask " + std::string(text));
        return saysYes;
    }
    void Wait(std::chrono::milliseconds time) override {
        Add("wait " + std::to_string(time.count()));
    }
    void StartAutorun(std::string_view path) override { Add("start " + std::string(path)); }
};

} // namespace tavmoor::test
