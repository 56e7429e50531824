#pragma once

#include <QWidget>

class QLabel;

namespace tavmoor {

struct FontSpec;

/// The area in which the sample button `Label11` shows the look of the menu's buttons; what of it
/// is a field of the project is bound to `Sample`. The sample grows upwards from a line that
/// stays where it is.
class CommandLookSample final : public QWidget {
    Q_OBJECT

public:
    explicit CommandLookSample(QWidget* parent);

    [[nodiscard]] QLabel& Sample() const { return *sample_; }
    /// Bold, italic and underlined are not part of a project; they stay as they were chosen.
    void SetEffects(const FontSpec& font);
    /// The sample's effects, without a name and a size.
    [[nodiscard]] FontSpec Effects() const;

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void Place();

    QLabel* sample_;
};

} // namespace tavmoor
