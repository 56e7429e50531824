#include "services/pictures/svg_check.h"

#include <QBuffer>
#include <QImageReader>
#include <QXmlStreamReader>

namespace tavmoor {

namespace {

/// The number of pixels of an embedded picture; -1 for what is none.
qint64 EmbeddedPixels(QStringView reference) {
    constexpr QLatin1String Base64(";base64,");
    const auto data = reference.indexOf(Base64);
    if (!reference.startsWith(QLatin1String("data:image/")) || data < 0) {
        return -1;
    }
    QByteArray bytes = QByteArray::fromBase64(reference.mid(data + Base64.size()).toLatin1());
    QBuffer buffer(&bytes);
    const QSize size = QImageReader(&buffer).size();
    return size.isValid() ? qint64{size.width()} * size.height() : -1;
}

bool PointsOutside(QStringView value) {
    constexpr QLatin1String Url("url(");
    for (auto at = value.indexOf(Url); at >= 0; at = value.indexOf(Url, at + 1)) {
        if (!value.mid(at + Url.size()).trimmed().startsWith(u'#')) {
            return true;
        }
    }
    return false;
}

/// @param pixels how many embedded pictures may still have; taken off here
bool IsAttributeFine(const QXmlStreamAttribute& attribute, qint64& pixels) {
    const auto value = attribute.value();
    if (attribute.name() != QLatin1String("href")) {
        return !PointsOutside(value);
    }
    if (value.startsWith(u'#')) {
        return true;
    }
    const qint64 embedded = EmbeddedPixels(value);
    pixels -= embedded;
    return embedded >= 0 && pixels >= 0;
}

/// The points of a path or polygon, each written as two numbers with a comma between them.
qint64 PointsIn(const QXmlStreamAttribute& attribute) {
    const auto name = attribute.name();
    return name == QLatin1String("d") || name == QLatin1String("points")
               ? attribute.value().count(u',')
               : 0;
}

} // namespace

qint64 PathPoints(const QByteArray& svg) {
    QXmlStreamReader reader(svg);
    qint64 points = 0;
    while (!reader.atEnd()) {
        reader.readNext();
        for (const QXmlStreamAttribute& attribute : reader.attributes()) {
            points += PointsIn(attribute);
        }
    }
    return points;
}

bool IsSelfContainedSvg(const QByteArray& svg, qint64 mostPixels) {
    QXmlStreamReader reader(svg);
    qint64 pixels = mostPixels;
    while (!reader.atEnd()) {
        reader.readNext();
        if (!reader.entityDeclarations().isEmpty()) {
            return false;
        }
        if (!reader.isStartElement()) {
            continue;
        }
        if (reader.name() == QLatin1String("style")) {
            return false;
        }
        for (const QXmlStreamAttribute& attribute : reader.attributes()) {
            if (!IsAttributeFine(attribute, pixels)) {
                return false;
            }
        }
    }
    return !reader.hasError();
}

} // namespace tavmoor
