#pragma once

#include <QFrame>

#include <cstdint>

class QAbstractButton;

namespace tavmoor {

/// The steps of the main window, in the order in which the user is led.
enum class NavigationStep : std::uint8_t {
    MainSettings,
    AutorunInfo,
    Commands,
    Effects,
    Sound,
    Splash,
    Exit,
    Messages,
    Fonts,
    Build,
};

/// `Frame1`, the column of picture buttons at the left of the main window.
class NavigationColumn final : public QFrame {
    Q_OBJECT

public:
    explicit NavigationColumn(QWidget* parent);

    [[nodiscard]] QAbstractButton& Button(NavigationStep step) const;
    /// Marks the step whose panel is shown.
    void Mark(NavigationStep step);

Q_SIGNALS:
    void Chosen(NavigationStep step);
    /// The mouse came onto the button or the keyboard's focus did, so that its tooltip can be set.
    void Approached(NavigationStep step);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
};

} // namespace tavmoor
