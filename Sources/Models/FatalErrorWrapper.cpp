#include "Quillet/FatalErrorWrapper.hpp"

#include <cstdio>
#include <cstdlib>

namespace quillet {

void FatalErrorWrapper::defaultFatalErrorClosure(std::string_view message, const char* file, unsigned line) {
    std::fprintf(stderr, "Fatal error: %.*s: file %s, line %u\n", static_cast<int>(message.size()),
                 message.data(), file, line);
    std::abort();
}

FatalErrorWrapper::Closure FatalErrorWrapper::fatalErrorClosure = defaultFatalErrorClosure;

} // namespace quillet
