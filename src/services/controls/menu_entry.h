#pragma once

#include <QAbstractButton>
#include <QIcon>

namespace tavmoor {

/// What makes an entry of a drop-down menu.
struct MenuEntryDescription {
    const char* objectName = "";
    const char16_t* text = u""; ///< with its indent, where it has one
    const char* artwork = "";   ///< a drawing's name
};

/// One entry of a drop-down menu. The highlight is on the one under the mouse, which also takes the
/// focus; the keys Up and Down go from entry to entry.
class MenuEntryLabel final : public QAbstractButton {
    Q_OBJECT

public:
    MenuEntryLabel(const MenuEntryDescription& description, QWidget* parent);

    [[nodiscard]] QSize sizeHint() const override;

protected:
    void enterEvent(QEnterEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    QIcon icon_;
};

} // namespace tavmoor
