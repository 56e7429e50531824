#pragma once

#include <QString>

#include <cstdint>

class QWidget;

namespace tavmoor {

enum class BoxButtons : std::uint8_t { Ok, OkCancel, YesNo };
enum class BoxIcon : std::uint8_t { None, Critical, Warning, Information, Question };

/// The classic numbers of the answers.
enum class BoxAnswer : std::uint8_t { Ok = 1, Cancel = 2, Yes = 6, No = 7 };

struct MessageBoxRequest {
    QString text;
    QString title; ///< "" shows the program's name
    BoxButtons buttons = BoxButtons::Ok;
    BoxIcon icon = BoxIcon::None;
};

/// Who answers message boxes in place of the user; see ServiceSlot.
class MessageBoxResponder {
public:
    virtual ~MessageBoxResponder() = default;
    virtual BoxAnswer Answer(const MessageBoxRequest& request) = 0;

protected:
    MessageBoxResponder() = default;
    MessageBoxResponder(const MessageBoxResponder&) = default;
    MessageBoxResponder& operator=(const MessageBoxResponder&) = default;
};

/// Shows a message box and waits for its answer. Closing it or Esc answers with the most cautious
/// button it has: Cancel, else No, else OK. Every message of the program comes up here.
BoxAnswer ShowMessageBox(QWidget* owner, const MessageBoxRequest& request);

/// A box with Yes and No; true for Yes.
bool AskYesNo(QWidget* owner, const QString& text, const QString& title = {});

} // namespace tavmoor
