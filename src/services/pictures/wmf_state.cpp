#include "services/pictures/wmf_state.h"

#include "core/text/character_set.h"

#include <QString>

#include <array>
#include <cstdlib>

namespace tavmoor {

QColor WmfColor(std::uint32_t value) {
    return {static_cast<int>(value & 0xFFU), static_cast<int>(value >> 8U & 0xFFU),
            static_cast<int>(value >> 16U & 0xFFU)};
}

WmfPen ReadWmfPen(const ByteView& record) {
    static constexpr std::array Styles{Qt::SolidLine,   Qt::DashLine,       Qt::DotLine,
                                       Qt::DashDotLine, Qt::DashDotDotLine, Qt::NoPen,
                                       Qt::SolidLine};
    const std::size_t style = record.U16(6) & 0x0FU;
    WmfPen pen;
    pen.pen = QPen(WmfColor(record.U32(12)));
    pen.pen.setStyle(style < Styles.size() ? Styles[style] : Qt::SolidLine);
    pen.pen.setCapStyle(Qt::RoundCap);
    pen.pen.setJoinStyle(Qt::RoundJoin);
    pen.width = std::abs(int{record.I16(8)});
    return pen;
}

QBrush ReadWmfBrush(const ByteView& record) {
    static constexpr std::array Hatches{Qt::HorPattern,   Qt::VerPattern,   Qt::FDiagPattern,
                                        Qt::BDiagPattern, Qt::CrossPattern, Qt::DiagCrossPattern};
    constexpr int Hollow = 1;
    constexpr int Hatched = 2;
    const int style = record.U16(6);
    if (style == Hollow) {
        return {Qt::NoBrush};
    }
    const std::size_t hatch = record.U16(12);
    return {WmfColor(record.U32(8)),
            style == Hatched && hatch < Hatches.size() ? Hatches[hatch] : Qt::SolidPattern};
}

WmfFont ReadWmfFont(const ByteView& record) {
    constexpr std::size_t FaceBytes = 32;
    constexpr int BoldWeight = 600;
    WmfFont font;
    font.height = std::abs(int{record.I16(6)});
    if (font.height == 0) {
        font.height = 12;
    }
    font.tenthsOfDegrees = record.I16(10);
    font.codePage = std::make_shared<const CodePage>(CodePageOfCharacterSet(record.U8(19), 1252));
    const std::string_view face = record.Bytes(24, FaceBytes);
    font.font.setFamily(
        QString::fromStdString(font.codePage->ToUtf8(face.substr(0, face.find('\0')))));
    font.font.setBold(record.I16(14) >= BoldWeight);
    font.font.setItalic(record.U8(16) != 0);
    font.font.setUnderline(record.U8(17) != 0);
    font.font.setStrikeOut(record.U8(18) != 0);
    return font;
}

} // namespace tavmoor
