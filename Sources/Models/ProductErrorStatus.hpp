#pragma once

#include "Platform/Json/TextForm.hpp"

#include <optional>
#include <string_view>

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

/// The status that the back end names `text`; letter case counts. A name not known here reads as `notFound`,
/// so that a new one never fails a whole response.
[[nodiscard]] ProductErrorStatus productErrorStatus(std::string_view text);

template <>
struct platform::json::TextForm<ProductErrorStatus> {
    static constexpr std::string_view expected = "text";
    static std::optional<ProductErrorStatus> read(std::string_view text) { return productErrorStatus(text); }
};

} // namespace quillet
