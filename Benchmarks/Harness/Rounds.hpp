#pragma once

#include <functional>
#include <vector>

namespace quillet::benchmarks {

/// Measured figures of one kind.
class Samples {
public:
    void add(double figure) { figures_.push_back(figure); }
    [[nodiscard]] bool empty() const { return figures_.empty(); }
    [[nodiscard]] std::size_t size() const { return figures_.size(); }

    /// Of no figures these throw std::logic_error.
    [[nodiscard]] double least() const { return percentile(0); }
    [[nodiscard]] double median() const { return percentile(50); }
    /// The figure below which that share of them lies, in percent; 100 is the highest.
    [[nodiscard]] double percentile(double percent) const;

private:
    std::vector<double> figures_;
};

/// Times that were measured in turns, one of each a round.
struct Rounds {
    Samples ours;
    Samples yardstick;
};

/// Does its work once and returns the time that counts, in any unit. It prepares and cleans up outside that
/// time.
using Measured = std::function<double()>;

/// Measures both in the order ours, theirs, theirs, ours, so that a machine that slows down in a round slows
/// down both alike. A round's figure is the mean of its two. One round more, before the first, warms up.
[[nodiscard]] Rounds inTurns(std::size_t rounds, const Measured& ours, const Measured& theirs);

/// The time that `work` takes, in milliseconds. What it returns is kept from the optimiser, and destroyed
/// later.
template <typename Work>
[[nodiscard]] double milliseconds(Work&& work);

/// CPU time that all threads of the process have taken so far, in milliseconds.
[[nodiscard]] double processCpuMilliseconds();

/// Keeps the calling thread, and those that it starts from now on, on one core. False where the system
/// refuses.
bool pinToOneCore();

} // namespace quillet::benchmarks

#include <chrono>

template <typename Work>
double quillet::benchmarks::milliseconds(Work&& work) {
    using Clock = std::chrono::steady_clock;
    const auto start = Clock::now();
    const auto result = work();
    // A read that the compiler cannot see through, so that it has to make the result.
    asm volatile("" : : "r"(&result) : "memory");
    return std::chrono::duration<double, std::milli>(Clock::now() - start).count();
}
