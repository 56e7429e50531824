#pragma once

#include "services/windows/skinned_window.h"

#include <QTimer>

namespace tavmoor {

/// `Form5`, the program's own splash: nothing but a picture, in the picture's size. After three
/// seconds, or at a click or a key, the main window takes its place.
class Form5 final : public SkinnedWindow {
    Q_OBJECT

public:
    explicit Form5(ProgramContext context);

protected:
    void OnLoad() override;
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;

private:
    void GoOn();
    QTimer timer1_{this};
};

} // namespace tavmoor
