#pragma once

#include "Checkout/Inputs/ProductList.hpp"
#include "Checkout/Status/ProductView.hpp"

#include <QColor>

#include <cstddef>
#include <utility>

namespace quillet {

/// One view a product, each made when it is asked for.
class ProductViews {
public:
    ProductViews(ProductList products, ProductList::Kind kind)
        : products_(std::move(products)), kind_(kind) {}

    [[nodiscard]] std::size_t size() const { return products_.size(); }
    /// Lives no longer than this list.
    [[nodiscard]] ProductDisplayable operator[](std::size_t index) const;

private:
    ProductList products_;
    ProductList::Kind kind_;
};

/// The rows of a section.
struct ProductsView {
    ProductViews productViews;
};

/// Data of an expansion panel: a head with a coloured title, and an outline around head and rows.
struct ExpansionPanel {
    /// Returns the title's colour in the current theme.
    QColor (*tone)();
    QString title;
    ProductsView content;
    QColor stroke = Qt::transparent;
    QColor fill = Qt::transparent;
    bool expanded = true;

    void setColors(const QColor& strokeColor, const QColor& fillColor) {
        stroke = strokeColor;
        fill = fillColor;
    }
};

/// Makes the two sections of a result. A panel keeps the order of its products.
class ProductsViewFactory {
public:
    [[nodiscard]] static ExpansionPanel shippedProductsView(ProductList products);
    [[nodiscard]] static ExpansionPanel unshippedProductsView(ProductList products);
};

} // namespace quillet
