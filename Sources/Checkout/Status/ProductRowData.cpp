#include "Checkout/Status/ProductRowData.hpp"

#include "Checkout/Status/ShippingStatusProductsView.hpp"

namespace quillet {

using Role = ShippingStatusProductsView::Role;

QVariant productRowData(const ProductDisplayable& row, int role) {
    const auto* unshipped = std::get_if<UnshippedProductView>(&row);
    const ProductView& view = unshipped ? unshipped->productView() : std::get<ProductView>(row);
    switch (role) {
    case Role::QuantityRole:
        return view.quantity();
    case Role::DescriptionRole:
        return view.description();
    case Role::CodeRole:
        return view.code();
    case Role::PointsRole:
        return view.points();
    case Role::HasReasonRole:
        return unshipped != nullptr;
    case Role::ReasonTagRole:
        return unshipped ? UnshippedProductView::reasonTagText() : QString();
    default:
        return {};
    }
}

QVariant headRowData(int role) {
    switch (role) {
    case Role::HasReasonRole:
        return false;
    case Role::QuantityRole:
    case Role::DescriptionRole:
    case Role::CodeRole:
    case Role::PointsRole:
    case Role::ReasonTagRole:
        return QString();
    default:
        return {};
    }
}

} // namespace quillet
