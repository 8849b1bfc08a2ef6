#pragma once

#include "Quillet/Checkout.hpp"

#include <QString>

#include <cstdint>
#include <vector>

namespace quillet {

/// Inputs of the result screens. The counters come from the back end. Each record filters the products itself
/// and keeps their order, so every list parameter takes all products of the response.

struct AllProductsAddedFactoryInput {
    AllProductsAddedFactoryInput(QString cycle, std::uint64_t totalAddedProductsPoints,
                                 std::uint64_t addedProductsQuantity, const std::vector<Product>& products);

    QString cycle;
    std::uint64_t totalAddedProductsPoints;
    std::uint64_t addedProductsQuantity;
    /// The products that were added.
    std::vector<Product> products;
};

struct ProductsPartiallyAddedFactoryInput {
    ProductsPartiallyAddedFactoryInput(QString cycle, std::uint64_t totalAddedProductPoints,
                                       std::uint64_t addedProductsQuantity,
                                       std::uint64_t notAddedProductsQuantity,
                                       const std::vector<Product>& addedProducts,
                                       const std::vector<Product>& notAddedProducts);

    QString cycle;
    std::uint64_t totalAddedProductPoints;
    std::uint64_t addedProductsQuantity;
    std::uint64_t notAddedProductsQuantity;
    std::vector<Product> addedProducts;
    std::vector<Product> notAddedProducts;
};

struct NoProductAddedFactoryInput {
    NoProductAddedFactoryInput(QString cycle, std::uint64_t notAddedProductsQuantity,
                               const std::vector<Product>& products);

    QString cycle;
    std::uint64_t notAddedProductsQuantity;
    /// The products that were not added.
    std::vector<Product> products;
};

} // namespace quillet
