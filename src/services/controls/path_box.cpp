#include "services/controls/path_box.h"

#include "services/controls/refusal_mark.h"
#include "services/controls/value_label.h"
#include "services/values/qt_text.h"

#include <QAction>
#include <QContextMenuEvent>
#include <QDropEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMenu>
#include <QMimeData>
#include <QMouseEvent>

namespace tavmoor {

namespace {

/// Takes what is dropped as a copy, whichever action the keys ask for: a source that is told of a
/// move would delete its file.
void AcceptCopy(QDropEvent& event, bool accepted) {
    event.setDropAction(Qt::CopyAction);
    event.setAccepted(accepted);
}

/// Answers a drag that names files.
/// @return false for a drag of text alone
bool AnswerDrag(QDropEvent& event, PathKind kind) {
    const QMimeData& data = *event.mimeData();
    if (data.hasUrls()) {
        AcceptCopy(event, DroppedFile(data, kind).has_value());
    }
    return data.hasUrls();
}

} // namespace

PathBox::PathBox(const char* objectName, PathKind kind, QWidget* parent)
    : TextBox(objectName, parent), kind_(kind) {
    setAcceptDrops(true);
    connect(this, &QLineEdit::editingFinished, this, &PathBox::TakeOverTyped);
}

std::optional<QString> PathBox::DocumentForm() const {
    const auto native = NativePathIn(text());
    return native ? DocumentFormOfFile(*native) : text();
}

bool PathBox::TakeOverTyped() {
    const auto native = NativePathIn(text());
    return !native || TakeOver(*native);
}

bool PathBox::TakeOver(const QString& native) {
    const auto document = DocumentFormOfFile(native);
    if (!document) {
        findChild<RefusalMark*>()->Set(PathObjection(native));
        return false;
    }
    setText(*document);
    Q_EMIT textEdited(*document);
    Q_EMIT PathGiven(*document);
    return true;
}

bool PathBox::TakeOverPasted(QClipboard::Mode mode) {
    const QMimeData* clip = QGuiApplication::clipboard()->mimeData(mode);
    const auto native = clip != nullptr ? PastedFile(*clip) : std::nullopt;
    if (native) {
        TakeOver(*native);
    }
    return native.has_value();
}

void PathBox::PasteFromMenu() {
    if (!TakeOverPasted(QClipboard::Clipboard)) {
        paste();
    }
}

void PathBox::keyPressEvent(QKeyEvent* event) {
    if (!event->matches(QKeySequence::Paste) || !TakeOverPasted(QClipboard::Clipboard)) {
        TextBox::keyPressEvent(event);
    }
}

void PathBox::mouseReleaseEvent(QMouseEvent* event) {
    // Where the middle button pastes, there is a selection to paste.
    const bool pastes =
        event->button() == Qt::MiddleButton && QGuiApplication::clipboard()->supportsSelection();
    if (!pastes || !TakeOverPasted(QClipboard::Selection)) {
        TextBox::mouseReleaseEvent(event);
    }
}

void PathBox::contextMenuEvent(QContextMenuEvent* event) {
    QMenu* menu = createStandardContextMenu();
    menu->setAttribute(Qt::WA_DeleteOnClose);
    // Qt's paste cannot be overridden, and its entry has no name but its text.
    for (QAction* action : menu->actions()) {
        if (action->text().startsWith(QLineEdit::tr("&Paste"))) {
            disconnect(action, &QAction::triggered, nullptr, nullptr);
            connect(action, &QAction::triggered, this, &PathBox::PasteFromMenu);
        }
    }
    menu->popup(event->globalPos());
}

void PathBox::dragEnterEvent(QDragEnterEvent* event) {
    if (!AnswerDrag(*event, kind_)) {
        TextBox::dragEnterEvent(event);
    }
}

void PathBox::dragMoveEvent(QDragMoveEvent* event) {
    if (!AnswerDrag(*event, kind_)) {
        TextBox::dragMoveEvent(event);
    }
}

void PathBox::dropEvent(QDropEvent* event) {
    if (!AnswerDrag(*event, kind_)) {
        TextBox::dropEvent(event);
    } else if (const auto native = DroppedFile(*event->mimeData(), kind_)) {
        TakeOver(*native);
    }
}

PathDrop::PathDrop(ValueLabel& target, std::string_view filter)
    : QObject(&target), mark_(*target.findChild<RefusalMark*>()),
      filters_(ParseFilter(ToQString(filter))) {
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
    const auto native = DroppedFile(*drop->mimeData(), PathKind::File, filters_);
    AcceptCopy(*drop, native.has_value());
    if (native && type == QEvent::Drop) {
        Take(*native);
    }
    return true;
}

void PathDrop::Take(const QString& native) {
    const auto path = DocumentFormOfFile(native);
    if (!path) {
        mark_.Set(PathObjection(native));
        return;
    }
    QMetaObject::invokeMethod(
        this, [this, path = *path] { Q_EMIT Dropped(path); }, Qt::QueuedConnection);
}

} // namespace tavmoor
