#pragma once

#include "Platform/Http/Curl/CurlTransfer.hpp"
#include "Platform/Http/Process/ProcessEnd.hpp"
#include "Platform/Http/Session/CallReport.hpp"
#include "Platform/Http/URLSessionExchange.hpp"
#include "Quillet/Platform/URLSessionConfiguration.hpp"

#include <chrono>
#include <list>
#include <memory>
#include <mutex>
#include <optional>

namespace quillet::platform {

/// Runs a session's transfers on a background thread. The thread owns the loop. It ends when no call is left
/// and the owner is destroyed. It is detached, so it must not use objects with static storage duration that
/// are destroyed at exit.
class SessionLoop final : public SessionClockListening, public std::enable_shared_from_this<SessionLoop> {
public:
    explicit SessionLoop(URLSessionConfiguration configuration);

    /// Starts a call; the first call starts the thread. May be called on any thread while the owner exists.
    /// If no thread can be started the completion is called at once on the caller's thread. Throws
    /// std::bad_alloc if the call cannot be stored; its completion is then never called.
    void start(URLSessionExchange exchange);

    /// Says that no more calls will be started. Called once, on any thread.
    void ownerIsGone();

    void clockDidJump() override;

private:
    using TimePoint = std::chrono::steady_clock::time_point;

    struct Call {
        URLSessionExchange exchange;
        CallReport report;
        TimePoint deadline;
        std::unique_ptr<CurlTransfer> transfer = nullptr;
    };
    // A list, because libcurl keeps pointers into the call's request, and splicing nodes neither moves them
    // nor allocates.
    using Calls = std::list<Call>;

    void startElsewhere(URLSessionExchange exchange);
    bool startThread();
    void wakeUp();

    // The functions below run on the session's thread only.
    void run() noexcept;
    void beginArrivedCalls();
    void begin(Calls::iterator call);
    std::optional<URLError> beginTransfer(Call& call);
    void endTransfer(Call& call);
    void finishTransferredCalls();
    void finishTransferredCall(Calls::iterator call, CURLcode code);
    void finishOverdueCalls();
    void finishAllCalls(CURLMcode code);
    void finish(Calls::iterator call, URLSessionOutcome outcome);
    [[nodiscard]] bool isNetworkThere(const Call& call);
    template <typename Callback>
    void withoutLock(Callback callback);
    [[nodiscard]] int millisecondsToSleep() const;
    [[nodiscard]] bool endIfDone();

    const URLSessionConfiguration configuration_;

    std::mutex mutex_;
    // Guarded by the mutex. Only the session's thread uses the multi handle; other threads only wake it up.
    Calls arrived_;
    CURLM* multi_ = nullptr;
    bool ownerIsGone_ = false;

    // Used by the session's thread only. The lock is held while libcurl runs, but not while the thread polls
    // or calls code of others.
    ProcessEnd::Lock work_;
    Calls running_;
};

} // namespace quillet::platform
