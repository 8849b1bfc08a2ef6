#include "Checkout/Inputs/ResultInputs.hpp"

#include <algorithm>
#include <iterator>
#include <utility>

namespace quillet {

namespace {

bool wasAdded(const Product& product) {
    return product.status == ProductErrorStatus::none;
}

/// The products for which `wasAdded` says `added`, in their order.
std::vector<Product> filtered(const std::vector<Product>& products, bool added) {
    const auto fits = [added](const Product& product) { return wasAdded(product) == added; };
    std::vector<Product> result;
    result.reserve(static_cast<std::size_t>(std::ranges::count_if(products, fits)));
    std::ranges::copy_if(products, std::back_inserter(result), fits);
    return result;
}

} // namespace

AllProductsAddedFactoryInput::AllProductsAddedFactoryInput(QString cycleText, std::uint64_t totalPoints,
                                                           std::uint64_t addedQuantity,
                                                           const std::vector<Product>& allProducts)
    : cycle(std::move(cycleText)),
      totalAddedProductsPoints(totalPoints),
      addedProductsQuantity(addedQuantity),
      products(filtered(allProducts, true)) {}

ProductsPartiallyAddedFactoryInput::ProductsPartiallyAddedFactoryInput(
    QString cycleText, std::uint64_t totalPoints, std::uint64_t addedQuantity, std::uint64_t notAddedQuantity,
    const std::vector<Product>& allProductsForAdded, const std::vector<Product>& allProductsForNotAdded)
    : cycle(std::move(cycleText)),
      totalAddedProductPoints(totalPoints),
      addedProductsQuantity(addedQuantity),
      notAddedProductsQuantity(notAddedQuantity),
      addedProducts(filtered(allProductsForAdded, true)),
      notAddedProducts(filtered(allProductsForNotAdded, false)) {}

NoProductAddedFactoryInput::NoProductAddedFactoryInput(QString cycleText, std::uint64_t notAddedQuantity,
                                                       const std::vector<Product>& allProducts)
    : cycle(std::move(cycleText)),
      notAddedProductsQuantity(notAddedQuantity),
      products(filtered(allProducts, false)) {}

} // namespace quillet
