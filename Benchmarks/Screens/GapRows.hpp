#pragma once

#include "Harness/Options.hpp"
#include "Harness/Row.hpp"

#include <vector>

namespace quillet::benchmarks {

/// For how long the main thread does nothing else while the largest bodies come, are shown and go.
[[nodiscard]] std::vector<Row> gapRows(const Options& options);

} // namespace quillet::benchmarks
