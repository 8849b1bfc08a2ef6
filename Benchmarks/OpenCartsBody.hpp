#pragma once

#include <cstddef>
#include <string>

namespace quillet::benchmarks {

/// A body of open carts as a back end would write it: product names with accents and some escapes, prices
/// with two digits, dates with an offset, picture addresses. The same bytes every time. Each cart has
/// `linesPerCart` lines, of which one to three are benefits.
[[nodiscard]] std::string openCartsBody(std::size_t carts, std::size_t linesPerCart);

} // namespace quillet::benchmarks
