#include "settings/main/navigation_column.h"

#include "services/controls/picture_button.h"
#include "services/values/twips.h"

#include <QEvent>

#include <array>

namespace tavmoor {

namespace {

struct StepButton {
    NavigationStep step;
    int top; ///< twips below the column's top
    ButtonDescription button;
};

constexpr int ButtonWidth = 2235; // twips
constexpr int ButtonHeight = 555; // twips

constexpr std::array StepButtons{
    StepButton{NavigationStep::MainSettings,
               240,
               {"Command7", "nav_main_settings", u"&Main settings",
                u"Set main project data such as CD-ROM files folder, working environment etc...",
                ButtonLook::Navigation}},
    StepButton{NavigationStep::AutorunInfo,
               840,
               {"Command3", "nav_autorun_info", u"Autorun &info",
                u"Click here to set autorun title, add logo and more", ButtonLook::Navigation}},
    StepButton{NavigationStep::Commands,
               1440,
               {"Command4", "nav_commands", u"&Commands", u"To add buttons to your autorun program",
                ButtonLook::Navigation}},
    StepButton{NavigationStep::Effects,
               2040,
               {"Command58", "nav_effects", u"&Effects",
                u"Add predefined effects such as fade and slide effects", ButtonLook::Navigation}},
    StepButton{NavigationStep::Sound,
               2640,
               {"Command5", "nav_sound", u"&Sound",
                u"Click here to choose background music and on-click sound",
                ButtonLook::Navigation}},
    StepButton{NavigationStep::Splash,
               3240,
               {"Command10", "nav_splash", u"Splash sc&reen", u"Set welcome screen",
                ButtonLook::Navigation}},
    StepButton{
        NavigationStep::Exit,
        3840,
        {"Command21", "nav_exit", u"E&xit screen", u"Set exit screen", ButtonLook::Navigation}},
    StepButton{NavigationStep::Messages,
               4440,
               {"Command59", "nav_messages", u"Messa&ges", u"Add standard Windows messages",
                ButtonLook::Navigation}},
    StepButton{NavigationStep::Fonts,
               5040,
               {"Command50", "nav_fonts", u"Fon&ts",
                u"Click here to include all non standard fonts used in your autorun project",
                ButtonLook::Navigation}},
    StepButton{NavigationStep::Build,
               6480,
               {"Command6", "nav_build", u"&Build", u"Build autorun package", ButtonLook::Primary}},
};

constexpr const char* StepProperty = "step";

} // namespace

NavigationColumn::NavigationColumn(QWidget* parent) : QFrame(parent) {
    setObjectName(QStringLiteral("Frame1"));
    setAccessibleName(QStringLiteral("Steps of the project"));
    for (const StepButton& entry : StepButtons) {
        auto* button = new PictureButton(entry.button, this);
        button->setGeometry(0, PixelsOf(entry.top), PixelsOf(ButtonWidth), PixelsOf(ButtonHeight));
        button->setCheckable(entry.button.look == ButtonLook::Navigation);
        button->setProperty(StepProperty, static_cast<int>(entry.step));
        button->installEventFilter(this);
        connect(button, &QAbstractButton::clicked, this, [this, button, step = entry.step] {
            // The mark follows the panel that is shown, not the click.
            button->setChecked(!button->isChecked());
            Q_EMIT Chosen(step);
        });
    }
    const StepButton& last = StepButtons.back();
    setFixedSize(PixelsOf(ButtonWidth), PixelsOf(last.top + ButtonHeight));
}

QAbstractButton& NavigationColumn::Button(NavigationStep step) const {
    const char* name = StepButtons.at(static_cast<std::size_t>(step)).button.objectName;
    return *findChild<QAbstractButton*>(QString::fromLatin1(name));
}

void NavigationColumn::Mark(NavigationStep step) {
    for (const StepButton& entry : StepButtons) {
        if (entry.step != NavigationStep::Build) {
            Button(entry.step).setChecked(entry.step == step);
        }
    }
}

bool NavigationColumn::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Enter || event->type() == QEvent::FocusIn) {
        Q_EMIT Approached(static_cast<NavigationStep>(watched->property(StepProperty).toInt()));
    }
    return QFrame::eventFilter(watched, event);
}

} // namespace tavmoor
