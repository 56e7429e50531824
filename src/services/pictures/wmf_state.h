#pragma once

#include "core/formats/byte_view.h"
#include "core/formats/metafile_outline.h"
#include "core/text/code_page.h"

#include <QBrush>
#include <QFont>
#include <QPainterPath>
#include <QPen>

#include <memory>
#include <variant>
#include <vector>

namespace tavmoor {

/// A font of a wmf: its height is in the file's units.
struct WmfFont {
    QFont font;
    int height = 12;
    int tenthsOfDegrees = 0; ///< counter-clockwise
    std::shared_ptr<const CodePage> codePage;
};

/// A pen of a wmf: its width is in the file's units.
struct WmfPen {
    QPen pen;
    int width = 0;
};

/// An object that takes a place in the list and draws nothing (palettes, regions).
struct WmfOther {};

/// monostate is a free place.
using WmfObject = std::variant<std::monostate, WmfPen, QBrush, WmfFont, WmfOther>;

/// The drawing state that a wmf saves and restores.
struct WmfState {
    MetafileFrame window;
    WmfPen pen;
    QBrush brush{Qt::white};
    WmfFont font;
    QColor textColor{Qt::black};
    QColor groundColor{Qt::white};
    bool isGroundFilled = true;
    bool fillsWinding = false;
    std::uint16_t textAlignment = 0;
    QPointF position; ///< in the file's units
    QPainterPath clip;
    bool isClipped = false;
};

/// A colour as metafiles store it, 0x00BBGGRR.
QColor WmfColor(std::uint32_t value);

// The records that make objects; `record` begins with the record's size.

WmfPen ReadWmfPen(const ByteView& record);
QBrush ReadWmfBrush(const ByteView& record);
WmfFont ReadWmfFont(const ByteView& record);

} // namespace tavmoor
