#pragma once

#include "Platform/Http/URLSessionExchange.hpp"
#include "Quillet/Platform/URLSessionConfiguration.hpp"
#include "Quillet/Testing/ManualClock.hpp"
#include "Support/FaultServer.hpp"
#include "Support/Recorder.hpp"

#include <algorithm>

namespace quillet::testing {

inline constexpr auto gatewayHost = "gateway.test";

/// A fault server in the place of `gatewayHost`, and the configuration that leads a session to it.
struct SandboxedSession {
    ServerPlace serverPlace = {};
    TestAuthority authority{};
    FaultServer server{authority.serverContext(gatewayHost), serverPlace};
    std::shared_ptr<ManualClock> clock = std::make_shared<ManualClock>();
    platform::URLSessionConfiguration configuration{
        .caBundleFile = authority.bundleFile(),
        .hostMappings = {{.host = gatewayHost, .address = "127.0.0.1", .port = server.port()}},
        .clock = clock,
    };
};

/// Outcomes of a session's calls.
class CallRecorder : public Recorder<platform::URLSessionOutcome> {
public:
    [[nodiscard]] platform::URLSessionDataTaskCompletion completion() {
        return [recorder = *this](auto data, auto response, auto error) mutable {
            recorder.record({std::move(data), std::move(response), std::move(error)});
        };
    }
};

/// A network path that is there, unless the test answers otherwise.
class FakeNetworkPath final : public platform::NetworkPathMonitoring {
public:
    using Answer = std::function<bool(const std::string& host)>;
    explicit FakeNetworkPath(Answer answer = [](auto&) { return true; }) : answer_(std::move(answer)) {}

    [[nodiscard]] bool isSatisfied(const std::string& host, bool isMapped) const override {
        asked.record({host + (isMapped ? " mapped" : "")});
        return answer_(host);
    }

    /// The hosts asked about.
    mutable Recorder<std::string> asked;

private:
    Answer answer_;
};

/// The beginnings and ends of calls, numbered from the first one on.
class TrafficLog final : public platform::URLSessionObserving {
public:
    void willSend(std::uint64_t exchange, const platform::URLRequest& request) override {
        first_ = std::min(first_, exchange);
        lines.record(std::to_string(exchange - first_) + " " + request.httpMethod.value_or("") + " " +
                     request.url.absoluteString());
    }
    void didEnd(std::uint64_t exchange, const platform::URLRequest&,
                const platform::URLSessionExchangeEnd& end) override {
        const auto code = end.errorCode ? static_cast<std::int64_t>(*end.errorCode) : 0;
        lines.record(std::to_string(exchange - first_) + " ended " + std::to_string(end.statusCode) + " " +
                     std::to_string(code) + " " + std::to_string(end.duration.count()));
    }

    Recorder<std::string> lines;

private:
    std::uint64_t first_ = UINT64_MAX;
};

} // namespace quillet::testing
