#include "disc/version_resource.h"

#include "core/formats/byte_view.h"

#include <cstddef>
#include <string_view>

namespace tavmoor {

namespace {

using Bytes = std::vector<unsigned char>;

constexpr std::uint32_t VersionType = 16;
constexpr std::uint32_t IsFolder = 0x80000000U; ///< in the place of an entry of the resources

// Far above what linkers write.
constexpr std::size_t MostSections = 1024;
constexpr std::size_t MostEntries = 4096;
constexpr std::size_t MostResourceBytes = 1U << 20U;

struct Section {
    std::uint32_t address;
    std::uint32_t fileSize;
    std::uint32_t fileOffset;
};

std::optional<Bytes> Read(const ReadAt& read, std::uint64_t offset, std::size_t count) {
    Bytes bytes(count);
    return read(offset, bytes) ? std::optional(std::move(bytes)) : std::nullopt;
}

/// The sections of a program, and the address of its resources.
class Program {
public:
    explicit Program(const ReadAt& read) : read_(read) {}

    /// False when the file is no program, or one without resources.
    bool ReadHeaders() {
        constexpr std::size_t dosHeaderSize = 64;
        constexpr std::size_t headerOffsetAt = 60;
        const auto dos = Read(read_, 0, dosHeaderSize);
        if (!dos || ByteView(*dos).Bytes(0, 2) != "MZ") {
            return false;
        }
        constexpr std::size_t headerSize = 24; // signature and file header
        const std::uint64_t start = ByteView(*dos).U32(headerOffsetAt);
        const auto header = Read(read_, start, headerSize);
        constexpr std::string_view signature("PE\0\0", 4);
        if (!header || ByteView(*header).Bytes(0, signature.size()) != signature) {
            return false;
        }
        const std::size_t sections = ByteView(*header).U16(6);
        const std::size_t optionalSize = ByteView(*header).U16(20);
        const std::uint64_t behind = start + headerSize;
        return ReadOptionalHeader(behind, optionalSize) &&
               ReadSections(behind + optionalSize, sections);
    }

    [[nodiscard]] std::uint32_t ResourceAddress() const { return resourceAddress_; }

    /// The bytes at an address of the loaded program, which must lie in one section of the file.
    [[nodiscard]] std::optional<Bytes> At(std::uint64_t address, std::size_t count) const {
        for (const Section& section : sections_) {
            const bool inside = address >= section.address &&
                                address - section.address <= section.fileSize &&
                                count <= section.fileSize - (address - section.address);
            if (inside) {
                return Read(read_, section.fileOffset + (address - section.address), count);
            }
        }
        return std::nullopt;
    }

private:
    bool ReadOptionalHeader(std::uint64_t start, std::size_t size) {
        constexpr std::uint16_t magic32 = 0x10B;
        constexpr std::uint16_t magic64 = 0x20B;
        const auto magic = Read(read_, start, 2);
        const std::uint16_t kind = magic ? ByteView(*magic).U16(0) : std::uint16_t{0};
        if (kind != magic32 && kind != magic64) {
            return false;
        }
        // The number of directories, then the directories, of which the third is the resources'.
        const std::size_t countAt = kind == magic64 ? 108 : 92;
        constexpr std::size_t resourceAt = 4 + 2 * 8;
        constexpr std::size_t needed = 4 + 3 * 8;
        const auto directories = Read(read_, start + countAt, needed);
        if (size < countAt + needed || !directories || ByteView(*directories).U32(0) < 3) {
            return false;
        }
        resourceAddress_ = ByteView(*directories).U32(resourceAt);
        return resourceAddress_ != 0;
    }

    bool ReadSections(std::uint64_t start, std::size_t count) {
        constexpr std::size_t sectionSize = 40;
        const auto table =
            count <= MostSections ? Read(read_, start, count * sectionSize) : std::nullopt;
        if (!table) {
            return false;
        }
        for (std::size_t at = 0; at < table->size(); at += sectionSize) {
            sections_.push_back({ByteView(*table).U32(at + 12), ByteView(*table).U32(at + 16),
                                 ByteView(*table).U32(at + 20)});
        }
        return true;
    }

    const ReadAt& read_;
    std::uint32_t resourceAddress_ = 0;
    std::vector<Section> sections_;
};

/// The place that an entry of a resource folder names: the entry of that number, or the first one.
std::optional<std::uint32_t> FindEntry(const Program& program, std::uint32_t folder,
                                       std::optional<std::uint32_t> number) {
    constexpr std::size_t headerSize = 16;
    constexpr std::size_t entrySize = 8;
    const std::uint64_t address = std::uint64_t{program.ResourceAddress()} + folder;
    const auto header = program.At(address, headerSize);
    if (!header) {
        return std::nullopt;
    }
    const std::size_t named = ByteView(*header).U16(12);
    const std::size_t count = named + ByteView(*header).U16(14);
    const auto entries =
        count <= MostEntries ? program.At(address + headerSize, count * entrySize) : std::nullopt;
    if (!entries) {
        return std::nullopt;
    }
    for (std::size_t at = 0; at < entries->size(); at += entrySize) {
        if (!number || ByteView(*entries).U32(at) == *number) {
            return ByteView(*entries).U32(at + 4);
        }
    }
    return std::nullopt;
}

/// Goes down the three levels type, name and language; a file whose tree is deeper, or bites its
/// own tail, is none that a linker made.
std::optional<std::uint32_t> FindVersionEntry(const Program& program) {
    std::uint32_t place = IsFolder;
    std::optional<std::uint32_t> number = VersionType;
    for (int level = 0; level < 3; ++level) {
        const auto next =
            (place & IsFolder) != 0 ? FindEntry(program, place & ~IsFolder, number) : std::nullopt;
        if (!next) {
            return std::nullopt;
        }
        place = *next;
        number.reset();
    }
    return (place & IsFolder) == 0 ? std::optional(place) : std::nullopt;
}

} // namespace

std::optional<std::vector<unsigned char>> ReadVersionResource(const ReadAt& read) {
    Program program(read);
    const auto entry = program.ReadHeaders() ? FindVersionEntry(program) : std::nullopt;
    if (!entry) {
        return std::nullopt;
    }
    constexpr std::size_t entrySize = 16;
    const auto data = program.At(std::uint64_t{program.ResourceAddress()} + *entry, entrySize);
    if (!data || ByteView(*data).U32(4) > MostResourceBytes) {
        return std::nullopt;
    }
    return program.At(ByteView(*data).U32(0), ByteView(*data).U32(4));
}

} // namespace tavmoor
