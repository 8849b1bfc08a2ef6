#pragma once

#include "Checkout/Inputs/ResultInputs.hpp"
#include "Checkout/Status/ProductsCheckoutStatusViewController.hpp"
#include "Checkout/Status/ScrollableView.hpp"

#include <memory>

namespace quillet {

/// Turns one kind of result into the root view of its screen. The view's weak delegates become the screen
/// passed in.
template <typename Input>
class ResultViewCreating {
public:
    virtual ~ResultViewCreating() = default;
    [[nodiscard]] virtual std::unique_ptr<ScrollableView>
    view(Input input, ProductsCheckoutStatusViewController& viewController) const = 0;
    /// The host's navigation, for the screen.
    [[nodiscard]] virtual std::weak_ptr<QuilletNavigationDelegate> navigationDelegate() const = 0;
};

using AllProductsAddedCreating = ResultViewCreating<AllProductsAddedFactoryInput>;
using ProductsPartiallyAddedCreating = ResultViewCreating<ProductsPartiallyAddedFactoryInput>;
using NoProductAddedCreating = ResultViewCreating<NoProductAddedFactoryInput>;

/// What the three factories share: they hold the host's navigation weakly and differ in how they build the
/// view.
template <typename Input>
class ResultViewFactory final : public ResultViewCreating<Input> {
public:
    explicit ResultViewFactory(std::weak_ptr<QuilletNavigationDelegate> navigationDelegate)
        : navigationDelegate_(std::move(navigationDelegate)) {}

    [[nodiscard]] std::unique_ptr<ScrollableView>
    view(Input input, ProductsCheckoutStatusViewController& viewController) const override;
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
