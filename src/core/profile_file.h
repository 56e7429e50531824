#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace tavmoor {

/// An INI-like text, read in one pass; look-ups go by hash, without regard to the case of section
/// and key. Reading never fails, whatever the bytes:
///  - a line ends at LF or CR LF; nothing else is stripped;
///  - "[name]" begins a section, `key=value` is an entry, any other line is passed over;
///  - of several entries with one section and key the first counts.
class ProfileFile {
public:
    /// A value is cut to this many characters, as a buffer of 1024 with its closing NUL would do.
    static constexpr std::size_t MaximumValue = 1023;

    explicit ProfileFile(std::string text);
    ProfileFile(const ProfileFile&) = delete;
    ProfileFile& operator=(const ProfileFile&) = delete;
    ProfileFile(ProfileFile&&) = delete;
    ProfileFile& operator=(ProfileFile&&) = delete;
    ~ProfileFile() = default;

    /// The file at a document path. One that is missing or cannot be read has no entries: callers
    /// treat each of its keys as missing.
    static ProfileFile Load(std::string_view path);

    /// The value of a key, cut to MaximumValue characters; "" when there is none. The view lives as
    /// long as this object.
    [[nodiscard]] std::string_view Value(std::string_view section, std::string_view key) const;

    /// As Value, but whole.
    [[nodiscard]] std::string_view WholeValue(std::string_view section, std::string_view key) const;

    struct Entry {
        std::string_view section;
        std::string_view key;
        std::string_view value; ///< whole
    };
    /// All entries in the order of the file, duplicates included.
    [[nodiscard]] const std::vector<Entry>& Entries() const noexcept { return entries_; }

private:
    void ReadLines();
    void ReadLine(std::string_view line);
    void BuildIndex();
    [[nodiscard]] const Entry* Find(std::string_view section, std::string_view key) const;

    std::string text_;
    std::string_view section_;
    std::uint64_t sectionHash_;
    std::vector<Entry> entries_;
    std::vector<std::uint64_t> hashes_;
    std::vector<std::uint32_t> slots_; ///< open addressing; an entry's number plus one, 0 is free
};

/// One value of one file, "" when the file or the key is missing.
std::string ReadProfileValue(std::string_view path, std::string_view section, std::string_view key);

} // namespace tavmoor
