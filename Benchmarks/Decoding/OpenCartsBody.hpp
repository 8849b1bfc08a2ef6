#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

namespace quillet::benchmarks {

/// A realistic body of open carts: product names with accents and some escapes, prices with two digits, dates
/// with an offset, picture addresses. The same seed makes the same bytes. Each cart has `linesPerCart` lines,
/// of which one to three are benefits.
[[nodiscard]] std::string openCartsBody(std::uint32_t seed, std::size_t carts, std::size_t linesPerCart);

} // namespace quillet::benchmarks
