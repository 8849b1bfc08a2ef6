#include "Screens/PlainProducts.hpp"

#include "Checkout/Status/ShippingStatusProductsView.hpp"

namespace quillet::benchmarks {

PlainProducts::PlainProducts(const ShippingStatusProductsView& sections) {
    using Sections = ShippingStatusProductsView;
    for (int i = 0; i < sections.rowCount(); ++i) {
        const QModelIndex at = sections.index(i);
        if (!sections.data(at, Sections::IsHeadRole).toBool()) {
            const auto row = sections.data(at, Sections::ProductRole).value<ProductRow>();
            rows_.push_back({row.quantity, row.description, row.code, row.points, row.hasReason});
        }
    }
}

int PlainProducts::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

QVariant PlainProducts::data(const QModelIndex& index, int role) const {
    const Texts& row = rows_.at(static_cast<std::size_t>(index.row()));
    switch (role) {
    case Quantity:
        return row.quantity;
    case Description:
        return row.description;
    case Code:
        return row.code;
    case Points:
        return row.points;
    case HasReason:
        return row.hasReason;
    default:
        return {};
    }
}

QHash<int, QByteArray> PlainProducts::roleNames() const {
    return {{Quantity, "quantity"},
            {Description, "description"},
            {Code, "code"},
            {Points, "points"},
            {HasReason, "hasReason"}};
}

} // namespace quillet::benchmarks
