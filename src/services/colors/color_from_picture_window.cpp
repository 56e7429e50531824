#include "services/colors/color_from_picture_window.h"

#include "services/colors/color_picture_view.h"
#include "services/controls/picture_button.h"
#include "services/dialogs/picture_format_check.h"
#include "services/dialogs/shell_report.h"
#include "services/look/theme.h"
#include "services/pictures/picture_loader.h"
#include "services/values/color_value.h"
#include "services/windows/program_session.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>

#include <array>

namespace tavmoor {

namespace {

constexpr WindowLook PicPrevLook{.name = WindowName::PicPrev,
                                 .objectName = "PicPrev",
                                 .title = u"Pick color from picture",
                                 .dragArea = "TitleStrip"};

using Step = void (*)(ColorPictureView& view);

struct Tool {
    ButtonDescription button;
    int row;
    int column;
    Step step;
};

// The four arrows lie around their middle, the zoom below.
constexpr std::array<Tool, 6> Tools{{
    {{"Image6", "arrow_up", u"", u"Move the picture up (Up)", ButtonLook::Icon},
     0,
     1,
     [](ColorPictureView& view) { view.Pan(0, -1); }},
    {{"Image4", "arrow_left", u"", u"Move the picture left (Left)", ButtonLook::Icon},
     1,
     0,
     [](ColorPictureView& view) { view.Pan(-1, 0); }},
    {{"Image5", "arrow_right", u"", u"Move the picture right (Right)", ButtonLook::Icon},
     1,
     2,
     [](ColorPictureView& view) { view.Pan(1, 0); }},
    {{"Image7", "arrow_down", u"", u"Move the picture down (Down)", ButtonLook::Icon},
     2,
     1,
     [](ColorPictureView& view) { view.Pan(0, 1); }},
    {{"Image3", "zoom_out", u"", u"Zoom out (-)", ButtonLook::Icon},
     5,
     0,
     [](ColorPictureView& view) { view.Zoom(ZoomOutFactor); }},
    {{"Image2", "zoom_in", u"", u"Zoom in (+)", ButtonLook::Icon},
     5,
     2,
     [](ColorPictureView& view) { view.Zoom(ZoomInFactor); }},
}};

QLabel* MakeLabel(const char* objectName, const QString& text, QWidget* parent) {
    auto* label = new QLabel(text, parent);
    label->setObjectName(QString::fromLatin1(objectName));
    return label;
}

} // namespace

PicPrev::PicPrev(ProgramContext context) : ColorTool(context, PicPrevLook) {
    view_ = new ColorPictureView(Body());
    auto* layout = new QGridLayout(Body());
    layout->setContentsMargins(theme::Margin, theme::Margin, theme::Margin, theme::Margin);
    layout->setSpacing(theme::Gap);
    layout->addWidget(view_, 0, 0);
    layout->addWidget(MakeTools(), 0, 1);
    layout->addWidget(MakeChoice(), 1, 0, 1, 2);
    connect(view_, &ColorPictureView::Picked, this, &PicPrev::ShowSample);
    // The frame of the window goes with its contents, at every scale and in every font.
    QWidget::layout()->setSizeConstraint(QLayout::SetFixedSize);
    view_->setFocus();
}

QWidget* PicPrev::MakeTools() {
    auto* tools = new QWidget(Body());
    auto* layout = new QGridLayout(tools);
    layout->setContentsMargins(theme::Gap, 0, 0, 0);
    layout->setSpacing(2);
    for (const Tool& tool : Tools) {
        auto* button = new PictureButton(tool.button, tools);
        // The picture keeps the focus, and with it the keys that do the same.
        button->setFocusPolicy(Qt::NoFocus);
        layout->addWidget(button, tool.row, tool.column);
        // A step when the button goes down, and the same one again when it comes up as a click.
        const auto takeStep = [this, step = tool.step] { step(*view_); };
        connect(button, &QAbstractButton::pressed, view_, takeStep);
        connect(button, &QAbstractButton::clicked, view_, takeStep);
    }
    layout->addWidget(MakeLabel("Label3", QStringLiteral("Zoom"), tools), 4, 0, 1, 3,
                      Qt::AlignHCenter);
    layout->setRowMinimumHeight(3, theme::Gap);
    layout->setRowStretch(6, 1);
    return tools;
}

QWidget* PicPrev::MakeChoice() {
    constexpr QSize SampleSize{60, theme::ControlHeight};
    auto* choice = new QWidget(Body());
    auto* layout = new QHBoxLayout(choice);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(theme::Gap);
    sample_ = MakeLabel("Label2", {}, choice);
    sample_->setFixedSize(SampleSize);
    auto* reset = new PictureButton(
        {"Command2", "reset", u"Reset", u"Shows the whole picture again"}, choice);
    auto* confirm = new PictureButton(
        {"Command1", "ok", u"OK", u"Takes the color (Enter)", ButtonLook::Primary}, choice);
    layout->addWidget(sample_);
    layout->addWidget(MakeLabel("Label1", QStringLiteral("Click to select color..."), choice));
    layout->addStretch(1);
    layout->addWidget(reset);
    layout->addWidget(confirm);
    connect(reset, &QAbstractButton::clicked, view_, &ColorPictureView::Reset);
    connect(confirm, &QAbstractButton::clicked, this, &PicPrev::Confirm);
    SetKeyButtons(confirm, nullptr);
    return choice;
}

void PicPrev::SetPicture(const QImage& picture) {
    view_->SetPicture(picture);
}

void PicPrev::ShowSample(ColorValue color) {
    color_ = color;
    const QString name = ToQColor(color).name();
    sample_->setStyleSheet(
        QStringLiteral("background: %1; border: 1px solid %2;").arg(name, theme::Border.name()));
    sample_->setAccessibleName(QStringLiteral("Selected color ") + name);
    sample_->setToolTip(sample_->accessibleName());
}

void PicPrev::Confirm() {
    const ColorValue color = color_;
    CloseUnanswered().Give(color);
}

void OpenPictureToPickFrom(ProgramContext context, const MenuAnswer& answer,
                           const std::string& path) {
    QWidget* asking = answer.Waiting();
    const PictureFormatChecker checker(asking, context.session.programFolder,
                                       [asking](const std::string& page) {
                                           ReportFailure(asking, SystemShell().OpenDocument(page));
                                       });
    if (checker.PictureFormatCheck(path) == 0) {
        answer.Give(MenuCancelled{});
        return;
    }
    const PictureResult picture = LoadPicture(path);
    if (picture.fault != PictureFault::None) {
        answer.Give(MenuCancelled{}); // gone since it was tried
        return;
    }
    auto& window = static_cast<PicPrev&>(context.windows.Load(WindowName::PicPrev));
    window.Serve(answer);
    window.SetPicture(picture.image);
    window.Present();
}

} // namespace tavmoor
