#pragma once

#include "Network/Session/URLSessionDataTaskCreating.hpp"

#include <vector>

namespace quillet::testing {

/// Keeps every call that is made and started, for the test to answer by calling its completion.
class FakeSession final : public URLSessionDataTaskCreating {
public:
    struct Call {
        platform::URLRequest request;
        platform::URLSessionDataTaskCompletion complete;
    };

    [[nodiscard]] std::unique_ptr<URLSessionDataTaskResumable>
    dataTask(const platform::URLRequest& request,
             platform::URLSessionDataTaskCompletion completionHandler) const override {
        return std::make_unique<Task>(*this, Call{request, std::move(completionHandler)});
    }

    mutable std::vector<Call> started;

private:
    class Task final : public URLSessionDataTaskResumable {
    public:
        Task(const FakeSession& session, Call call) : session_(session), call_(std::move(call)) {}
        void resume() override { session_.started.push_back(std::move(call_)); }

    private:
        const FakeSession& session_;
        Call call_;
    };
};

} // namespace quillet::testing
