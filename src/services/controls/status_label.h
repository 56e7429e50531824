#pragma once

#include <QFrame>

namespace tavmoor {

/// Several lines that tell how a long work goes. Texts are broken at words, and within a long path
/// anywhere; the tooltip has all of the text.
class StatusLabel final : public QFrame {
    Q_OBJECT

public:
    StatusLabel(const char* objectName, int lines, QWidget* parent = nullptr);

    void SetText(const QString& text);
    [[nodiscard]] const QString& Text() const { return text_; }
    [[nodiscard]] QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QString text_;
    int lines_;
};

} // namespace tavmoor
