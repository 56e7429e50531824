#pragma once

#include "support/number_bytes.h"

#include <string_view>
#include <vector>

namespace tavmoor::test {

// Windows program files in memory, just large enough to carry a version block, with the places that
// a test damages.

/// A block of a version resource: header, key, value and children, each aligned.
/// @param value its bytes; a text's length is counted in characters
std::string VersionNode(std::u16string_view key, const std::string& value, bool isText,
                        const std::vector<std::string>& children = {});

/// The UTF-16 bytes of a text with its NUL.
std::string Utf16Bytes(std::u16string_view text);

/// A version resource around the given children, with the fixed information that each one has.
std::string VersionResource(const std::vector<std::string>& children);

/// A usual version resource: strings and translation of US English and Unicode.
std::string VersionResourceOf(std::u16string_view companyName);

enum class PeKind : std::uint8_t { Pe32, Pe32Plus };

/// A program file and the offsets of its parts.
struct PeImage {
    std::string bytes;
    std::size_t newHeaderOffset = 60; ///< 32 bits in the DOS header
    std::size_t signature = 0;
    std::size_t sectionCount = 0;   ///< 16 bits
    std::size_t optionalSize = 0;   ///< 16 bits
    std::size_t magic = 0;          ///< 16 bits
    std::size_t directoryCount = 0; ///< 32 bits; 16 directories follow, of 8 bytes each
    std::size_t sectionTable = 0;   ///< one code section, then the resources
    std::size_t typeFolder = 0;     ///< of the resources; each folder is 16 bytes and one entry
    std::size_t nameFolder = 0;
    std::size_t languageFolder = 0;
    std::size_t dataEntry = 0;
    std::size_t resource = 0; ///< the version resource itself

    void Put16(std::size_t offset, std::uint64_t value) {
        bytes.replace(offset, 2, Words({static_cast<std::int64_t>(value)}));
    }
    void Put32(std::size_t offset, std::uint64_t value) {
        bytes.replace(offset, 4, Longs({static_cast<std::int64_t>(value)}));
    }
};

PeImage MakePeImage(const std::string& versionResource, PeKind kind = PeKind::Pe32);

} // namespace tavmoor::test
