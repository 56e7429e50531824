#pragma once

#include "services/text_boxes.h"

#include <cstdint>
#include <optional>

class QMimeData;

namespace tavmoor {

/// What a field takes when something is dropped on it.
enum class PathKind : std::uint8_t { File, Folder };

/// The document form of a path that was typed, pasted or dropped: a native one is turned into it, a
/// text that is no absolute native path of this system comes back as it is.
/// @return nothing for a native path that the document cannot say
std::optional<QString> DocumentFormOf(const QString& path);

/// The document path of the first file or folder of a drop or paste; nothing when there is none of
/// that kind.
std::optional<QString> DroppedPath(const QMimeData& data, PathKind kind);

/// A field for a path, shown in document form. Native paths are taken over in that form when the
/// field is left, or at once when they are pasted or dropped.
class PathBox final : public TextBox {
    Q_OBJECT

public:
    PathBox(const char* objectName, PathKind kind, QWidget* parent = nullptr);

Q_SIGNALS:
    /// The user gave a path by dropping or pasting; the text is already the field's.
    void PathGiven(const QString& path);

protected:
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    void TakeOver(const QString& path);
    PathKind kind_;
};

/// Lets a file be dropped on a widget that shows a path but is no field.
class PathDrop final : public QObject {
    Q_OBJECT

public:
    PathDrop(QWidget& target, PathKind kind);

Q_SIGNALS:
    /// A file or folder was dropped; its path in document form.
    void Dropped(const QString& path);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    PathKind kind_;
};

} // namespace tavmoor
