#pragma once

namespace demo {

/// Counts what Qt and QML complain about, warnings and worse, for as long as it lives; it prints them all the
/// same. One at a time; messages may come from any thread.
class WarningCounter {
public:
    WarningCounter();
    ~WarningCounter();
    WarningCounter(const WarningCounter&) = delete;
    WarningCounter& operator=(const WarningCounter&) = delete;

    [[nodiscard]] static int count();
};

} // namespace demo
