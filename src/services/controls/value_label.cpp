#include "services/controls/value_label.h"

#include "services/controls/refusal_mark.h"
#include "services/look/theme.h"

#include <QVariant>

namespace tavmoor {

ValueLabel::ValueLabel(const char* objectName, QWidget* parent) : QLabel(parent) {
    setObjectName(QString::fromLatin1(objectName));
    setProperty("look", QStringLiteral("value"));
    setTextFormat(Qt::PlainText);
    setIndent(0); // the frame's padding is enough, and all of the width counts for the cut
    setMinimumHeight(theme::ControlHeight);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    new RefusalMark(*this);
}

void ValueLabel::SetFullText(const QString& text) {
    findChild<RefusalMark*>()->Clear();
    full_ = text;
    setToolTip(text);
    ShowCut();
}

QSize ValueLabel::minimumSizeHint() const {
    constexpr int Least = 60;
    return {Least, theme::ControlHeight};
}

void ValueLabel::resizeEvent(QResizeEvent* event) {
    QLabel::resizeEvent(event);
    ShowCut();
}

void ValueLabel::ShowCut() {
    setText(fontMetrics().elidedText(full_, Qt::ElideMiddle, contentsRect().width()));
}

} // namespace tavmoor
