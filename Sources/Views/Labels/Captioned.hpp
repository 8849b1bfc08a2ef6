#pragma once

#include <QObject>
#include <QString>

namespace quillet {

/// A label and its value, shown as one text of which only the value is bolder. Absent ones show nothing.
class Captioned {
    Q_GADGET
    Q_PROPERTY(QString caption MEMBER caption CONSTANT FINAL)
    Q_PROPERTY(QString value MEMBER value CONSTANT FINAL)
    Q_PROPERTY(bool present READ isPresent CONSTANT FINAL)

public:
    QString caption;
    QString value;

    [[nodiscard]] bool isPresent() const { return !caption.isEmpty(); }
    [[nodiscard]] QString text() const { return caption + value; }
    bool operator==(const Captioned&) const = default;
};

/// "Ciclo actual: " and a short cycle code, which may be empty.
[[nodiscard]] inline Captioned cycleLabel(const QString& cycle) {
    return {QStringLiteral("Ciclo actual: "), cycle};
}

} // namespace quillet
