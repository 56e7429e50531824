#include "services/richtext/rich_text_parser.h"
#include "services/richtext/rich_text_reader.h"
#include "support/temporary_folder.h"

#include <QElapsedTimer>
#include <QTextBlock>
#include <QTextDocument>

#include <gtest/gtest.h>

#include <random>

namespace tavmoor {

namespace {

std::string Sample() {
    return "{\\rtf1\\ansi\\ansicpg1252\\deff0\n"
           "{\\fonttbl{\\f0\\fswiss\\fcharset0 Tahoma;}{\\f1\\fcharset238{\\*\\falt X} Georgia;}}\n"
           "{\\colortbl ;\\red28\\green93\\blue127;}{\\info{\\title not shown}}\n"
           "{\\*\\generator not shown \\'41;}\\viewkind4\\uc1\n"
           "\\pard\\qc\\sa60\\cf1\\f1\\b\\fs34 \\'c8a\\'e8ak\\b0\\par\n"
           "\\pard\\fi-200\\li260\\tx500\\cf0\\f0\\fs18 \\bullet\\tab {\\i slanted} \\{x\\}\\line "
           "\\u268?\\u-10179?\\u-8704?{\\uc2\\u381 ??}\\~end\\par\n"
           "{\\pict\\bin4 }}}\\'}\\ul last}";
}

std::string TextOf(const RichTextParagraph& paragraph) {
    std::string text;
    for (const RichTextRun& run : paragraph.runs) {
        text += run.text;
    }
    return text;
}

} // namespace

TEST(RichTextParser, ReadsTextFormatsAndTables) {
    const auto text = ParseRichText(Sample());
    ASSERT_TRUE(text);
    EXPECT_EQ(text->fonts.at(0).name, "Tahoma");
    EXPECT_EQ(text->fonts.at(1).name, "Georgia");
    EXPECT_EQ(text->fonts.at(1).codePage, 1250);
    ASSERT_EQ(text->colors.size(), 2U);
    EXPECT_FALSE(text->colors[0]);
    EXPECT_EQ(text->colors[1], 0x1C5D7FU);

    ASSERT_EQ(text->paragraphs.size(), 3U);
    const RichTextParagraph& heading = text->paragraphs[0];
    EXPECT_EQ(TextOf(heading), "Čačak");
    EXPECT_EQ(heading.format.alignment, RichTextAlignment::Centre);
    EXPECT_EQ(heading.format.after, 60);
    ASSERT_EQ(heading.runs.size(), 1U);
    EXPECT_EQ(heading.runs[0].format.halfPoints, 34);
    EXPECT_TRUE(heading.runs[0].format.bold);

    const RichTextParagraph& point = text->paragraphs[1];
    EXPECT_EQ(TextOf(point), "•\tslanted {x}\u2028Č\U0001F600Ž\u00A0"
                             "end");
    EXPECT_EQ(point.format.tabs, std::vector<int>{500});
    ASSERT_EQ(point.runs.size(), 3U);
    EXPECT_TRUE(point.runs[1].format.italic);
    EXPECT_FALSE(point.runs[2].format.italic);
    EXPECT_FALSE(ParseRichText("plain text"));
}

TEST(RichTextParser, PassesOverWhatStandsForAUnicodeCharacter) {
    for (const auto& [rtf, text] : {std::pair<std::string, std::string>{"\\u8364?x", "€x"},
                                    {"\\u8364\\'80x", "€x"},
                                    {"\\u8364\\par x", "€x"},
                                    {"\\u8364\\~x", "€x"},
                                    {"\\u8364\\bin3 }}}x", "€x"},
                                    {"\\uc2\\u8364\\bullet ?x", "€x"},
                                    {"\\uc0\\u8364\\u8364 x", "€€x"},
                                    {"{\\u8364}x", "€x"}}) {
        const auto parsed = ParseRichText("{\\rtf1 " + rtf + "}");
        ASSERT_EQ(parsed->paragraphs.size(), 1U) << rtf;
        EXPECT_EQ(TextOf(parsed->paragraphs[0]), text) << rtf;
    }
    const auto parsed = ParseRichText("{\\rtf1\\u8364\\b x}");
    EXPECT_FALSE(parsed->paragraphs.at(0).runs.at(0).format.bold);
}

TEST(RichTextReader, FillsADocument) {
    const test::TemporaryFolder folder;
    QTextDocument document(QStringLiteral("old"));
    ASSERT_TRUE(ReadRichTextFile(folder.Write("opis.rtf", Sample()), document));
    EXPECT_EQ(document.blockCount(), 3);
    const QTextBlock heading = document.firstBlock();
    EXPECT_EQ(heading.text(), QStringLiteral("Čačak"));
    EXPECT_EQ(heading.blockFormat().alignment(), Qt::AlignHCenter);
    const QTextCharFormat format = heading.begin().fragment().charFormat();
    EXPECT_EQ(format.fontPointSize(), 17);
    EXPECT_EQ(format.foreground().color(), QColor(28, 93, 127));
    EXPECT_EQ(format.fontFamilies().toStringList(), QStringList{QStringLiteral("Georgia")});
    // From the first line's begin, 260 - 200 twips: where the other lines begin, then the tab.
    const auto tabs = heading.next().blockFormat().tabPositions();
    ASSERT_EQ(tabs.size(), 2);
    EXPECT_NEAR(tabs[0].position, 200 / 15.0, 0.01);
    EXPECT_NEAR(tabs[1].position, 440 / 15.0, 0.01);
    EXPECT_TRUE(document.lastBlock().begin().fragment().charFormat().fontUnderline());

    EXPECT_FALSE(ReadRichTextFile(folder.Document("missing.rtf"), document));
    EXPECT_TRUE(document.isEmpty());
}

TEST(RichTextParser, SurvivesAnyBytes) {
    const std::string sample = Sample();
    for (std::size_t length = 0; length <= sample.size(); ++length) {
        EXPECT_EQ(ParseRichText(sample.substr(0, length)).has_value(), length >= 5);
    }
    std::mt19937 random(7); // NOLINT: the same bytes at every run
    const std::string_view pieces[] = {"{",         "}",          "\\",        "\\'",        "\\u",
                                       "\\bin9",    "\\par",      "\\f",       "9",          "-",
                                       "\\fonttbl", "\\colortbl", ";",         "\\*",        " ",
                                       "\xE8",      "\\uc",       "\\ansicpg", "\\fcharset", "a"};
    for (int round = 0; round < 300; ++round) {
        std::string text = "{\\rtf1";
        for (int i = 0; i < 200; ++i) {
            text += random() % 8 == 0 ? std::string(1, static_cast<char>(random()))
                                      : std::string(pieces[random() % std::size(pieces)]);
        }
        EXPECT_TRUE(ParseRichText(text));
    }
}

TEST(RichTextParser, CutsLongTextsAndBreaksLongParagraphs) {
    const auto exact = ParseRichText("{\\rtf1 " + std::string(10'000, 'x') + "\\par y}");
    EXPECT_EQ(exact->paragraphs.size(), 2U);
    const auto parsed = ParseRichText("{\\rtf1\\qc " + std::string(1'200'000, 'x') + "}");
    ASSERT_EQ(parsed->paragraphs.size(), 100U);
    for (const RichTextParagraph& paragraph : parsed->paragraphs) {
        EXPECT_EQ(TextOf(paragraph).size(), 10'000U);
        EXPECT_EQ(paragraph.format.alignment, RichTextAlignment::Centre);
    }
}

TEST(RichTextParser, StaysLinearAndBounded) {
    constexpr std::size_t Bytes = 1'000'000;
    for (const std::string_view piece :
         {"{", "\\par", "\\b a\\b0 a", "{\\b a}", "\\f1{\\fonttbl\\f1 a", "\\tx9", "\\u-9999 "}) {
        std::string text = "{\\rtf1";
        while (text.size() < Bytes) {
            text += piece;
        }
        QElapsedTimer clock;
        clock.start();
        const auto parsed = ParseRichText(text);
        EXPECT_LT(clock.elapsed(), 4'000) << piece;
        ASSERT_TRUE(parsed);
        EXPECT_LE(parsed->paragraphs.size(), 20'000U);
    }
}

} // namespace tavmoor
