#include "package/package_writer.h"

#include "core/disk/sequential_output.h"
#include "core/files/document_path.h"
#include "core/files/file_store.h"
#include "core/files/runtime_error.h"
#include "core/text/path_text.h"
#include "package/name_scrambling.h"
#include "package/package_format.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <fstream>
#include <memory>

namespace tavmoor {

namespace {

namespace format = package_format;

using Slots = std::array<std::string, format::ListSlots>;

/// The working array: the entry behind the last one is "" and closes the list.
std::unique_ptr<Slots> CopyToSlots(const std::vector<std::string>& list) {
    if (list.size() > format::MostFiles) {
        throw RuntimeError(ErrorNumber::SubscriptOutOfRange, list[format::MostFiles]);
    }
    auto slots = std::make_unique<Slots>();
    std::copy(list.begin(), list.end(), slots->begin());
    return slots;
}

/// The data begins two bytes early, over the last line end of the head.
constexpr std::size_t Overlap = 2;

/// The whole head; its length hangs on nothing but the names and sizes.
std::string HeadOf(const Slots& slots, const std::vector<std::uint64_t>& sizes) {
    std::string head;
    const auto line = [&head](std::string_view text) { head.append(text).append(format::LineEnd); };
    line(format::Title);
    line(format::HeadStart);
    for (std::size_t i = 0; i < sizes.size(); ++i) {
        line(ScrambleText(FileNameOf(slots[i])));
        line(ScrambleText(std::to_string(sizes[i])));
    }
    line(format::HeadEnd);
    return head;
}

class Writer {
public:
    Writer(const Slots& slots, std::string target, PackageEvents& events)
        : slots_(slots), target_(std::move(target)), events_(events) {}

    BuiltPackage Write() {
        std::string head = Head();
        Require(output_.Open(NativePath(target_), head.size() + total_));
        Append(std::string_view(head).substr(0, head.size() - Overlap));
        for (std::size_t i = 0; i < sizes_.size(); ++i) {
            AppendFile(slots_[i], sizes_[i]);
        }
        // Data too short to cover that line end leaves the rest of it standing.
        const std::uint64_t covered = std::min<std::uint64_t>(total_, Overlap);
        Append(std::string_view(head).substr(head.size() - Overlap + covered));
        Require(output_.Close());
        const std::uint64_t length = head.size() - covered + total_;
        head.resize(head.size() - Overlap);
        return {std::move(head), length};
    }

private:
    void Require(const std::error_code& error) {
        if (error) {
            throw FileError(error, target_);
        }
    }

    void Append(std::string_view bytes) { Require(output_.Append(bytes)); }

    std::string Head() {
        for (const std::string& path : slots_) {
            if (path.empty()) {
                break;
            }
            sizes_.push_back(FileLength(path));
            total_ += sizes_.back();
        }
        return HeadOf(slots_, sizes_);
    }

    void AppendFile(const std::string& path, std::uint64_t size) {
        events_.PackingFile(path);
        errno = 0;
        std::ifstream input;
        input.rdbuf()->pubsetbuf(nullptr, 0); // blocks are large; a buffer would only copy them
        input.open(NativePath(path), std::ios::binary);
        if (!input) {
            throw FileError(StreamError(), path);
        }
        std::uint64_t copied = 0;
        std::size_t count = 0;
        do {
            input.read(block_.data(), static_cast<std::streamsize>(block_.size()));
            count = static_cast<std::size_t>(input.gcount());
            Append({block_.data(), count});
            copied += count;
            done_ += count;
            events_.PackageProgress(done_, total_);
            events_.LetEventsRun();
        } while (count == block_.size());
        // The head tells how long each file is; one that changed meanwhile would shift all others.
        if (input.bad() || copied != size) {
            throw RuntimeError(ErrorNumber::DeviceError, path);
        }
    }

    const Slots& slots_;
    std::string target_;
    PackageEvents& events_;
    SequentialOutput output_;
    std::vector<std::uint64_t> sizes_;
    std::vector<char> block_ = std::vector<char>(format::BlockSize);
    std::uint64_t done_ = 0;
    std::uint64_t total_ = 0;
};

} // namespace

std::uint64_t PackageLength(const std::vector<std::string>& listafajlova) {
    const auto slots = CopyToSlots(listafajlova);
    std::vector<std::uint64_t> sizes;
    std::uint64_t data = 0;
    for (const std::string& path : listafajlova) {
        sizes.push_back(FileLength(path));
        data += sizes.back();
    }
    return HeadOf(*slots, sizes).size() - std::min<std::uint64_t>(data, Overlap) + data;
}

BuiltPackage WritePackage(const std::vector<std::string>& listafajlova,
                          const std::string& buildFolder, PackageEvents& events) {
    const auto slots = CopyToSlots(listafajlova);
    return Writer(*slots, WithBackslash(buildFolder) + "autorun.arn", events).Write();
}

} // namespace tavmoor
