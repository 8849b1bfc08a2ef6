#pragma once

#include <chrono>
#include <memory>

namespace quillet::platform {

/// Is told that a clock was set. May be called on any thread; returns at once.
class SessionClockListening {
public:
    virtual ~SessionClockListening() = default;

    virtual void clockDidJump() = 0;
};

/// The clock by which a session keeps its calls' time-outs. Used from any thread, for as long as a session
/// that was made with it has calls.
class SessionClock {
public:
    virtual ~SessionClock() = default;

    /// Never goes back. Its beginning does not matter.
    [[nodiscard]] virtual std::chrono::steady_clock::time_point now() const = 0;

    /// A clock that can be set tells its listeners each time that it was; one that only runs does nothing
    /// here. The listener is not owned.
    virtual void addListener(std::weak_ptr<SessionClockListening> listener) = 0;
};

/// The system's own clock, which nobody sets.
class SystemSessionClock final : public SessionClock {
public:
    [[nodiscard]] std::chrono::steady_clock::time_point now() const override;
    void addListener(std::weak_ptr<SessionClockListening> listener) override;
};

} // namespace quillet::platform
