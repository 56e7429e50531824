#include "services/child_work_posix.h"
#include "services/emf_player.h"
#include "services/svg_check.h"

#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

#include <cstdlib>

#include <emf2svg.h>

namespace tavmoor {

namespace {

constexpr std::size_t MostSvgBytes = 12'000'000;
constexpr qint64 MostEmbeddedPixels = 16'000'000;
/// Each record may paint every pixel once: some 20 s on a slow machine.
constexpr std::size_t MostPaintedPixels = 40'000'000'000;

/// @return "" for a file that the library refuses
std::string SvgOf(std::string bytes, const PixelTarget& target) {
    generatorOptions options{};
    options.svgDelimiter = true;
    options.imgWidth = target.width;
    options.imgHeight = target.height;
    char* svg = nullptr;
    std::size_t length = 0;
    const bool isDone = emf2svg(bytes.data(), bytes.size(), &svg, &length, &options) == 1;
    std::string text(isDone && svg != nullptr ? svg : "", isDone ? length : 0);
    std::free(svg); // NOLINT: the library's buffer comes from malloc
    return text;
}

} // namespace

bool PlayEmf(std::string_view bytes, const MetafileOutline& outline, const PixelTarget& target) {
    const std::size_t pixels =
        static_cast<std::size_t>(target.width) * static_cast<std::size_t>(target.height);
    if (outline.recordCount > MostPaintedPixels / pixels) {
        return false;
    }
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
    QImage image(target.pixels, target.width, target.height, target.bytesPerRow,
                 QImage::Format_ARGB32_Premultiplied);
    QPainter painter(&image);
    renderer.render(&painter, QRectF(0, 0, target.width, target.height));
    return true;
}

} // namespace tavmoor
