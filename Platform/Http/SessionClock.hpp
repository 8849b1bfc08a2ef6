#pragma once

#include <chrono>
#include <memory>

namespace quillet::platform {

/// Is notified when a clock was set. May be called on any thread; returns at once.
class SessionClockListening {
public:
    virtual ~SessionClockListening() = default;

    virtual void clockDidJump() = 0;
};

/// The clock that a session measures its calls' time-outs with. Used on any thread while such a session has
/// calls.
class SessionClock {
public:
    virtual ~SessionClock() = default;

    /// Monotonic, from an arbitrary origin.
    [[nodiscard]] virtual std::chrono::steady_clock::time_point now() const = 0;

    /// A clock that can be set notifies its listeners; a clock that cannot does nothing here. The listener is
    /// not owned.
    virtual void addListener(std::weak_ptr<SessionClockListening> listener) = 0;
};

/// std::chrono::steady_clock.
class SystemSessionClock final : public SessionClock {
public:
    [[nodiscard]] std::chrono::steady_clock::time_point now() const override;
    void addListener(std::weak_ptr<SessionClockListening> listener) override;
};

} // namespace quillet::platform
