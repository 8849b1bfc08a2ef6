#pragma once

#include "Checkout/Inputs/ResultFactories.hpp"
#include "Checkout/Screen/CheckoutRoutering.hpp"

#include <memory>

namespace quillet {

class CheckoutRouter final : public CheckoutRoutering {
public:
    CheckoutRouter(std::unique_ptr<AllProductsAddedCreating> allProductsAddedFactory,
                   std::unique_ptr<ProductsPartiallyAddedCreating> productsPartiallyAddedFactory,
                   std::unique_ptr<NoProductAddedCreating> noProductAddedFactory);

    void showAllProductsAdded(const ViewController& viewController,
                              const SharedCheckoutResponse& response) override;
    void showProductsPartiallyAdded(const ViewController& viewController,
                                    const SharedCheckoutResponse& response) override;
    void showNoProductAdded(const ViewController& viewController,
                            const SharedCheckoutResponse& response) override;

private:
    std::unique_ptr<AllProductsAddedCreating> allProductsAddedFactory_;
    std::unique_ptr<ProductsPartiallyAddedCreating> productsPartiallyAddedFactory_;
    std::unique_ptr<NoProductAddedCreating> noProductAddedFactory_;
};

} // namespace quillet
