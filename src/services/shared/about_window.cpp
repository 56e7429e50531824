#include "services/shared/about_window.h"

#include "core/text/maker.h"
#include "services/controls/labels.h"
#include "services/controls/layouts.h"
#include "services/controls/picture_button.h"
#include "services/dialogs/shell_report.h"
#include "services/look/artwork.h"
#include "services/look/theme.h"
#include "services/values/qt_text.h"

#include <QFontMetrics>
#include <QPlainTextEdit>

namespace tavmoor {

namespace {

constexpr WindowLook AboutLook{.name = WindowName::frmAbout,
                               .objectName = "frmAbout",
                               .title = u"About the program",
                               .closesWhenLeft = true};

constexpr QSize EmblemSize{140, 140}; ///< logical pixels

QString ContactText() {
    return QStringLiteral("Contact\nE-mail address: %1\nWebsite:%2")
        .arg(ToQString(MakerMailAddress), ToQString(MakerWebPage));
}

} // namespace

frmAbout::frmAbout(ProgramContext context) : SkinnedWindow(context, AboutLook) {
    auto* emblem = MakeLabel("Image1", u"", Body());
    emblem->setPixmap(ArtworkPixmap(QStringLiteral("about"), EmblemSize, devicePixelRatioF()));
    auto* layout = MakeGrid(Body(), theme::Margin);
    SetWindowMargins(*layout);
    layout->addWidget(emblem, 0, 0, Qt::AlignTop);
    layout->addWidget(MakeContact(), 0, 1);
    layout->addWidget(MakeButtons(), 1, 0, 1, 2);
    // The frame of the window goes with its contents, at every scale and in every font.
    QWidget::layout()->setSizeConstraint(QLayout::SetFixedSize);
}

QWidget* frmAbout::MakeContact() {
    auto* column = new QWidget(Body());
    auto* layout = MakeColumn(column);
    auto* version = MakeLabel("Label1", ToQString(VersionText), column);
    version->setFont(theme::HeadingFont());
    auto* contact = new QPlainTextEdit(ContactText(), column);
    contact->setObjectName(QStringLiteral("Label2"));
    contact->setAccessibleName(QStringLiteral("Contact"));
    contact->setReadOnly(true);
    contact->setTabChangesFocus(true);
    contact->setLineWrapMode(QPlainTextEdit::NoWrap);
    constexpr int Frame = 24; // borders and inner margins of the box
    const QSize text = contact->fontMetrics().size(0, ContactText());
    contact->setFixedHeight(text.height() + Frame);
    contact->setMinimumWidth(text.width() + Frame);
    auto* update = new PictureButton({"Command1", "update", u"Check for &updates",
                                      u"Click here to check if newer release is available"},
                                     column);
    connect(update, &QAbstractButton::clicked, this, &frmAbout::CheckForUpdate);
    layout->addWidget(version);
    layout->addWidget(contact);
    layout->addWidget(update, 0, Qt::AlignLeft);
    layout->addStretch(1);
    return column;
}

QWidget* frmAbout::MakeButtons() {
    auto* row = new QWidget(Body());
    auto* layout = MakeRow(row);
    auto* page = new PictureButton(
        {"Command2", "web", u"", u"Opens the web page of the program", ButtonLook::Link}, row);
    page->setText(ToQString(MakerWebPage));
    page->setAccessibleName(page->text());
    auto* mail = new PictureButton(
        {"Command3", "mail", u"Drop us a note", u"Begins a mail to us", ButtonLook::Link}, row);
    auto* close = new PictureButton(
        {"Command5", "ok", u"&Close", u"Closes the window (Esc)", ButtonLook::Primary}, row);
    layout->addWidget(page);
    layout->addWidget(mail);
    layout->addStretch(1);
    layout->addWidget(close);
    connect(page, &QAbstractButton::clicked, this,
            [this] { TellFailure(OpenWebPage(MakerWebPage)); });
    connect(mail, &QAbstractButton::clicked, this,
            [this] { TellFailure(WriteMail(MakerMailAddress, MakerMailSubject)); });
    connect(close, &QAbstractButton::clicked, this, [this] { Unload(); });
    SetKeyButtons(close, close);
    close->setFocus();
    return row;
}

void frmAbout::CheckForUpdate() {
    const ShellOutcome outcome = OpenWebPage(UpdateAddress);
    Unload();
    TellFailure(outcome);
}

void frmAbout::TellFailure(const ShellOutcome& outcome) {
    if (!outcome.ok) {
        Unload();
        ReportFailure(nullptr, outcome);
    }
}

} // namespace tavmoor
