#include "services/controls/text_boxes.h"

#include "services/controls/refusal_mark.h"
#include "services/values/qt_text.h"

#include <QKeyEvent>
#include <QMimeData>
#include <QMouseEvent>
#include <QValidator>

namespace tavmoor {

namespace {

/// Lets through only texts that the code page can hold; the reason for the last refusal stays.
class CodePageValidator final : public QValidator {
public:
    explicit CodePageValidator(QObject* parent) : QValidator(parent) {}

    State validate(QString& text, int& /*position*/) const override {
        QString objection = CodePageObjection(text);
        if (objection.isEmpty()) {
            return Acceptable;
        }
        objection_ = std::move(objection);
        return Invalid;
    }
    [[nodiscard]] const QString& Objection() const { return objection_; }

private:
    mutable QString objection_;
};

} // namespace

TextBox::TextBox(const char* objectName, QWidget* parent) : QLineEdit(parent) {
    setObjectName(QString::fromLatin1(objectName));
    auto* validator = new CodePageValidator(this);
    setValidator(validator);
    auto* mark = new RefusalMark(*this);
    connect(this, &QLineEdit::inputRejected, this,
            [mark, validator] { mark->Set(validator->Objection()); });
    connect(this, &QLineEdit::textChanged, mark, &RefusalMark::Clear);
}

void TextBox::mouseDoubleClickEvent(QMouseEvent* event) {
    QLineEdit::mouseDoubleClickEvent(event);
    Q_EMIT DoubleClicked();
}

MemoBox::MemoBox(const char* objectName, QWidget* parent) : QPlainTextEdit(parent) {
    setObjectName(QString::fromLatin1(objectName));
    setTabChangesFocus(true);
    connect(this, &QPlainTextEdit::textChanged, this, [this] {
        // Input that was refused, and a composition, come by here without a change.
        if (toPlainText() != refusedBeside_) {
            findChild<RefusalMark*>()->Clear();
        }
        if (!loading_) {
            Q_EMIT Edited();
        }
    });
    new RefusalMark(*this);
}

QString MemoBox::ProjectText() const {
    return toPlainText().replace(QLatin1Char('\n'), QLatin1String("\r\n"));
}

void MemoBox::SetProjectText(const QString& text) {
    if (ProjectText() == text) {
        return;
    }
    loading_ = true;
    setPlainText(text);
    loading_ = false;
}

bool MemoBox::Refuses(const QString& text) {
    const QString objection = CodePageObjection(text);
    if (!objection.isEmpty()) {
        refusedBeside_ = toPlainText();
        findChild<RefusalMark*>()->Set(objection);
    }
    return !objection.isEmpty();
}

void MemoBox::keyPressEvent(QKeyEvent* event) {
    if (!Refuses(event->text())) {
        QPlainTextEdit::keyPressEvent(event);
    }
}

void MemoBox::inputMethodEvent(QInputMethodEvent* event) {
    if (Refuses(event->commitString())) {
        event->setCommitString(QString());
    }
    QPlainTextEdit::inputMethodEvent(event);
}

void MemoBox::insertFromMimeData(const QMimeData* source) {
    if (!source->hasText() || !Refuses(source->text())) {
        QPlainTextEdit::insertFromMimeData(source);
    }
}

void MemoBox::mouseDoubleClickEvent(QMouseEvent* event) {
    QPlainTextEdit::mouseDoubleClickEvent(event);
    Q_EMIT DoubleClicked();
}

} // namespace tavmoor
