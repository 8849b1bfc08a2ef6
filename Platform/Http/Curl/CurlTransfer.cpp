#include "Platform/Http/Curl/CurlTransfer.hpp"

#include "Platform/Http/Curl/CurlErrorCode.hpp"
#include "Platform/Http/HTTPSyntax.hpp"

#include <algorithm>
#include <new>
#include <utility>

namespace quillet::platform {

std::expected<std::unique_ptr<CurlTransfer>, URLError>
CurlTransfer::create(const URLRequest& request, const URLSessionConfiguration& configuration) {
    std::unique_ptr<CurlTransfer> transfer(new CurlTransfer(configuration.maximumBodyBytes));
    CurlOptions options(transfer->handle());
    options.set(CURLOPT_ERRORBUFFER, transfer->message_.data());
    options.set(CURLOPT_WRITEFUNCTION, &callback<&CurlTransfer::receiveBody>);
    options.set(CURLOPT_WRITEDATA, transfer.get());
    options.set(CURLOPT_HEADERFUNCTION, &callback<&CurlTransfer::receiveHeader>);
    options.set(CURLOPT_HEADERDATA, transfer.get());
    options.set(CURLOPT_SSL_CTX_FUNCTION, &CurlTransfer::tlsBegins);
    options.set(CURLOPT_SSL_CTX_DATA, transfer.get());
    options.setTransport(configuration.connectTimeout);
    options.setTrust(configuration.caBundleFile);
    options.setRoute(configuration.mapping(request.url.host), transfer->connectTo_);
    options.setRequest(request, transfer->headers_);
    if (options.failure() != CURLE_OK) {
        return std::unexpected(transfer->error(options.failure()));
    }
    return transfer;
}

CURLcode CurlTransfer::tlsBegins(CURL* easy, void* tlsContext, void* transfer) {
    auto& self = *static_cast<CurlTransfer*>(transfer);
    self.hasTlsBegun_ = true;
    // Connecting has ended, and only the session's clock counts from here on. This replaces libcurl's default
    // of five minutes as well.
    constexpr long oneDayInSeconds = 24L * 60 * 60;
    if (const CURLcode code = curl_easy_setopt(easy, CURLOPT_CONNECTTIMEOUT, oneDayInSeconds);
        code != CURLE_OK) {
        return code;
    }
    return TlsState::watch(tlsContext, self.newConnection_);
}

bool CurlTransfer::isRequestBegun() const {
    long bytes = 0;
    curl_easy_getinfo(handle(), CURLINFO_REQUEST_SIZE, &bytes);
    return bytes > 0;
}

URLSessionOutcome CurlTransfer::outcome(CURLcode code) {
    if (code != CURLE_OK) {
        return {.error = error(code)};
    }
    if (auto fault = faultOfFraming()) {
        return {.error = std::move(fault)};
    }
    auto body = body_.take();
    if (!body) {
        return {.error = std::move(body).error()};
    }
    return {.data = *std::move(body), .response = response()};
}

// libcurl accepts a response that ends inside its headers, and a body without a length wherever the
// connection is cut.
std::optional<URLError> CurlTransfer::faultOfFraming() const {
    if (isHeadComplete_ && isWithoutBody()) {
        return std::nullopt;
    }
    const std::string coding = headerValues("Transfer-Encoding");
    const bool isChunked = equalIgnoringCase(coding, "chunked");
    if (!isChunked && !coding.empty() && !equalIgnoringCase(coding, "identity")) {
        return URLError{URLError::Code::cannotParseResponse, "The answer's transfer coding is unknown"};
    }
    // A transfer coding, even "identity", overrides the length. libcurl ignores a length that does not fit
    // its own type.
    curl_off_t announced = -1;
    curl_easy_getinfo(handle(), CURLINFO_CONTENT_LENGTH_DOWNLOAD_T, &announced);
    const bool isLengthKept = coding.empty() && announced >= 0;
    const bool isLengthMissed = coding.empty() && announced < 0 && !headerValues("Content-Length").empty();
    const bool isEndedByTls = connection_ && connection_->isEndedProperly && !isLengthMissed;
    if (isHeadComplete_ && (isChunked || isLengthKept || isEndedByTls)) {
        return std::nullopt;
    }
    return URLError{URLError::Code::networkConnectionLost, "The answer was cut off"};
}

HTTPURLResponse CurlTransfer::response() const {
    long status = 0;
    curl_easy_getinfo(handle(), CURLINFO_RESPONSE_CODE, &status);
    return {.statusCode = status};
}

URLError CurlTransfer::error(CURLcode code) {
    if (refusal_) {
        return *std::move(refusal_);
    }
    const std::string_view message = message_[0] ? message_.data() : curl_easy_strerror(code);
    if (code == CURLE_SSL_CONNECT_ERROR && newConnection_->isCertificateRefused) {
        return URLError::of(URLError::Code::serverCertificateUntrusted, message);
    }
    if (code == CURLE_OUT_OF_MEMORY && isRequestBegun() && !isHeadComplete_) {
        // The code of libcurl before 8.6 for a header line of more than 100 KiB.
        return URLError::of(URLError::Code::dataLengthExceedsMaximum,
                            "A line of the answer's head is too long");
    }
    long proxyStatus = 0;
    curl_easy_getinfo(handle(), CURLINFO_HTTP_CONNECTCODE, &proxyStatus);
    if (proxyStatus >= 300) {
        // libcurl calls it a failure to receive.
        return URLError::of(URLError::Code::cannotConnectToHost, message);
    }
    return URLError::of(urlErrorCode(code), message);
}

std::expected<void, URLError> CurlTransfer::receiveHeader(std::string_view line) {
    headerBytes_ += line.size();
    if (headerBytes_ > maximumHeaderBytes) {
        return std::unexpected(
            URLError{URLError::Code::dataLengthExceedsMaximum, "The answer's head is too large"});
    }
    // Headers end with an empty line, those of an informational response too. Trailers do not.
    if (line.starts_with("HTTP/")) {
        isHeadComplete_ = false;
    } else if (!isHeadComplete_ && (line == "\r\n" || line == "\n")) {
        isHeadComplete_ = true;
        connection_ = TlsState::of(handle());
    }
    return {};
}

bool CurlTransfer::isWithoutBody() const {
    long status = 0;
    const char* method = nullptr;
    curl_easy_getinfo(handle(), CURLINFO_RESPONSE_CODE, &status);
    curl_easy_getinfo(handle(), CURLINFO_EFFECTIVE_METHOD, &method);
    return status < 200 || status == 204 || status == 304 || method == std::string_view("HEAD");
}

std::string CurlTransfer::headerValues(const char* name) const {
    std::string values;
    curl_header* field = nullptr;
    for (std::size_t i = 0; curl_easy_header(handle(), name, i, CURLH_HEADER, -1, &field) == CURLHE_OK; ++i) {
        values.append(values.empty() ? "" : ",").append(field->value);
    }
    return values;
}

std::expected<void, URLError> CurlTransfer::receiveBody(std::string_view bytes) {
    if (!std::exchange(hasBody_, true)) {
        if (auto begun = beginBody(); !begun) {
            return begun;
        }
    }
    return body_.append(bytes);
}

std::expected<void, URLError> CurlTransfer::beginBody() {
    curl_off_t announced = 0;
    curl_easy_getinfo(handle(), CURLINFO_CONTENT_LENGTH_DOWNLOAD_T, &announced);
    return body_.begin(headerValues("Content-Encoding"),
                       static_cast<std::uint64_t>(std::max<curl_off_t>(announced, 0)));
}

template <std::expected<void, URLError> (CurlTransfer::*receive)(std::string_view)>
std::size_t CurlTransfer::callback(char* bytes, std::size_t size, std::size_t count, void* transfer) {
    auto& self = *static_cast<CurlTransfer*>(transfer);
    // Exceptions must not propagate through libcurl. It aborts the transfer if the callback returns another
    // number than it was given.
    try {
        auto received = (self.*receive)({bytes, size * count});
        if (received) {
            return size * count;
        }
        self.refusal_ = std::move(received).error();
    } catch (const std::bad_alloc&) {
        self.refusal_ = URLError::outOfMemory();
    }
    return size * count + 1;
}

} // namespace quillet::platform
