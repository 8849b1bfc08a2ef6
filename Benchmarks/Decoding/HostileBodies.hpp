#pragma once

#include <string>
#include <vector>

namespace quillet::benchmarks {

/// A body that no back end sends and an attacker may.
struct HostileBody {
    std::string name;
    std::string text;
};

/// Bodies of about `bytes` bytes, each of which does one thing to excess.
[[nodiscard]] std::vector<HostileBody> hostileBodies(std::size_t bytes);

} // namespace quillet::benchmarks
