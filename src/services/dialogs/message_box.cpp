#include "services/dialogs/message_box.h"

#include "services/dialogs/run_dialog.h"
#include "services/look/artwork.h"
#include "services/look/theme.h"
#include "services/system/service_slot.h"

#include <QApplication>
#include <QMessageBox>

namespace tavmoor {

namespace {

QMessageBox::StandardButtons ButtonsOf(BoxButtons buttons) {
    switch (buttons) {
    case BoxButtons::OkCancel:
        return QMessageBox::Ok | QMessageBox::Cancel;
    case BoxButtons::YesNo:
        return QMessageBox::Yes | QMessageBox::No;
    case BoxButtons::Ok:
        break;
    }
    return QMessageBox::Ok;
}

QMessageBox::StandardButton EscapeButtonOf(BoxButtons buttons) {
    switch (buttons) {
    case BoxButtons::OkCancel:
        return QMessageBox::Cancel;
    case BoxButtons::YesNo:
        return QMessageBox::No;
    case BoxButtons::Ok:
        break;
    }
    return QMessageBox::Ok;
}

/// The drawing beside the text; "" for none.
QString DrawingOf(BoxIcon icon) {
    switch (icon) {
    case BoxIcon::Critical:
    case BoxIcon::Warning:
        return QStringLiteral("warning");
    case BoxIcon::Information:
        return QStringLiteral("info");
    case BoxIcon::Question:
        return QStringLiteral("help");
    case BoxIcon::None:
        break;
    }
    return {};
}

void ShowDrawing(QMessageBox& box, BoxIcon icon) {
    constexpr int Side = 40;
    if (const QString drawing = DrawingOf(icon); !drawing.isEmpty()) {
        box.setIconPixmap(ArtworkPixmap(drawing, {Side, Side}, box.devicePixelRatioF(),
                                        icon == BoxIcon::Critical ? theme::Refused : QColor()));
    }
}

BoxAnswer AnswerOf(int button) {
    switch (button) {
    case QMessageBox::Yes:
        return BoxAnswer::Yes;
    case QMessageBox::No:
        return BoxAnswer::No;
    case QMessageBox::Cancel:
        return BoxAnswer::Cancel;
    default:
        return BoxAnswer::Ok;
    }
}

} // namespace

BoxAnswer ShowMessageBox(QWidget* owner, const MessageBoxRequest& request) {
    if (auto* responder = ServiceSlot<MessageBoxResponder>::Replacement()) {
        return responder->Answer(request);
    }
    QMessageBox box(owner);
    box.setObjectName(QStringLiteral("MessageBox"));
    ShowDrawing(box, request.icon);
    box.setWindowTitle(request.title.isEmpty() ? QApplication::applicationDisplayName()
                                               : request.title);
    // File names stand in these texts; none of them is markup.
    box.setTextFormat(Qt::PlainText);
    box.setText(request.text);
    box.setStandardButtons(ButtonsOf(request.buttons));
    box.setEscapeButton(EscapeButtonOf(request.buttons));
    return AnswerOf(RunDialog(box));
}

bool AskYesNo(QWidget* owner, const QString& text, const QString& title) {
    return ShowMessageBox(owner, {text, title, BoxButtons::YesNo, BoxIcon::Question}) ==
           BoxAnswer::Yes;
}

} // namespace tavmoor
