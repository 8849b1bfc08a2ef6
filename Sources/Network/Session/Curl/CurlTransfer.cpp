#include "Network/Session/Curl/CurlTransfer.hpp"

#include "Network/Session/Curl/CurlErrorCode.hpp"
#include "Network/Session/Curl/CurlOptions.hpp"

#include <algorithm>
#include <new>
#include <utility>

namespace quillet {

std::expected<std::unique_ptr<CurlTransfer>, URLError>
CurlTransfer::create(const URLRequest& request, const URLSessionConfiguration& configuration) {
    const auto* const mapping = configuration.mapping(request.url.host);
    std::unique_ptr<CurlTransfer> transfer(
        new CurlTransfer(mapping != nullptr, configuration.maximumBodyBytes));
    CurlOptions options(transfer->easy_);
    options.set(CURLOPT_ERRORBUFFER, transfer->message_.data());
    options.set(CURLOPT_WRITEFUNCTION, &callback<&CurlTransfer::receiveBody>);
    options.set(CURLOPT_WRITEDATA, transfer.get());
    options.set(CURLOPT_HEADERFUNCTION, &callback<&CurlTransfer::receiveHeader>);
    options.set(CURLOPT_HEADERDATA, transfer.get());
    options.set(CURLOPT_SSL_CTX_FUNCTION, &TlsState::watch);
    options.set(CURLOPT_SSL_CTX_DATA, &transfer->newConnection_);
    options.setTransport();
    options.setTrust(configuration.caBundleFile);
    options.setRoute(mapping, transfer->connectTo_);
    options.setRequest(request, transfer->headers_);
    if (options.failure() != CURLE_OK) {
        return std::unexpected(transfer->error(options.failure()));
    }
    return transfer;
}

CurlTransfer::~CurlTransfer() {
    curl_easy_cleanup(easy_);
    curl_slist_free_all(headers_);
    curl_slist_free_all(connectTo_);
}

URLSessionOutcome CurlTransfer::outcome(CURLcode code) {
    if (code != CURLE_OK) {
        return {.error = error(code)};
    }
    // libcurl takes an answer that ends within its head for a whole one too.
    if (!isHeadComplete_ || (delimiter_ && !delimiter_->isEndedProperly)) {
        return {.error = URLError{URLError::Code::networkConnectionLost, "The answer was cut off"}};
    }
    auto body = body_.take();
    if (!body) {
        return {.error = std::move(body).error()};
    }
    return {.data = *std::move(body), .response = response()};
}

HTTPURLResponse CurlTransfer::response() const {
    long status = 0;
    curl_easy_getinfo(easy_, CURLINFO_RESPONSE_CODE, &status);
    return {.statusCode = status};
}

URLError CurlTransfer::error(CURLcode code) const {
    if (refusal_) {
        return *refusal_;
    }
    long osError = 0;
    curl_easy_getinfo(easy_, CURLINFO_OS_ERRNO, &osError);
    const std::string message = message_[0] ? message_.data() : curl_easy_strerror(code);
    if (code == CURLE_SSL_CONNECT_ERROR && newConnection_->isCertificateRefused) {
        return {URLError::Code::serverCertificateUntrusted, message};
    }
    // The address that a host is mapped to says nothing about the network.
    return {urlErrorCode(code, isMapped_ ? 0 : osError), message};
}

std::expected<void, URLError> CurlTransfer::receiveHeader(std::string_view line) {
    headerBytes_ += line.size();
    if (headerBytes_ > maximumHeaderBytes) {
        return std::unexpected(
            URLError{URLError::Code::dataLengthExceedsMaximum, "The answer's head is too large"});
    }
    // Each head, of which a preliminary answer has one of its own, ends with an empty line. Trailers have
    // none.
    if (line.starts_with("HTTP/")) {
        isHeadComplete_ = false;
    } else if (!isHeadComplete_ && (line == "\r\n" || line == "\n")) {
        isHeadComplete_ = true;
        delimiter_ = isDelimitedByItsEnd() ? TlsState::of(easy_) : nullptr;
    }
    return {};
}

bool CurlTransfer::isDelimitedByItsEnd() const {
    long status = 0;
    const char* method = nullptr;
    curl_easy_getinfo(easy_, CURLINFO_RESPONSE_CODE, &status);
    curl_easy_getinfo(easy_, CURLINFO_EFFECTIVE_METHOD, &method);
    if (status < 200 || status == 204 || status == 304 || method == std::string_view("HEAD")) {
        return false;
    }
    curl_header* field = nullptr;
    const auto has = [&](const char* name) {
        return curl_easy_header(easy_, name, 0, CURLH_HEADER, -1, &field) == CURLHE_OK;
    };
    return !has("Content-Length") && !has("Transfer-Encoding");
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
    curl_easy_getinfo(easy_, CURLINFO_CONTENT_LENGTH_DOWNLOAD_T, &announced);
    std::string encoding;
    curl_header* field = nullptr;
    for (std::size_t i = 0;
         curl_easy_header(easy_, "Content-Encoding", i, CURLH_HEADER, -1, &field) == CURLHE_OK; ++i) {
        encoding.append(encoding.empty() ? "" : ",").append(field->value);
    }
    return body_.begin(encoding, static_cast<std::size_t>(std::max<curl_off_t>(announced, 0)));
}

template <std::expected<void, URLError> (CurlTransfer::*receive)(std::string_view)>
std::size_t CurlTransfer::callback(char* bytes, std::size_t size, std::size_t count, void* transfer) {
    auto& self = *static_cast<CurlTransfer*>(transfer);
    // No exception may pass through libcurl, which takes any other number than the one it gave as an order to
    // end.
    try {
        const auto received = (self.*receive)({bytes, size * count});
        if (received) {
            return size * count;
        }
        self.refusal_ = received.error();
    } catch (const std::bad_alloc&) {
        self.refusal_ = URLError{URLError::Code::unknown, {}};
    }
    return size * count + 1;
}

} // namespace quillet
