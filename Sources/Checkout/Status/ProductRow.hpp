#pragma once

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

namespace quillet {

/// What a row of the list draws of a product.
class ProductRow {
    Q_GADGET
    QML_VALUE_TYPE(productRow)
    Q_PROPERTY(QString quantity MEMBER quantity CONSTANT FINAL)
    Q_PROPERTY(QString description MEMBER description CONSTANT FINAL)
    Q_PROPERTY(QString code MEMBER code CONSTANT FINAL)
    Q_PROPERTY(QString points MEMBER points CONSTANT FINAL)
    Q_PROPERTY(bool hasReason MEMBER hasReason CONSTANT FINAL)
    Q_PROPERTY(QString spoken READ spoken CONSTANT FINAL)
    Q_PROPERTY(QString reasonTag MEMBER reasonTag CONSTANT FINAL)

public:
    QString quantity;
    QString description;
    QString code;
    QString points;
    /// Whether the product was not sent, which a tag tells.
    bool hasReason = false;
    QString reasonTag;

    /// The row as a screen reader says it: all of its texts in one.
    [[nodiscard]] QString spoken() const;

    bool operator==(const ProductRow&) const = default;
};

} // namespace quillet
