#include "core/session/run_marker_platform.h"

#include "core/files/program_folder.h"
#include "core/files/runtime_error.h"

#include <algorithm>
#include <string>

namespace tavmoor {

namespace {

namespace fs = std::filesystem;

/// Programs that are looked after at a time; one more goes without a marker.
constexpr int Places = 8;

} // namespace

RunMarker::RunMarker() {
    try {
        const fs::path folder = ProgramDataFolder();
        std::error_code ignored; // without the folder, no place can be taken
        fs::create_directories(folder, ignored);
        for (int number = 1; number <= Places; ++number) {
            TakePlace(folder / ("running-" + std::to_string(number)));
        }
    } catch (const RuntimeError&) {
        return; // the system tells no data folder
    }
}

RunMarker::~RunMarker() {
    if (own_) {
        own_->Delete();
    }
}

void RunMarker::TakePlace(const fs::path& path) {
    std::error_code missing;
    const auto began = fs::last_write_time(path, missing);
    if (missing && own_) {
        return;
    }
    auto place = Platform::Lock(path);
    if (!place) {
        return;
    }
    if (!missing) {
        crashedSince_ = std::min(began, crashedSince_.value_or(began));
        place->Delete(); // this run's own file tells when this run began
        place.reset();
    }
    if (!own_) {
        own_ = place ? std::move(place) : Platform::Lock(path);
    }
}

} // namespace tavmoor
