#pragma once

#include <cstddef>
#include <string>

namespace quillet::benchmarks {

/// A realistic body of open carts: product names with accents and some escapes, prices with two digits, dates
/// with an offset, picture addresses. The bytes are always the same. Each cart has `linesPerCart` lines, of
/// which one to three are benefits.
[[nodiscard]] std::string openCartsBody(std::size_t carts, std::size_t linesPerCart);

} // namespace quillet::benchmarks
