#pragma once

#include "Quillet/Platform/URLSessionConfiguration.hpp"

namespace quillet::platform {

/// std::chrono::steady_clock.
class SystemSessionClock final : public SessionClock {
public:
    [[nodiscard]] std::chrono::steady_clock::time_point now() const override;
    void addListener(std::weak_ptr<SessionClockListening> listener) override;
};

} // namespace quillet::platform
