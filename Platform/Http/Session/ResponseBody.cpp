#include "Platform/Http/Session/ResponseBody.hpp"

#include "Platform/Http/HTTPSyntax.hpp"

#include <array>
#include <new>
#include <utility>

namespace quillet::platform {

namespace {

std::unexpected<URLError> damaged() {
    return std::unexpected(
        URLError{URLError::Code::cannotDecodeContentData, "The answer's compression is damaged or unknown"});
}

std::unexpected<URLError> tooLarge() {
    return std::unexpected(
        URLError{URLError::Code::dataLengthExceedsMaximum, "The answer's body is too large"});
}

} // namespace

std::expected<void, URLError> ResponseBody::begin(std::string_view encoding, std::uint64_t announcedBytes) {
    if (encoding.empty() || equalIgnoringCase(encoding, "identity")) {
        if (announcedBytes > maximumBytes_) {
            return tooLarge();
        }
        bytes_.reserve(static_cast<std::size_t>(announcedBytes));
        return {};
    }
    if (!equalIgnoringCase(encoding, "gzip") && !equalIgnoringCase(encoding, "x-gzip")) {
        return damaged();
    }
    constexpr int gzipOnly = 16 + MAX_WBITS;
    auto stream = std::make_unique<z_stream>();
    if (inflateInit2(stream.get(), gzipOnly) != Z_OK) {
        throw std::bad_alloc();
    }
    unpacking_.reset(stream.release());
    isInsidePacking_ = true;
    return {};
}

std::expected<void, URLError> ResponseBody::append(std::string_view bytes) {
    return unpacking_ ? appendPacked(bytes) : appendPlain(bytes);
}

std::expected<void, URLError> ResponseBody::appendPlain(std::string_view bytes) {
    if (bytes.size() > maximumBytes_ - bytes_.size()) {
        return tooLarge();
    }
    // A large body of unknown length gets all of its room at once. Room that is not written to takes no
    // memory, whereas a string that grows by itself would have up to three times the limit in the end.
    constexpr std::size_t large = 256 << 10;
    if (const std::size_t size = bytes_.size() + bytes.size(); size > large && size > bytes_.capacity()) {
        bytes_.reserve(maximumBytes_);
    }
    bytes_.append(bytes);
    return {};
}

std::expected<void, URLError> ResponseBody::appendPacked(std::string_view bytes) {
    std::array<char, 32 << 10> unpacked;
    auto& stream = *unpacking_;
    stream.next_in = reinterpret_cast<Bytef*>(const_cast<char*>(bytes.data()));
    stream.avail_in = static_cast<uInt>(bytes.size());
    do {
        // A gzip body may consist of several members.
        if (!std::exchange(isInsidePacking_, true) && inflateReset(&stream) != Z_OK) {
            return damaged();
        }
        stream.next_out = reinterpret_cast<Bytef*>(unpacked.data());
        stream.avail_out = static_cast<uInt>(unpacked.size());
        const int result = inflate(&stream, Z_NO_FLUSH);
        if (result == Z_MEM_ERROR) {
            throw std::bad_alloc();
        }
        if (result != Z_OK && result != Z_STREAM_END && result != Z_BUF_ERROR) {
            return damaged();
        }
        isInsidePacking_ = result != Z_STREAM_END;
        if (auto appended = appendPlain({unpacked.data(), unpacked.size() - stream.avail_out}); !appended) {
            return appended;
        }
    } while (stream.avail_in > 0 || (isInsidePacking_ && stream.avail_out == 0));
    return {};
}

std::expected<std::string, URLError> ResponseBody::take() {
    if (isInsidePacking_) {
        return damaged();
    }
    return std::move(bytes_);
}

} // namespace quillet::platform
