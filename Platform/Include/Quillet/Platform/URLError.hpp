#pragma once

#include "Quillet/Export.hpp"

#include <cstdint>
#include <string>
#include <string_view>

namespace quillet::platform {

/// An exchange that brought no complete answer. The codes are those that the platform's URL loading uses.
struct URLError {
    enum class Code : std::int64_t {
        /// None of the others, such as no memory for the request.
        unknown = -1,
        /// The client refuses the address, for example because of its length.
        badURL = -1000,
        /// The call was not over within the request's time-out.
        timedOut = -1001,
        cannotFindHost = -1003,
        /// The host, or the proxy before it, does not accept the connection.
        cannotConnectToHost = -1004,
        /// The connection was closed or reset before the answer was complete.
        networkConnectionLost = -1005,
        /// The device has no network.
        notConnectedToInternet = -1009,
        /// The body's compression is damaged.
        cannotDecodeContentData = -1016,
        /// What came is not HTTP.
        cannotParseResponse = -1017,
        /// Body or headers are larger than the client takes.
        dataLengthExceedsMaximum = -1103,
        /// The TLS handshake failed for another reason than the certificate.
        secureConnectionFailed = -1200,
        /// The certificate is not from a trusted authority, not in force, or not for this host.
        serverCertificateUntrusted = -1202,
        /// The configured file of certificate authorities cannot be read.
        cannotOpenFile = -3001,
    };

    Code code = Code::unknown;
    /// One line for a developer, from the HTTP client; may name host and file, never a header or a body.
    std::string message;

    /// Never throws: where there is no memory for the message, the error goes without one.
    [[nodiscard]] QUILLET_BACKEND_API static URLError of(Code code, std::string_view message) noexcept;
    /// For what could not be done because an allocation failed.
    [[nodiscard]] QUILLET_BACKEND_API static URLError outOfMemory() noexcept;

    bool operator==(const URLError&) const = default;
};

[[nodiscard]] inline std::string description(const URLError& error) {
    return error.message;
}

} // namespace quillet::platform
