#include "services/look/artwork.h"

#include <QApplication>
#include <QFile>
#include <QIconEngine>
#include <QPainter>
#include <QSvgRenderer>

#include <array>

// Stands outside of the namespace, as the macro wants it.
static void RegisterDrawings() {
    Q_INIT_RESOURCE(artwork);
}

namespace tavmoor {

namespace {

/// The two colours of the line drawings, replaced where another one is wanted.
constexpr std::array LineColors{"#22324A", "#2F6DB5"};

QByteArray DrawingBytes(const QString& name, const QColor& color) {
    [[maybe_unused]] static const bool registered = (RegisterDrawings(), true);
    QFile file(QStringLiteral(":/artwork/%1.svg").arg(name));
    if (!file.open(QIODevice::ReadOnly)) {
        qFatal("no drawing \"%s\" in the program", qPrintable(name));
    }
    QByteArray bytes = file.readAll();
    if (color.isValid()) {
        for (const char* lineColor : LineColors) {
            bytes.replace(lineColor, color.name().toLatin1());
        }
    }
    return bytes;
}

class DrawingEngine final : public QIconEngine {
public:
    DrawingEngine(QString name, QColor color) : name_(std::move(name)), color_(color) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override {
        QSvgRenderer renderer(DrawingBytes(name_, color_));
        painter->save();
        painter->setOpacity(mode == QIcon::Disabled ? DisabledOpacity : 1.0);
        renderer.render(painter, rect);
        painter->restore();
    }
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        QPixmap pixmap(size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        paint(&painter, QRect(QPoint(), size), mode, state);
        return pixmap;
    }
    [[nodiscard]] QIconEngine* clone() const override { return new DrawingEngine(name_, color_); }

private:
    static constexpr qreal DisabledOpacity = 0.4;
    QString name_;
    QColor color_;
};

} // namespace

QIcon ArtworkIcon(const QString& name, const QColor& color) {
    return QIcon(new DrawingEngine(name, color));
}

QPixmap ArtworkPixmap(const QString& name, QSize size, qreal scale, const QColor& color) {
    DrawingEngine engine(name, color);
    QPixmap pixmap = engine.pixmap(size * scale, QIcon::Normal, QIcon::Off);
    pixmap.setDevicePixelRatio(scale);
    return pixmap;
}

QSize ArtworkSize(const QString& name) {
    return QSvgRenderer(DrawingBytes(name, {})).defaultSize();
}

const QCursor& HandCursor() {
    constexpr int HotX = 11;
    constexpr int HotY = 4;
    constexpr int Side = 32;
    static const QCursor hand(
        ArtworkPixmap(QStringLiteral("hand"), {Side, Side}, qApp->devicePixelRatio()), HotX, HotY);
    return hand;
}

} // namespace tavmoor
