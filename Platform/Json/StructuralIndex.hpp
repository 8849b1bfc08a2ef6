#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <utility>

namespace quillet::platform::json {

/// Where in a body the tokens begin: the offset of every bracket, brace, colon and comma outside strings, of
/// every opening quotation mark, and of the first byte of every other run of bytes; last, twice, the body's
/// size. Found by simdjson with the widest instructions of the machine that the program runs on.
class StructuralIndex {
public:
    /// Nothing if the body is empty, is not UTF-8, or has a string that does not end or holds a control
    /// character. Everything else remains to be checked.
    [[nodiscard]] static std::optional<StructuralIndex> of(const std::string& body);

    /// The offsets; the last two are the body's size, so that one may look past the last token.
    [[nodiscard]] std::span<const std::uint32_t> offsets() const { return {offsets_.get(), count_}; }

private:
    StructuralIndex(std::unique_ptr<std::uint32_t[]> offsets, std::size_t count)
        : offsets_(std::move(offsets)), count_(count) {}

    std::unique_ptr<std::uint32_t[]> offsets_;
    std::size_t count_;
};

} // namespace quillet::platform::json
