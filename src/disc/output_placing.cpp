#include "disc/output_placing.h"

#include "core/files/document_path.h"
#include "core/files/runtime_error.h"

#include <cerrno>
#include <fstream>

namespace tavmoor {

namespace {

namespace fs = std::filesystem;

constexpr std::size_t BlockSize = 1U << 20U;

std::ifstream OpenUnbuffered(const fs::path& path) {
    errno = 0;
    std::ifstream file;
    file.rdbuf()->pubsetbuf(nullptr, 0); // blocks are large; a buffer would only copy them
    file.open(path, std::ios::binary);
    return file;
}

std::size_t ReadBlock(std::ifstream& file, std::vector<char>& block) {
    file.read(block.data(), static_cast<std::streamsize>(block.size()));
    return static_cast<std::size_t>(file.gcount());
}

bool AreEqual(const fs::path& a, const fs::path& b) {
    std::ifstream first = OpenUnbuffered(a);
    std::ifstream second = OpenUnbuffered(b);
    std::vector<char> left(BlockSize);
    std::vector<char> right(BlockSize);
    while (first && second) {
        const std::size_t count = ReadBlock(first, left);
        if (ReadBlock(second, right) != count ||
            !std::equal(left.begin(), left.begin() + static_cast<std::ptrdiff_t>(count),
                        right.begin())) {
            return false;
        }
    }
    return first.eof() && second.eof();
}

bool IsPackage(const fs::path& path, const BuiltPackage& package) {
    std::error_code error;
    if (fs::file_size(path, error) != package.length || error) {
        return false;
    }
    std::ifstream file(path, std::ios::binary);
    std::string head(package.head.size(), '\0');
    file.read(head.data(), static_cast<std::streamsize>(head.size()));
    return file && head == package.head;
}

} // namespace

OutputPlacing::OutputPlacing(fs::path folder, BuildEvents& events)
    : folder_(std::move(folder)), events_(events) {}

void OutputPlacing::Require(const std::error_code& error, const std::string& name) const {
    if (error) {
        throw FileError(error, ShownPath(folder_ / NativePath(name)));
    }
}

FreshFile& OutputPlacing::Stage(const std::string& name, std::uint64_t bytes) {
    FreshFile& file = staged_.emplace_back(Staged{name, FreshFile()}).file;
    Require(file.Create(folder_, bytes), name);
    return file;
}

void OutputPlacing::Finish(FreshFile& file, const std::string& name) {
    Require(file.TakeUsualRights(), name);
    Require(file.Flush(), name);
}

void OutputPlacing::CopyInto(FreshFile& file, const std::string& name, const fs::path& from,
                             bool tellsProgress) {
    std::error_code unknown;
    const auto total = fs::file_size(from, unknown);
    std::ifstream input = OpenUnbuffered(from);
    std::vector<char> block(BlockSize);
    std::uint64_t done = 0;
    while (input) {
        const std::size_t count = ReadBlock(input, block);
        Require(file.Append({block.data(), count}), name);
        done += count;
        if (tellsProgress) {
            events_.PlacingProgress(done, total);
            events_.LetEventsRun();
        }
    }
    if (!input.eof()) {
        throw FileError(StreamError(), ShownPath(from));
    }
}

void OutputPlacing::StageCopy(const std::string& name, std::string_view source) {
    const fs::path from = NativePath(source);
    std::error_code unknown;
    const auto bytes = fs::file_size(from, unknown);
    FreshFile& file = Stage(name, unknown ? 0 : bytes);
    CopyInto(file, name, from, false);
    Finish(file, name);
    if (!AreEqual(from, file.Path())) {
        throw RuntimeError(ErrorNumber::DeviceError, ShownPath(folder_ / NativePath(name)));
    }
}

void OutputPlacing::StageText(const std::string& name, std::string_view text) {
    FreshFile& file = Stage(name, text.size());
    Require(file.Append(text), name);
    Finish(file, name);
}

void OutputPlacing::StagePackage(const std::string& name, const fs::path& built,
                                 const BuiltPackage& package) {
    FreshFile& file = Stage(name, 0);
    if (file.TakeOver(built)) {
        // Another file system; the place that was made is asked for in full.
        staged_.pop_back();
        FreshFile& copy = Stage(name, package.length);
        CopyInto(copy, name, built, true);
    }
    FreshFile& placed = staged_.back().file;
    Finish(placed, name);
    if (!IsPackage(placed.Path(), package)) {
        throw RuntimeError(ErrorNumber::DeviceError, ShownPath(folder_ / NativePath(name)));
    }
}

void OutputPlacing::Place() {
    for (Staged& staged : staged_) {
        Require(staged.file.PlaceAt(folder_ / NativePath(staged.name)), staged.name);
        placed_.push_back(staged.name);
    }
    FlushFolderIgnoringErrors(folder_);
}

std::vector<std::string> OutputPlacing::Delete(const std::vector<OldOutput>& older) {
    std::vector<std::string> left;
    for (const OldOutput& output : older) {
        std::error_code error;
        // What was renamed over it is another file under its name.
        if (IsUnchanged(output) && !fs::remove(output.path, error) && error) {
            left.push_back(ShownPath(output.path));
        }
    }
    return left;
}

} // namespace tavmoor
