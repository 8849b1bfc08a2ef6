#pragma once

#include "Views/Animation/ViewAnimating.hpp"

#include <vector>

namespace quillet::testing {

/// Animations that the test advances.
class HandDrivenAnimating final : public ViewAnimating {
public:
    struct Animation {
        std::chrono::milliseconds duration;
        std::function<void(double)> step;
        std::function<void()> completion;

        void finish() const {
            step(1);
            completion();
        }
    };

    void animate(std::chrono::milliseconds duration, std::function<void(double)> step,
                 std::function<void()> completion) override {
        running.push_back({duration, std::move(step), std::move(completion)});
    }

    std::vector<Animation> running;
};

} // namespace quillet::testing
