#include "Checkout/Status/ProductsViewFactory.hpp"

#include "KelDS/KelDS.hpp"
#include "Views/Tokens/HexColor.hpp"

#include <utility>

namespace quillet {

namespace {

/// The module's own stroke colours are the same in either theme, and never used for text.
void outline(ExpansionPanel& panel, std::string_view hex) {
    if (const auto stroke = hexColor(hex, 1)) {
        panel.setColors(*stroke, Qt::transparent);
    }
}

} // namespace

ProductDisplayable ProductViews::operator[](std::size_t index) const {
    const ProductView view(products_[index]);
    if (kind_ == ProductList::Kind::added) {
        return view;
    }
    return UnshippedProductView(view);
}

ExpansionPanel ProductsViewFactory::shippedProductsView(ProductList products) {
    ExpansionPanel panel{kel::KelColors::success,
                         QStringLiteral("Productos enviados"),
                         {{std::move(products), ProductList::Kind::added}}};
    outline(panel, "#669842");
    return panel;
}

ExpansionPanel ProductsViewFactory::unshippedProductsView(ProductList products) {
    ExpansionPanel panel{kel::KelColors::alert,
                         QStringLiteral("Productos no enviados"),
                         {{std::move(products), ProductList::Kind::notAdded}}};
    outline(panel, "#D55336");
    return panel;
}

} // namespace quillet
