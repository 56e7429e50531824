#include "services/richtext/rich_text_parser.h"

#include "core/text/character_set.h"
#include "core/text/code_page.h"

#include <algorithm>
#include <array>
#include <memory>

namespace tavmoor {

namespace {

constexpr std::size_t MostDepth = 200;
constexpr std::size_t MostParagraphs = 20'000;
constexpr std::size_t MostRuns = 10'000; // each may take a font of its own, some 0.5 ms
constexpr int MostCharacters = 1'000'000;
/// A view lays out no less than a whole paragraph at a time.
constexpr int MostParagraphCharacters = 10'000;
constexpr std::size_t MostTabs = 32;
constexpr std::size_t MostTableEntries = 4096;
constexpr std::size_t MostNameBytes = 256;
constexpr int MostNumber = 1'000'000;

enum class Destination : std::uint8_t { Text, FontTable, ColorTable, Skipped };

/// What a group keeps and its end brings back.
struct GroupState {
    Destination destination = Destination::Text;
    RichTextFormat format;
    RichTextParagraphFormat paragraph;
    int bytesPerUnicode = 1;
};

struct ControlWord {
    std::string_view name;
    std::optional<int> number;
    [[nodiscard]] int NumberOr(int missing) const { return number.value_or(missing); }
};

bool IsLetter(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}
bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

int HexValue(char c) {
    if (IsDigit(c)) {
        return c - '0';
    }
    const char lower = static_cast<char>(c | 0x20);
    return lower >= 'a' && lower <= 'f' ? lower - 'a' + 10 : -1;
}

/// Words that stand for one character.
struct CharacterWord {
    std::string_view name;
    char32_t character;
};
constexpr std::array CharacterWords{
    CharacterWord{"tab", U'\t'},           CharacterWord{"line", U'\u2028'},
    CharacterWord{"cell", U'\t'},          CharacterWord{"bullet", U'\u2022'},
    CharacterWord{"lquote", U'\u2018'},    CharacterWord{"rquote", U'\u2019'},
    CharacterWord{"emdash", U'\u2014'},    CharacterWord{"endash", U'\u2013'},
    CharacterWord{"emspace", U'\u2003'},   CharacterWord{"enspace", U'\u2002'},
    CharacterWord{"ldblquote", U'\u201C'}, CharacterWord{"rdblquote", U'\u201D'},
};

/// Groups that hold no text of the document, though not marked as ones to pass over.
constexpr std::array SkippedGroups{
    std::string_view("stylesheet"), std::string_view("info"),    std::string_view("pict"),
    std::string_view("object"),     std::string_view("header"),  std::string_view("headerl"),
    std::string_view("headerr"),    std::string_view("headerf"), std::string_view("footer"),
    std::string_view("footerl"),    std::string_view("footerr"), std::string_view("footerf"),
    std::string_view("footnote"),   std::string_view("fldinst"), std::string_view("listtable"),
    std::string_view("revtbl"),     std::string_view("filetbl"), std::string_view("nonshppict"),
    std::string_view("xe"),         std::string_view("tc"),      std::string_view("private"),
};

class RichTextParser {
public:
    explicit RichTextParser(std::string_view bytes) : bytes_(bytes) {}

    RichText Parse() {
        while (at_ < bytes_.size() && !isFull_) {
            const char c = bytes_[at_++];
            if (c == '{') {
                OpenGroup();
            } else if (c == '}') {
                CloseGroup();
            } else if (c == '\\') {
                Control();
            } else if (c != '\r' && c != '\n' && c != '\0') {
                TakeByte(static_cast<unsigned char>(c));
            }
        }
        if (!paragraph_.runs.empty()) {
            EndParagraph();
        }
        return std::move(document_);
    }

private:
    using Step = void (RichTextParser::*)(const ControlWord&);
    struct StepWord {
        std::string_view name;
        Step step;
    };
    static const std::array<StepWord, 42> Steps;

    void OpenGroup() {
        unicodeSkip_ = 0;
        // Deeper groups are counted only: their changes stay until the last kept one ends.
        if (saved_.size() < MostDepth) {
            saved_.push_back(state_);
        } else {
            ++depthBeyond_;
        }
    }
    void CloseGroup() {
        unicodeSkip_ = 0;
        if (depthBeyond_ > 0) {
            --depthBeyond_;
        } else if (!saved_.empty()) {
            state_ = std::move(saved_.back());
            saved_.pop_back();
        }
    }

    void Control() {
        if (at_ >= bytes_.size()) {
            return;
        }
        if (IsLetter(bytes_[at_])) {
            Word(ReadWord());
        } else {
            Symbol(bytes_[at_++]);
        }
    }
    ControlWord ReadWord() {
        const std::size_t begin = at_;
        while (at_ < bytes_.size() && IsLetter(bytes_[at_])) {
            ++at_;
        }
        ControlWord word{bytes_.substr(begin, at_ - begin), std::nullopt};
        const bool isNegative =
            at_ + 1 < bytes_.size() && bytes_[at_] == '-' && IsDigit(bytes_[at_ + 1]);
        at_ += isNegative ? 1 : 0;
        if (at_ < bytes_.size() && IsDigit(bytes_[at_])) {
            int number = 0;
            for (; at_ < bytes_.size() && IsDigit(bytes_[at_]); ++at_) {
                number = std::min(number * 10 + (bytes_[at_] - '0'), MostNumber);
            }
            word.number = isNegative ? -number : number;
        }
        if (at_ < bytes_.size() && bytes_[at_] == ' ') {
            ++at_;
        }
        return word;
    }
    void Symbol(char symbol) {
        if (symbol != '\'' && IsReplaced()) {
            return;
        }
        switch (symbol) {
        case '\'':
            HexByte();
            break;
        case '*':
            // What this program knows is never marked so.
            state_.destination = Destination::Skipped;
            break;
        case '~':
            TakeCharacter(U'\u00A0');
            break;
        case '_':
            TakeCharacter(U'\u2011');
            break;
        case '-':
            TakeCharacter(U'\u00AD');
            break;
        case '\r':
        case '\n':
            Paragraph({});
            break;
        case '\\':
        case '{':
        case '}':
            TakeCharacter(static_cast<unsigned char>(symbol));
            break;
        default:
            break;
        }
    }
    void HexByte() {
        if (at_ + 1 >= bytes_.size()) {
            at_ = bytes_.size();
            return;
        }
        const int high = HexValue(bytes_[at_]);
        const int low = HexValue(bytes_[at_ + 1]);
        if (high < 0 || low < 0) {
            return;
        }
        at_ += 2;
        TakeByte(static_cast<unsigned char>(high * 16 + low));
    }
    void Word(const ControlWord& word) {
        const bool isReplaced = IsReplaced();
        if (word.name == "bin") {
            at_ += std::min(static_cast<std::size_t>(std::max(0, word.NumberOr(0))),
                            bytes_.size() - at_);
            return;
        }
        if (isReplaced || state_.destination == Destination::Skipped) {
            return;
        }
        if (std::find(SkippedGroups.begin(), SkippedGroups.end(), word.name) !=
            SkippedGroups.end()) {
            state_.destination = Destination::Skipped;
            return;
        }
        for (const CharacterWord& one : CharacterWords) {
            if (one.name == word.name) {
                TakeCharacter(one.character);
                return;
            }
        }
        for (const StepWord& one : Steps) {
            if (one.name == word.name) {
                (this->*one.step)(word);
                return;
            }
        }
    }

    /// True for what stands there for readers that cannot take the Unicode character before it. A
    /// word or a symbol counts as one character.
    bool IsReplaced() {
        if (unicodeSkip_ == 0) {
            return false;
        }
        --unicodeSkip_;
        return true;
    }
    void TakeByte(unsigned char byte) {
        if (IsReplaced()) {
            return;
        }
        TakeCharacter(byte < 0x80 ? byte : CurrentCodePage().ToUnicode(byte));
    }
    const CodePage& CurrentCodePage() {
        const auto font = document_.fonts.find(
            state_.destination == Destination::FontTable ? tableFont_ : state_.format.font);
        const int number = font == document_.fonts.end() ? ansiCodePage_ : font->second.codePage;
        auto& page = codePages_[number];
        if (!page) {
            page = std::make_unique<CodePage>(number);
        }
        return *page;
    }
    void TakeCharacter(char32_t character) {
        switch (state_.destination) {
        case Destination::Text:
            TakeText(character);
            break;
        case Destination::FontTable:
            TakeFontName(character);
            break;
        case Destination::ColorTable:
            EndColor(character);
            break;
        case Destination::Skipped:
            break;
        }
    }
    void TakeText(char32_t character) {
        if (paragraphCharacters_ == MostParagraphCharacters) {
            EndParagraph();
        }
        AppendUtf8(CurrentRun().text, character);
        ++paragraphCharacters_;
        isFull_ = ++characters_ >= MostCharacters || isFull_;
    }
    RichTextRun& CurrentRun() {
        auto& runs = paragraph_.runs;
        if (runs.empty() || runs.back().format != state_.format) {
            isFull_ = ++runCount_ >= MostRuns || isFull_;
            runs.push_back({{}, state_.format});
        }
        return runs.back();
    }
    void TakeFontName(char32_t character) {
        const auto font = document_.fonts.find(tableFont_);
        if (font == document_.fonts.end()) {
            return;
        }
        if (character == U';') {
            tableFont_ = -1;
        } else if (font->second.name.size() < MostNameBytes &&
                   !(character == U' ' && font->second.name.empty())) {
            AppendUtf8(font->second.name, character);
        }
    }
    void EndColor(char32_t character) {
        if (character == U';' && document_.colors.size() < MostTableEntries) {
            document_.colors.push_back(color_);
            color_.reset();
        }
    }
    void EndParagraph() {
        paragraph_.format = state_.paragraph;
        document_.paragraphs.push_back(std::move(paragraph_));
        paragraph_ = {};
        paragraphCharacters_ = 0;
        isFull_ = isFull_ || document_.paragraphs.size() >= MostParagraphs;
    }

    void Paragraph(const ControlWord& /*word*/) {
        if (state_.destination == Destination::Text) {
            EndParagraph();
        }
    }
    void FontTable(const ControlWord& /*word*/) { state_.destination = Destination::FontTable; }
    void ColorTable(const ControlWord& /*word*/) { state_.destination = Destination::ColorTable; }
    void AnsiCodePage(const ControlWord& word) {
        // Only code pages that are known take a table each.
        const int number = word.NumberOr(1252);
        ansiCodePage_ = number == 874 || (number >= 1250 && number <= 1258) ? number : 1252;
    }
    void DefaultFont(const ControlWord& word) {
        defaultFont_ = word.NumberOr(0);
        state_.format.font = defaultFont_;
    }
    void Font(const ControlWord& word) {
        if (state_.destination != Destination::FontTable) {
            state_.format.font = word.NumberOr(0);
            return;
        }
        tableFont_ = word.NumberOr(0);
        if (document_.fonts.size() < MostTableEntries) {
            document_.fonts[tableFont_] = {{}, ansiCodePage_};
        }
    }
    void CharacterSet(const ControlWord& word) {
        const auto font = document_.fonts.find(tableFont_);
        if (font != document_.fonts.end()) {
            font->second.codePage = CodePageOfCharacterSet(word.NumberOr(0), ansiCodePage_);
        }
    }
    void ColorPart(const ControlWord& word, unsigned shift) {
        const auto part = static_cast<std::uint32_t>(std::clamp(word.NumberOr(0), 0, 255));
        color_ = (color_.value_or(0) & ~(0xFFU << shift)) | part << shift;
    }
    void Red(const ControlWord& word) { ColorPart(word, 16); }
    void Green(const ControlWord& word) { ColorPart(word, 8); }
    void Blue(const ControlWord& word) { ColorPart(word, 0); }
    void UnicodeBytes(const ControlWord& word) {
        state_.bytesPerUnicode = std::clamp(word.NumberOr(1), 0, 16);
    }
    /// Characters beyond the first plane come as two numbers, which are put together here.
    void Unicode(const ControlWord& word) {
        auto unit = static_cast<char32_t>(word.NumberOr(0)) & 0xFFFFU;
        if (unit >= 0xD800 && unit < 0xDC00) {
            highSurrogate_ = unit;
        } else if (unit >= 0xDC00 && unit < 0xE000) {
            TakeCharacter(highSurrogate_ == 0
                              ? U'\uFFFD'
                              : 0x10000U + ((highSurrogate_ - 0xD800U) << 10U) + (unit - 0xDC00U));
            highSurrogate_ = 0;
        } else {
            TakeCharacter(unit < 0x20 ? U' ' : unit);
        }
        unicodeSkip_ = state_.bytesPerUnicode;
    }

    void PlainFormat(const ControlWord& /*word*/) {
        state_.format = {};
        state_.format.font = defaultFont_;
    }
    void PlainParagraph(const ControlWord& /*word*/) { state_.paragraph = {}; }
    void Size(const ControlWord& word) {
        state_.format.halfPoints = std::clamp(word.NumberOr(24), 2, 400);
    }
    void Color(const ControlWord& word) { state_.format.color = word.NumberOr(0); }
    void Ground(const ControlWord& word) { state_.format.ground = word.NumberOr(0); }
    void Bold(const ControlWord& word) { state_.format.bold = word.NumberOr(1) != 0; }
    void Italic(const ControlWord& word) { state_.format.italic = word.NumberOr(1) != 0; }
    void Underline(const ControlWord& word) { state_.format.underlined = word.NumberOr(1) != 0; }
    void NoUnderline(const ControlWord& /*word*/) { state_.format.underlined = false; }
    void StrikeOut(const ControlWord& word) { state_.format.struckOut = word.NumberOr(1) != 0; }
    void Above(const ControlWord& /*word*/) { state_.format.rise = 1; }
    void Below(const ControlWord& /*word*/) { state_.format.rise = -1; }
    void OnLine(const ControlWord& /*word*/) { state_.format.rise = 0; }

    template <RichTextAlignment alignment>
    void Align(const ControlWord& /*word*/) {
        state_.paragraph.alignment = alignment;
    }
    template <int RichTextParagraphFormat::*length>
    void Length(const ControlWord& word) {
        constexpr int Most = 31680; // twips of the widest page
        state_.paragraph.*length = std::clamp(word.NumberOr(0), -Most, Most);
    }
    void Tab(const ControlWord& word) {
        if (state_.paragraph.tabs.size() < MostTabs) {
            state_.paragraph.tabs.push_back(word.NumberOr(0));
        }
    }

    std::string_view bytes_;
    std::size_t at_ = 0;
    GroupState state_;
    std::vector<GroupState> saved_;
    std::size_t depthBeyond_ = 0;
    RichText document_;
    RichTextParagraph paragraph_;
    int paragraphCharacters_ = 0;
    int characters_ = 0;
    std::size_t runCount_ = 0;
    bool isFull_ = false;
    int ansiCodePage_ = 1252;
    int defaultFont_ = 0;
    int tableFont_ = -1;
    std::optional<std::uint32_t> color_;
    int unicodeSkip_ = 0;
    char32_t highSurrogate_ = 0;
    std::map<int, std::unique_ptr<CodePage>> codePages_;
};

const std::array<RichTextParser::StepWord, 42> RichTextParser::Steps{{
    {"par", &RichTextParser::Paragraph},
    {"sect", &RichTextParser::Paragraph},
    {"page", &RichTextParser::Paragraph},
    {"row", &RichTextParser::Paragraph},
    {"fonttbl", &RichTextParser::FontTable},
    {"colortbl", &RichTextParser::ColorTable},
    {"ansicpg", &RichTextParser::AnsiCodePage},
    {"deff", &RichTextParser::DefaultFont},
    {"f", &RichTextParser::Font},
    {"fcharset", &RichTextParser::CharacterSet},
    {"red", &RichTextParser::Red},
    {"green", &RichTextParser::Green},
    {"blue", &RichTextParser::Blue},
    {"uc", &RichTextParser::UnicodeBytes},
    {"u", &RichTextParser::Unicode},
    {"plain", &RichTextParser::PlainFormat},
    {"pard", &RichTextParser::PlainParagraph},
    {"fs", &RichTextParser::Size},
    {"cf", &RichTextParser::Color},
    {"cb", &RichTextParser::Ground},
    {"highlight", &RichTextParser::Ground},
    {"b", &RichTextParser::Bold},
    {"i", &RichTextParser::Italic},
    {"ul", &RichTextParser::Underline},
    {"uld", &RichTextParser::Underline},
    {"uldb", &RichTextParser::Underline},
    {"ulw", &RichTextParser::Underline},
    {"ulnone", &RichTextParser::NoUnderline},
    {"strike", &RichTextParser::StrikeOut},
    {"super", &RichTextParser::Above},
    {"sub", &RichTextParser::Below},
    {"nosupersub", &RichTextParser::OnLine},
    {"ql", &RichTextParser::Align<RichTextAlignment::Left>},
    {"qc", &RichTextParser::Align<RichTextAlignment::Centre>},
    {"qr", &RichTextParser::Align<RichTextAlignment::Right>},
    {"qj", &RichTextParser::Align<RichTextAlignment::Justified>},
    {"li", &RichTextParser::Length<&RichTextParagraphFormat::left>},
    {"ri", &RichTextParser::Length<&RichTextParagraphFormat::right>},
    {"fi", &RichTextParser::Length<&RichTextParagraphFormat::firstLine>},
    {"sb", &RichTextParser::Length<&RichTextParagraphFormat::before>},
    {"sa", &RichTextParser::Length<&RichTextParagraphFormat::after>},
    {"tx", &RichTextParser::Tab},
}};

} // namespace

std::optional<RichText> ParseRichText(std::string_view bytes) {
    if (!bytes.starts_with("{\\rtf")) {
        return std::nullopt;
    }
    return RichTextParser(bytes).Parse();
}

} // namespace tavmoor
