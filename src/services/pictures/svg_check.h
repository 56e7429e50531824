#pragma once

#include <QByteArray>

namespace tavmoor {

/// True for a well-formed svg that refers to nothing outside itself, declares no entities, and
/// whose embedded pictures have no more than `mostPixels` together. A picture may come from
/// anywhere; its text must not make the program open other files.
bool IsSelfContainedSvg(const QByteArray& svg, qint64 mostPixels);

/// How many points the paths and polygons of an svg have; they decide how long drawing it takes.
qint64 PathPoints(const QByteArray& svg);

} // namespace tavmoor
