#include "services/pictures/wmf_player.h"

#include "core/formats/wmf_header.h"
#include "services/pictures/device_bitmap.h"
#include "services/pictures/wmf_state.h"

#include <QElapsedTimer>
#include <QFontMetricsF>
#include <QImage>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <array>
#include <cmath>

namespace tavmoor {

namespace {

constexpr qint64 MostMilliseconds = 3000;
constexpr qint64 MostBitmapPixels = 24'000'000;
/// How long all lines of polygons may be together, in pixels.
constexpr double MostLinePixels = 1'000'000;
constexpr std::size_t MostSavedStates = 256;
constexpr std::size_t MostObjects = 65536;

/// Corners of a rectangle record; the parameters of all records stand in reverse order.
QPolygonF Corners(const ByteView& record, std::size_t at) {
    return {{QPointF(record.I16(at + 6), record.I16(at + 4)),
             QPointF(record.I16(at + 2), record.I16(at))}};
}

class WmfPlayer {
public:
    WmfPlayer(QPainter& painter, const MetafileOutline& outline, const PixelTarget& target)
        : painter_(painter), target_(target) {
        state_.window = outline.frame;
        state_.pen.pen = QPen(Qt::black);
        state_.font.codePage = std::make_shared<const CodePage>(1252);
    }

    /// @param record the record with its size in front
    void Play(const ByteView& record) {
        const std::uint16_t function = record.U16(4);
        for (const auto& [number, step] : Steps) {
            if (number == function) {
                (this->*step)(record);
                return;
            }
        }
    }

private:
    using Step = void (WmfPlayer::*)(const ByteView&);
    static const std::array<std::pair<std::uint16_t, Step>, 40> Steps;

    [[nodiscard]] double ScaleX() const {
        return target_.width / static_cast<double>(state_.window.width);
    }
    [[nodiscard]] double ScaleY() const {
        return target_.height / static_cast<double>(state_.window.height);
    }
    [[nodiscard]] QPointF Map(QPointF point) const {
        // Far beyond every picture; dashed lines and arcs of any length would take long.
        constexpr double Far = 100'000;
        return {std::clamp((point.x() - state_.window.left) * ScaleX(), -Far, Far),
                std::clamp((point.y() - state_.window.top) * ScaleY(), -Far, Far)};
    }
    [[nodiscard]] QRectF MapRect(const ByteView& record, std::size_t at) const {
        const QPolygonF corners = Corners(record, at);
        return QRectF(Map(corners[0]), Map(corners[1])).normalized();
    }
    /// Points whose lines would run too far to be filled or dashed in time give none.
    [[nodiscard]] QPolygonF MapPoints(const ByteView& record, std::size_t at, std::size_t count) {
        QPolygonF points;
        for (std::size_t i = 0; i < count && record.Has(at + i * 4, 4) && lineLength_ > 0; ++i) {
            points << Map(QPointF(record.I16(at + i * 4), record.I16(at + i * 4 + 2)));
            if (i > 0) {
                lineLength_ -=
                    (points[points.size() - 1] - points[points.size() - 2]).manhattanLength();
            }
        }
        return lineLength_ > 0 ? points : QPolygonF();
    }
    void UsePen() {
        QPen pen = state_.pen.pen;
        pen.setWidthF(std::max(1.0, state_.pen.width * std::abs(ScaleX())));
        painter_.setPen(pen);
    }
    void UsePenAndBrush() {
        UsePen();
        painter_.setBrush(state_.brush);
        painter_.setBackground(state_.groundColor);
        painter_.setBackgroundMode(state_.isGroundFilled ? Qt::OpaqueMode : Qt::TransparentMode);
    }
    [[nodiscard]] Qt::FillRule FillRule() const {
        return state_.fillsWinding ? Qt::WindingFill : Qt::OddEvenFill;
    }
    void UseClip() {
        if (state_.isClipped) {
            painter_.setClipPath(state_.clip);
        } else {
            painter_.setClipping(false);
        }
    }

    void SetWindowOrigin(const ByteView& record) {
        state_.window.top = record.I16(6);
        state_.window.left = record.I16(8);
    }
    void SetWindowExtent(const ByteView& record) {
        if (record.I16(6) != 0 && record.I16(8) != 0) {
            state_.window.height = record.I16(6);
            state_.window.width = record.I16(8);
        }
    }
    void OffsetWindowOrigin(const ByteView& record) {
        state_.window.top += record.I16(6);
        state_.window.left += record.I16(8);
    }
    void SaveState(const ByteView& /*record*/) {
        if (saved_.size() < MostSavedStates) {
            saved_.push_back(state_);
        }
    }
    /// A negative number counts from the latest state, a positive one from the first.
    void RestoreState(const ByteView& record) {
        const auto count = static_cast<int>(saved_.size());
        const int number = record.I16(6);
        const int index = number < 0 ? count + number : number - 1;
        if (index < 0 || index >= count) {
            return;
        }
        state_ = saved_[static_cast<std::size_t>(index)];
        saved_.resize(static_cast<std::size_t>(index));
        UseClip();
    }
    void SetGroundMode(const ByteView& record) { state_.isGroundFilled = record.U16(6) == 2; }
    void SetGroundColor(const ByteView& record) { state_.groundColor = WmfColor(record.U32(6)); }
    void SetTextColor(const ByteView& record) { state_.textColor = WmfColor(record.U32(6)); }
    void SetTextAlignment(const ByteView& record) { state_.textAlignment = record.U16(6); }
    void SetFillMode(const ByteView& record) { state_.fillsWinding = record.U16(6) == 2; }

    void MoveTo(const ByteView& record) { state_.position = QPointF(record.I16(8), record.I16(6)); }
    void LineTo(const ByteView& record) {
        UsePen();
        const QPointF end(record.I16(8), record.I16(6));
        painter_.drawLine(Map(state_.position), Map(end));
        state_.position = end;
    }
    void Rectangle(const ByteView& record) {
        UsePenAndBrush();
        painter_.drawRect(MapRect(record, 6));
    }
    void RoundRectangle(const ByteView& record) {
        UsePenAndBrush();
        painter_.drawRoundedRect(MapRect(record, 10), std::abs(record.I16(8) * ScaleX() / 2),
                                 std::abs(record.I16(6) * ScaleY() / 2));
    }
    void Ellipse(const ByteView& record) {
        UsePenAndBrush();
        painter_.drawEllipse(MapRect(record, 6));
    }
    enum class Closing { None, Chord, Pie };
    void DrawArc(const ByteView& record, Closing closing) {
        const QRectF rect = MapRect(record, 14);
        if (rect.isEmpty()) {
            return;
        }
        const auto angle = [&](std::size_t at) {
            const QPointF way = Map(QPointF(record.I16(at + 2), record.I16(at))) - rect.center();
            constexpr double DegreesPerRadian = 57.29577951308232;
            return std::atan2(-way.y() / rect.height(), way.x() / rect.width()) * DegreesPerRadian;
        };
        const double start = angle(10);
        double sweep = angle(6) - start;
        sweep = sweep <= 0 ? sweep + 360 : sweep;
        QPainterPath path;
        if (closing == Closing::Pie) {
            path.moveTo(rect.center());
        } else {
            path.arcMoveTo(rect, start);
        }
        path.arcTo(rect, start, sweep);
        if (closing == Closing::None) {
            UsePen();
            painter_.strokePath(path, painter_.pen());
            return;
        }
        path.closeSubpath();
        UsePenAndBrush();
        painter_.drawPath(path);
    }
    void Arc(const ByteView& record) { DrawArc(record, Closing::None); }
    void Chord(const ByteView& record) { DrawArc(record, Closing::Chord); }
    void Pie(const ByteView& record) { DrawArc(record, Closing::Pie); }
    void Polygon(const ByteView& record) {
        UsePenAndBrush();
        painter_.drawPolygon(MapPoints(record, 8, record.U16(6)), FillRule());
    }
    void Polyline(const ByteView& record) {
        UsePen();
        painter_.drawPolyline(MapPoints(record, 8, record.U16(6)));
    }
    void PolyPolygon(const ByteView& record) {
        const std::size_t count = record.U16(6);
        std::size_t at = 8 + count * 2;
        QPainterPath path;
        path.setFillRule(FillRule());
        for (std::size_t i = 0; i < count && record.Has(at, 4); ++i) {
            const std::size_t points = record.U16(8 + i * 2);
            path.addPolygon(MapPoints(record, at, points));
            path.closeSubpath();
            at += points * 4;
        }
        UsePenAndBrush();
        painter_.drawPath(path);
    }
    void SetPixel(const ByteView& record) {
        painter_.fillRect(QRectF(Map(QPointF(record.I16(12), record.I16(10))), QSizeF(1, 1)),
                          WmfColor(record.U32(6)));
    }
    void Clip(const ByteView& record, bool isIncluded) {
        QPainterPath rect;
        rect.addRect(MapRect(record, 6));
        if (!state_.isClipped) {
            state_.clip = {};
            state_.clip.addRect(QRectF(0, 0, target_.width, target_.height));
            state_.isClipped = true;
        }
        // Each cut makes the path longer; no real picture cuts out this many.
        constexpr int MostElements = 1000;
        if (state_.clip.elementCount() < MostElements) {
            state_.clip = isIncluded ? state_.clip.intersected(rect) : state_.clip.subtracted(rect);
        }
        UseClip();
    }
    void IntersectClip(const ByteView& record) { Clip(record, true); }
    void ExcludeClip(const ByteView& record) { Clip(record, false); }

    void AddObject(WmfObject object) {
        const auto place = std::find_if(objects_.begin(), objects_.end(), [](const auto& one) {
            return std::holds_alternative<std::monostate>(one);
        });
        if (place != objects_.end()) {
            *place = std::move(object);
        } else if (objects_.size() < MostObjects) {
            objects_.push_back(std::move(object));
        }
    }
    void CreatePen(const ByteView& record) { AddObject(ReadWmfPen(record)); }
    void CreateBrush(const ByteView& record) { AddObject(ReadWmfBrush(record)); }
    void CreateFont(const ByteView& record) { AddObject(ReadWmfFont(record)); }
    void CreateOther(const ByteView& /*record*/) { AddObject(WmfOther{}); }
    void CreatePatternBrush(const ByteView& record) {
        const QImage pattern = DecodeDeviceBitmap(record.Bytes(10, record.Size()), bitmapPixels_);
        AddObject(pattern.isNull() ? QBrush(Qt::gray) : QBrush(pattern));
    }
    void SelectObject(const ByteView& record) {
        const std::size_t index = record.U16(6);
        if (index >= objects_.size()) {
            return;
        }
        if (const auto* pen = std::get_if<WmfPen>(&objects_[index])) {
            state_.pen = *pen;
        } else if (const auto* brush = std::get_if<QBrush>(&objects_[index])) {
            state_.brush = *brush;
        } else if (const auto* font = std::get_if<WmfFont>(&objects_[index])) {
            state_.font = *font;
        }
    }
    void DeleteObject(const ByteView& record) {
        const std::size_t index = record.U16(6);
        if (index < objects_.size()) {
            objects_[index] = std::monostate{};
        }
    }

    void TextOut(const ByteView& record) {
        const std::size_t length = record.U16(6);
        const std::size_t behind = 8 + (length + 1) / 2 * 2;
        DrawText(record.Bytes(8, length), {static_cast<double>(record.I16(behind + 2)),
                                           static_cast<double>(record.I16(behind))});
    }
    void ExtendedTextOut(const ByteView& record) {
        constexpr std::uint16_t Opaque = 2;
        constexpr std::uint16_t HasRectangle = 6; // it clips or is filled
        const std::uint16_t options = record.U16(12);
        const bool hasRectangle = (options & HasRectangle) != 0;
        if ((options & Opaque) != 0) {
            const QRectF rect(Map(QPointF(record.I16(14), record.I16(16))),
                              Map(QPointF(record.I16(18), record.I16(20))));
            painter_.fillRect(rect.normalized(), state_.groundColor);
        }
        DrawText(record.Bytes(hasRectangle ? 22 : 14, record.U16(10)),
                 {static_cast<double>(record.I16(8)), static_cast<double>(record.I16(6))});
    }
    void DrawText(std::string_view bytes, QPointF at) {
        constexpr std::uint16_t UsesPosition = 1;
        constexpr std::uint16_t Right = 2;
        constexpr std::uint16_t Centre = 6;
        constexpr std::uint16_t Bottom = 8;
        constexpr std::uint16_t Baseline = 24;
        const QString text = QString::fromStdString(state_.font.codePage->ToUtf8(bytes));
        QFont font = state_.font.font;
        const double height = std::abs(state_.font.height * ScaleY());
        font.setPixelSize(std::clamp(static_cast<int>(std::lround(height)), 1, 2000));
        const QFontMetricsF metrics(font);
        const double width = metrics.horizontalAdvance(text);
        const std::uint16_t alignment = state_.textAlignment;
        double x = 0;
        if ((alignment & Centre) == Centre) {
            x = -width / 2;
        } else if ((alignment & Right) != 0) {
            x = -width;
        }
        double y = metrics.ascent();
        if ((alignment & Baseline) == Baseline) {
            y = 0;
        } else if ((alignment & Bottom) != 0) {
            y = -metrics.descent();
        }
        painter_.save();
        painter_.translate(Map((alignment & UsesPosition) != 0 ? state_.position : at));
        painter_.rotate(-state_.font.tenthsOfDegrees / 10.0);
        if (state_.isGroundFilled) {
            painter_.fillRect(QRectF(x, y - metrics.ascent(), width, metrics.height()),
                              state_.groundColor);
        }
        painter_.setFont(font);
        painter_.setPen(state_.textColor);
        painter_.setBackgroundMode(Qt::TransparentMode);
        painter_.drawText(QPointF(x, y), text);
        painter_.restore();
    }

    void FillPattern(const ByteView& record) {
        constexpr std::uint32_t Blackness = 0x00000042;
        constexpr std::uint32_t Whiteness = 0x00FF0062;
        constexpr std::uint32_t CopyPattern = 0x00F00021;
        const std::uint32_t operation = record.U32(6);
        const QRectF rect = MapSized(record, 10);
        if (operation == CopyPattern) {
            painter_.fillRect(rect, state_.brush);
        } else if (operation == Blackness || operation == Whiteness) {
            painter_.fillRect(rect, operation == Blackness ? Qt::black : Qt::white);
        }
    }
    /// A rectangle given by height, width, top and left.
    [[nodiscard]] QRectF MapSized(const ByteView& record, std::size_t at) const {
        const QPointF corner(record.I16(at + 6), record.I16(at + 4));
        return QRectF(Map(corner), Map(corner + QPointF(record.I16(at + 2), record.I16(at))))
            .normalized();
    }
    /// @param source where height, width, top and left of the part of the picture stand; 0 for the
    ///        whole picture
    void DrawBitmap(const ByteView& record, std::size_t source, const QRectF& rect,
                    std::size_t bitmap) {
        const QImage image = DecodeDeviceBitmap(record.Bytes(bitmap, record.Size()), bitmapPixels_);
        if (image.isNull()) {
            return;
        }
        QRectF part = image.rect();
        if (source != 0) {
            part = QRectF(record.I16(source + 6), record.I16(source + 4), record.I16(source + 2),
                          record.I16(source));
        }
        painter_.drawImage(rect, image, part);
    }
    void StretchBitmap(const ByteView& record) { DrawBitmap(record, 12, MapSized(record, 20), 28); }
    void StretchBitmapOfDevice(const ByteView& record) {
        if (record.Size() > 26) { // without a picture the record is shorter
            DrawBitmap(record, 10, MapSized(record, 18), 26);
        }
    }
    void CopyBitmapOfDevice(const ByteView& record) {
        if (record.Size() > 24) {
            DrawBitmap(record, 0, MapSized(record, 14), 22);
        }
    }
    void SetBitmap(const ByteView& record) { DrawBitmap(record, 0, MapSized(record, 16), 24); }

    QPainter& painter_;
    PixelTarget target_;
    WmfState state_;
    std::vector<WmfState> saved_;
    std::vector<WmfObject> objects_;
    qint64 bitmapPixels_ = MostBitmapPixels;
    double lineLength_ = MostLinePixels;
};

const std::array<std::pair<std::uint16_t, WmfPlayer::Step>, 40> WmfPlayer::Steps{{
    {0x020B, &WmfPlayer::SetWindowOrigin},
    {0x020C, &WmfPlayer::SetWindowExtent},
    {0x020F, &WmfPlayer::OffsetWindowOrigin},
    {0x001E, &WmfPlayer::SaveState},
    {0x0127, &WmfPlayer::RestoreState},
    {0x0102, &WmfPlayer::SetGroundMode},
    {0x0201, &WmfPlayer::SetGroundColor},
    {0x0209, &WmfPlayer::SetTextColor},
    {0x012E, &WmfPlayer::SetTextAlignment},
    {0x0106, &WmfPlayer::SetFillMode},
    {0x0214, &WmfPlayer::MoveTo},
    {0x0213, &WmfPlayer::LineTo},
    {0x041B, &WmfPlayer::Rectangle},
    {0x061C, &WmfPlayer::RoundRectangle},
    {0x0418, &WmfPlayer::Ellipse},
    {0x0817, &WmfPlayer::Arc},
    {0x0830, &WmfPlayer::Chord},
    {0x081A, &WmfPlayer::Pie},
    {0x0324, &WmfPlayer::Polygon},
    {0x0325, &WmfPlayer::Polyline},
    {0x0538, &WmfPlayer::PolyPolygon},
    {0x041F, &WmfPlayer::SetPixel},
    {0x0416, &WmfPlayer::IntersectClip},
    {0x0415, &WmfPlayer::ExcludeClip},
    {0x02FA, &WmfPlayer::CreatePen},
    {0x02FC, &WmfPlayer::CreateBrush},
    {0x02FB, &WmfPlayer::CreateFont},
    {0x00F7, &WmfPlayer::CreateOther},
    {0x06FF, &WmfPlayer::CreateOther},
    {0x01F9, &WmfPlayer::CreateOther},
    {0x0142, &WmfPlayer::CreatePatternBrush},
    {0x012D, &WmfPlayer::SelectObject},
    {0x01F0, &WmfPlayer::DeleteObject},
    {0x0521, &WmfPlayer::TextOut},
    {0x0A32, &WmfPlayer::ExtendedTextOut},
    {0x061D, &WmfPlayer::FillPattern},
    {0x0F43, &WmfPlayer::StretchBitmap},
    {0x0B41, &WmfPlayer::StretchBitmapOfDevice},
    {0x0940, &WmfPlayer::CopyBitmapOfDevice},
    {0x0D33, &WmfPlayer::SetBitmap},
}};

} // namespace

bool PlayWmf(std::string_view bytes, const MetafileOutline& outline, const PixelTarget& target) {
    QImage image(target.pixels, target.width, target.height, target.bytesPerRow,
                 QImage::Format_ARGB32_Premultiplied);
    QPainter painter(&image);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    WmfPlayer player(painter, outline, target);
    QElapsedTimer clock;
    clock.start();
    std::size_t at = outline.records;
    for (std::size_t i = 0; i + 1 < outline.recordCount; ++i) {
        const std::string_view record = WmfRecordAt(bytes, at);
        player.Play(ByteView(record));
        if (clock.hasExpired(MostMilliseconds)) {
            return false;
        }
        at += record.size();
    }
    return true;
}

} // namespace tavmoor
