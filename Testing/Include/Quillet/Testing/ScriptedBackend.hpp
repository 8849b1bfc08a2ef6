#pragma once

#include "Quillet/Platform/URLLoading.hpp"
#include "Quillet/Testing/ManualClock.hpp"

#include <chrono>
#include <cstdint>
#include <deque>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <vector>

namespace quillet::testing {

/// The three calls to the back end.
enum class Call { associate, getOpenOrders, checkout };

/// The body of a call that goes well: an order of three products, and a checkout that adds two of them.
[[nodiscard]] std::string sampleBody(Call call);

/// How the back end answers one call.
struct Reply {
    std::int64_t status = 200;
    std::string body = {};
    /// By the back end's clock, from the start of the call.
    std::chrono::milliseconds after{0};
    /// In place of an answer, such as `notConnectedToInternet`.
    std::optional<platform::URLError> error = std::nullopt;

    [[nodiscard]] static Reply sample(Call call) { return {.body = sampleBody(call)}; }
    /// The call ends by its time-out, once the clock has passed it.
    [[nodiscard]] static Reply never() { return {.after = std::chrono::hours(24)}; }
};

/// A back end without network: it answers each kind of call by its script, and goes on with the script's last
/// reply; without a script, with the sample. Calls are answered at once, or within `clock()->advance()`.
/// Threads: any.
class ScriptedBackend final : public platform::URLLoading,
                              public platform::SessionClockListening,
                              public std::enable_shared_from_this<ScriptedBackend> {
public:
    /// Makes a back end and has all sessions made from now on use it and its clock, until `uninstall`.
    [[nodiscard]] static std::shared_ptr<ScriptedBackend> install();
    /// Sessions made from now on use the network. Those that exist keep the back end.
    static void uninstall();

    void script(Call call, std::deque<Reply> replies);

    /// The requests so far, in order.
    [[nodiscard]] std::vector<platform::URLRequest> requests() const;
    [[nodiscard]] const std::shared_ptr<ManualClock>& clock() const { return clock_; }

    void load(const platform::URLRequest& request,
              platform::URLSessionDataTaskCompletion completion) override;
    void clockDidJump() override;

private:
    struct Pending {
        Reply reply;
        platform::URLSessionDataTaskCompletion completion;
    };

    Reply next(Call call);

    mutable std::mutex mutex_;
    std::shared_ptr<ManualClock> clock_ = std::make_shared<ManualClock>();
    std::map<Call, std::deque<Reply>> scripts_;
    std::vector<platform::URLRequest> requests_;
    /// By the time at which they are due; those of one time in their order.
    std::multimap<std::chrono::steady_clock::time_point, Pending> pending_;
};

} // namespace quillet::testing
