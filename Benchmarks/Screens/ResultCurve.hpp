#pragma once

#include "Harness/Options.hpp"

#include <string>

namespace quillet::benchmarks {

/// How the time from a response to the result's first frame grows with its products, and its parts: medians
/// in milliseconds.
[[nodiscard]] std::string resultOpenedCurve(const Options& options);

} // namespace quillet::benchmarks
