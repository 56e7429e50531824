#pragma once

#include <QWidget>

namespace tavmoor {

/// A window as WindowRegistry handles it; SkinnedWindow is the one that there is.
class ProgramWindow : public QWidget {
    Q_OBJECT

public:
    using QWidget::QWidget;

    /// Makes the window ready to be seen; called once.
    virtual void Load() = 0;
    /// Shows the window and brings it to the front.
    virtual void Present() = 0;
    /// @return false when the window refused
    virtual bool Unload() = 0;
    [[nodiscard]] virtual bool IsUnloaded() const = 0;
    /// Whether the main window comes back when this one closes.
    virtual void SetBringsMainBack(bool brings) = 0;

Q_SIGNALS:
    void Unloaded();
};

} // namespace tavmoor
