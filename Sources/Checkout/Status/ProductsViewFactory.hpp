#pragma once

#include "Checkout/Status/ProductView.hpp"

#include <QColor>

#include <vector>

namespace quillet {

/// The rows of a section.
struct ProductsView {
    std::vector<ProductDisplayable> productViews;
};

/// An expansion panel of the design system as the list draws it: a head in a tone, and an outline around head
/// and rows.
struct ExpansionPanel {
    /// The token of the title's colour, read anew when the theme changes.
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
