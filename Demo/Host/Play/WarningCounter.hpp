#pragma once

namespace demo {

/// Counts messages of Qt and QML from warnings up while it exists; it still prints them. Only one may exist
/// at a time. Messages may come from any thread.
class WarningCounter {
public:
    WarningCounter();
    ~WarningCounter();
    WarningCounter(const WarningCounter&) = delete;
    WarningCounter& operator=(const WarningCounter&) = delete;

    [[nodiscard]] static int count();
};

} // namespace demo
