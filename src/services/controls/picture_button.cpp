#include "services/controls/picture_button.h"

#include "services/look/artwork.h"
#include "services/look/theme.h"

#include <QVariant>

namespace tavmoor {

namespace {

QString LookName(ButtonLook look) {
    switch (look) {
    case ButtonLook::Icon:
        return QStringLiteral("icon");
    case ButtonLook::Primary:
        return QStringLiteral("primary");
    case ButtonLook::Navigation:
        return QStringLiteral("navigation");
    case ButtonLook::Link:
        return QStringLiteral("link");
    case ButtonLook::Plain:
        break;
    }
    return QStringLiteral("plain");
}

} // namespace

PictureButton::PictureButton(const ButtonDescription& description, QWidget* parent)
    : QPushButton(QString::fromUtf16(description.text), parent) {
    setObjectName(QString::fromLatin1(description.objectName));
    setProperty("look", LookName(description.look));
    setCursor(HandCursor());
    setIconSize({theme::IconSize, theme::IconSize});
    if (description.artwork[0] != '\0') {
        const bool onAccent = description.look == ButtonLook::Primary;
        setIcon(ArtworkIcon(QString::fromLatin1(description.artwork),
                            onAccent ? theme::Surface : QColor()));
    }
    const QString tooltip = QString::fromUtf16(description.tooltip);
    setToolTip(tooltip);
    setAccessibleName(text().isEmpty() ? tooltip : text().remove(QLatin1Char('&')));
    setAutoDefault(false);
}

} // namespace tavmoor
