// Any bytes as an INI-like text: every entry is found again, the first of duplicates wins, and
// values are cut.

#include "check.h"
#include "core/files/profile_file.h"
#include "core/text/text_case.h"

#include <algorithm>
#include <map>
#include <string>
#include <utility>

namespace {

std::string Lower(std::string_view text) {
    std::string lower(text);
    std::transform(lower.begin(), lower.end(), lower.begin(), tavmoor::LowerCase);
    return lower;
}

std::string Upper(std::string_view text) {
    std::string upper(text);
    for (char& character : upper) {
        if (character >= 'a' && character <= 'z') {
            character = static_cast<char>(character - 'a' + 'A');
        }
    }
    return upper;
}

using Model = std::map<std::pair<std::string, std::string>, std::string>;

/// The same rules, read plainly and slowly.
Model ReadPlainly(const std::string& text, std::size_t& entries) {
    Model model;
    std::string section;
    entries = 0;
    for (std::size_t start = 0; start < text.size();) {
        const std::size_t end = std::min(text.find('\n', start), text.size());
        std::string line = text.substr(start, end - start);
        start = end + 1;
        if (line.ends_with('\r')) {
            line.pop_back();
        }
        if (line.starts_with('[')) {
            const std::size_t close = line.find(']');
            section = close == std::string::npos ? section : Lower(line.substr(1, close - 1));
        } else if (const std::size_t equals = line.find('='); equals != std::string::npos) {
            ++entries;
            model.try_emplace({section, Lower(line.substr(0, equals))}, line.substr(equals + 1));
        }
    }
    return model;
}

/// Asks for all entries, each section by one look-up object, in the order of the file or against
/// it.
void CheckSections(const tavmoor::ProfileFile& file, const Model& model, bool forwards) {
    std::map<std::string, tavmoor::ProfileFile::Section> sections;
    auto entries = file.Entries();
    if (!forwards) {
        std::reverse(entries.begin(), entries.end());
    }
    for (const auto& [section, key, value] : entries) {
        auto asked = sections.try_emplace(Lower(section), file.In(section)).first;
        const std::string& first = model.at({Lower(section), Lower(key)});
        Check(asked->second.Value(key) == first.substr(0, 1023),
              "the order of asking is no matter");
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string text(reinterpret_cast<const char*>(data), size);
    const tavmoor::ProfileFile file(text);
    std::size_t count = 0;
    const Model model = ReadPlainly(text, count);
    const auto entries = file.Entries();
    Check(entries.size() == count, "each key=value line is an entry");
    for (const auto& [section, key, value] : entries) {
        const auto first = model.find({Lower(section), Lower(key)});
        Check(first != model.end(), "an entry stands in the text");
        const std::string cut = first->second.substr(0, 1023);
        Check(file.Value(section, key) == cut, "the first of duplicates wins, and is cut");
        Check(file.Value(Upper(section), Upper(key)) == cut, "case does not count");
        const std::string other = std::string(key) + "\n";
        Check(file.Value(section, other).empty(), "a key that no line can have is missing");
    }
    CheckSections(file, model, true);
    CheckSections(file, model, false);
    return 0;
}
