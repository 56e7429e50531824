#pragma once

#include "disc/build_events.h"

class QAbstractButton;
class QLabel;
class QLineEdit;
class QProgressBar;
class QWidget;

namespace tavmoor {

class StatusLabel;

/// The controls in which the final step shows a build.
struct BuildControls {
    QWidget* window = nullptr; ///< owner of the message boxes
    QLabel* folder = nullptr;
    QLineEdit* name = nullptr;
    StatusLabel* status = nullptr;
    QProgressBar* progress = nullptr;
    QAbstractButton* build = nullptr;
};

/// Shows a build in the window of the final step, and does what it needs of its surroundings.
class WindowBuildEvents final : public BuildEvents {
public:
    explicit WindowBuildEvents(const BuildControls& controls) : controls_(controls) {}

    /// An empty bar; before a build.
    void ResetProgress();

    void Status(std::string_view text) override;
    void ShowMessage(std::string_view text, std::string_view title, BuildMessageKind kind) override;
    void ColorName(ColorValue color) override;
    void ReplaceName(std::string_view name) override;
    void MarkFolder() override;
    void EnableBuild(bool enabled) override;
    void PackageProgress(std::uint64_t done, std::uint64_t total) override;
    void PackageWritten(const BuiltPackage& package) override { package_ = package; }
    void LetEventsRun() override;
    void Wait(std::chrono::milliseconds time) override;
    void StartAutorun(std::string_view path) override;

    /// The package that was written; empty before that.
    [[nodiscard]] const BuiltPackage& Package() const { return package_; }

private:
    BuildControls controls_;
    BuiltPackage package_;
};

} // namespace tavmoor
