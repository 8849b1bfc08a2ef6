#pragma once

#include "Quillet/Platform/URLSessionConfiguration.hpp"
#include "Support/Recorder.hpp"

#include <concepts>
#include <functional>
#include <string>
#include <utility>

namespace quillet::testing {

/// Answers with the test's value.
class FakeNetworkPath final : public platform::NetworkPathMonitoring {
public:
    using Answer = std::function<bool(const std::string& host, bool isMapped)>;

    explicit FakeNetworkPath(std::same_as<bool> auto isSatisfied)
        : FakeNetworkPath([isSatisfied](const std::string&, bool) { return isSatisfied; }) {}
    explicit FakeNetworkPath(Answer answer) : answer_(std::move(answer)) {}

    [[nodiscard]] bool isSatisfied(const std::string& host, bool isMapped) const override {
        asked.record({host + (isMapped ? " mapped" : "")});
        return answer_(host, isMapped);
    }

    /// The hosts asked about.
    mutable Recorder<std::string> asked;

private:
    Answer answer_;
};

} // namespace quillet::testing
