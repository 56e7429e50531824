#include "settings/main/main_menu.h"

#include "services/controls/layouts.h"
#include "services/controls/menu_entry.h"
#include "services/windows/program_session.h"

#include <QFrame>

namespace tavmoor {

namespace {

constexpr WindowLook Menu1Look{.name = WindowName::menu1,
                               .objectName = "menu1",
                               .title = u"Menu",
                               .dragArea = "",
                               .chrome = NoChrome,
                               .keptOnTop = true,
                               .closesWhenLeft = true};

} // namespace

menu1::menu1(ProgramContext context) : SkinnedWindow(context, Menu1Look) {
    auto* layout = MakeColumn(Body());
    layout->setContentsMargins(1, 1, 1, 1);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    sides_ = {MakeSide(MenuSide::File, "Frame1"), MakeSide(MenuSide::Program, "Frame2")};
    for (QFrame* side : sides_) {
        layout->addWidget(side);
    }
}

QFrame* menu1::MakeSide(MenuSide side, const char* objectName) {
    auto* frame = new QFrame(Body());
    frame->setObjectName(QString::fromLatin1(objectName));
    auto* layout = MakeColumn(frame, 0);
    layout->setContentsMargins(0, 4, 0, 4);
    for (const MenuEntry& entry : MenuEntries) {
        if (entry.side == side) {
            const QByteArray name = "Entry" + QByteArray::number(static_cast<int>(entry.action));
            auto* label = new MenuEntryLabel({name.constData(), entry.text, entry.artwork}, frame);
            layout->addWidget(label);
            connect(label, &QAbstractButton::clicked, this,
                    [this, action = entry.action] { Choose(action); });
        }
    }
    return frame;
}

void menu1::ShowSide(MenuSide side) {
    for (std::size_t i = 0; i < sides_.size(); ++i) {
        sides_.at(i)->setVisible(i == static_cast<std::size_t>(side));
    }
    sides_.at(static_cast<std::size_t>(side))->findChild<QAbstractButton*>()->setFocus();
    layout()->activate();
    adjustSize();
}

void menu1::Choose(MenuAction action) {
    Session().menuAction = static_cast<std::int16_t>(action);
    Unload();
}

} // namespace tavmoor
