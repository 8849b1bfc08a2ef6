#include "Checkout/Inputs/ResultInputs.hpp"

#include <utility>

namespace quillet {

AllProductsAddedFactoryInput::AllProductsAddedFactoryInput(QString cycleText, std::uint64_t totalPoints,
                                                           std::uint64_t addedQuantity,
                                                           const SharedProducts& allProducts)
    : cycle(std::move(cycleText)),
      totalAddedProductsPoints(totalPoints),
      addedProductsQuantity(addedQuantity),
      products(allProducts, ProductList::Kind::added) {}

ProductsPartiallyAddedFactoryInput::ProductsPartiallyAddedFactoryInput(
    QString cycleText, std::uint64_t totalPoints, std::uint64_t addedQuantity, std::uint64_t notAddedQuantity,
    const SharedProducts& allProductsForAdded, const SharedProducts& allProductsForNotAdded)
    : cycle(std::move(cycleText)),
      totalAddedProductPoints(totalPoints),
      addedProductsQuantity(addedQuantity),
      notAddedProductsQuantity(notAddedQuantity),
      addedProducts(allProductsForAdded, ProductList::Kind::added),
      notAddedProducts(allProductsForNotAdded, ProductList::Kind::notAdded) {}

NoProductAddedFactoryInput::NoProductAddedFactoryInput(QString cycleText, std::uint64_t notAddedQuantity,
                                                       const SharedProducts& allProducts)
    : cycle(std::move(cycleText)),
      notAddedProductsQuantity(notAddedQuantity),
      products(allProducts, ProductList::Kind::notAdded) {}

} // namespace quillet
