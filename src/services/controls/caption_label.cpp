#include "services/controls/caption_label.h"

#include <QLabel>

namespace tavmoor {

QLabel* MakeCaption(const char16_t* text, QWidget* buddy, QWidget* parent) {
    auto* label = new QLabel(QString::fromUtf16(text), parent);
    label->setBuddy(buddy);
    return label;
}

} // namespace tavmoor
