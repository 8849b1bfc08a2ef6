#include "Checkout/Status/ProductsViewFactory.hpp"

#include "KelDS/KelDS.hpp"
#include "Views/Tokens/HexColor.hpp"

#include <utility>

namespace quillet {

namespace {

template <typename View>
ProductsView rows(std::vector<Product> products) {
    ProductsView view;
    view.productViews.reserve(products.size());
    for (Product& product : products) {
        view.productViews.emplace_back(View(std::move(product)));
    }
    return view;
}

/// The module's own stroke colours are the same in either theme, and never used for text.
void outline(ExpansionPanel& panel, std::string_view hex) {
    if (const auto stroke = hexColor(hex, 1)) {
        panel.setColors(*stroke, Qt::transparent);
    }
}

} // namespace

ExpansionPanel ProductsViewFactory::shippedProductsView(std::vector<Product> products) {
    ExpansionPanel panel{kel::KelColors::success, QStringLiteral("Productos enviados"),
                         rows<ProductView>(std::move(products))};
    outline(panel, "#669842");
    return panel;
}

ExpansionPanel ProductsViewFactory::unshippedProductsView(std::vector<Product> products) {
    ExpansionPanel panel{kel::KelColors::alert, QStringLiteral("Productos no enviados"),
                         rows<UnshippedProductView>(std::move(products))};
    outline(panel, "#D55336");
    return panel;
}

} // namespace quillet
