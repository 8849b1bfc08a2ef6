#pragma once

#include "Checkout/Status/ProductsCheckoutStatusView.hpp"

#include <memory>

namespace quillet {

/// The root view of a result screen: it fills the screen when its content is short and scrolls when it is
/// long. Owns the content.
class ScrollableView final {
public:
    void setContentView(std::unique_ptr<ProductsCheckoutStatusView> content) {
        content_ = std::move(content);
    }
    [[nodiscard]] ProductsCheckoutStatusView* contentView() const { return content_.get(); }

private:
    std::unique_ptr<ProductsCheckoutStatusView> content_;
};

} // namespace quillet
