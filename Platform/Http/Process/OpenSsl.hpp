#pragma once

namespace quillet::platform {

/// Initialises OpenSSL without its exit handler. That handler would free OpenSSL when main returns, while
/// detached session threads may still use it. Call it before any other use of OpenSSL; it may be called again
/// and on any thread.
void keepOpenSslToTheEnd();

/// Frees OpenSSL's thread-local data of the calling thread now, and not in a thread-exit handler.
void leaveOpenSsl();

} // namespace quillet::platform
