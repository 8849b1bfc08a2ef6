#pragma once

#include "Harness/Options.hpp"
#include "Harness/Row.hpp"

#include <vector>

namespace quillet::benchmarks {

/// How long a result takes from a worker's thread to its delegate on the main thread.
[[nodiscard]] std::vector<Row> deliveryRows(const Options& options);

} // namespace quillet::benchmarks
