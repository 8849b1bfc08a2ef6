#pragma once

#include "Platform/Json/Cursor.hpp"
#include "Platform/Json/Expected.hpp"
#include "Platform/Json/Number.hpp"
#include "Quillet/Platform/CodingErrors.hpp"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

namespace quillet::platform::json {

/// Reads single values. Each `read` moves the cursor past the whole value, even if it cannot use it. It
/// returns false if the value has the wrong type, and the reader then holds the error, or if the body is not
/// JSON, and then nothing more can be read.
class Reader {
public:
    Reader(const std::string& body, StructuralIndex& index) : cursor_(body, index) {}

    /// Whether there is anything to read: a body that is not JSON may have no token at all.
    [[nodiscard]] bool canRead() const { return !cursor_.invalid(); }
    /// Whether the whole body was read and is JSON.
    [[nodiscard]] bool passedAll() const { return !cursor_.invalid() && cursor_.atEnd(); }
    [[nodiscard]] DecodingError takeError() { return std::move(error_); }

protected:
    ~Reader() = default;

    bool read(std::uint64_t& value) {
        ShortNumber number;
        return cursor_.readShort(number) && take(number, value) ? cursor_.passToken()
                                                                : readNumber(value, toUnsigned);
    }
    bool read(std::int64_t& value) { return readNumber(value, toSigned); }
    bool read(Decimal& value) {
        ShortNumber number;
        return cursor_.readShort(number) && take(number, value) ? cursor_.passToken()
                                                                : readNumber(value, toDecimal);
    }
    bool read(bool& value) {
        value = cursor_.peek() == 't';
        if (value) {
            return cursor_.passLiteral("true");
        }
        return cursor_.peek() == 'f' ? cursor_.passLiteral("false") : passUnexpected(expectedOf<bool>());
    }
    bool read(std::string& value);

    template <HasTextForm T>
    bool read(T& value) {
        std::string_view text;
        if (!readText(text, expectedOf<T>())) {
            return false;
        }
        const auto converted = TextForm<T>::read(text);
        if (converted) {
            value = *converted;
        }
        return converted || fail(DecodingError::Reason::unexpectedValue, expectedOf<T>());
    }

    /// Reads any key at the cursor, and its colon. `key` is valid until the next string is read.
    bool passKey(std::string_view& key);

    /// Skips a value of an unexpected type and keeps the error. Always false.
    bool passUnexpected(std::string_view expected);

    /// Keeps the error. Always false.
    bool fail(DecodingError::Reason reason, std::string_view expected);

    /// Prepends a key or index to the error's path.
    void prefixError(std::string_view key);
    void prefixError(std::size_t position);

    Cursor cursor_;

private:
    /// A string's text, valid until the next string is read.
    bool readText(std::string_view& text, std::string_view expected);

    static bool take(ShortNumber number, std::uint64_t& value) {
        value = number.digits;
        return number.fractionDigits == 0;
    }
    static bool take(ShortNumber number, Decimal& value) {
        value = Decimal(static_cast<std::int64_t>(number.digits), -number.fractionDigits);
        return true;
    }
    /// Negative numbers are too rare to be read fast.
    static bool take(ShortNumber, std::int64_t&) { return false; }

    template <typename T>
    bool readNumber(T& value, std::optional<T> (*convert)(const NumberToken&));

    DecodingError error_;
    std::string scratch_;
};

} // namespace quillet::platform::json
