#include "settings/shared/panel.h"

#include "services/controls/layouts.h"
#include "services/look/theme.h"
#include "services/windows/program_session.h"

#include <QLabel>

namespace tavmoor {

Panel::Panel(ProgramContext context, const char* objectName, const char16_t* heading,
             QWidget* parent)
    : QFrame(parent), context_(context), body_(new QWidget(this)),
      binder_(new FieldBinder(*this, Document(), Storing::AtOnce)) {
    setObjectName(QString::fromLatin1(objectName));
    setAccessibleName(QString::fromUtf16(heading));
    auto* layout = MakeColumn(this);
    auto* label = new QLabel(QString::fromUtf16(heading), this);
    label->setFont(theme::HeadingFont());
    layout->addWidget(label);
    layout->addWidget(body_, 1);
}

ProjectDocument& Panel::Document() const {
    return context_.session.document;
}

void Panel::ShowDocument() {
    binder_->Show();
}

} // namespace tavmoor
