#pragma once

#include "Harness/Options.hpp"
#include "Harness/Row.hpp"

#include <vector>

namespace quillet::benchmarks {

/// The loading indicator, beside the one of Qt Quick Controls, and what is left of it once it is hidden.
[[nodiscard]] std::vector<Row> ringRows(const Options& options);

} // namespace quillet::benchmarks
