#include "services/value_label.h"

#include "services/theme.h"

#include <QVariant>

namespace tavmoor {

ValueLabel::ValueLabel(const char* objectName, QWidget* parent) : QLabel(parent) {
    setObjectName(QString::fromLatin1(objectName));
    setProperty("look", QStringLiteral("value"));
    setTextFormat(Qt::PlainText);
    setIndent(0); // a framed label's own indent would take from the width that ShowCut counts with
    setMinimumHeight(theme::ControlHeight);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void ValueLabel::SetFullText(const QString& text) {
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
