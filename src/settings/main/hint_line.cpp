#include "settings/main/hint_line.h"

#include "core/text/maker.h"
#include "services/controls/labels.h"
#include "services/values/qt_text.h"

#include <QEvent>

#include <array>

namespace tavmoor {

namespace {

struct Hint {
    const char16_t* text;
    std::initializer_list<const char*> controls;
};

const std::array Hints{
    Hint{u"This text will be used as taskbar title", {"Text1"}},
    Hint{u"The folder containing files to be burn. Autorun program will be saved there. You can "
         u"create as many subfolders as you wish within this folder",
         {"Text23", "Command32"}},
    Hint{u"Double click to change color", {"Text2", "Text3", "Text4", "Text5", "Text31"}},
    Hint{u"Enter sound regulation command caption", {"Text10"}},
    Hint{u"File, program, web page or e-mail address",
         {"Text11", "Text13", "Text15", "Text17", "Text19", "Text21"}},
    Hint{u"Enter the command button title",
         {"Text24", "Text25", "Text26", "Text27", "Text28", "Text29"}},
    Hint{u"Turn this option on if you want autorun to close after command executes",
         {"Check9", "Check10", "Check11", "Check12", "Check13", "Check14"}},
    Hint{u"Please select the folder where files for your CD are stored!", {"Label68"}},
};

constexpr const char* HintProperty = "hint";

} // namespace

HintLine::HintLine(QWidget* parent) : QLabel(parent) {
    setObjectName(QStringLiteral("Label1"));
    setTextFormat(Qt::PlainText);
    LookLikeNote(*this);
    setWordWrap(true);
    Restore();
}

void HintLine::Watch(QWidget& panel) {
    panel.installEventFilter(this);
    for (const Hint& hint : Hints) {
        for (const char* name : hint.controls) {
            if (auto* control = panel.findChild<QWidget*>(QString::fromLatin1(name))) {
                control->setProperty(HintProperty, QString::fromUtf16(hint.text));
                control->installEventFilter(this);
            }
        }
    }
}

void HintLine::Restore() {
    Say(ToQString(VersionText));
}

bool HintLine::eventFilter(QObject* watched, QEvent* event) {
    const auto type = event->type();
    if (type == QEvent::Enter || type == QEvent::FocusIn) {
        const QString hint = watched->property(HintProperty).toString();
        hint.isEmpty() ? Restore() : Say(hint);
    } else if (type == QEvent::Leave || type == QEvent::FocusOut) {
        Restore();
    }
    return QLabel::eventFilter(watched, event);
}

void HintLine::Say(const QString& text) {
    if (this->text() != text) {
        setText(text);
    }
}

} // namespace tavmoor
