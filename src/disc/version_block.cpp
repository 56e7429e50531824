#include "disc/version_block.h"

#include "core/formats/byte_view.h"
#include "core/text/code_page.h"
#include "core/text/text_case.h"

#include <algorithm>
#include <array>
#include <fstream>
#include <string_view>

namespace tavmoor {

namespace {

/// A block of the tree in a version resource: a key, a value, and child blocks behind the value.
/// Offsets count from the start of the resource, on which the alignment rests, too.
struct Block {
    std::size_t keyStart;
    std::size_t keyEnd;
    std::size_t valueStart;
    std::size_t valueEnd;
    std::size_t end;
};

constexpr std::size_t Align(std::size_t offset) {
    return (offset + 3) & ~std::size_t{3};
}

/// The end of the UTF-16 text that starts at an offset: its NUL, or `end`.
std::size_t TextEnd(const ByteView& data, std::size_t start, std::size_t end) {
    std::size_t at = start;
    while (at + 2 <= end && data.U16(at) != 0) {
        at += 2;
    }
    return at;
}

/// The block at an offset, which its parent's end cuts: some compilers count a length too high.
std::optional<Block> BlockAt(const ByteView& data, std::size_t start, std::size_t parentEnd) {
    constexpr std::size_t headerSize = 6;
    if (start > parentEnd || parentEnd - start < headerSize) {
        return std::nullopt;
    }
    const std::size_t length = data.U16(start);
    if (length < headerSize) {
        return std::nullopt;
    }
    // The length of a text counts characters.
    const bool isText = data.U16(start + 4) == 1;
    const std::size_t valueBytes = data.U16(start + 2) * std::size_t{isText ? 2U : 1U};
    Block block{};
    block.end = std::min(start + length, parentEnd);
    block.keyStart = start + headerSize;
    block.keyEnd = TextEnd(data, block.keyStart, block.end);
    block.valueStart = std::min(Align(block.keyEnd + 2), block.end);
    block.valueEnd = std::min(block.valueStart + valueBytes, block.end);
    return block;
}

bool HasKey(const ByteView& data, const Block& block, std::string_view key) {
    if (block.keyEnd - block.keyStart != key.size() * 2) {
        return false;
    }
    for (std::size_t i = 0; i < key.size(); ++i) {
        const std::uint16_t character = data.U16(block.keyStart + i * 2);
        if (character > '~' || LowerCase(static_cast<char>(character)) != LowerCase(key[i])) {
            return false;
        }
    }
    return true;
}

/// The first child of that name. A block has at least its header's bytes, so the walk ends.
std::optional<Block> FindChild(const ByteView& data, const Block& parent, std::string_view key) {
    auto child = BlockAt(data, Align(parent.valueEnd), parent.end);
    while (child && !HasKey(data, *child, key)) {
        child = BlockAt(data, Align(child->end), parent.end);
    }
    return child;
}

std::optional<Block> FindBlock(const ByteView& data, std::initializer_list<std::string_view> path) {
    auto block = BlockAt(data, 0, data.Size());
    for (const std::string_view key : path) {
        if (block) {
            block = FindChild(data, *block, key);
        }
    }
    return block;
}

/// The key of the table of texts in the block's first language and code page: "040904b0".
std::optional<std::string> TranslationKey(const ByteView& data) {
    const auto block = FindBlock(data, {"VarFileInfo", "Translation"});
    if (!block || block->valueEnd - block->valueStart < 4) {
        return std::nullopt;
    }
    constexpr std::string_view digits = "0123456789abcdef";
    std::string key;
    for (const std::size_t word : {block->valueStart, block->valueStart + 2}) {
        for (const unsigned shift : {12U, 8U, 4U, 0U}) {
            key += digits[data.U16(word) >> shift & 0xFU];
        }
    }
    return key;
}

std::string Utf8Of(const ByteView& data, std::size_t start, std::size_t end) {
    constexpr char32_t replacement = 0xFFFD;
    const auto isHigh = [](char32_t unit) { return unit >= 0xD800 && unit < 0xDC00; };
    const auto isLow = [](char32_t unit) { return unit >= 0xDC00 && unit < 0xE000; };
    std::string text;
    for (std::size_t at = start; at + 2 <= end; at += 2) {
        const char32_t unit = data.U16(at);
        const char32_t next = at + 4 <= end ? data.U16(at + 2) : 0;
        if (isHigh(unit) && isLow(next)) {
            AppendUtf8(text, 0x10000 + ((unit - 0xD800) << 10U) + (next - 0xDC00));
            at += 2;
        } else {
            AppendUtf8(text, isHigh(unit) || isLow(unit) ? replacement : unit);
        }
    }
    return text;
}

} // namespace

std::optional<std::string> ReadCompanyName(const ReadAt& read) {
    const auto resource = ReadVersionResource(read);
    if (!resource) {
        return std::nullopt;
    }
    const ByteView data(*resource);
    const auto translation = TranslationKey(data);
    if (!translation) {
        return std::nullopt;
    }
    const auto name = FindBlock(data, {"StringFileInfo", *translation, "CompanyName"});
    if (!name) {
        return std::nullopt;
    }
    return Utf8Of(data, name->valueStart, TextEnd(data, name->valueStart, name->valueEnd));
}

std::optional<std::string> ReadCompanyName(const std::filesystem::path& path) {
    // Opening anything but a file could wait for ever, as a pipe does.
    std::error_code error;
    if (!std::filesystem::is_regular_file(path, error)) {
        return std::nullopt;
    }
    std::ifstream file(path, std::ios::binary);
    return ReadCompanyName([&file](std::uint64_t offset, std::span<unsigned char> buffer) {
        file.clear();
        file.seekg(static_cast<std::streamoff>(offset));
        std::vector<char> bytes(buffer.size());
        if (!file.read(bytes.data(), static_cast<std::streamsize>(bytes.size()))) {
            return false;
        }
        std::copy(bytes.begin(), bytes.end(), buffer.begin());
        return true;
    });
}

} // namespace tavmoor
