#pragma once

namespace quillet::platform {

/// Blocks all asynchronous signals for the calling thread, so that the host's handlers run on the host's
/// threads. A SIGPIPE caused by a peer that closes early is blocked too.
void leaveSignalsToTheHost();

} // namespace quillet::platform
