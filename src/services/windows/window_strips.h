#pragma once

#include "services/windows/skinned_window.h"

#include <QWidget>

namespace tavmoor {

/// The title strip of a skinned window; a press on it drags the window.
class TitleStrip final : public QWidget {
    Q_OBJECT

public:
    TitleStrip(SkinnedWindow& window, const QString& title);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;

private:
    SkinnedWindow& window_;
    QString title_;
};

/// The chrome `Image113`: one picture whose thirds do different things.
class ChromeStrip final : public QWidget {
    Q_OBJECT

public:
    ChromeStrip(SkinnedWindow& window, const ChromeThirds& thirds);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;

private:
    [[nodiscard]] int ThirdAt(qreal x) const;

    SkinnedWindow& window_;
    ChromeThirds thirds_;
    int hovered_ = -1;
};

} // namespace tavmoor
