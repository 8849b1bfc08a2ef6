#include "Platform/Http/Process/HostSignals.hpp"

#ifndef _WIN32
#include <csignal>
#include <initializer_list>
#endif

namespace quillet::platform {

void leaveSignalsToTheHost() {
#ifndef _WIN32
    sigset_t signals;
    sigfillset(&signals);
    for (const int fault : {SIGABRT, SIGBUS, SIGFPE, SIGILL, SIGSEGV, SIGTRAP}) {
        sigdelset(&signals, fault);
    }
    pthread_sigmask(SIG_SETMASK, &signals, nullptr);
#endif
}

} // namespace quillet::platform
