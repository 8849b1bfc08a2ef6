#pragma once

#include "Harness/Options.hpp"
#include "Harness/Row.hpp"

#include <vector>

namespace quillet::benchmarks {

/// A whole call to a server on this machine, beside one by bare libcurl.
[[nodiscard]] std::vector<Row> callRows(const Options& options);

} // namespace quillet::benchmarks
