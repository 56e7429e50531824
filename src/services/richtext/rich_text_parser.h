#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tavmoor {

/// The format of characters; fonts and colours are numbers into the document's tables.
struct RichTextFormat {
    int font = 0;
    int halfPoints = 24;
    int color = 0;
    int ground = 0;
    bool bold = false;
    bool italic = false;
    bool underlined = false;
    bool struckOut = false;
    int rise = 0; ///< 1 above the line, -1 below it
    bool operator==(const RichTextFormat&) const = default;
};

struct RichTextRun {
    std::string text; ///< UTF-8; U+2028 breaks the line
    RichTextFormat format;
};

enum class RichTextAlignment : std::uint8_t { Left, Centre, Right, Justified };

/// The format of a paragraph, in twips.
struct RichTextParagraphFormat {
    RichTextAlignment alignment = RichTextAlignment::Left;
    int left = 0;
    int right = 0;
    int firstLine = 0; ///< beyond left; negative hangs out
    int before = 0;
    int after = 0;
    std::vector<int> tabs;
};

struct RichTextParagraph {
    std::vector<RichTextRun> runs;
    RichTextParagraphFormat format;
};

struct RichTextFont {
    std::string name; ///< UTF-8
    int codePage = 1252;
};

/// A document of rich text without any of the window system.
struct RichText {
    std::map<int, RichTextFont> fonts;
    /// 0xRRGGBB; nothing stands for the window's own colour.
    std::vector<std::optional<std::uint32_t>> colors;
    std::vector<RichTextParagraph> paragraphs;
};

/// Reads rich text from any bytes: unknown words and destinations are passed over, a cut off
/// document gives what came before. Linear in time; a document of more than a million characters,
/// 20000 paragraphs or 10000 runs is cut there, and a paragraph is broken after 10000 characters.
/// @return nothing for what does not begin as rich text
std::optional<RichText> ParseRichText(std::string_view bytes);

} // namespace tavmoor
