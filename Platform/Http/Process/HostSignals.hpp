#pragma once

namespace quillet::platform {

/// Blocks, for the calling thread, every signal that is not a fault of its own: the host's handlers run on
/// the host's threads. SIGPIPE in particular, which a peer that closes early can cause, then reaches nobody.
void leaveSignalsToTheHost();

} // namespace quillet::platform
