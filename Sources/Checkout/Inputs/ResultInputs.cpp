#include "Checkout/Inputs/ResultInputs.hpp"

#include <algorithm>
#include <iterator>
#include <utility>

namespace quillet {

namespace {

bool wasAdded(const Product& product) {
    return product.status == ProductErrorStatus::none;
}

std::vector<Product> added(const std::vector<Product>& products) {
    std::vector<Product> result;
    std::ranges::copy_if(products, std::back_inserter(result), wasAdded);
    return result;
}

std::vector<Product> notAdded(const std::vector<Product>& products) {
    std::vector<Product> result;
    std::ranges::remove_copy_if(products, std::back_inserter(result), wasAdded);
    return result;
}

} // namespace

AllProductsAddedFactoryInput::AllProductsAddedFactoryInput(QString cycleText, std::uint64_t totalPoints,
                                                           std::uint64_t addedQuantity,
                                                           const std::vector<Product>& allProducts)
    : cycle(std::move(cycleText)),
      totalAddedProductsPoints(totalPoints),
      addedProductsQuantity(addedQuantity),
      products(added(allProducts)) {}

ProductsPartiallyAddedFactoryInput::ProductsPartiallyAddedFactoryInput(
    QString cycleText, std::uint64_t totalPoints, std::uint64_t addedQuantity, std::uint64_t notAddedQuantity,
    const std::vector<Product>& allProductsForAdded, const std::vector<Product>& allProductsForNotAdded)
    : cycle(std::move(cycleText)),
      totalAddedProductPoints(totalPoints),
      addedProductsQuantity(addedQuantity),
      notAddedProductsQuantity(notAddedQuantity),
      addedProducts(added(allProductsForAdded)),
      notAddedProducts(notAdded(allProductsForNotAdded)) {}

NoProductAddedFactoryInput::NoProductAddedFactoryInput(QString cycleText, std::uint64_t notAddedQuantity,
                                                       const std::vector<Product>& allProducts)
    : cycle(std::move(cycleText)),
      notAddedProductsQuantity(notAddedQuantity),
      products(notAdded(allProducts)) {}

} // namespace quillet
