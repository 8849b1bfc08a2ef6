#include "Checkout/Status/ProductView.hpp"

#include "Resources/Localization.hpp"

#include <QStringList>

namespace quillet {

QString ProductRow::spoken() const {
    QStringList parts{quantity, description, code, points, reasonTag};
    parts.removeAll(QString());
    return parts.join(QStringLiteral(", "));
}

QString ProductView::quantity() const {
    return QString::number(product_->quantity);
}

QString ProductView::description() const {
    return QString::fromStdString(product_->description);
}

QString ProductView::code() const {
    return Localization::code(product_->productCode);
}

QString ProductView::points() const {
    return Localization::pointsCount(product_->totalPoints);
}

ProductRow UnshippedProductView::row() const {
    ProductRow row = productView_.row();
    row.hasReason = true;
    row.reasonTag = reasonTagText();
    return row;
}

} // namespace quillet
