#include "Decoding/OnDemandDecoder.hpp"

#include "Models/RecordFields.hpp"
#include "Platform/Json/Expected.hpp"

#include <boost/multiprecision/cpp_dec_float.hpp>
#include <simdjson.h>

#include <array>
#include <charconv>
#include <tuple>
#include <utility>

namespace quillet::benchmarks {

namespace {

namespace ondemand = simdjson::ondemand;
using LibraryDecimal =
    boost::multiprecision::number<boost::multiprecision::cpp_dec_float<platform::Decimal::maximumDigits>>;

std::string_view withoutSpace(std::string_view token) {
    return token.substr(0, token.find_last_not_of(" \n\r\t") + 1);
}

/// All reads return whether the value was as expected.
class Reader {
public:
    Reader(OnDemandDecoder::Decimals kind, std::vector<LibraryDecimal>& decimals)
        : kind_(kind), decimals_(decimals) {}

    template <typename T>
    bool read(ondemand::value value, T& out) {
        if constexpr (std::tuple_size_v < decltype(platform::jsonFields<T>) >> 0) {
            ondemand::object object;
            return !value.get_object().get(object) && readRecord(object, out);
        } else {
            std::string_view text;
            if (value.get_string().get(text)) {
                return false;
            }
            const auto converted = platform::json::TextForm<T>::read(text);
            out = converted.value_or(T());
            return converted.has_value();
        }
    }

    bool read(ondemand::value value, std::string& out) {
        std::string_view text;
        const bool good = !value.get_string().get(text);
        out = text;
        return good;
    }
    bool read(ondemand::value value, bool& out) { return !value.get_bool().get(out); }
    bool read(ondemand::value value, std::uint64_t& out) {
        if (!value.get_uint64().get(out)) {
            return true;
        }
        // 1.0 and 1e2 are whole numbers too.
        std::string_view token = withoutSpace(value.raw_json_token());
        double valid = 0;
        if (value.get_double().get(valid)) {
            return false;
        }
        const LibraryDecimal decimal{std::string(token)};
        out = static_cast<std::uint64_t>(decimal);
        return LibraryDecimal(out) == decimal;
    }
    bool read(ondemand::value value, platform::Decimal& out) {
        const std::string_view token = withoutSpace(value.raw_json_token());
        if (kind_ == OnDemandDecoder::Decimals::own) {
            const auto decimal = platform::Decimal::parse(token);
            out = decimal.value_or(platform::Decimal());
            return decimal.has_value();
        }
        // On-Demand checks a number's syntax only by reading it.
        if (value.get_double().error()) {
            return false;
        }
        std::array<char, 64> text{};
        token.copy(text.data(), text.size() - 1);
        decimals_.emplace_back(text.data());
        return true;
    }

    template <typename T>
    bool read(ondemand::value value, std::optional<T>& out) {
        return value.is_null() || read(value, out.emplace());
    }

    template <typename T>
    bool read(ondemand::value value, std::vector<T>& list) {
        static thread_local std::size_t usual = 0;
        ondemand::array array;
        if (value.get_array().get(array)) {
            return false;
        }
        list.reserve(usual);
        for (auto&& element : array) {
            ondemand::value one;
            if (std::move(element).get(one) || !read(one, list.emplace_back())) {
                return false;
            }
        }
        usual = list.size();
        return true;
    }

    template <typename Record>
    bool readRecord(ondemand::object object, Record& record) {
        constexpr auto count = std::tuple_size_v<decltype(platform::jsonFields<Record>)>;
        return readRecord(object, record, std::make_index_sequence<count>());
    }

private:
    template <typename Record, std::size_t... indexes>
    bool readRecord(ondemand::object object, Record& record, std::index_sequence<indexes...>) {
        std::size_t expected = 0;
        std::uint64_t seen = 0;
        for (auto&& result : object) {
            ondemand::field field;
            if (std::move(result).get(field)) {
                return false;
            }
            const ondemand::raw_json_string key = field.key();
            bool good = true;
            bool here = false;
            const auto take = [&]<std::size_t index>() {
                constexpr auto entry = std::get<index>(platform::jsonFields<Record>);
                if ((seen >> index & 1) != 0 || !key.unsafe_is_equal(entry.key)) {
                    return false;
                }
                seen |= std::uint64_t{1} << index;
                expected = index + 1;
                good = read(field.value(), record.*entry.member);
                return true;
            };
            // Keys mostly come in the table's order.
            here = ((indexes >= expected && take.template operator()<indexes>()) || ...) ||
                   ((indexes < expected && take.template operator()<indexes>()) || ...);
            if (!good || (!here && !skipMember(field))) {
                return false;
            }
        }
        constexpr std::uint64_t required =
            ((platform::json::isOptional<Member<Record, indexes>> ? 0 : std::uint64_t{1} << indexes) | ...);
        return (seen & required) == required;
    }

    template <typename Record, std::size_t index>
    using Member = std::remove_cvref_t<decltype(std::declval<Record&>().*
                                                std::get<index>(platform::jsonFields<Record>).member)>;

    bool skipMember(ondemand::field& field) {
        std::string_view key;
        return !field.unescaped_key().get(key) && skip(field.value());
    }

    bool skip(ondemand::value value) {
        ondemand::json_type type{};
        if (value.type().get(type)) {
            return false;
        }
        switch (type) {
        case ondemand::json_type::array:
            for (auto&& element : value.get_array()) {
                ondemand::value one;
                if (std::move(element).get(one) || !skip(one)) {
                    return false;
                }
            }
            return true;
        case ondemand::json_type::object:
            for (auto&& member : value.get_object()) {
                ondemand::field field;
                if (std::move(member).get(field) || !skipMember(field)) {
                    return false;
                }
            }
            return true;
        case ondemand::json_type::string:
            return !value.get_string().error();
        case ondemand::json_type::number:
            return !value.get_double().error();
        case ondemand::json_type::boolean:
            return !value.get_bool().error();
        case ondemand::json_type::null:
            return value.is_null();
        // Later versions have a type for what is no JSON.
        default:
            return false;
        }
    }

    OnDemandDecoder::Decimals kind_;
    std::vector<LibraryDecimal>& decimals_;
};

} // namespace

struct OnDemandDecoder::State {
    explicit State(Decimals wanted) : kind(wanted) {}

    Decimals kind;
    ondemand::parser parser;
    std::vector<LibraryDecimal> decimals;
};

OnDemandDecoder::OnDemandDecoder(Decimals decimals) : state_(std::make_unique<State>(decimals)) {}
OnDemandDecoder::~OnDemandDecoder() = default;

std::optional<OpenOrdersResponse> OnDemandDecoder::decode(const std::string& paddedBody) {
    state_->decimals.clear();
    const simdjson::padded_string_view body(paddedBody.data(), paddedBody.size() - simdjson::SIMDJSON_PADDING,
                                            paddedBody.size());
    ondemand::document document;
    ondemand::object object;
    OpenOrdersResponse response;
    Reader reader(state_->kind, state_->decimals);
    if (state_->parser.iterate(body).get(document) || document.get_object().get(object) ||
        !reader.readRecord(object, response) || !document.current_location().error()) {
        return std::nullopt;
    }
    return response;
}

std::string OnDemandDecoder::padded(std::string_view body) {
    std::string text(body);
    text.resize(body.size() + simdjson::SIMDJSON_PADDING);
    return text;
}

} // namespace quillet::benchmarks
