#include "core/files/profile_file.h"

#include "core/files/file_store.h"
#include "core/files/runtime_error.h"
#include "core/text/text_case.h"

#include <algorithm>
#include <bit>
#include <cstring>
#include <utility>

namespace tavmoor {

namespace {

constexpr std::uint64_t HashPrime = 0x9E3779B97F4A7C15U;
constexpr std::uint64_t CaseBits = 0x2020202020202020U;

std::uint64_t Mix(std::uint64_t hash, std::uint64_t word) {
    hash = (hash ^ word) * HashPrime;
    return hash ^ (hash >> 32U);
}

std::uint64_t WordAt(std::string_view text, std::size_t at) {
    std::uint64_t word = 0;
    std::memcpy(&word, text.data() + at, sizeof word);
    return word | CaseBits;
}

/// Eight bytes at a time; the last eight overlap those before. The bit that tells upper from lower
/// case is set everywhere, which makes a few other characters collide, too; that costs a comparison
/// and no more.
std::uint64_t HashOfKey(std::uint32_t section, std::string_view key) {
    constexpr std::size_t word = sizeof(std::uint64_t);
    std::uint64_t hash = Mix(section, key.size());
    if (key.size() < word) {
        std::uint64_t rest = 0;
        std::copy_n(key.data(), key.size(), reinterpret_cast<char*>(&rest));
        return Mix(hash, rest | CaseBits);
    }
    for (std::size_t at = 0; at + word < key.size(); at += word) {
        hash = Mix(hash, WordAt(key, at));
    }
    return Mix(hash, WordAt(key, key.size() - word));
}

std::string LowerCaseOf(std::string_view text) {
    std::string lower(text);
    std::transform(lower.begin(), lower.end(), lower.begin(), LowerCase);
    return lower;
}

std::string ReadOrNothing(std::string_view path) {
    try {
        return ReadWholeFile(path);
    } catch (const RuntimeError&) {
        return {};
    }
}

} // namespace

ProfileFile::ProfileFile(std::string text) : text_(std::move(text)), sectionNames_(1) {
    text_.resize(std::min<std::size_t>(text_.size(), UINT32_MAX)); // what a place can say
    sections_.emplace("", 0U);
    constexpr std::size_t shortLine = 24;
    records_.reserve(text_.size() / shortLine);
    hashes_.reserve(text_.size() / shortLine);
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
            const std::string_view name = line.substr(1, end - 1);
            const auto next = static_cast<std::uint32_t>(sectionNames_.size());
            const auto [known, fresh] = sections_.emplace(LowerCaseOf(name), next);
            section_ = known->second;
            if (fresh) {
                sectionNames_.push_back(name);
            }
        }
        return;
    }
    const std::size_t equals = line.find('=');
    if (equals != std::string_view::npos) {
        const auto start = static_cast<std::uint32_t>(line.data() - text_.data());
        const auto length = static_cast<std::uint32_t>(line.size());
        const auto key = static_cast<std::uint32_t>(equals);
        records_.push_back({section_, start, key, start + key + 1, length - key - 1, false});
        hashes_.push_back(HashOfKey(section_, line.substr(0, equals)));
    }
}

std::string_view ProfileFile::KeyOf(const Record& record) const {
    return {text_.data() + record.key, record.keyLength};
}

std::string_view ProfileFile::ValueOf(const Record& record) const {
    return {text_.data() + record.value, record.valueLength};
}

std::vector<ProfileFile::Entry> ProfileFile::Entries() const {
    std::vector<Entry> entries;
    entries.reserve(records_.size());
    for (const Record& record : records_) {
        entries.push_back({sectionNames_[record.section], KeyOf(record), ValueOf(record)});
    }
    return entries;
}

void ProfileFile::BuildIndex() {
    slots_.assign(std::bit_ceil(records_.size() * 2 + 1), 0);
    const std::size_t mask = slots_.size() - 1;
    for (std::size_t i = 0; i < records_.size(); ++i) {
        std::size_t slot = hashes_[i] & mask;
        bool known = false;
        while (slots_[slot] != 0 && !known) {
            const std::size_t other = slots_[slot] - 1;
            known = hashes_[other] == hashes_[i] &&
                    records_[other].section == records_[i].section &&
                    EqualWithoutCase(KeyOf(records_[other]), KeyOf(records_[i]));
            slot = (slot + 1) & mask;
        }
        records_[i].isFirst = !known;
        if (!known) {
            slots_[slot] = static_cast<std::uint32_t>(i + 1);
        }
    }
}

std::size_t ProfileFile::Find(std::uint32_t section, std::string_view key) const {
    const std::uint64_t hash = HashOfKey(section, key);
    const std::size_t mask = slots_.size() - 1;
    for (std::size_t slot = hash & mask; slots_[slot] != 0; slot = (slot + 1) & mask) {
        const std::size_t i = slots_[slot] - 1;
        if (hashes_[i] == hash && records_[i].section == section &&
            EqualWithoutCase(KeyOf(records_[i]), key)) {
            return i;
        }
    }
    return records_.size();
}

std::string_view ProfileFile::Section::Value(std::string_view key) {
    const auto& records = file_->records_;
    const bool expected = next_ < records.size() && records[next_].isFirst &&
                          records[next_].section == number_ && file_->KeyOf(records[next_]) == key;
    const std::size_t found = expected ? next_ : file_->Find(number_, key);
    if (found == records.size()) {
        return {};
    }
    next_ = found + 1;
    return file_->ValueOf(records[found]).substr(0, MaximumValue);
}

ProfileFile::Section ProfileFile::In(std::string_view section) const {
    const auto found = sections_.find(LowerCaseOf(section));
    return {*this, found == sections_.end() ? NoSection : found->second};
}

std::string_view ProfileFile::Value(std::string_view section, std::string_view key) const {
    return In(section).Value(key);
}

std::string ReadProfileValue(std::string_view path, std::string_view section,
                             std::string_view key) {
    return std::string(ProfileFile::Load(path).Value(section, key));
}

} // namespace tavmoor
