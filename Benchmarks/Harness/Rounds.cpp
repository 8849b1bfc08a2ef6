#include "Harness/Rounds.hpp"

#include <sched.h>

#include <algorithm>
#include <cmath>
#include <ctime>
#include <stdexcept>

namespace quillet::benchmarks {

double Samples::percentile(double percent) const {
    if (figures_.empty()) {
        throw std::logic_error("Nothing was measured.");
    }
    auto sorted = figures_;
    const double last = static_cast<double>(sorted.size() - 1);
    const auto position = static_cast<std::ptrdiff_t>(std::lround(last * percent / 100));
    std::nth_element(sorted.begin(), sorted.begin() + position, sorted.end());
    return sorted[static_cast<std::size_t>(position)];
}

Rounds inTurns(std::size_t rounds, const Measured& ours, const Measured& theirs) {
    Rounds result;
    for (std::size_t round = 0; round <= rounds; ++round) {
        const double first = ours();
        const double second = theirs();
        const double third = theirs();
        const double fourth = ours();
        if (round > 0) {
            result.ours.add((first + fourth) / 2);
            result.yardstick.add((second + third) / 2);
        }
    }
    return result;
}

double processCpuMilliseconds() {
    timespec time{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_nsec) / 1e6;
}

bool pinToOneCore() {
    cpu_set_t cores;
    CPU_ZERO(&cores);
    // The last one: the first usually serves the interrupts.
    cpu_set_t allowed;
    if (sched_getaffinity(0, sizeof(allowed), &allowed) != 0) {
        return false;
    }
    for (int core = CPU_SETSIZE - 1; core >= 0; --core) {
        if (CPU_ISSET(core, &allowed)) {
            CPU_SET(core, &cores);
            return sched_setaffinity(0, sizeof(cores), &cores) == 0;
        }
    }
    return false;
}

} // namespace quillet::benchmarks
