#include "services/fields/picture_field.h"

#include "services/controls/layouts.h"
#include "services/controls/path_box.h"
#include "services/controls/picture_button.h"
#include "services/controls/value_label.h"
#include "services/fields/field_binding.h"
#include "services/fields/field_pickers.h"
#include "services/values/qt_text.h"
#include "services/windows/program_session.h"

namespace tavmoor {

PictureField::PictureField(const PictureFieldDescription& description, ProgramContext context,
                           FieldBinder& binder, FieldOf<std::string> path, QWidget* parent)
    : QWidget(parent), description_(description), context_(context),
      path_(path.In(context.session.document)) {
    auto* label = new ValueLabel(description.label, this);
    label->setAccessibleName(QString::fromUtf16(description.meaning));
    binder.Bind(*label, path);
    auto* browse = new PictureButton(
        {description.browse, "browse", u"", description.browseTooltip, ButtonLook::Icon}, this);
    auto* remove = new PictureButton(
        {description.remove, "remove", u"", description.removeTooltip, ButtonLook::Icon}, this);
    connect(browse, &QAbstractButton::clicked, this, &PictureField::Browse);
    connect(remove, &QAbstractButton::clicked, this, [this] { Store({}); });
    auto* drop = new PathDrop(*label, description.filter);
    connect(drop, &PathDrop::Dropped, this, [this](const QString& dropped) {
        TakePicture(context_, *this, FromQString(dropped),
                    [this](const std::string& taken) { Store(taken); });
    });
    auto* layout = MakeRow(this);
    layout->addWidget(label, 1);
    layout->addWidget(browse);
    layout->addWidget(remove);
    setFocusProxy(browse);
    // The mnemonic of a label leads only to what takes the focus.
    setFocusPolicy(browse->focusPolicy());
}

void PictureField::Browse() {
    PickPicture(context_, *this, description_.title, description_.filter, path_,
                [this](const std::string& chosen) { Store(chosen); });
}

void PictureField::Store(const std::string& path) {
    path_ = path;
    Q_EMIT Changed();
}

} // namespace tavmoor
