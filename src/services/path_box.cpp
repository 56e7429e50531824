#include "services/path_box.h"

#include "core/document_path.h"
#include "services/qt_text.h"
#include "services/refusal_mark.h"

#include <QDir>
#include <QDropEvent>
#include <QFileInfo>
#include <QMimeData>
#include <QUrl>

namespace tavmoor {

std::optional<QString> DocumentFormOf(const QString& path) {
    // On Windows the two forms are one; elsewhere a native path begins with a slash.
    if (!path.startsWith(QLatin1Char('/'))) {
        return path;
    }
    const auto document = FindDocumentPath(path.toStdString());
    return document ? std::optional(ToQString(*document)) : std::nullopt;
}

std::optional<QString> DroppedPath(const QMimeData& data, PathKind kind) {
    for (const QUrl& url : data.urls()) {
        const QFileInfo file(url.toLocalFile());
        if (url.isLocalFile() && file.isDir() == (kind == PathKind::Folder)) {
            // Some sources end the address of a folder in a slash.
            const QString native = QDir::cleanPath(file.absoluteFilePath());
            if (const auto path = FindDocumentPath(native.toStdString())) {
                return ToQString(*path);
            }
        }
    }
    return std::nullopt;
}

namespace {

/// Takes what is dropped as a copy, whichever action the keys ask for: a source that is told of a
/// move would delete its file.
void AcceptCopy(QDropEvent& event) {
    event.setDropAction(Qt::CopyAction);
    event.accept();
}

} // namespace

PathBox::PathBox(const char* objectName, PathKind kind, QWidget* parent)
    : TextBox(objectName, parent), kind_(kind) {
    setAcceptDrops(true);
    connect(this, &QLineEdit::editingFinished, this, [this] {
        if (DocumentFormOf(text()) != text()) {
            TakeOver(text());
        }
    });
}

void PathBox::TakeOver(const QString& path) {
    const auto document = DocumentFormOf(path);
    if (!document) {
        findChild<RefusalMark*>()->Set(
            QStringLiteral("\"%1\" cannot be used: its name has a character that a disc's texts "
                           "cannot hold, or a backslash.")
                .arg(path));
        return;
    }
    setText(*document);
    Q_EMIT textEdited(*document);
    Q_EMIT PathGiven(*document);
}

void PathBox::dragEnterEvent(QDragEnterEvent* event) {
    if (DroppedPath(*event->mimeData(), kind_)) {
        AcceptCopy(*event);
    } else {
        TextBox::dragEnterEvent(event);
    }
}

void PathBox::dragMoveEvent(QDragMoveEvent* event) {
    if (DroppedPath(*event->mimeData(), kind_)) {
        AcceptCopy(*event);
    } else {
        TextBox::dragMoveEvent(event);
    }
}

void PathBox::dropEvent(QDropEvent* event) {
    if (const auto path = DroppedPath(*event->mimeData(), kind_)) {
        AcceptCopy(*event);
        TakeOver(*path);
    } else {
        TextBox::dropEvent(event);
    }
}

PathDrop::PathDrop(QWidget& target, PathKind kind) : QObject(&target), kind_(kind) {
    target.setAcceptDrops(true);
    target.installEventFilter(this);
}

bool PathDrop::eventFilter(QObject* watched, QEvent* event) {
    const auto type = event->type();
    if (type != QEvent::DragEnter && type != QEvent::DragMove && type != QEvent::Drop) {
        return QObject::eventFilter(watched, event);
    }
    // Enter and move events are drop events, too.
    auto* drop = static_cast<QDropEvent*>(event);
    const auto path = DroppedPath(*drop->mimeData(), kind_);
    if (!path) {
        return false;
    }
    AcceptCopy(*drop);
    if (type == QEvent::Drop) {
        Q_EMIT Dropped(*path);
    }
    return true;
}

} // namespace tavmoor
