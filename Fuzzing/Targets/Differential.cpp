#include "Fuzzing/Decoding.hpp"
#include "Fuzzing/Reference/Tree.hpp"

namespace quillet::fuzzing {

struct Inner {
    std::uint64_t count = 0;
    std::optional<std::string> text;
    bool operator==(const Inner&) const = default;
};

/// One field of each type that there is.
struct Everything {
    std::optional<std::string> text;
    std::optional<std::uint64_t> count;
    std::optional<std::int64_t> number;
    std::optional<platform::Decimal> amount;
    std::optional<bool> flag;
    std::optional<Date> date;
    std::optional<ProductErrorStatus> status;
    std::optional<Inner> inner;
    std::vector<Inner> list;
    bool operator==(const Everything&) const = default;
};

} // namespace quillet::fuzzing

template <>
inline constexpr auto quillet::platform::jsonFields<quillet::fuzzing::Inner> =
    std::tuple{json::Field{"count", &fuzzing::Inner::count}, json::Field{"text", &fuzzing::Inner::text}};
template <>
inline constexpr auto quillet::platform::jsonFields<quillet::fuzzing::Everything> = std::tuple{
    json::Field{"text", &fuzzing::Everything::text},     json::Field{"count", &fuzzing::Everything::count},
    json::Field{"number", &fuzzing::Everything::number}, json::Field{"amount", &fuzzing::Everything::amount},
    json::Field{"flag", &fuzzing::Everything::flag},     json::Field{"date", &fuzzing::Everything::date},
    json::Field{"status", &fuzzing::Everything::status}, json::Field{"inner", &fuzzing::Everything::inner},
    json::Field{"list", &fuzzing::Everything::list}};

namespace quillet::fuzzing {

static const Target target("differential", [](const std::string& body) {
    const auto decoded = decodeInWindows<Everything>(body);
    TreeBuilder builder;
    const bool parsed = nlohmann::json::sax_parse(body, &builder);
    // What the other parser takes and JSON does not allow: a byte-order mark, and a NUL for the end. And our
    // own limit.
    const bool refused = body.starts_with("\xEF\xBB\xBF") || body.find('\0') != body.npos ||
                         builder.depth > platform::json::Cursor::maximumDepth;
    const bool valid = decoded || decoded.error() != platform::DecodingError();
    if (refused) {
        require(!valid, "what JSON does not allow is refused");
    } else if (!builder.numberTooLarge) {
        require(valid == parsed, "the decoder refuses what another parser refuses, and nothing else");
        const auto expected = valid ? fromTree<Everything>(builder.tree) : std::nullopt;
        require(decoded.has_value() == expected.has_value(), "the decoder reads what the tables allow");
        require(!decoded || *decoded == *expected, "the decoder reads the values that are there");
    }
});

} // namespace quillet::fuzzing
