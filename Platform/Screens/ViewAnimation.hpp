#pragma once

#include <chrono>
#include <functional>

namespace quillet::platform {

/// Calls `step` with a progress from 0 to 1 as time goes by on Qt's animation clock, the last time with
/// exactly 1, then `completion` once, which may run an event loop. Returns at once. Main thread only.
void animateView(std::chrono::milliseconds duration, std::function<void(double progress)> step,
                 std::function<void()> completion);

} // namespace quillet::platform
