#include "Samples.hpp"
#include "Tables.hpp"

#include <algorithm>
#include <ostream>
#include <stdexcept>

namespace quillet::docs {

namespace {

using Code = platform::URLError::Code;

// No default in these: a new value does not compile before it is told of.
Told told(Code code) {
    switch (code) {
    case Code::unknown:
        return {"unknown", "none of the others, such as no memory for the request",
                "memory and threads; the message tells more"};
    case Code::badURL:
        return {"badURL", "the client refuses the address", "the length of the cart's identifier"};
    case Code::timedOut:
        return {"timedOut", "the call was not over within its minute",
                "the server, or a network that drops packets"};
    case Code::cannotFindHost:
        return {"cannotFindHost", "the host's name has no address",
                "the gateway's host name in the build settings, and the name server"};
    case Code::cannotConnectToHost:
        return {"cannotConnectToHost", "nobody accepts the connection",
                "that the gateway, or the proxy, listens"};
    case Code::networkConnectionLost:
        return {"networkConnectionLost", "the connection ended before the answer was complete",
                "the server's log; a POST may have been carried out"};
    case Code::notConnectedToInternet:
        return {"notConnectedToInternet", "the device has no network", "nothing"};
    case Code::cannotDecodeContentData:
        return {"cannotDecodeContentData", "the body's compression is damaged", "the server's compression"};
    case Code::cannotParseResponse:
        return {"cannotParseResponse", "what came is not HTTP", "what answers on the port"};
    case Code::dataLengthExceedsMaximum:
        return {"dataLengthExceedsMaximum", "body or headers are larger than the client takes",
                "`maximumBodyBytes`, and why the answer is so large"};
    case Code::secureConnectionFailed:
        return {"secureConnectionFailed", "TLS failed, but not for the certificate",
                "TLS versions of both sides; libcurl's TLS library, which the message names"};
    case Code::serverCertificateUntrusted:
        return {"serverCertificateUntrusted",
                "the certificate is of no trusted authority, not in force, or for another host",
                "`caBundleFile`, the certificate's names and dates, the device's clock"};
    case Code::cannotOpenFile:
        return {"cannotOpenFile", "the file of certificate authorities cannot be read",
                "that `caBundleFile` exists and can be read"};
    }
    return {};
}

// One function for each alternative, so that a new one does not compile before it is told of.
struct TellError {
    Told operator()(NetworkServiceError error) const {
        switch (error) {
        case NetworkServiceError::invalidUrl:
            return {"NetworkServiceError::invalidUrl", "host, path or query make no address",
                    "the build's gateway host and the cart's identifier"};
        }
        return {};
    }
    Told operator()(const platform::EncodingError&) const {
        return {"platform::EncodingError",
                "text that is not UTF-8, or has a line break where a header cannot",
                "the value at its path, as the host passed it"};
    }
    Told operator()(const platform::URLError&) const {
        return {"platform::URLError", "the exchange brought no complete answer", "its code, below"};
    }
    Told operator()(const ClientError&) const {
        return {"ClientError", "status 400 to 499, with the body that goes with it",
                "`error` and `details`, and the row of its status below"};
    }
    Told operator()(const ServerError&) const {
        return {"ServerError", "status 500 to 599, with the body that goes with it",
                "`error.message`, the back end's machine-readable code"};
    }
    Told operator()(const HttpStatusCodeError&) const {
        return {"HttpStatusCodeError", "an error status whose body is absent or of another form",
                "what answers in the back end's place, such as a proxy"};
    }
};

} // namespace

std::vector<ServiceError> allErrors() {
    std::vector<ServiceError> errors{
        NetworkServiceError::invalidUrl,
        platform::EncodingError{"X-Provider"},
        platform::URLError{Code::timedOut, "Timeout was reached"},
        ClientError{"no such cart", "Not Found", 404, "/path"},
        ServerError{{{}, 422, "ERROR_CART_OTHER_CONSULTANT"}, 500, "/path"},
        HttpStatusCodeError{502},
    };
    std::vector<bool> seen(std::variant_size_v<ServiceError>);
    for (const ServiceError& error : errors) {
        seen[error.index()] = true;
    }
    if (std::ranges::count(seen, true) != static_cast<int>(seen.size())) {
        throw std::logic_error("allErrors lacks an alternative of ServiceError");
    }
    return errors;
}

std::string nameOf(const ServiceError& error) {
    return '`' + std::visit(TellError(), error).name + '`';
}

std::vector<Code> allCodes() {
    return valuesBetween<Code>(-1, -4000, [](Code code) { return !told(code).name.empty(); });
}

void printErrors(std::ostream& out) {
    printHead(out, {"`ServiceError` alternative", "Meaning", "`description(error)`, for example", "Check"});
    for (const ServiceError& error : allErrors()) {
        const Told row = std::visit(TellError(), error);
        printRow(out, {nameOf(error), row.meaning, description(error), row.check});
    }
}

void printErrorCodes(std::ostream& out) {
    printHead(out, {"Code", "`platform::URLError::Code`", "Meaning", "The first screen shows", "Check"});
    for (const Code code : allCodes()) {
        const Told row = told(code);
        printRow(out, {std::to_string(static_cast<int>(code)), '`' + row.name + '`', row.meaning,
                       shownForError(platform::URLError{code, ""}, 0), row.check});
    }
}

} // namespace quillet::docs
