#include "Fuzzing/Reference/Date.hpp"
#include "Fuzzing/Target.hpp"
#include "Models/RecordFields.hpp"

namespace quillet::fuzzing {

static const Target target("date", [](const std::string& text) {
    require(iso8601Full(text) == referenceDate(text), "a date is the instant that the calendar says");
});

} // namespace quillet::fuzzing
