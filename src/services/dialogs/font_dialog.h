#pragma once

#include "services/dialogs/dialog_responder.h"

#include <QDialog>

class QFontDialog;
class QPushButton;

namespace tavmoor {

/// Chooses a font, its effects and its colour. Family and size that the user leaves alone come
/// back as they were handed in, also when this system has no such font and shows another one.
class FontDialog final : public QDialog {
    Q_OBJECT
public:
    explicit FontDialog(const FontChoice& begin, QWidget* owner = nullptr);

    /// What is chosen at the moment.
    [[nodiscard]] FontChoice Choice() const;

private:
    void ChooseColor();
    void ShowColor();
    /// The sample is shown in the chosen colour, on a ground on which it can be seen.
    void ColorSample();

    FontChoice begin_;
    QColor color_;
    QString shownFamily_; ///< the one that stands for the family handed in
    double shownPoints_ = 0;
    QFontDialog* fonts_;
    QPushButton* colorButton_;
};

} // namespace tavmoor
