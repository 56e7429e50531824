#include "core/profile_file.h"

#include "core/file_store.h"
#include "core/runtime_error.h"
#include "core/text_case.h"

#include <bit>
#include <utility>

namespace tavmoor {

namespace {

constexpr std::uint64_t HashStart = 0xcbf29ce484222325U;
constexpr std::uint64_t HashPrime = 0x100000001b3U;

std::uint64_t HashOn(std::uint64_t hash, std::string_view text) {
    for (const char character : text) {
        hash = (hash ^ static_cast<unsigned char>(LowerCase(character))) * HashPrime;
    }
    return hash;
}

/// The byte between section and key keeps "ab"+"c" apart from "a"+"bc".
std::uint64_t HashOfSection(std::string_view section) {
    return (HashOn(HashStart, section) ^ 0xFFU) * HashPrime;
}

std::string ReadOrNothing(std::string_view path) {
    try {
        return ReadWholeFile(path);
    } catch (const RuntimeError&) {
        return {};
    }
}

} // namespace

ProfileFile::ProfileFile(std::string text)
    : text_(std::move(text)), sectionHash_(HashOfSection("")) {
    ReadLines();
    BuildIndex();
}

ProfileFile ProfileFile::Load(std::string_view path) {
    return ProfileFile(ReadOrNothing(path));
}

void ProfileFile::ReadLines() {
    std::string_view rest = text_;
    while (!rest.empty()) {
        const std::size_t end = rest.find('\n');
        std::string_view line = rest.substr(0, end);
        rest.remove_prefix(end == std::string_view::npos ? rest.size() : end + 1);
        if (!line.empty() && line.back() == '\r') {
            line.remove_suffix(1);
        }
        ReadLine(line);
    }
}

void ProfileFile::ReadLine(std::string_view line) {
    if (!line.empty() && line.front() == '[') {
        const std::size_t end = line.find(']');
        if (end != std::string_view::npos) {
            section_ = line.substr(1, end - 1);
            sectionHash_ = HashOfSection(section_);
        }
        return;
    }
    const std::size_t equals = line.find('=');
    if (equals != std::string_view::npos) {
        const std::string_view key = line.substr(0, equals);
        entries_.push_back({section_, key, line.substr(equals + 1)});
        hashes_.push_back(HashOn(sectionHash_, key));
    }
}

void ProfileFile::BuildIndex() {
    slots_.assign(std::bit_ceil(entries_.size() * 2 + 1), 0);
    const std::size_t mask = slots_.size() - 1;
    for (std::size_t i = 0; i < entries_.size(); ++i) {
        std::size_t slot = hashes_[i] & mask;
        bool known = false;
        while (slots_[slot] != 0 && !known) {
            const std::size_t other = slots_[slot] - 1;
            known = hashes_[other] == hashes_[i] &&
                    EqualWithoutCase(entries_[other].key, entries_[i].key) &&
                    EqualWithoutCase(entries_[other].section, entries_[i].section);
            slot = (slot + 1) & mask;
        }
        if (!known) {
            slots_[slot] = static_cast<std::uint32_t>(i + 1);
        }
    }
}

const ProfileFile::Entry* ProfileFile::Find(std::string_view section, std::string_view key) const {
    const std::uint64_t hash = HashOn(HashOfSection(section), key);
    const std::size_t mask = slots_.size() - 1;
    for (std::size_t slot = hash & mask; slots_[slot] != 0; slot = (slot + 1) & mask) {
        const std::size_t i = slots_[slot] - 1;
        if (hashes_[i] == hash && EqualWithoutCase(entries_[i].key, key) &&
            EqualWithoutCase(entries_[i].section, section)) {
            return &entries_[i];
        }
    }
    return nullptr;
}

std::string_view ProfileFile::Value(std::string_view section, std::string_view key) const {
    return WholeValue(section, key).substr(0, MaximumValue);
}

std::string_view ProfileFile::WholeValue(std::string_view section, std::string_view key) const {
    const Entry* entry = Find(section, key);
    return entry == nullptr ? std::string_view() : entry->value;
}

std::string ReadProfileValue(std::string_view path, std::string_view section,
                             std::string_view key) {
    return std::string(ProfileFile::Load(path).Value(section, key));
}

} // namespace tavmoor
