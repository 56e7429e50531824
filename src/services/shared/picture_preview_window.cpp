#include "services/shared/picture_preview_window.h"

#include "services/controls/labels.h"
#include "services/controls/layouts.h"
#include "services/controls/picture_button.h"
#include "services/dialogs/picture_format_check.h"
#include "services/dialogs/shell_report.h"
#include "services/pictures/picture_loader.h"
#include "services/values/twips.h"
#include "services/windows/program_session.h"

#include <QCheckBox>
#include <QFrame>
#include <QImage>
#include <QPixmap>

namespace tavmoor {

namespace {

constexpr WindowLook Form2Look{.name = WindowName::Form2,
                               .objectName = "Form2",
                               .title = u"Preview window",
                               .chrome = NoChrome,
                               .keptOnTop = true};

constexpr int DistanceFromCorner = 250; // twips

/// A picture with a little less height than width is as high as wide.
constexpr QSize Room = PixelsOf(PreviewWidth, PreviewWidth);

int Follow(int bound, int side, int otherSide) {
    return static_cast<int>(static_cast<qint64>(bound) * side / otherSide);
}

} // namespace

QSize FitPreview(QSize natural, int heightBound) {
    const int width = natural.width();
    const int height = natural.height();
    if (width <= PreviewWidth && height <= heightBound) {
        return natural;
    }
    if (height < width) {
        return {PreviewWidth, Follow(PreviewWidth, height, width)};
    }
    if (width < height) {
        return {Follow(heightBound, width, height), heightBound};
    }
    return {heightBound, heightBound};
}

QPoint PreviewPlace(const QRect& main, QSize window) {
    const auto place = [](int begin, int length, int ownLength) {
        return PixelsOf(TwipsOf(begin + length - ownLength) - DistanceFromCorner);
    };
    return {place(main.left(), main.width(), window.width()),
            place(main.top(), main.height(), window.height())};
}

Form2::Form2(ProgramContext context) : SkinnedWindow(context, Form2Look) {
    auto* layout = MakeColumn(Body());
    SetWindowMargins(*layout);
    room_ = new QFrame(Body());
    room_->setFixedSize(Room);
    picture_ = MakeLabel("Image1", u"", room_);
    picture_->setAccessibleName(QStringLiteral("Chosen picture"));
    picture_->setScaledContents(true);
    disable_ = new QCheckBox(QStringLiteral("Disable picture preview"), Body());
    disable_->setObjectName(QStringLiteral("Check1"));
    auto* closing = new PictureButton({"Command1", "close", u"&Close", u""}, Body());
    auto* row = MakeRow();
    row->addWidget(disable_);
    row->addStretch();
    row->addWidget(closing);
    layout->addWidget(room_);
    layout->addLayout(row);
    this->layout()->setSizeConstraint(QLayout::SetFixedSize);
    connect(closing, &QAbstractButton::clicked, this, [this] { Unload(); });
}

void Form2::OnLoad() {
    layout()->activate();
    adjustSize();
}

void Form2::ShowPicture(const QImage& picture) {
    const QSize twips = FitPreview({TwipsOf(picture.width()), TwipsOf(picture.height())});
    const QSize size = PixelsOf(twips.width(), twips.height()).expandedTo({1, 1});
    QRect place({}, size);
    place.moveCenter(room_->rect().center());
    picture_->setGeometry(place);
    picture_->setPixmap(QPixmap::fromImage(picture));
}

void Form2::OnUnload() {
    Session().settings.previewPictures = !disable_->isChecked();
}

void ShowPreview(ProgramContext context, const std::string& path, const QRect& main) {
    if (!context.session.settings.previewPictures || path.empty()) {
        return;
    }
    QWidget* owner = context.windows.Find(WindowName::Form1);
    const PictureFormatChecker checker(owner, context.session.programFolder,
                                       [owner](const std::string& page) {
                                           ReportFailure(owner, SystemShell().OpenDocument(page));
                                       });
    if (checker.PictureFormatCheck(path) == 0) {
        context.windows.Unload(WindowName::Form2);
        return;
    }
    auto& preview = static_cast<Form2&>(context.windows.Load(WindowName::Form2));
    preview.ShowPicture(LoadPicture(path).image);
    preview.move(PreviewPlace(main, preview.size()));
    preview.Present();
}

} // namespace tavmoor
