#pragma once

#include "Harness/Options.hpp"

#include <string>

namespace quillet::benchmarks {

/// How the time of a decoding grows with the body, beside that of other parsers: medians in milliseconds.
[[nodiscard]] std::string decodingTimeCurve(const Options& options);

/// How much memory a decoding takes at its peak beyond the body, its records included, beside other parsers.
[[nodiscard]] std::string decodingMemoryCurve(const Options& options);

} // namespace quillet::benchmarks
