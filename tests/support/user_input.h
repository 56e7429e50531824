#pragma once

#include <QApplication>
#include <QDropEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QString>
#include <QUrl>
#include <QWidget>

#include <filesystem>

namespace tavmoor::test {

/// Types a text key by key, whatever characters it has.
inline void TypeText(QWidget& control, const QString& text) {
    for (const QChar character : text) {
        for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease}) {
            QKeyEvent event(type, Qt::Key_unknown, Qt::NoModifier, QString(character));
            QApplication::sendEvent(&control, &event);
        }
    }
}

/// Drops a native file or folder on a control.
/// @return false when the control does not take it
inline bool DropPath(QWidget& control, const std::filesystem::path& path) {
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(QString::fromStdString(path.string()))});
    const QPoint place = control.rect().center();
    QDragEnterEvent enter(place, Qt::CopyAction, &data, Qt::LeftButton, {});
    QApplication::sendEvent(&control, &enter);
    if (!enter.isAccepted()) {
        return false;
    }
    QDropEvent drop(place, Qt::CopyAction, &data, Qt::LeftButton, {});
    QApplication::sendEvent(&control, &drop);
    return drop.isAccepted();
}

} // namespace tavmoor::test
