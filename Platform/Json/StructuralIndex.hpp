#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>

namespace simdjson::internal {
class dom_parser_implementation;
}

namespace quillet::platform::json {

/// Where in a body the tokens begin: the offset of every bracket, brace, colon and comma outside strings, of
/// every opening quotation mark, and of the first byte of every other run of bytes. Found by simdjson with
/// the widest instructions of the machine that the program runs on.
///
/// The tokens are found window by window as they are read: so the offsets take little memory and stay in the
/// processor's cache, and the body's bytes are still there when they are read.
class StructuralIndex {
public:
    /// How many tokens a reader may look at before it has to ask for the next window.
    static constexpr std::size_t lookahead = 8;
    /// The usual size of a window in bytes. Larger ones were measured to be slower.
    static constexpr std::size_t usualWindow = std::size_t{1} << 16;

    /// `body` must outlive the index.
    explicit StructuralIndex(const std::string& body, std::size_t window = usualWindow);
    ~StructuralIndex();
    StructuralIndex(const StructuralIndex&) = delete;
    StructuralIndex& operator=(const StructuralIndex&) = delete;

    /// Moves the window to `start`, where a token has to begin, or the body. The window then has at least
    /// `lookahead` tokens, or reaches the end of the body. False if what it covers is empty, is not UTF-8, or
    /// has a string that does not end or holds a control character; everything else remains to be checked.
    /// Throws std::bad_alloc.
    [[nodiscard]] bool moveTo(const char* start);

    /// The window's first byte, from which its offsets count.
    [[nodiscard]] const char* begin() const { return begin_; }
    /// The offsets of the tokens in the window, and behind the last of them, twice, its end.
    [[nodiscard]] const std::uint32_t* offsets() const;
    /// Behind the last token from which on `lookahead` more are in the window.
    [[nodiscard]] const std::uint32_t* refillAt() const { return refillAt_; }

private:
    /// Fills the parser's offsets; returns simdjson's error code.
    int findTokens(std::size_t length, std::size_t capacity);
    void endAt(std::size_t length, std::size_t refill);

    const std::string& body_;
    std::size_t window_;
    std::unique_ptr<simdjson::internal::dom_parser_implementation> parser_;
    const char* begin_ = nullptr;
    const std::uint32_t* refillAt_ = nullptr;
};

} // namespace quillet::platform::json
