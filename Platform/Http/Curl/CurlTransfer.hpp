#pragma once

#include "Platform/Http/Curl/CurlOptions.hpp"
#include "Platform/Http/Curl/TlsState.hpp"
#include "Platform/Http/Session/ResponseBody.hpp"
#include "Platform/Http/URLSessionExchange.hpp"
#include "Quillet/Platform/URLSessionConfiguration.hpp"

#include <curl/curl.h>

#include <array>
#include <cstddef>
#include <expected>
#include <memory>
#include <optional>
#include <string_view>

namespace quillet::platform {

/// One transfer of libcurl. Used on the session's thread only.
class CurlTransfer {
public:
    /// Limit for all headers of a response together, in bytes. Real ones have a few thousand.
    static constexpr std::size_t maximumHeaderBytes = 256 << 10;

    /// `request` must stay where it is for as long as the transfer lives. Throws std::bad_alloc.
    [[nodiscard]] static std::expected<std::unique_ptr<CurlTransfer>, URLError>
    create(const URLRequest& request, const URLSessionConfiguration& configuration);

    /// The transfer must have been removed from its multi handle.
    ~CurlTransfer() = default;
    CurlTransfer(const CurlTransfer&) = delete;
    CurlTransfer& operator=(const CurlTransfer&) = delete;

    [[nodiscard]] CURL* handle() const { return easy_.get(); }

    /// Whether the TLS handshake has begun on a new connection for this exchange. Nothing of the request is
    /// sent before it, unless a connection is reused.
    [[nodiscard]] bool hasTlsBegun() const { return hasTlsBegun_; }
    /// Whether some of the request was sent.
    [[nodiscard]] bool isRequestBegun() const;

    /// The result, once libcurl has finished the transfer. Moves the body out.
    [[nodiscard]] URLSessionOutcome outcome(CURLcode code);

private:
    struct End {
        void operator()(CURL* easy) const { curl_easy_cleanup(easy); }
    };

    explicit CurlTransfer(std::size_t maximumBodyBytes) : body_(maximumBodyBytes) {}

    [[nodiscard]] std::expected<void, URLError> receiveHeader(std::string_view line);
    [[nodiscard]] std::expected<void, URLError> receiveBody(std::string_view bytes);
    [[nodiscard]] std::expected<void, URLError> beginBody();
    [[nodiscard]] bool isWithoutBody() const;
    [[nodiscard]] std::string headerValues(const char* name) const;
    [[nodiscard]] std::optional<URLError> faultOfFraming() const;
    [[nodiscard]] HTTPURLResponse response() const;
    [[nodiscard]] URLError error(CURLcode code);
    static CURLcode tlsBegins(CURL* easy, void* tlsContext, void* transfer);

    // libcurl hands over what it receives as `count` pieces of `size` bytes.
    template <std::expected<void, URLError> (CurlTransfer::*receive)(std::string_view)>
    static std::size_t callback(char* bytes, std::size_t size, std::size_t count, void* transfer);

    // libcurl keeps pointers to these, so they are destroyed after the handle.
    CurlList headers_;
    CurlList connectTo_;
    std::array<char, CURL_ERROR_SIZE> message_{};
    std::unique_ptr<CURL, End> easy_{curl_easy_init()};
    std::size_t headerBytes_ = 0;
    bool isHeadComplete_ = false;
    /// State of the new connection of this transfer, if there is one.
    std::shared_ptr<TlsState> newConnection_ = std::make_shared<TlsState>();
    bool hasTlsBegun_ = false;
    /// State of the connection that delivers the response, from the end of its headers on.
    std::shared_ptr<const TlsState> connection_;
    bool hasBody_ = false;
    ResponseBody body_;
    /// Why the response was rejected, if it was.
    std::optional<URLError> refusal_;
};

} // namespace quillet::platform
