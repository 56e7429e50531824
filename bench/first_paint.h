#pragma once

#include <QApplication>
#include <QEvent>
#include <QTimer>
#include <QWidget>

#include <cstdlib>

namespace tavmoor::bench {

/// Ends the process, without cleaning up, once a window and everything in it has been painted.
class FirstPaint final : public QObject {
public:
    FirstPaint(QApplication& application, QString windowName)
        : QObject(&application), windowName_(std::move(windowName)) {
        application.installEventFilter(this);
    }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        // The request to synchronise paints the whole window; the timer fires after it.
        if (event->type() == QEvent::Paint && watched->objectName() == windowName_) {
            QTimer::singleShot(0, [] { std::_Exit(EXIT_SUCCESS); });
        }
        return false;
    }

private:
    QString windowName_;
};

inline void EndAtFirstPaintOf(QApplication& application, const QString& windowName) {
    new FirstPaint(application, windowName);
}

} // namespace tavmoor::bench
