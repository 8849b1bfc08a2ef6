#pragma once

#include "Checkout/Status/ProductView.hpp"

#include <QColor>

#include <vector>

namespace quillet {

/// The rows of a section.
struct ProductsView {
    std::vector<ProductDisplayable> productViews;
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
    [[nodiscard]] static ExpansionPanel shippedProductsView(std::vector<Product> products);
    [[nodiscard]] static ExpansionPanel unshippedProductsView(std::vector<Product> products);
};

} // namespace quillet
