#pragma once

#include "Harness/Options.hpp"
#include "Harness/Row.hpp"

#include <vector>

namespace quillet::benchmarks {

/// Whole programs that embed the module, beside one with an empty window: their start, their memory, and the
/// size of the libraries.
[[nodiscard]] std::vector<Row> programRows(const Options& options);

} // namespace quillet::benchmarks
