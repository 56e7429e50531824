#include "services/controls/layouts.h"

namespace tavmoor {

namespace {

template <typename Layout>
Layout* Make(QWidget* owner, int spacing) {
    auto* layout = new Layout(owner);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(spacing);
    return layout;
}

} // namespace

QHBoxLayout* MakeRow(QWidget* owner, int spacing) {
    return Make<QHBoxLayout>(owner, spacing);
}

QVBoxLayout* MakeColumn(QWidget* owner, int spacing) {
    return Make<QVBoxLayout>(owner, spacing);
}

QGridLayout* MakeGrid(QWidget* owner, int spacing) {
    return Make<QGridLayout>(owner, spacing);
}

void SetWindowMargins(QLayout& layout) {
    layout.setContentsMargins(theme::Margin, theme::Margin, theme::Margin, theme::Margin);
}

} // namespace tavmoor
