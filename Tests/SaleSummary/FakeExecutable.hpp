#pragma once

#include "Quillet/Testing/RecordingHost.hpp"
#include "Quillet/Workers.hpp"

namespace quillet::testing {

/// A worker that records each run and answers only when the test does.
class FakeExecutable final : public Executable {
public:
    FakeExecutable(Log log, std::string name) : log_(std::move(log)), name_(std::move(name)) {}
    [[nodiscard]] bool isFinishedSuccessfully() const override { return succeeded; }
    void execute() override { log_->push_back(name_); }

    bool succeeded = false;

private:
    Log log_;
    std::string name_;
};

} // namespace quillet::testing
