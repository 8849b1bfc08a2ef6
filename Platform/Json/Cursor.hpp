#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <span>
#include <string>
#include <string_view>

namespace quillet::platform::json {

/// Walks the tokens of a body and checks, for all that it passes, what the structural index leaves unchecked.
/// Where the body turns out not to be JSON it becomes and stays `invalid`; what it gives from then on means
/// nothing.
class Cursor {
public:
    /// The deepest nesting of arrays and objects that a body may have.
    static constexpr int maximumDepth = 512;

    /// `body` and `offsets`, its structural index, must outlive the cursor.
    Cursor(const std::string& body, std::span<const std::uint32_t> offsets)
        : body_(body.data()), end_(body.data() + body.size()), next_(offsets.data()) {}

    [[nodiscard]] bool invalid() const { return invalid_; }
    [[nodiscard]] bool atEnd() const { return token() == end_; }

    /// The first byte of the next token; NUL, which begins none, at the end.
    [[nodiscard]] char peek() const { return body_[*next_]; }
    [[nodiscard]] const char* token() const { return body_ + *next_; }
    [[nodiscard]] const char* followingToken() const { return body_ + next_[1]; }
    [[nodiscard]] bool hasRest(std::ptrdiff_t length) const { return end_ - token() >= length; }
    [[nodiscard]] std::string_view rest() const { return {token(), end_}; }

    /// Passes the token if it is the punctuation `c`.
    bool take(char c) {
        // A branch that is guessed right lets the processor run ahead; adding the comparison's result would
        // not.
        if (peek() == c) [[likely]] {
            ++next_;
            return true;
        }
        return false;
    }

    /// Passes a number or a literal that was read up to `end`, which the token must not go beyond.
    bool passScalar(const char* end) {
        ++next_;
        return end == token() || endsScalar(end) || invalidate();
    }

    /// Passes a number that was read right up to the following token. Always true.
    bool passToken() {
        ++next_;
        return true;
    }

    /// Whether a number or literal may end here.
    [[nodiscard]] bool endsScalar(const char* end) const {
        switch (*end) {
        case ',':
        case '}':
        case ']':
        case ' ':
        case '\n':
        case '\r':
        case '\t':
            return true;
        case '\0':
            return end == end_;
        }
        return false;
    }

    /// Passes a string, which must be at the token, and gives the part between its quotation marks. Its
    /// escapes are the caller's to check.
    std::string_view passString() {
        const char* const first = token() + 1;
        const char* last = body_ + *++next_ - 1;
        // What follows a string's end up to the next token can only be white space.
        while (*last != '"') {
            --last;
        }
        return {first, static_cast<std::size_t>(last - first)};
    }

    /// Passes `word`, which stands at the token or makes the body invalid.
    template <std::size_t size>
    bool passLiteral(const char (&word)[size]) {
        constexpr std::size_t length = size - 1;
        const bool there = hasRest(length) && std::memcmp(token(), word, length) == 0;
        return there ? passScalar(token() + length) : invalidate();
    }

    /// Passes the opening of an array or object.
    bool open() {
        ++next_;
        return ++depth_ <= maximumDepth || invalidate();
    }

    /// After `open`, and after each element or member: whether another one follows. Passes the comma or the
    /// closing `bracket`.
    bool first(char bracket) { return !takeClosing(bracket); }
    bool next(char bracket) { return take(',') || (!takeClosing(bracket) && invalidate()); }

    /// Passes a member's key and colon if the key stands there exactly as in `quoted`, quotation marks
    /// included.
    template <std::size_t size>
    bool takeKey(const std::array<char, size>& quoted) {
        if (!hasRest(size) || std::memcmp(token(), quoted.data(), size) != 0) {
            return false;
        }
        ++next_;
        return passColon();
    }

    bool passColon() { return take(':') || invalidate(); }

    /// Passes a whole value and checks all of it.
    bool skip();

    /// Makes the body invalid. Always false.
    bool invalidate() {
        invalid_ = true;
        return false;
    }

private:
    bool takeClosing(char bracket) {
        if (take(bracket)) {
            --depth_;
            return true;
        }
        return false;
    }

    bool skipString();
    bool skipScalar();

    const char* body_;
    const char* end_;
    const std::uint32_t* next_;
    int depth_ = 0;
    bool invalid_ = false;
    std::string scratch_;
};

} // namespace quillet::platform::json
