#pragma once

namespace quillet::platform {

/// Makes OpenSSL ready and keeps it so until the process is gone. Left alone, it would take itself down when
/// main returns, under the feet of sessions whose threads nobody waits for. To be called before OpenSSL is
/// used in any way; may be called again and on any thread.
void keepOpenSslToTheEnd();

/// Gives back what OpenSSL holds for the calling thread, which would otherwise happen after the thread's last
/// line.
void leaveOpenSsl();

} // namespace quillet::platform
