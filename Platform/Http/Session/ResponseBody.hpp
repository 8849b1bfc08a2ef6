#pragma once

#include "Quillet/Platform/URLError.hpp"

#include <zlib.h>

#include <cstddef>
#include <cstdint>
#include <expected>
#include <memory>
#include <string>
#include <string_view>

namespace quillet::platform {

/// Collects and decompresses a response body. libcurl's own decompression accepts a truncated gzip body as
/// complete. Throws std::bad_alloc.
class ResponseBody {
public:
    /// `maximumBytes` is the limit after decompression.
    explicit ResponseBody(std::size_t maximumBytes) : maximumBytes_(maximumBytes) {}

    /// Call it before the first byte, with the value of Content-Encoding (empty for none) and the announced
    /// length in bytes, 0 for none. Fails if that exceeds the limit already or the encoding is unknown.
    [[nodiscard]] std::expected<void, URLError> begin(std::string_view encoding,
                                                      std::uint64_t announcedBytes);

    /// Fails if the body exceeds the limit or its compression is damaged.
    [[nodiscard]] std::expected<void, URLError> append(std::string_view bytes);

    /// The complete body; fails if the compressed stream has not ended.
    [[nodiscard]] std::expected<std::string, URLError> take();

private:
    struct EndOfUnpacking {
        void operator()(z_stream* stream) const {
            inflateEnd(stream);
            delete stream;
        }
    };

    [[nodiscard]] std::expected<void, URLError> appendPlain(std::string_view bytes);
    [[nodiscard]] std::expected<void, URLError> appendPacked(std::string_view bytes);

    const std::size_t maximumBytes_;
    std::string bytes_;
    std::unique_ptr<z_stream, EndOfUnpacking> unpacking_;
    bool isInsidePacking_ = false;
};

} // namespace quillet::platform
