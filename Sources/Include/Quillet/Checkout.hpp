#pragma once

#include "Quillet/Export.hpp"
#include "Quillet/Orders.hpp"
#include "Quillet/Platform/CodingErrors.hpp"
#include "Quillet/Platform/Decimal.hpp"

#include <cstdint>
#include <expected>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace quillet {

/// Whether a product was added to the consultant's cart, and if not, why.
enum class ProductErrorStatus {
    /// The product was added.
    none,
    /// Unavailable by stock.
    unavailable,
    /// Unavailable by quota.
    quantityError,
    /// Not found.
    notFound,
};

/// One product of a checkout.
struct Product {
    std::uint64_t productCode = 0;
    /// The product's name.
    std::string description;
    ProductErrorStatus status = ProductErrorStatus::none;
    /// Number of units.
    std::uint64_t quantity = 0;
    /// Price of all units.
    platform::Decimal totalPrice;
    /// Points of one unit; absent when the back end sends none.
    std::optional<std::uint64_t> unitPoints;
    /// Points of all units.
    std::uint64_t totalPoints = 0;

    bool operator==(const Product&) const = default;
};

/// The counters of one checkout, as the back end counts them; nothing checks that they agree with each other.
struct Summary {
    std::uint64_t allItems = 0;
    /// Items not added to the consultant's cart.
    std::uint64_t errorItems = 0;
    std::uint64_t addedItems = 0;
    std::uint64_t allPoints = 0;
    /// Points of the items added.
    std::uint64_t addedPoints = 0;
    std::uint64_t addedProducts = 0;
    /// Products not added.
    std::uint64_t errorProducts = 0;

    bool operator==(const Summary&) const = default;
};

/// The overall verdict of a checkout. Compares and switches like the enumeration inside.
class CheckoutResponseMessage {
public:
    enum Case {
        /// Every product was added to the consultant's cart.
        cartSubmittedSuccess,
        /// Some products were added, some not.
        cartSubmittedPartialSuccess,
        /// No product was added.
        cartSubmittedError,
    };

    /// The verdict received is none of the three.
    struct CodingError {
        /// "Error decoding " and the received text as a list entry: a hyphen, a blank, the text in quotation
        /// marks and a line feed. Unlike a DecodingError it does repeat what was received.
        std::string decoding;

        bool operator==(const CodingError&) const = default;
    };

    constexpr CheckoutResponseMessage(Case value) : case_(value) {}
    constexpr operator Case() const { return case_; }

    /// The verdict that the back end names `text`; letter case counts.
    [[nodiscard]] QUILLET_BACKEND_API static std::expected<CheckoutResponseMessage, CodingError>
    create(std::string_view text);

private:
    Case case_;
};

/// Body of the answer to a checkout.
struct CheckoutResponse {
    /// The reply had no body at all.
    enum class CodingError { emptyData };
    using Error = std::variant<CodingError, CheckoutResponseMessage::CodingError, platform::DecodingError>;

    /// Identifier of the order that the checkout produced.
    std::string submittedOrderId;
    Consultant consultant;
    /// The overall verdict.
    CheckoutResponseMessage message = CheckoutResponseMessage::cartSubmittedError;
    Summary summary;
    /// Every product of the checkout, in the order received.
    std::vector<Product> products;

    /// Decodes a reply's body. An absent body and an unknown verdict are errors of their own; an empty body
    /// is invalid JSON. May be called on any thread.
    [[nodiscard]] QUILLET_BACKEND_API static std::expected<CheckoutResponse, Error>
    create(const std::optional<std::string>& data);

    bool operator==(const CheckoutResponse&) const = default;
};

} // namespace quillet
