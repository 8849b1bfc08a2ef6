#pragma once

#include "Platform/Http/Curl/CurlOptions.hpp"
#include "Platform/Http/Curl/TlsState.hpp"
#include "Platform/Http/Session/ResponseBody.hpp"
#include "Platform/Http/URLSessionConfiguration.hpp"
#include "Platform/Http/URLSessionExchange.hpp"

#include <curl/curl.h>

#include <array>
#include <cstddef>
#include <expected>
#include <memory>
#include <optional>
#include <string_view>

namespace quillet::platform {

/// One exchange in libcurl's hands. Belongs to the session's thread.
class CurlTransfer {
public:
    /// All headers of an answer together may have this many bytes. Real ones have a few thousand.
    static constexpr std::size_t maximumHeaderBytes = 256 << 10;

    /// `request` must stay where it is for as long as the transfer lives. Throws std::bad_alloc.
    [[nodiscard]] static std::expected<std::unique_ptr<CurlTransfer>, URLError>
    create(const URLRequest& request, const URLSessionConfiguration& configuration);

    /// It must not be in a multi handle any more.
    ~CurlTransfer() = default;
    CurlTransfer(const CurlTransfer&) = delete;
    CurlTransfer& operator=(const CurlTransfer&) = delete;

    [[nodiscard]] CURL* handle() const { return easy_.get(); }

    /// Whether TLS has begun on a connection that was made for this exchange. Before it nothing of the
    /// request is sent, unless the exchange uses a connection that was there before.
    [[nodiscard]] bool hasTlsBegun() const { return hasTlsBegun_; }
    /// Whether some of the request was sent.
    [[nodiscard]] bool isRequestBegun() const;

    /// What the exchange came to, once libcurl is done with it. Gives the body away.
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

    // libcurl keeps reading these for as long as it has the handle, so they are freed after it.
    CurlList headers_;
    CurlList connectTo_;
    std::array<char, CURL_ERROR_SIZE> message_{};
    std::unique_ptr<CURL, End> easy_{curl_easy_init()};
    std::size_t headerBytes_ = 0;
    bool isHeadComplete_ = false;
    /// Of the connection that is made for this transfer, if one is.
    std::shared_ptr<TlsState> newConnection_ = std::make_shared<TlsState>();
    bool hasTlsBegun_ = false;
    /// Of the connection that brings the answer, from the end of its head on.
    std::shared_ptr<const TlsState> connection_;
    bool hasBody_ = false;
    ResponseBody body_;
    /// Why the answer was refused, if it was.
    std::optional<URLError> refusal_;
};

} // namespace quillet::platform
