#pragma once

#include "Harness/Options.hpp"
#include "Harness/Row.hpp"

#include <vector>

namespace quillet::benchmarks {

/// Scrolling a result of ten thousand products, beside a plain list with as many boxes and texts a row.
[[nodiscard]] std::vector<Row> scrollRows(const Options& options);

} // namespace quillet::benchmarks
