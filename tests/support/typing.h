#pragma once

#include <QApplication>
#include <QKeyEvent>
#include <QString>
#include <QWidget>

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

} // namespace tavmoor::test
