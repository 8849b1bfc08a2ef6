#pragma once

#include "Quillet/Orders.hpp"

#include <QString>

namespace quillet {

/// The day of a moment as "dd/MM/yyyy", in UTC. Days of a cycle are the back end's days, wherever the device
/// is.
[[nodiscard]] QString utcDay(Date moment);

/// The same in the time zone of the device: the day on which the consultant's customer sent her order.
[[nodiscard]] QString localDay(Date moment);

} // namespace quillet
