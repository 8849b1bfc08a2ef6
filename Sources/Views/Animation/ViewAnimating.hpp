#pragma once

#include <chrono>
#include <functional>

namespace quillet {

/// Runs an animation on the main thread.
class ViewAnimating {
public:
    virtual ~ViewAnimating() = default;
    /// Calls `step` with a progress from 0 to 1 as time goes by, the last time with exactly 1, then
    /// `completion` once. Returns at once; both run to their end even if the animator is destroyed meanwhile.
    virtual void animate(std::chrono::milliseconds duration, std::function<void(double progress)> step,
                         std::function<void()> completion) = 0;
};

/// Over Qt's animation clock.
class ViewAnimatingWrapper final : public ViewAnimating {
public:
    void animate(std::chrono::milliseconds duration, std::function<void(double progress)> step,
                 std::function<void()> completion) override;
};

} // namespace quillet
