#pragma once

#include "services/controls/text_boxes.h"
#include "services/values/given_path.h"

#include <QClipboard>

namespace tavmoor {

class RefusalMark;
class ValueLabel;

/// A field for a path, shown in document form. Native paths are taken over in that form when the
/// field is left, or at once when they are pasted or dropped. One that has no such form marks the
/// field.
class PathBox final : public TextBox {
    Q_OBJECT

public:
    PathBox(const char* objectName, PathKind kind, QWidget* parent = nullptr);

    /// The document form of the text, also while it is typed; nothing when it has none.
    [[nodiscard]] std::optional<QString> DocumentForm() const;

    /// Takes a typed native path over, as leaving the field does.
    /// @return false when it has no document form; the field is marked then
    bool TakeOverTyped();

Q_SIGNALS:
    /// The user gave a native path; the text is already the field's, in document form.
    void PathGiven(const QString& path);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    bool TakeOver(const QString& native);
    bool TakeOverPasted(QClipboard::Mode mode);
    void PasteFromMenu();

    PathKind kind_;
};

/// Lets a file be dropped on a label that shows a path. One that has no document form marks the
/// label.
class PathDrop final : public QObject {
    Q_OBJECT

public:
    /// @param filter the files that are taken, in the form of a file dialog's filter
    PathDrop(ValueLabel& target, std::string_view filter);

Q_SIGNALS:
    /// A file was dropped; its path in document form. The drop itself is over by now, so that
    /// message boxes hold up nobody.
    void Dropped(const QString& path);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void Take(const QString& native);

    RefusalMark& mark_;
    std::vector<FileFilter> filters_;
};

} // namespace tavmoor
