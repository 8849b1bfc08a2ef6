#pragma once

#include "Harness/Options.hpp"
#include "Harness/Row.hpp"

#include <vector>

namespace quillet::benchmarks {

/// Opening a result, and opening and closing its sections: with ten thousand products and with ten.
[[nodiscard]] std::vector<Row> resultRows(const Options& options);

} // namespace quillet::benchmarks
