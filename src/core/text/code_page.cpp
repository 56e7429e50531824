#include "core/text/code_page.h"

#include "core/text/code_page_platform.h"

#include <algorithm>
#include <memory>

namespace tavmoor {

namespace {

constexpr char32_t Replacement = 0xFFFD;
constexpr char32_t PrivateRange = 0xF700;

bool IsSupported(int number) {
    return number == 874 || (number >= 1250 && number <= 1258);
}

std::unique_ptr<const CodePage>& CurrentCodePage() {
    static std::unique_ptr<const CodePage> current =
        std::make_unique<const CodePage>(PlatformCodePageNumber());
    return current;
}

int ContinuationBytes(unsigned char lead) {
    if (lead >= 0xC2 && lead <= 0xDF) {
        return 1;
    }
    if (lead >= 0xE0 && lead <= 0xEF) {
        return 2;
    }
    if (lead >= 0xF0 && lead <= 0xF4) {
        return 3;
    }
    return 0;
}

bool IsPlausible(char32_t character, int continuations) {
    static constexpr std::array<char32_t, 4> smallest{0, 0x80, 0x800, 0x10000};
    const bool surrogate = character >= 0xD800 && character <= 0xDFFF;
    return character >= smallest[static_cast<std::size_t>(continuations)] &&
           character <= 0x10FFFF && !surrogate;
}

} // namespace

CodePage::CodePage(int number) : number_(IsSupported(number) ? number : 1252) {
    const auto platform = PlatformCodePageTable(number_);
    for (std::size_t byte = 0; byte < table_.size(); ++byte) {
        undefined_[byte] = !platform[byte].has_value();
        const char32_t stand_in = static_cast<char32_t>(byte < 0xA0 ? byte : PrivateRange | byte);
        table_[byte] = platform[byte].value_or(stand_in);
        bytes_.emplace(table_[byte], static_cast<char>(byte));
    }
}

std::string CodePage::ToUtf8(std::string_view bytes) const {
    std::string text;
    text.reserve(bytes.size());
    for (const char byte : bytes) {
        AppendUtf8(text, table_[static_cast<unsigned char>(byte)]);
    }
    return text;
}

CodePageText CodePage::FromUtf8(std::string_view utf8) const {
    CodePageText result;
    result.bytes.reserve(utf8.size());
    for (std::size_t position = 0; position < utf8.size();) {
        const std::size_t start = position;
        const char32_t character = NextUtf8(utf8, position);
        const auto found = bytes_.find(character);
        if (found == bytes_.end()) {
            result.unplaced.push_back({start, character});
            result.bytes += '?';
        } else {
            result.bytes += found->second;
        }
    }
    return result;
}

const CodePage& SystemCodePage() {
    return *CurrentCodePage();
}

void SetSystemCodePage(int number) {
    CurrentCodePage() = std::make_unique<const CodePage>(number);
}

int CodePageOfLocale(std::string_view locale) {
    struct LanguageRow {
        int codePage;
        std::string_view languages;
    };
    static constexpr std::array<LanguageRow, 9> rows{{
        {1250, " bs cs hr hu pl ro sk sl sq "},
        {1251, " be bg kk ky mk mn ru sr tg tt uk "},
        {1253, " el "},
        {1254, " az tr uz "},
        {1255, " he iw yi "},
        {1256, " ar fa ur "},
        {1257, " et lt lv "},
        {1258, " vi "},
        {874, " th "},
    }};
    const std::string_view language = locale.substr(0, locale.find_first_of("_.@-"));
    if (language == "sr" && locale.find("lat") != std::string_view::npos) {
        return 1250;
    }
    const std::string word = " " + std::string(language) + " ";
    for (const LanguageRow& row : rows) {
        if (row.languages.find(word) != std::string_view::npos) {
            return row.codePage;
        }
    }
    return 1252;
}

void AppendUtf8(std::string& text, char32_t character) {
    if (character < 0x80) {
        text += static_cast<char>(character);
    } else if (character < 0x800) {
        text += static_cast<char>(0xC0 | (character >> 6));
        text += static_cast<char>(0x80 | (character & 0x3F));
    } else if (character < 0x10000) {
        text += static_cast<char>(0xE0 | (character >> 12));
        text += static_cast<char>(0x80 | ((character >> 6) & 0x3F));
        text += static_cast<char>(0x80 | (character & 0x3F));
    } else {
        text += static_cast<char>(0xF0 | (character >> 18));
        text += static_cast<char>(0x80 | ((character >> 12) & 0x3F));
        text += static_cast<char>(0x80 | ((character >> 6) & 0x3F));
        text += static_cast<char>(0x80 | (character & 0x3F));
    }
}

char32_t NextUtf8(std::string_view text, std::size_t& position) {
    const auto lead = static_cast<unsigned char>(text[position++]);
    if (lead < 0x80) {
        return lead;
    }
    const int continuations = ContinuationBytes(lead);
    if (continuations == 0 || position + static_cast<std::size_t>(continuations) > text.size()) {
        return Replacement;
    }
    char32_t character = lead & (0x3FU >> continuations);
    for (int i = 0; i < continuations; ++i) {
        const auto byte = static_cast<unsigned char>(text[position + static_cast<std::size_t>(i)]);
        if ((byte & 0xC0U) != 0x80U) {
            return Replacement;
        }
        character = (character << 6) | (byte & 0x3FU);
    }
    if (!IsPlausible(character, continuations)) {
        return Replacement;
    }
    position += static_cast<std::size_t>(continuations);
    return character;
}

} // namespace tavmoor
