#pragma once

#include "Platform/Http/URLError.hpp"

#include <zlib.h>

#include <cstddef>
#include <expected>
#include <memory>
#include <string>
#include <string_view>

namespace quillet::platform {

/// Collects an answer's body and unpacks it. libcurl could unpack too, but takes a packed body that ends
/// early for a whole one. Throws std::bad_alloc where there is no memory.
class ResponseBody {
public:
    /// `maximumBytes` counts after unpacking.
    explicit ResponseBody(std::size_t maximumBytes) : maximumBytes_(maximumBytes) {}

    /// To be called before the first byte: how the body is packed, in the words of Content-Encoding (none for
    /// nothing), and how many bytes are announced to come.
    [[nodiscard]] std::expected<void, URLError> begin(std::string_view encoding, std::size_t announcedBytes);

    /// An error if the body becomes larger than allowed, or its packing is damaged.
    [[nodiscard]] std::expected<void, URLError> append(std::string_view bytes);

    /// The whole body; an error if its packing has not come to its end.
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
