#include "services/fields/field_binding.h"

#include "services/fields/control_value.h"

#include <QWidget>

namespace tavmoor {

FieldBinder::FieldBinder(QWidget& window, ProjectDocument& document,
                         std::span<const FieldBinding> table, Storing storing)
    : QObject(&window), document_(document), storing_(storing) {
    rows_.reserve(table.size());
    for (const FieldBinding& row : table) {
        auto* control = window.findChild<QWidget*>(QString::fromLatin1(row.control));
        const auto place = FindField(row.section, row.key);
        if (control == nullptr || !place) {
            qFatal("the table of a window names no control or field: %s", row.control);
        }
        rows_.push_back({&row, control, *place});
    }
    for (const Bound& bound : rows_) {
        Connect(bound);
    }
}

void FieldBinder::Connect(const Bound& bound) {
    WhenEdited(*bound.control, bound.row->form, this, [this, &bound] { Edited(bound); });
}

void FieldBinder::Edited(const Bound& bound) {
    if (showing_ || storing_ == Storing::OnConfirm) {
        return;
    }
    StoreOne(bound);
    Q_EMIT Stored(QString::fromLatin1(bound.row->control));
}

void FieldBinder::Show() {
    showing_ = true;
    for (const Bound& bound : rows_) {
        ShowInControl(*bound.control, *bound.row, bound.place.Read(document_));
    }
    showing_ = false;
}

void FieldBinder::Store() {
    for (const Bound& bound : rows_) {
        StoreOne(bound);
    }
}

void FieldBinder::StoreOne(const Bound& bound) {
    TakeFromControl(*bound.control, *bound.row, bound.place.Edit(document_));
}

} // namespace tavmoor
