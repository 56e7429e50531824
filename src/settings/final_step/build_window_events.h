#pragma once

#include "disc/build_events.h"

class QProgressBar;
class QWidget;

namespace tavmoor {

class StatusLabel;

/// The controls in which the final step shows a build.
struct BuildControls {
    QWidget* window = nullptr; ///< owner of the message boxes
    StatusLabel* status = nullptr;
    QProgressBar* progress = nullptr;
};

/// Shows a build in the window of the final step, and does what it needs of its surroundings.
class WindowBuildEvents final : public BuildEvents {
public:
    explicit WindowBuildEvents(const BuildControls& controls) : controls_(controls) {}

    /// An empty bar; before a build.
    void ResetProgress();

    void Status(std::string_view text) override;
    void PackageProgress(std::uint64_t done, std::uint64_t total) override;
    void PlacingProgress(std::uint64_t done, std::uint64_t total) override;
    bool Ask(BuildQuestion question, std::string_view text) override;
    void LetEventsRun() override;
    void Wait(std::chrono::milliseconds time) override;
    void StartAutorun(std::string_view path) override;

private:
    BuildControls controls_;
};

} // namespace tavmoor
