#pragma once

namespace quillet {

/// Makes the QML of the sale summary known to the process. Cheap; may be called again.
void useSaleSummaryQml();

} // namespace quillet
