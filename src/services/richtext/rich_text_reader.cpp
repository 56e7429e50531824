#include "services/richtext/rich_text_reader.h"

#include "core/document/measures.h"
#include "core/files/file_store.h"
#include "core/files/runtime_error.h"
#include "services/richtext/rich_text_parser.h"

#include <QTextBlockFormat>
#include <QTextCharFormat>
#include <QTextCursor>
#include <QTextDocument>

#include <algorithm>
#include <vector>

namespace tavmoor {

namespace {

constexpr std::uint64_t MostFileBytes = 16'000'000;

double PixelsOf(int twips) {
    return static_cast<double>(twips) / TwipsPerPixel;
}

/// The colour of a number; an invalid one for the window's own and for numbers beyond the table.
QColor ColorOf(const RichText& text, int number) {
    const auto index = static_cast<std::size_t>(number);
    if (number < 0 || index >= text.colors.size() || !text.colors[index]) {
        return {};
    }
    return {QRgb{*text.colors[index] | 0xFF000000U}};
}

QTextCharFormat CharacterFormat(const RichText& text, const RichTextFormat& format) {
    QTextCharFormat result;
    const auto font = text.fonts.find(format.font);
    if (font != text.fonts.end() && !font->second.name.empty()) {
        result.setFontFamilies({QString::fromStdString(font->second.name)});
    }
    result.setFontPointSize(format.halfPoints / 2.0);
    result.setFontWeight(format.bold ? QFont::Bold : QFont::Normal);
    result.setFontItalic(format.italic);
    result.setFontUnderline(format.underlined);
    result.setFontStrikeOut(format.struckOut);
    if (format.rise != 0) {
        result.setVerticalAlignment(format.rise > 0 ? QTextCharFormat::AlignSuperScript
                                                    : QTextCharFormat::AlignSubScript);
    }
    if (const QColor color = ColorOf(text, format.color); color.isValid()) {
        result.setForeground(color);
    }
    if (const QColor ground = ColorOf(text, format.ground); ground.isValid()) {
        result.setBackground(ground);
    }
    return result;
}

Qt::Alignment AlignmentOf(RichTextAlignment alignment) {
    switch (alignment) {
    case RichTextAlignment::Centre:
        return Qt::AlignHCenter;
    case RichTextAlignment::Right:
        return Qt::AlignRight;
    case RichTextAlignment::Justified:
        return Qt::AlignJustify;
    case RichTextAlignment::Left:
        break;
    }
    return Qt::AlignLeft;
}

/// The view measures tabs from where the first line begins, rich text from the margin of the page.
QList<QTextOption::Tab> TabsOf(const RichTextParagraphFormat& format) {
    std::vector<int> positions = format.tabs;
    if (format.firstLine < 0) {
        positions.push_back(format.left); // a line that hangs out has a tab where the others begin
    }
    std::sort(positions.begin(), positions.end());
    QList<QTextOption::Tab> tabs;
    for (const int position : positions) {
        const int fromLine = position - format.left - format.firstLine;
        if (fromLine > 0) {
            tabs.append(QTextOption::Tab(PixelsOf(fromLine), QTextOption::LeftTab));
        }
    }
    return tabs;
}

QTextBlockFormat BlockFormat(const RichTextParagraphFormat& format) {
    QTextBlockFormat result;
    result.setAlignment(AlignmentOf(format.alignment));
    result.setLeftMargin(PixelsOf(format.left));
    result.setRightMargin(PixelsOf(format.right));
    result.setTextIndent(PixelsOf(format.firstLine));
    result.setTopMargin(PixelsOf(format.before));
    result.setBottomMargin(PixelsOf(format.after));
    result.setTabPositions(TabsOf(format));
    return result;
}

} // namespace

void FillDocument(const RichText& text, QTextDocument& document) {
    document.clear();
    document.setUndoRedoEnabled(false);
    QTextCursor cursor(&document);
    cursor.beginEditBlock();
    bool isFirst = true;
    for (const RichTextParagraph& paragraph : text.paragraphs) {
        if (isFirst) {
            cursor.setBlockFormat(BlockFormat(paragraph.format));
        } else {
            cursor.insertBlock(BlockFormat(paragraph.format), {});
        }
        isFirst = false;
        for (const RichTextRun& run : paragraph.runs) {
            cursor.insertText(QString::fromStdString(run.text), CharacterFormat(text, run.format));
        }
    }
    cursor.endEditBlock();
}

bool ReadRichTextFile(std::string_view documentPath, QTextDocument& document) {
    document.clear();
    try {
        if (FileLength(documentPath) > MostFileBytes) {
            return false;
        }
        const auto text = ParseRichText(ReadWholeFile(documentPath));
        if (text) {
            FillDocument(*text, document);
        }
        return text.has_value();
    } catch (const RuntimeError&) {
        return false;
    }
}

} // namespace tavmoor
