#include "Platform/Http/Process/OpenSsl.hpp"

#include <openssl/crypto.h>

namespace quillet::platform {

void keepOpenSslToTheEnd() {
    OPENSSL_init_crypto(OPENSSL_INIT_NO_ATEXIT, nullptr);
}

void leaveOpenSsl() {
    OPENSSL_thread_stop();
}

} // namespace quillet::platform
