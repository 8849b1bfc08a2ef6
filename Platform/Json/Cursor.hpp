#pragma once

#include "Platform/Json/DigitBlock.hpp"
#include "Platform/Json/StructuralIndex.hpp"

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>

namespace quillet::platform::json {

/// Iterates over the tokens of a body and checks the syntax that the structural index does not check. If the
/// body is not JSON it becomes `invalid` and stays so; its results are then unspecified.
class Cursor {
public:
    /// The deepest nesting of arrays and objects that a body may have.
    static constexpr int maximumDepth = 512;

    /// `body` and its `index` must outlive the cursor, which moves the index's window.
    Cursor(const std::string& body, StructuralIndex& index) : index_(index), end_(body.data() + body.size()) {
        moveWindow(body.data());
    }

    [[nodiscard]] bool invalid() const { return invalid_; }
    [[nodiscard]] bool atEnd() const { return token() == end_; }

    /// The first byte of the next token; NUL at the end.
    [[nodiscard]] char peek() const { return begin_[*next_]; }
    [[nodiscard]] const char* token() const { return begin_ + *next_; }
    [[nodiscard]] const char* followingToken() const { return begin_ + next_[1]; }
    [[nodiscard]] bool hasRest(std::ptrdiff_t length) const { return end_ - token() >= length; }
    [[nodiscard]] std::string_view rest() const { return {token(), end_}; }

    /// Moves past the token if it is the punctuation character `c`.
    bool take(char c) {
        // A predicted branch allows speculative execution; adding the comparison's result would not.
        if (peek() == c) [[likely]] {
            ++next_;
            return true;
        }
        return false;
    }

    /// Moves past a number or literal that was read up to `end`, and checks that the token ends there.
    bool passScalar(const char* end) {
        ++next_;
        return end == token() || endsScalar(end) || invalidate();
    }

    /// Moves past a number that ends where the following token begins. Always true.
    bool passToken() {
        ++next_;
        return true;
    }

    /// Reads the token if it is a number of a few characters, without moving past it.
    [[nodiscard]] bool readShort(ShortNumber& number) const {
        return hasRest(DigitBlock::size) && number.readBlock(token(), followingToken());
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

    /// Moves past a string, which must be at the token, and returns its raw content. The caller has to check
    /// its escapes.
    std::string_view passString() {
        const char* const first = token() + 1;
        const char* last = begin_ + *++next_ - 1;
        // Only white space can stand between a string's end and the next token.
        while (*last != '"') {
            --last;
        }
        return {first, static_cast<std::size_t>(last - first)};
    }

    /// Moves past the literal `word`; any other token makes the body invalid.
    template <std::size_t size>
    bool passLiteral(const char (&word)[size]) {
        constexpr std::size_t length = size - 1;
        const bool there = hasRest(length) && std::memcmp(token(), word, length) == 0;
        return there ? passScalar(token() + length) : invalidate();
    }

    /// Moves past the opening bracket of an array or object.
    bool open() {
        ++next_;
        return ++depth_ <= maximumDepth || invalidate();
    }

    /// Call them after `open` and after each element or member. They return whether another one follows, and
    /// move past the comma or the closing `bracket`.
    bool first(char bracket) { return look() && !takeClosing(bracket); }
    bool next(char bracket) { return look() && (take(',') || (!takeClosing(bracket) && invalidate())); }

    /// Moves past a key and its colon if the key is spelled exactly as `quoted`, quotation marks included.
    template <std::size_t size>
    bool takeKey(const std::array<char, size>& quoted) {
        if (!hasRest(size) || std::memcmp(token(), quoted.data(), size) != 0) {
            return false;
        }
        ++next_;
        return passColon();
    }

    bool passColon() { return take(':') || invalidate(); }

    /// Skips a whole value and checks its syntax.
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

    /// Makes sure that a member with its key, colon and the beginning of its value can be read.
    bool look() { return next_ < refillAt_ || moveWindow(token()); }
    bool moveWindow(const char* start);

    bool skipNested();
    bool skipString();
    bool skipScalar();

    StructuralIndex& index_;
    const char* begin_ = nullptr;
    const char* end_;
    const std::uint32_t* next_ = nullptr;
    const std::uint32_t* refillAt_ = nullptr;
    int depth_ = 0;
    bool invalid_ = false;
    std::string scratch_;
};

} // namespace quillet::platform::json
