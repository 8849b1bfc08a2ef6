#pragma once

#include "Checkout/Status/ProductRow.hpp"
#include "Quillet/Checkout.hpp"

#include <QString>

#include <variant>

namespace quillet {

/// A product's row. It refers to the record, which has to live longer, and formats its texts on request.
class ProductView {
public:
    explicit ProductView(const Product& product) : product_(&product) {}

    [[nodiscard]] const Product& product() const { return *product_; }
    [[nodiscard]] QString quantity() const;
    [[nodiscard]] QString description() const;
    /// "Code: " and the code.
    [[nodiscard]] QString code() const;
    /// The points and the word for them.
    [[nodiscard]] QString points() const;
    [[nodiscard]] ProductRow row() const { return {quantity(), description(), code(), points(), false, {}}; }

private:
    const Product* product_;
};

/// The row of a product that was not sent: the same with a tag below. The tag has a colour and no text; the
/// reason is not shown.
class UnshippedProductView {
public:
    explicit UnshippedProductView(ProductView productView) : productView_(productView) {}

    [[nodiscard]] const ProductView& productView() const { return productView_; }
    /// The tag's text, which is empty.
    [[nodiscard]] static QString reasonTagText() { return {}; }
    [[nodiscard]] ProductRow row() const;

private:
    ProductView productView_;
};

/// Either kind of row.
using ProductDisplayable = std::variant<ProductView, UnshippedProductView>;

} // namespace quillet
