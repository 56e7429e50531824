#pragma once

#include <QLabel>

class QWidget;

namespace tavmoor {

/// The hint line `Label1` at the bottom of the main window: says what the control under the mouse,
/// or the one with the focus, is for.
class HintLine final : public QLabel {
    Q_OBJECT

public:
    explicit HintLine(QWidget* parent);

    /// Watches all controls of a panel that have a hint; on the panel itself the idle text returns.
    void Watch(QWidget& panel);
    /// The idle text.
    void Restore();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void Say(const QString& text);
};

} // namespace tavmoor
