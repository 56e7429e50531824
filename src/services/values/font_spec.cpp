#include "services/values/font_spec.h"

#include "core/text/number_text.h"
#include "core/text/value_encoding.h"
#include "services/values/qt_text.h"

namespace tavmoor {

namespace {

constexpr int UsualPoints = 10;
/// The largest size that font dialogs take.
constexpr int MostPoints = 1638;

} // namespace

int FontPoints(std::string_view size) {
    const auto points = ParseInteger<int>(RoundSize(size));
    return points && *points >= 1 && *points <= MostPoints ? *points : UsualPoints;
}

QFont ToQFont(const FontSpec& wanted) {
    QFont font;
    if (!wanted.name.empty()) {
        font.setFamily(ToQString(wanted.name));
    }
    font.setPointSize(FontPoints(wanted.size));
    font.setBold(wanted.bold);
    font.setItalic(wanted.italic);
    font.setUnderline(wanted.underline);
    font.setStrikeOut(wanted.strikeOut);
    return font;
}

} // namespace tavmoor
