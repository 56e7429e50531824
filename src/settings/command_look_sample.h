#pragma once

#include "core/project_document.h"
#include "services/font_spec.h"

#include <QWidget>

class QLabel;

namespace tavmoor {

/// How the buttons of the menu look.
struct CommandButtonLook {
    ColorValue textColor = 0;
    ColorValue backColor = 0;
    FontSpec font; ///< its size in stored form
};

/// The area in which the sample button `Label11` shows the look of the menu's buttons. The sample
/// grows upwards from a line that stays where it is.
class CommandLookSample final : public QWidget {
    Q_OBJECT

public:
    explicit CommandLookSample(QWidget* parent);

    void SetLook(const CommandButtonLook& look);
    [[nodiscard]] const CommandButtonLook& Look() const { return look_; }

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void Place();

    CommandButtonLook look_;
    QLabel* sample_;
};

} // namespace tavmoor
