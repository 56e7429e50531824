#pragma once

#include <QObject>
#include <QString>

class QWidget;

namespace tavmoor {

/// Marks a field that refused its last input, and says why in its tooltip; the field's own tooltip
/// comes back with the next accepted change.
class RefusalMark final : public QObject {
    Q_OBJECT

public:
    explicit RefusalMark(QWidget& field);

    void Set(const QString& reason);
    void Clear();

private:
    QWidget& field_;
    QString ownTooltip_;
    bool set_ = false;
};

} // namespace tavmoor
