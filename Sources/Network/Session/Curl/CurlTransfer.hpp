#pragma once

#include "Network/Session/Curl/TlsState.hpp"
#include "Network/Session/ResponseBody.hpp"
#include "Network/Session/URLSessionConfiguration.hpp"
#include "Network/Session/URLSessionExchange.hpp"

#include <curl/curl.h>

#include <array>
#include <cstddef>
#include <expected>
#include <memory>
#include <optional>
#include <string_view>

namespace quillet {

/// One exchange in libcurl's hands. Belongs to the session's thread.
class CurlTransfer {
public:
    /// All headers of an answer together may have this many bytes. Real ones have a few thousand.
    static constexpr std::size_t maximumHeaderBytes = 256 << 10;

    /// `request` must stay where it is for as long as the transfer lives.
    [[nodiscard]] static std::expected<std::unique_ptr<CurlTransfer>, URLError>
    create(const URLRequest& request, const URLSessionConfiguration& configuration);

    /// It must not be in a multi handle any more.
    ~CurlTransfer();
    CurlTransfer(const CurlTransfer&) = delete;
    CurlTransfer& operator=(const CurlTransfer&) = delete;

    [[nodiscard]] CURL* handle() const { return easy_; }

    /// What the exchange came to, once libcurl is done with it. Gives the body away.
    [[nodiscard]] URLSessionOutcome outcome(CURLcode code);

private:
    CurlTransfer(bool isMapped, std::size_t maximumBodyBytes)
        : isMapped_(isMapped), body_(maximumBodyBytes) {}

    [[nodiscard]] std::expected<void, URLError> receiveHeader(std::string_view line);
    [[nodiscard]] std::expected<void, URLError> receiveBody(std::string_view bytes);
    [[nodiscard]] std::expected<void, URLError> beginBody();
    [[nodiscard]] bool isDelimitedByItsEnd() const;
    [[nodiscard]] HTTPURLResponse response() const;
    [[nodiscard]] URLError error(CURLcode code) const;

    // libcurl hands over what it receives as `count` pieces of `size` bytes.
    template <std::expected<void, URLError> (CurlTransfer::*receive)(std::string_view)>
    static std::size_t callback(char* bytes, std::size_t size, std::size_t count, void* transfer);

    CURL* easy_ = curl_easy_init();
    curl_slist* headers_ = nullptr;
    curl_slist* connectTo_ = nullptr;
    std::array<char, CURL_ERROR_SIZE> message_{};
    const bool isMapped_;
    std::size_t headerBytes_ = 0;
    bool isHeadComplete_ = false;
    /// Of the connection that is made for this transfer, if one is.
    std::shared_ptr<TlsState> newConnection_ = std::make_shared<TlsState>();
    /// Set with the head, for an answer whose body nothing but the connection's end delimits.
    std::shared_ptr<const TlsState> delimiter_;
    bool hasBody_ = false;
    ResponseBody body_;
    /// Why the answer was refused, if it was.
    std::optional<URLError> refusal_;
};

} // namespace quillet
