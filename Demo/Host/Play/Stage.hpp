#pragma once

#include "HostApplication.hpp"
#include "Play/ScreenReader.hpp"

#include <chrono>
#include <functional>

namespace demo {

/// The host's window as a play waits for it. Main thread only.
class Stage {
public:
    explicit Stage(HostApplication& host) : host_(host), reader_(*host.phone()) {}

    [[nodiscard]] const ScreenReader& reader() const { return reader_; }
    /// The bar's.
    [[nodiscard]] QString title() const;
    /// No page and no dialog is being animated in or out.
    [[nodiscard]] bool settled() const;

    /// Waits until `done`, for at most `longest`, checking every `glance`. Returns whether `done` became
    /// true.
    static bool wait(std::chrono::milliseconds longest, const std::function<bool()>& done,
                     std::chrono::milliseconds glance = std::chrono::milliseconds(20));
    /// Runs the event loop for so long.
    static void letTimePass(std::chrono::milliseconds time);

private:
    HostApplication& host_;
    ScreenReader reader_;
};

} // namespace demo
