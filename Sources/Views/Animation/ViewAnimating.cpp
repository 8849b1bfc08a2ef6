#include "Views/Animation/ViewAnimating.hpp"

#include "Platform/Screens/ViewAnimation.hpp"

#include <utility>

namespace quillet {

void ViewAnimatingWrapper::animate(std::chrono::milliseconds duration,
                                   std::function<void(double progress)> step,
                                   std::function<void()> completion) {
    platform::animateView(duration, std::move(step), std::move(completion));
}

} // namespace quillet
