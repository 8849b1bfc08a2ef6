#pragma once

#include "Checkout/Inputs/ResultInputs.hpp"
#include "Checkout/Status/ProductsCheckoutStatusViewController.hpp"

#include <memory>

namespace quillet {

/// Builds the root view of one kind of result. The screen that is passed in becomes the view's weak delegate.
template <typename Input>
class ResultViewCreating {
public:
    virtual ~ResultViewCreating() = default;
    [[nodiscard]] virtual std::unique_ptr<ProductsCheckoutStatusView>
    view(Input input, ProductsCheckoutStatusViewController& viewController) const = 0;
    /// The host's navigation, for the screen.
    [[nodiscard]] virtual std::weak_ptr<QuilletNavigationDelegate> navigationDelegate() const = 0;
};

using AllProductsAddedCreating = ResultViewCreating<AllProductsAddedFactoryInput>;
using ProductsPartiallyAddedCreating = ResultViewCreating<ProductsPartiallyAddedFactoryInput>;
using NoProductAddedCreating = ResultViewCreating<NoProductAddedFactoryInput>;

/// Build the root views of the three results.
[[nodiscard]] std::unique_ptr<ProductsCheckoutStatusView>
resultView(AllProductsAddedFactoryInput input, ProductsCheckoutStatusViewController& viewController);
[[nodiscard]] std::unique_ptr<ProductsCheckoutStatusView>
resultView(ProductsPartiallyAddedFactoryInput input, ProductsCheckoutStatusViewController& viewController);
[[nodiscard]] std::unique_ptr<ProductsCheckoutStatusView>
resultView(NoProductAddedFactoryInput input, ProductsCheckoutStatusViewController& viewController);

/// Holds the host's navigation weakly.
template <typename Input>
class ResultViewFactory final : public ResultViewCreating<Input> {
public:
    explicit ResultViewFactory(std::weak_ptr<QuilletNavigationDelegate> navigationDelegate)
        : navigationDelegate_(std::move(navigationDelegate)) {}

    [[nodiscard]] std::unique_ptr<ProductsCheckoutStatusView>
    view(Input input, ProductsCheckoutStatusViewController& viewController) const override {
        return resultView(std::move(input), viewController);
    }
    [[nodiscard]] std::weak_ptr<QuilletNavigationDelegate> navigationDelegate() const override {
        return navigationDelegate_;
    }

private:
    std::weak_ptr<QuilletNavigationDelegate> navigationDelegate_;
};

using AllProductsAddedFactory = ResultViewFactory<AllProductsAddedFactoryInput>;
using ProductsPartiallyAddedFactory = ResultViewFactory<ProductsPartiallyAddedFactoryInput>;
using NoProductAddedFactory = ResultViewFactory<NoProductAddedFactoryInput>;

} // namespace quillet
