#pragma once

#include "Harness/Options.hpp"
#include "Harness/Row.hpp"

#include <vector>

namespace quillet::benchmarks {

/// From both answers to the summary's first frame, beside the first frame of a page with a bare list.
[[nodiscard]] std::vector<Row> summaryRows(const Options& options);

/// Opening and closing the module thousands of times: whether the last openings cost what the first did, in
/// time and in memory.
[[nodiscard]] std::vector<Row> openingsRows(const Options& options);

} // namespace quillet::benchmarks
