#pragma once

#include <QLabel>

namespace tavmoor {

/// Shows a value that is chosen elsewhere (a path, a font's name) in a frame; a text that is too
/// long is cut in its middle, and the tooltip has all of it. Its refusal mark goes with the next
/// text.
class ValueLabel final : public QLabel {
    Q_OBJECT

public:
    explicit ValueLabel(const char* objectName, QWidget* parent = nullptr);

    /// Not QLabel's own: what is shown may be cut, FullText is the value.
    void SetFullText(const QString& text);
    [[nodiscard]] const QString& FullText() const { return full_; }
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void ShowCut();
    QString full_;
};

} // namespace tavmoor
