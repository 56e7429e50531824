#pragma once

#include <QColor>
#include <QCursor>
#include <QIcon>
#include <QPixmap>
#include <QString>

namespace tavmoor {

/// A drawing of the program, by its name without ".svg", drawn afresh at every size and scale.
/// @param colour replaces the drawing's line colour; an invalid one keeps it
QIcon ArtworkIcon(const QString& name, const QColor& color = {});

/// A drawing at a size in logical pixels, sharp on a screen of the given scale.
QPixmap ArtworkPixmap(const QString& name, QSize size, qreal scale, const QColor& color = {});

/// The drawing's own size in logical pixels.
QSize ArtworkSize(const QString& name);

/// The hand that stands over everything that can be pressed.
const QCursor& HandCursor();

} // namespace tavmoor
