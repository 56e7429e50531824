#pragma once

#include "package/package_events.h"

#include <functional>
#include <string>

namespace tavmoor::test {

/// Writes down what the writing of a package tells, one line for each, and lets a test look or
/// meddle meanwhile. The base is PackageEvents or derived from it.
template <typename Base = PackageEvents>
class RecordingPackageEvents : public Base {
public:
    std::string log;
    /// Takes each line before it is written down, and gives it back, changed at will.
    std::function<std::string(std::string line)> onLine = [](std::string line) { return line; };

    void PackingFile(std::string_view path) override { Add("pack " + std::string(path)); }
    void PackageProgress(std::uint64_t done, std::uint64_t total) override {
        Add("packed " + std::to_string(done) + "/" + std::to_string(total));
    }
    void LetEventsRun() override { Add("events"); }

protected:
    void Add(std::string line) { log += onLine(std::move(line)) + "\n"; }
};

} // namespace tavmoor::test
