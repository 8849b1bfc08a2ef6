#pragma once

#include "Quillet/Export.hpp"

#include <functional>
#include <string_view>

namespace quillet {

/// Hook for programming errors, by which the module stops the program. A test or a host can replace it.
struct FatalErrorWrapper {
    /// Takes a message, the source file's name and the line.
    using Closure = std::function<void(std::string_view message, const char* file, unsigned line)>;

    /// Writes "Fatal error: <message>: file <file>, line <line>" to standard error and aborts.
    [[noreturn]] QUILLET_BACKEND_API static void defaultFatalErrorClosure(std::string_view message,
                                                                          const char* file, unsigned line);

    /// The hook that is called; `defaultFatalErrorClosure` until replaced. Replace it only while nothing of
    /// the module runs. A replaced hook should not return; where one does, the caller goes on with a harmless
    /// value that its own comment names, and never with undefined behaviour.
    QUILLET_BACKEND_API static Closure fatalErrorClosure;
};

} // namespace quillet
