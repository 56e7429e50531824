#pragma once

#include <QLineEdit>
#include <QPlainTextEdit>

namespace tavmoor {

/// A field for one line of a project's text. What the system's code page cannot hold is refused as
/// it is typed or pasted: the field keeps its text, is marked, and its tooltip says why until the
/// next accepted change.
class TextBox : public QLineEdit {
    Q_OBJECT

public:
    explicit TextBox(const char* objectName, QWidget* parent = nullptr);

Q_SIGNALS:
    /// For fields whose text box asks for a colour.
    void DoubleClicked();

protected:
    void mouseDoubleClickEvent(QMouseEvent* event) override;
};

/// The same for several lines. Ctrl+A selects all; Tab goes to the next field.
class MemoBox : public QPlainTextEdit {
    Q_OBJECT

public:
    explicit MemoBox(const char* objectName, QWidget* parent = nullptr);

    /// The text with line breaks as the project has them (carriage return and line feed).
    [[nodiscard]] QString ProjectText() const;
    /// Shows a text of the project, whichever line breaks it has.
    void SetProjectText(const QString& text);

Q_SIGNALS:
    /// The user changed the text.
    void Edited();
    void DoubleClicked();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    void insertFromMimeData(const QMimeData* source) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;

private:
    bool Refuses(const QString& text);
    QString refusedBeside_; ///< the field's text when it last refused an input
    bool loading_ = false;
};

} // namespace tavmoor
