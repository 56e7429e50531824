#include "services/pictures/child_work_posix.h"
#include "services/pictures/emf_player.h"
#include "services/pictures/svg_check.h"

#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

#include <algorithm>
#include <cmath>
#include <cstdlib>

#include <emf2svg.h>

namespace tavmoor {

namespace {

constexpr std::size_t MostSvgBytes = 12'000'000;
constexpr qint64 MostEmbeddedPixels = 16'000'000;
/// Each record may paint every pixel once: some 5 s on a slow machine.
constexpr double MostPaintedPixels = 15e9;

/// An edge of a polygon may cross every line of pixels once, and each crossing is sorted among the
/// others: some 5 s on a slow machine.
constexpr double MostCrossedLines = 4e6;

/// @return "" for a file that the library refuses
std::string SvgOf(std::string bytes, const PixelTarget& target) {
    generatorOptions options{};
    options.svgDelimiter = true;
    options.imgWidth = target.width;
    options.imgHeight = target.height;
    char* svg = nullptr;
    std::size_t length = 0;
    std::string text;
    if (emf2svg(bytes.data(), bytes.size(), &svg, &length, &options) == 1 && svg != nullptr) {
        text.assign(svg, length);
    }
    std::free(svg); // NOLINT: the library's buffer comes from malloc
    return text;
}

/// How much smaller than the target to render, 1 for not at all.
double RenderScale(std::size_t records, qint64 points, const PixelTarget& target) {
    const double painted = static_cast<double>(records) * target.width * target.height;
    const double crossed = static_cast<double>(points) * target.height;
    return std::min({1.0, std::sqrt(MostPaintedPixels / painted), MostCrossedLines / crossed});
}

/// Renders at the size of the target, or smaller and enlarged where very many records or points
/// would take long; rendering cannot be interrupted.
void Render(QSvgRenderer& renderer, double scale, const PixelTarget& target) {
    QImage image(target.pixels, target.width, target.height, target.bytesPerRow,
                 QImage::Format_ARGB32_Premultiplied);
    QPainter painter(&image);
    if (scale >= 1.0) {
        renderer.render(&painter, QRectF(image.rect()));
        return;
    }
    QImage small((QSizeF(image.size()) * scale).toSize().expandedTo({1, 1}),
                 QImage::Format_ARGB32_Premultiplied);
    small.fill(Qt::transparent);
    QPainter smallPainter(&small);
    renderer.render(&smallPainter, QRectF(small.rect()));
    smallPainter.end();
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(image.rect(), small);
}

} // namespace

bool PlayEmf(std::string_view bytes, const MetafileOutline& outline, const PixelTarget& target) {
    ChildLimits limits;
    limits.memory = 160'000'000;
    limits.output = MostSvgBytes;
    limits.time = std::chrono::seconds(5);
    const auto text = DoInChild([&] { return SvgOf(std::string(bytes), target); }, limits);
    if (!text || text->empty()) {
        return false;
    }
    const QByteArray svg = QByteArray::fromStdString(*text);
    if (!IsSelfContainedSvg(svg, MostEmbeddedPixels)) {
        return false;
    }
    QSvgRenderer renderer(svg);
    if (!renderer.isValid()) {
        return false;
    }
    Render(renderer, RenderScale(outline.recordCount, PathPoints(svg), target), target);
    return true;
}

} // namespace tavmoor
