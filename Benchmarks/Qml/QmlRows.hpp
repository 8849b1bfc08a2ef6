#pragma once

#include "Harness/Options.hpp"
#include "Harness/Row.hpp"

#include <vector>

namespace quillet::benchmarks {

/// What Qt's compiler made of the module's QML when it was built.
[[nodiscard]] std::vector<Row> qmlRows(const Options& options);

} // namespace quillet::benchmarks
