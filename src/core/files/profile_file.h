#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>
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

    /// One section, for look-ups of many keys in a row. Keys that are asked for in the order of the
    /// file are found at once.
    class Section {
    public:
        /// The value of a key, cut to MaximumValue characters; "" when there is none. The view
        /// lives as long as the file object.
        [[nodiscard]] std::string_view Value(std::string_view key);

    private:
        friend class ProfileFile;
        Section(const ProfileFile& file, std::uint32_t number) : file_(&file), number_(number) {}

        const ProfileFile* file_;
        std::uint32_t number_;
        std::size_t next_ = 0; ///< the record behind the one found last
    };
    [[nodiscard]] Section In(std::string_view section) const;

    /// The value of a key as Section gives it.
    [[nodiscard]] std::string_view Value(std::string_view section, std::string_view key) const;

    struct Entry {
        std::string_view section;
        std::string_view key;
        std::string_view value; ///< whole
    };
    /// All entries in the order of the file, duplicates included.
    [[nodiscard]] std::vector<Entry> Entries() const;

private:
    static constexpr std::uint32_t NoSection = UINT32_MAX;

    /// An entry by its places in the text: small, since large blocks of memory are what costs most
    /// when a project is opened.
    struct Record {
        std::uint32_t section; ///< number of the section
        std::uint32_t key;
        std::uint32_t keyLength;
        std::uint32_t value;
        std::uint32_t valueLength;
        bool isFirst; ///< no earlier record has its section and key
    };

    void ReadLines();
    void ReadLine(std::string_view line);
    void BuildIndex();
    [[nodiscard]] std::string_view KeyOf(const Record& record) const;
    [[nodiscard]] std::string_view ValueOf(const Record& record) const;
    /// The number of the first record with that key, or the count of records.
    [[nodiscard]] std::size_t Find(std::uint32_t section, std::string_view key) const;

    std::string text_;
    std::vector<std::string_view> sectionNames_;              ///< as first spelled, by number
    std::unordered_map<std::string, std::uint32_t> sections_; ///< by name in lower case
    std::uint32_t section_ = 0;
    std::vector<Record> records_;
    std::vector<std::uint64_t> hashes_;
    std::vector<std::uint32_t> slots_; ///< open addressing; an entry's number plus one, 0 is free
};

/// One value of one file, "" when the file or the key is missing.
std::string ReadProfileValue(std::string_view path, std::string_view section, std::string_view key);

} // namespace tavmoor
