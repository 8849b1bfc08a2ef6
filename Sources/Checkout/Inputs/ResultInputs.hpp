#pragma once

#include "Checkout/Inputs/ProductList.hpp"

#include <QString>

#include <cstdint>

namespace quillet {

/// Inputs of the result screens. The counters come from the back end. Each record filters the products itself
/// and keeps their order, so every list parameter takes all products of the response.

struct AllProductsAddedFactoryInput {
    AllProductsAddedFactoryInput(QString cycle, std::uint64_t totalAddedProductsPoints,
                                 std::uint64_t addedProductsQuantity, const SharedProducts& products);

    QString cycle;
    std::uint64_t totalAddedProductsPoints;
    std::uint64_t addedProductsQuantity;
    /// The products that were added.
    ProductList products;
};

struct ProductsPartiallyAddedFactoryInput {
    ProductsPartiallyAddedFactoryInput(QString cycle, std::uint64_t totalAddedProductPoints,
                                       std::uint64_t addedProductsQuantity,
                                       std::uint64_t notAddedProductsQuantity,
                                       const SharedProducts& addedProducts,
                                       const SharedProducts& notAddedProducts);

    QString cycle;
    std::uint64_t totalAddedProductPoints;
    std::uint64_t addedProductsQuantity;
    std::uint64_t notAddedProductsQuantity;
    ProductList addedProducts;
    ProductList notAddedProducts;
};

struct NoProductAddedFactoryInput {
    NoProductAddedFactoryInput(QString cycle, std::uint64_t notAddedProductsQuantity,
                               const SharedProducts& products);

    QString cycle;
    std::uint64_t notAddedProductsQuantity;
    /// The products that were not added.
    ProductList products;
};

} // namespace quillet
