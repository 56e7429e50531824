#include "package/package_reader.h"

#include "core/files/runtime_error.h"
#include "core/text/text_case.h"
#include "package/name_scrambling.h"
#include "package/package_format.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <charconv>
#include <chrono>
#include <new>
#include <set>

namespace tavmoor {

namespace {

namespace fs = std::filesystem;
namespace format = package_format;

/// A name for a message: it may be hostile, so control characters and the rest of an endless name
/// are left out.
std::string Shown(std::string_view name) {
    constexpr std::size_t longest = 100;
    std::string shown = "\"";
    for (const char character : name.substr(0, longest)) {
        shown += character >= ' ' && character <= '~' ? character : '?';
    }
    return shown + (name.size() > longest ? "...\"" : "\"");
}

PackageError CannotWrite(std::string_view name, const std::error_code& code) {
    const std::string_view reason = ErrorText(FileError(code, "").Number());
    return PackageError("The file " + Shown(name) + " cannot be written: " + std::string(reason));
}

/// Takes the lines of a head one by one.
class HeadLines {
public:
    HeadLines(std::string_view head, std::uint64_t packageSize)
        : head_(head.substr(0, std::min<std::uint64_t>(packageSize, format::MostHeadBytes))),
          packageSize_(packageSize) {}

    /// False, and nothing taken, when another line comes next.
    bool Take(std::string_view line, std::string_view lineEnd) {
        const std::string_view rest = head_.substr(position_);
        if (!rest.starts_with(line) || !rest.substr(line.size()).starts_with(lineEnd)) {
            return false;
        }
        position_ += line.size() + lineEnd.size();
        return true;
    }

    std::string TakeScrambled() {
        const std::size_t end = head_.find(format::LineEnd, position_);
        if (end == std::string_view::npos) {
            throw Unfinished();
        }
        auto text = UnscrambleText(head_.substr(position_, end - position_));
        if (!text) {
            throw PackageError("The package is damaged: its head holds a line that is no name and "
                               "no size");
        }
        position_ = end + format::LineEnd.size();
        return std::move(*text);
    }

    [[nodiscard]] std::size_t Position() const { return position_; }

private:
    [[nodiscard]] PackageError Unfinished() const {
        const bool cut = head_.size() < packageSize_;
        return PackageError(cut ? "The package is damaged: its head does not end within the bytes "
                                  "that a head may have"
                                : "The package is damaged: it ends within its head");
    }

    std::string_view head_;
    std::uint64_t packageSize_;
    std::size_t position_ = 0;
};

std::uint64_t ParseSize(std::string_view digits, std::string_view name) {
    std::uint64_t size = 0;
    const char* end = digits.data() + digits.size();
    const auto [stop, error] = std::from_chars(digits.data(), end, size);
    if (digits.size() > format::MostSizeDigits || error != std::errc() || stop != end) {
        throw PackageError("The package is damaged: the size of " + Shown(name) + " is no number");
    }
    return size;
}

/// Lays the entries back to back behind the head.
/// @return the end of the last one
std::uint64_t PlaceEntries(std::vector<PackageEntry>& entries, std::uint64_t dataStart,
                           std::uint64_t packageSize) {
    std::uint64_t offset = dataStart;
    for (PackageEntry& entry : entries) {
        if (entry.size > packageSize - offset) {
            throw PackageError("The package is damaged: " + Shown(entry.name) +
                               " reaches beyond its end");
        }
        entry.offset = offset;
        offset += entry.size;
    }
    return offset;
}

/// What may stand behind the last entry.
std::string_view RestOfLineEnd(std::uint64_t dataBytes) {
    return format::ReplacedLineEnd.substr(
        std::min<std::uint64_t>(dataBytes, format::ReplacedLineEnd.size()));
}

/// Windows takes these names for devices whatever extension they have, and the digits also as
/// superscripts, which are no ASCII and so in no package.
bool IsDeviceName(std::string_view name) {
    static constexpr std::array<std::string_view, 6> devices{"con", "prn",    "aux",
                                                             "nul", "conin$", "conout$"};
    std::string_view stem = name.substr(0, name.find('.'));
    while (stem.ends_with(' ')) {
        stem.remove_suffix(1);
    }
    if (std::any_of(devices.begin(), devices.end(),
                    [stem](std::string_view device) { return EqualWithoutCase(stem, device); })) {
        return true;
    }
    const bool port = stem.size() == 4 && stem[3] >= '0' && stem[3] <= '9';
    return port && (EqualWithoutCase(stem.substr(0, 3), "com") ||
                    EqualWithoutCase(stem.substr(0, 3), "lpt"));
}

void RequireSafeNames(const std::vector<PackageEntry>& entries) {
    std::set<std::string> known;
    for (const PackageEntry& entry : entries) {
        if (!IsSafeEntryName(entry.name)) {
            throw PackageError("The package holds a file of the unsafe name " + Shown(entry.name));
        }
        std::string lower = entry.name;
        std::transform(lower.begin(), lower.end(), lower.begin(), LowerCase);
        if (!known.insert(std::move(lower)).second) {
            throw PackageError("The package holds two files of the name " + Shown(entry.name));
        }
    }
}

void MakeFolder(const fs::path& folder) {
    std::error_code error;
    fs::create_directories(folder, error);
    std::error_code missing;
    if (!fs::is_directory(folder, missing)) {
        throw PackageError("The folder for the package's files cannot be made: " +
                           std::string(ErrorText(FileError(error, "").Number())));
    }
}

/// A folder is where no file can be moved to; better found before the first one was.
void RequireFreePlaces(const std::vector<PackageEntry>& entries, const fs::path& folder) {
    for (const PackageEntry& entry : entries) {
        std::error_code error;
        if (fs::is_directory(fs::symlink_status(folder / entry.name, error))) {
            throw CannotWrite(entry.name, std::make_error_code(std::errc::is_a_directory));
        }
    }
}

/// A fresh folder for files that are not whole yet. Making a folder fails where anything lies, a
/// dangling link included, so what is written into it cannot be led elsewhere.
class WorkFolder {
public:
    explicit WorkFolder(const fs::path& parent) {
        constexpr int attempts = 100;
        auto number = std::chrono::system_clock::now().time_since_epoch().count();
        std::error_code error;
        for (int i = 0; i < attempts; ++i, ++number) {
            path_ = parent / ("extract-" + std::to_string(number) + ".tmp");
            if (fs::create_directory(path_, error)) {
                return;
            }
        }
        throw PackageError("The folder for the package's files cannot be written: " +
                           std::string(ErrorText(FileError(error, "").Number())));
    }
    ~WorkFolder() {
        std::error_code error;
        fs::remove_all(path_, error);
    }
    WorkFolder(const WorkFolder&) = delete;
    WorkFolder& operator=(const WorkFolder&) = delete;
    WorkFolder(WorkFolder&&) = delete;
    WorkFolder& operator=(WorkFolder&&) = delete;

    [[nodiscard]] const fs::path& Path() const { return path_; }

private:
    fs::path path_;
};

std::string ReadStart(std::ifstream& file, std::uint64_t packageSize) {
    std::string head(std::min<std::uint64_t>(packageSize, format::MostHeadBytes), '\0');
    if (!file.read(head.data(), static_cast<std::streamsize>(head.size()))) {
        throw PackageError("The package cannot be read");
    }
    return head;
}

} // namespace

std::vector<PackageEntry> ReadPackageHead(std::string_view head, std::uint64_t packageSize) {
    HeadLines lines(head, packageSize);
    if (!lines.Take(format::Title, format::LineEnd) ||
        !lines.Take(format::HeadStart, format::LineEnd)) {
        throw PackageError("The file is no package");
    }
    std::vector<PackageEntry> entries;
    while (!lines.Take(format::HeadEnd, format::HeadEndLineEnd)) {
        if (entries.size() == format::MostReadFiles) {
            throw PackageError("The package is damaged: it has more files than a package may have");
        }
        PackageEntry entry;
        entry.name = lines.TakeScrambled();
        entry.size = ParseSize(lines.TakeScrambled(), entry.name);
        entries.push_back(std::move(entry));
    }
    const std::uint64_t dataStart = lines.Position();
    const std::uint64_t dataEnd = PlaceEntries(entries, dataStart, packageSize);
    const std::string_view rest = RestOfLineEnd(dataEnd - dataStart);
    const bool stale = packageSize - dataEnd == rest.size() &&
                       (head.size() < packageSize || head.substr(dataEnd, rest.size()) == rest);
    if (dataEnd != packageSize && !stale) {
        throw PackageError("The package is damaged: it goes on behind its last file");
    }
    return entries;
}

bool IsSafeEntryName(std::string_view name) {
    if (name.empty() || name.back() == '.' || name.back() == ' ') {
        return false;
    }
    const bool plain = std::all_of(name.begin(), name.end(), [](char character) {
        return character >= ' ' && character <= '~' &&
               std::string_view("/\\:*?\"<>|").find(character) == std::string_view::npos;
    });
    return plain && !IsDeviceName(name);
}

PackageFile::PackageFile(const fs::path& path) {
    // Opening anything but a file could wait for ever, as a pipe does.
    std::error_code error;
    if (!fs::is_regular_file(path, error)) {
        throw PackageError("The package is missing or no file");
    }
    const std::uint64_t size = fs::file_size(path, error);
    if (!error) {
        file_.open(path, std::ios::binary);
    }
    if (error || !file_) {
        throw PackageError("The package cannot be opened");
    }
    entries_ = ReadPackageHead(ReadStart(file_, size), size);
}

const PackageEntry* PackageFile::Find(std::string_view name) const {
    const auto found = std::find_if(entries_.begin(), entries_.end(), [&](const auto& entry) {
        return EqualWithoutCase(entry.name, name);
    });
    return found == entries_.end() ? nullptr : &*found;
}

std::string PackageFile::Read(const PackageEntry& entry) {
    std::string bytes;
    try {
        bytes.reserve(entry.size);
    } catch (const std::exception&) {
        throw PackageError("The file " + Shown(entry.name) + " is too large for the memory");
    }
    ReadBlocks(entry,
               [&bytes](std::span<const char> block) { bytes.append(block.data(), block.size()); });
    return bytes;
}

void PackageFile::ReadBlocks(const PackageEntry& entry,
                             const std::function<void(std::span<const char>)>& take) {
    std::vector<char> block(std::min<std::uint64_t>(entry.size, format::BlockSize));
    file_.clear();
    file_.seekg(static_cast<std::streamoff>(entry.offset));
    for (std::uint64_t left = entry.size; left > 0;) {
        const auto count = static_cast<std::size_t>(std::min<std::uint64_t>(left, block.size()));
        if (!file_.read(block.data(), static_cast<std::streamsize>(count))) {
            throw PackageError("The file " + Shown(entry.name) + " cannot be read");
        }
        take({block.data(), count});
        left -= count;
    }
}

void PackageFile::WriteEntry(const PackageEntry& entry, const fs::path& target) {
    errno = 0;
    std::ofstream file(target, std::ios::binary);
    if (!file) {
        throw CannotWrite(entry.name, StreamError());
    }
    ReadBlocks(entry, [&](std::span<const char> block) {
        errno = 0;
        if (!file.write(block.data(), static_cast<std::streamsize>(block.size()))) {
            throw CannotWrite(entry.name, StreamError());
        }
    });
    errno = 0;
    file.close();
    if (!file) {
        throw CannotWrite(entry.name, StreamError());
    }
}

void PackageFile::ExtractTo(const fs::path& folder) {
    RequireSafeNames(entries_);
    MakeFolder(folder);
    RequireFreePlaces(entries_, folder);
    const WorkFolder work(folder);
    for (const PackageEntry& entry : entries_) {
        WriteEntry(entry, work.Path() / entry.name);
    }
    for (const PackageEntry& entry : entries_) {
        std::error_code error;
        fs::rename(work.Path() / entry.name, folder / entry.name, error);
        if (error) {
            throw CannotWrite(entry.name, error);
        }
    }
}

} // namespace tavmoor
