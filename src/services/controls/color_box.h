#pragma once

#include "core/document/project_document.h"

#include <QAbstractButton>

namespace tavmoor {

/// A label whose back colour is the value of a field; a click asks for another colour.
class ColorBox final : public QAbstractButton {
    Q_OBJECT

public:
    ColorBox(const char* objectName, const char16_t* text, const char16_t* tooltip,
             QWidget* parent = nullptr);

    void SetColor(ColorValue color);
    [[nodiscard]] ColorValue Color() const { return color_; }
    [[nodiscard]] QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    ColorValue color_ = 0;
};

} // namespace tavmoor
