#include "settings/shared/panel.h"

#include "services/look/theme.h"
#include "services/windows/program_session.h"

#include <QLabel>
#include <QVBoxLayout>

namespace tavmoor {

Panel::Panel(ProgramContext context, const char* objectName, const char16_t* heading,
             QWidget* parent)
    : QFrame(parent), context_(context), body_(new QWidget(this)) {
    setObjectName(QString::fromLatin1(objectName));
    setAccessibleName(QString::fromUtf16(heading));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(theme::Gap);
    auto* label = new QLabel(QString::fromUtf16(heading), this);
    label->setFont(theme::HeadingFont());
    layout->addWidget(label);
    layout->addWidget(body_, 1);
}

ProjectDocument& Panel::Document() const {
    return context_.session.document;
}

FieldBinder& Panel::Bind(std::span<const FieldBinding> table) {
    binder_ = new FieldBinder(*this, Document(), table, Storing::AtOnce);
    return *binder_;
}

void Panel::ShowDocument() {
    if (binder_ != nullptr) {
        binder_->Show();
    }
}

} // namespace tavmoor
