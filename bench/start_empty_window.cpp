#include "first_paint.h"

#include <QApplication>
#include <QWidget>

/// The least that a program with a window does: what the start of ours is compared with.
int main(int argc, char** argv) {
    QApplication application(argc, argv);
    tavmoor::bench::EndAtFirstPaintOf(application, QStringLiteral("Empty"));
    QWidget window;
    window.setObjectName(QStringLiteral("Empty"));
    window.resize(930, 600);
    window.show();
    return QApplication::exec();
}
