#include "services/controls/labels.h"

#include "services/look/theme.h"

#include <QVariant>

namespace tavmoor {

QLabel* MakeLabel(const char* objectName, const QString& text, QWidget* parent) {
    auto* label = new QLabel(parent);
    label->setObjectName(QString::fromLatin1(objectName));
    label->setTextFormat(Qt::PlainText);
    label->setText(text);
    return label;
}

QLabel* MakeLabel(const char* objectName, const char16_t* text, QWidget* parent) {
    return MakeLabel(objectName, QString::fromUtf16(text), parent);
}

QLabel* MakeParagraph(const char* objectName, const QString& text, QWidget* parent) {
    auto* label = MakeLabel(objectName, text, parent);
    label->setWordWrap(true);
    return label;
}

QLabel* MakeCaption(const char16_t* text, QWidget* buddy, QWidget* parent) {
    auto* label = new QLabel(QString::fromUtf16(text), parent);
    label->setBuddy(buddy);
    return label;
}

void LookLikeNote(QLabel& label) {
    label.setProperty("look", QStringLiteral("note"));
    label.setFont(theme::NoteFont());
}

} // namespace tavmoor
