#include "settings/main_menu.h"

#include "services/artwork.h"
#include "services/program_session.h"
#include "services/theme.h"

#include <QAbstractButton>
#include <QFrame>
#include <QKeyEvent>
#include <QPainter>
#include <QVBoxLayout>

namespace tavmoor {

namespace {

constexpr WindowLook Menu1Look{.name = WindowName::menu1,
                               .objectName = "menu1",
                               .title = u"Menu",
                               .dragArea = "",
                               .chrome = NoChrome,
                               .keptOnTop = true,
                               .closesWhenLeft = true};

/// One entry; the highlight is on the one under the mouse, which also takes the focus.
class EntryLabel final : public QAbstractButton {
public:
    EntryLabel(const MenuEntry& entry, QWidget* parent)
        : QAbstractButton(parent), icon_(ArtworkIcon(QString::fromLatin1(entry.artwork))) {
        setText(QString::fromUtf16(entry.text));
        setAccessibleName(text().trimmed());
        setObjectName(QStringLiteral("Entry%1").arg(static_cast<int>(entry.action)));
        setCursor(HandCursor());
        setFocusPolicy(Qt::StrongFocus);
    }
    [[nodiscard]] QSize sizeHint() const override {
        return {fontMetrics().horizontalAdvance(text()) + TextLeft + 2 * theme::Margin, Height};
    }

protected:
    void paintEvent(QPaintEvent* /*event*/) override {
        QPainter painter(this);
        if (hasFocus()) {
            painter.fillRect(rect(), theme::AccentPale);
        }
        const QRect icon(theme::Gap, (height() - IconSide) / 2, IconSide, IconSide);
        icon_.paint(&painter, icon);
        painter.setPen(theme::Text);
        painter.drawText(rect().adjusted(TextLeft, 0, 0, 0), Qt::AlignVCenter, text());
    }
    void enterEvent(QEnterEvent* /*event*/) override { setFocus(); }

private:
    static constexpr int Height = 30;
    static constexpr int IconSide = 18;
    static constexpr int TextLeft = 28;
    QIcon icon_;
};

} // namespace

menu1::menu1(ProgramContext context) : SkinnedWindow(context, Menu1Look) {
    auto* layout = new QVBoxLayout(Body());
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
    auto* layout = new QVBoxLayout(frame);
    layout->setContentsMargins(0, 4, 0, 4);
    layout->setSpacing(0);
    for (const MenuEntry& entry : MenuEntries) {
        if (entry.side == side) {
            auto* label = new EntryLabel(entry, frame);
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

void menu1::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Down) {
        focusNextChild();
    } else if (event->key() == Qt::Key_Up) {
        focusPreviousChild();
    } else {
        SkinnedWindow::keyPressEvent(event);
    }
}

} // namespace tavmoor
