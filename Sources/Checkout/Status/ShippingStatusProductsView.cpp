#include "Checkout/Status/ShippingStatusProductsView.hpp"

#include "Resources/Localization.hpp"

#include <utility>

namespace quillet {

ShippingStatusProductsView::ShippingStatusProductsView(std::optional<std::vector<Product>> shipped,
                                                       std::optional<std::vector<Product>> unshipped) {
    if (shipped) {
        sections_.push_back({.sent = true, .products = std::move(*shipped)});
    }
    if (unshipped) {
        sections_.push_back({.sent = false, .products = std::move(*unshipped)});
    }
}

void ShippingStatusProductsView::setDelegate(std::weak_ptr<ShippingStatusProductsViewDelegate> delegate) {
    delegate_ = std::move(delegate);
}

int ShippingStatusProductsView::rowCount(const QModelIndex& parent) const {
    int rows = 0;
    if (!parent.isValid()) {
        for (const Section& section : sections_) {
            rows += section.rows();
        }
    }
    return rows;
}

ShippingStatusProductsView::Position ShippingStatusProductsView::position(int row) const {
    for (const Section& section : sections_) {
        if (row < section.rows()) {
            return {&section, row};
        }
        row -= section.rows();
    }
    return {nullptr, 0};
}

QVariant ShippingStatusProductsView::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid)) {
        return {};
    }
    const auto [section, row] = position(index.row());
    switch (role) {
    case IsHeadRole:
        return row == 0;
    case SentRole:
        return section->sent;
    case ExpandedRole:
        return section->expanded;
    case LastRole:
        return row == section->rows() - 1;
    case FirstRole:
        return row == 1;
    default:
        break;
    }
    return row == 0 ? headData(*section, role)
                    : productData(*section, section->products[static_cast<std::size_t>(row - 1)], role);
}

QVariant ShippingStatusProductsView::headData(const Section& section, int role) {
    switch (role) {
    case TitleRole:
        return section.sent ? QStringLiteral("Productos enviados") : QStringLiteral("Productos no enviados");
    case HasReasonRole: return false;
    // A row of the list has a place for every text, whether it is a head or a product.
    case QuantityRole:
    case DescriptionRole:
    case CodeRole:
    case PointsRole: return QString();
    default: return {};
    }
}

QVariant ShippingStatusProductsView::productData(const Section& section, const Product& product, int role) {
    switch (role) {
    case QuantityRole:
        return QString::number(product.quantity);
    case DescriptionRole:
        return QString::fromStdString(product.description);
    case CodeRole:
        return Localization::code(product.productCode);
    case PointsRole:
        return Localization::pointsCount(product.totalPoints);
    case HasReasonRole:
        return !section.sent;
    default:
        return QString();
    }
}

QHash<int, QByteArray> ShippingStatusProductsView::roleNames() const {
    return {
        {IsHeadRole, "isHead"},       {TitleRole, "title"},
        {SentRole, "sent"},           {ExpandedRole, "expanded"},
        {LastRole, "last"},           {FirstRole, "first"},
        {QuantityRole, "quantity"},   {DescriptionRole, "description"},
        {CodeRole, "code"},           {PointsRole, "points"},
        {HasReasonRole, "hasReason"},
    };
}

void ShippingStatusProductsView::toggle(int row) {
    int head = 0;
    for (Section& section : sections_) {
        if (head == row) {
            const int products = static_cast<int>(section.products.size());
            if (products == 0) {
                section.expanded = !section.expanded;
            } else if (section.expanded) {
                beginRemoveRows({}, head + 1, head + products);
                section.expanded = false;
                endRemoveRows();
            } else {
                beginInsertRows({}, head + 1, head + products);
                section.expanded = true;
                endInsertRows();
            }
            Q_EMIT dataChanged(index(head), index(head), {ExpandedRole, LastRole});
            notify(section);
            return;
        }
        head += section.rows();
    }
}

void ShippingStatusProductsView::notify(const Section& section) const {
    if (const auto delegate = delegate_.lock()) {
        if (section.sent) {
            section.expanded ? delegate->didExpandProductsSent() : delegate->didHideProductsSent();
        } else {
            section.expanded ? delegate->didExpandProductsNotSent() : delegate->didHideProductsNotSent();
        }
    }
}

} // namespace quillet
