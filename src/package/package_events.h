#pragma once

#include <cstdint>
#include <string_view>

namespace tavmoor {

/// What the writing of a package tells while it runs. Paths are in document form.
class PackageEvents {
public:
    virtual ~PackageEvents() = default;

    /// A file of the list is about to be packed.
    virtual void PackingFile(std::string_view /*path*/) {}
    /// Bytes of all files that are in the package so far, and that will be.
    virtual void PackageProgress(std::uint64_t /*done*/, std::uint64_t /*total*/) {}
    /// Lets pending events run; called after each block.
    virtual void LetEventsRun() {}

protected:
    PackageEvents() = default;
    PackageEvents(const PackageEvents&) = default;
    PackageEvents& operator=(const PackageEvents&) = default;
};

} // namespace tavmoor
