#include "settings/template/template_window.h"

#include "services/controls/labels.h"
#include "services/controls/layouts.h"
#include "services/controls/picture_button.h"
#include "services/dialogs/message_box.h"
#include "services/look/theme.h"
#include "services/pictures/picture_loader.h"
#include "services/richtext/rich_text_reader.h"
#include "services/values/qt_text.h"
#include "services/windows/program_session.h"
#include "settings/template/template_capabilities.h"
#include "settings/template/template_picture.h"
#include "templates/template_catalogue.h"

#include <QGroupBox>
#include <QListWidget>
#include <QMouseEvent>
#include <QRadioButton>
#include <QTextEdit>

namespace tavmoor {

namespace {

constexpr WindowLook Form7Look{
    .name = WindowName::Form7,
    .objectName = "Form7",
    .title = u"Tavmoor",
    .dragArea = "Image1",
    .chrome = {ChromeAction::None, ChromeAction::Minimise, ChromeAction::Close}};

constexpr QSize WindowSize{744, 480}; // logical pixels

} // namespace

Form7::Form7(ProgramContext context) : SkinnedWindow(context, Form7Look) {
    setFixedSize(WindowSize);
    auto* layout = MakeColumn(Body());
    layout->setContentsMargins(theme::Margin, 1, theme::Margin, theme::Margin);
    auto* columns = MakeRow(nullptr, theme::Margin);
    columns->addWidget(MakeChoice(), 1);
    columns->addLayout(MakeProperties());
    layout->addLayout(columns, 1);
    layout->addLayout(MakeButtons());
    ConnectControls();
}

QWidget* Form7::MakeChoice() {
    auto* group = new QGroupBox(QStringLiteral("Select template"), Body());
    auto* layout = new QVBoxLayout(group);
    layout->setSpacing(theme::Gap);
    editor_ = new QRadioButton(QStringLiteral("Advanced visual editor(recomended)"), group);
    editor_->setObjectName(QStringLiteral("Option1"));
    simple_ = new QRadioButton(QStringLiteral("Simple templates"), group);
    simple_->setObjectName(QStringLiteral("Option2"));
    names_ = new QListWidget(group);
    names_->setObjectName(QStringLiteral("List1"));
    names_->setAccessibleName(simple_->text());
    names_->setSpacing(2);
    paths_ = new QListWidget(group);
    paths_->setObjectName(QStringLiteral("List3"));
    paths_->hide();
    layout->addWidget(editor_, 0, Qt::AlignLeft);
    layout->addWidget(simple_, 0, Qt::AlignLeft);
    layout->addWidget(names_, 1);
    return group;
}

QBoxLayout* Form7::MakeProperties() {
    picture_ = new TemplatePicture(*this);
    const QRect place = TemplatePicture::SmallPlace();
    auto* column = MakeColumn(nullptr, 0);
    auto* heading = MakeLabel("Label2", u"Template properties", Body());
    // The picture lies in the window itself; the column leaves its place free.
    heading->setFixedSize(place.width(), place.top() - theme::TitleHeight - 2);
    auto* note = MakeLabel("Label3", u"Click to see whole picture", Body());
    LookLikeNote(*note);
    description_ = new QTextEdit(Body());
    description_->setObjectName(QStringLiteral("rt1"));
    description_->setAccessibleName(QStringLiteral("Description of the template"));
    description_->setReadOnly(true);
    description_->setTabChangesFocus(true);
    description_->setFixedWidth(place.width());
    column->addWidget(heading);
    column->addSpacing(place.height() + theme::Gap / 2);
    column->addWidget(note);
    column->addSpacing(theme::Gap / 2);
    column->addWidget(description_, 1);
    return column;
}

QBoxLayout* Form7::MakeButtons() {
    auto* row = MakeRow();
    auto* confirm = new PictureButton({"Command1", "ok", u"&Ok", u"", ButtonLook::Primary}, Body());
    auto* cancel = new PictureButton({"Command2", "cancel", u"&Cancel", u""}, Body());
    row->addStretch();
    row->addWidget(confirm);
    row->addWidget(cancel);
    connect(confirm, &QAbstractButton::clicked, this, &Form7::SelectTemplate);
    connect(cancel, &QAbstractButton::clicked, this, [this] { Unload(); });
    SetKeyButtons(confirm, cancel);
    return row;
}

void Form7::ConnectControls() {
    connect(editor_, &QAbstractButton::toggled, this, [this](bool checked) {
        names_->setEnabled(!checked);
        if (checked) {
            ShowPreviewOf(EditorDescriptorPath(Session().programFolder));
        }
    });
    connect(names_, &QListWidget::itemSelectionChanged, this, &Form7::ShowChosenRow);
    // The row that is chosen already: the preview may show the visual editor's by now.
    connect(names_, &QListWidget::itemClicked, this, &Form7::ShowChosenRow);
    connect(names_, &QListWidget::itemDoubleClicked, this, &Form7::SelectTemplate);
    setTabOrder(names_, picture_);
    setTabOrder(picture_, description_);
}

void Form7::OnLoad() {
    const TemplateCatalogue catalogue =
        ReadTemplateCatalogue(TemplatesFolder(Session().programFolder));
    for (const std::string& name : catalogue.names) {
        names_->addItem(ToQString(name));
    }
    for (const std::string& path : catalogue.paths) {
        paths_->addItem(ToQString(path));
    }
    if (const auto row = RowOfTemplate(catalogue, Document().OsnovnaPodesavanja.Sablon)) {
        names_->setCurrentRow(static_cast<int>(*row));
    }
    (ChosenRow() ? simple_ : editor_)->setChecked(true);
}

std::optional<int> Form7::ChosenRow() const {
    const auto chosen = names_->selectedItems();
    return chosen.isEmpty() ? std::nullopt : std::optional(names_->row(chosen.first()));
}

void Form7::ShowChosenRow() {
    if (const auto row = ChosenRow()) {
        paths_->setCurrentRow(*row);
        ShowPreviewOf(FromQString(paths_->item(*row)->text()));
    }
}

void Form7::ShowPreviewOf(const std::string& descriptorPath) {
    const TemplatePreview preview = ShowTemplatePreview(descriptorPath);
    // What is missing or cannot be read stays empty.
    ReadRichTextFile(preview.descriptionPath, *description_->document());
    description_->moveCursor(QTextCursor::Start);
    picture_->SetPicture(LoadPicture(preview.picturePath).image);
}

void Form7::SelectTemplate() {
    const auto row = ChosenRow();
    if (editor_->isChecked()) {
        SelectEditorTemplate(Document(), Session().programFolder);
    } else if (simple_->isChecked() && row) {
        tavmoor::SelectTemplate(Document(), {FromQString(names_->item(*row)->text()),
                                             FromQString(paths_->item(*row)->text())});
    } else {
        ShowMessageBox(this, {QStringLiteral("Please select template or Advanced Visual Editor"),
                              QStringLiteral("Nothing selected...")});
        return;
    }
    // The window lives on until control is back in the event loop.
    Unload();
    ApplyTemplateCapabilities(Context());
}

void Form7::mousePressEvent(QMouseEvent* event) {
    picture_->Shrink();
    SkinnedWindow::mousePressEvent(event);
}

} // namespace tavmoor
