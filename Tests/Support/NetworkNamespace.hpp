#pragma once

#include <string>
#include <vector>

namespace quillet::testing {

/// Whether this machine lets a process have a network of its own.
[[nodiscard]] bool mayMakeNetworkNamespace();

/// Gives the process, which must have one thread only, a network of its own: loopback, then what the
/// arguments of `ip` in `commands` make of it. Names are found in `hosts`, the content of a file like
/// /etc/hosts, and nowhere else. Throws where that fails.
void enterNetworkNamespace(const std::string& hosts, const std::vector<std::string>& commands);

} // namespace quillet::testing
