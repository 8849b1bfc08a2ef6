#pragma once

#include <string>
#include <vector>

namespace quillet::testing {

/// Whether this machine lets a process create a network namespace.
[[nodiscard]] bool mayMakeNetworkNamespace();

/// Moves the process, which must be single-threaded, into a new network namespace with loopback, and runs
/// `ip` there with each of `commands` as arguments. Names are resolved from `hosts` only, the content of a
/// hosts(5) file. Throws on failure.
void enterNetworkNamespace(const std::string& hosts, const std::vector<std::string>& commands);

} // namespace quillet::testing
