#pragma once

#include "Harness/Options.hpp"
#include "Harness/Row.hpp"

#include <vector>

namespace quillet::benchmarks {

/// Decoding the open carts of a consultant with 2,000 customers, beside what others need for the same bytes.
[[nodiscard]] std::vector<Row> decodingRows(const Options& options);

/// What such a decoding takes of memory.
[[nodiscard]] std::vector<Row> decodingMemoryRows(const Options& options);

/// How the time grows with the body's size, and what bodies made to hurt take.
[[nodiscard]] std::vector<Row> decodingGrowthRows(const Options& options);

} // namespace quillet::benchmarks
