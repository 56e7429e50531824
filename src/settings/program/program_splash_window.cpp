#include "settings/program/program_splash_window.h"

#include "services/controls/labels.h"
#include "services/controls/layouts.h"
#include "services/look/artwork.h"

#include <QCloseEvent>
#include <QScreen>

namespace tavmoor {

namespace {

constexpr WindowLook Form5Look{.name = WindowName::Form5,
                               .objectName = "Form5",
                               .title = u"Tavmoor",
                               .dragArea = "",
                               .chrome = NoChrome};

constexpr std::chrono::milliseconds SplashTime{3000};

} // namespace

Form5::Form5(ProgramContext context) : SkinnedWindow(context, Form5Look) {
    const QString artwork = QStringLiteral("splash");
    const QSize size = ArtworkSize(artwork);
    auto* image = MakeLabel("Image1", u"", Body());
    image->setPixmap(ArtworkPixmap(artwork, size, devicePixelRatioF()));
    image->setAccessibleName(QStringLiteral("Tavmoor is starting"));
    MakeColumn(Body())->addWidget(image);
    // The picture covers the window's frame, too.
    QWidget::layout()->setContentsMargins(0, 0, 0, 0);
    setFixedSize(size);
    timer1_.setObjectName(QStringLiteral("Timer1"));
    timer1_.setSingleShot(true);
    connect(&timer1_, &QTimer::timeout, this, &Form5::GoOn);
}

void Form5::OnLoad() {
    move(screen()->availableGeometry().center() - rect().center());
    timer1_.start(SplashTime);
}

void Form5::GoOn() {
    timer1_.stop();
    Windows().Open(WindowName::Form1);
    Unload();
}

void Form5::closeEvent(QCloseEvent* event) {
    event->ignore();
    GoOn();
}

void Form5::keyPressEvent(QKeyEvent* /*event*/) {
    GoOn();
}

void Form5::mousePressEvent(QMouseEvent* /*event*/) {
    GoOn();
}

} // namespace tavmoor
