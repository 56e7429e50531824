#include "services/controls/refusal_mark.h"

#include "services/look/theme.h"

#include <QToolTip>
#include <QWidget>

namespace tavmoor {

RefusalMark::RefusalMark(QWidget& field) : QObject(&field), field_(field) {}

void RefusalMark::Set(const QString& reason) {
    if (!set_) {
        ownTooltip_ = field_.toolTip();
        set_ = true;
    }
    field_.setToolTip(reason);
    field_.setAccessibleDescription(reason);
    theme::MarkRefused(field_, true);
    if (field_.isVisible()) {
        QToolTip::showText(field_.mapToGlobal(field_.rect().bottomLeft()), reason, &field_);
    }
}

void RefusalMark::Clear() {
    if (!set_) {
        return;
    }
    set_ = false;
    field_.setToolTip(ownTooltip_);
    field_.setAccessibleDescription(QString());
    theme::MarkRefused(field_, false);
}

} // namespace tavmoor
