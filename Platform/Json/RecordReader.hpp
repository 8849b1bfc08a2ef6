#pragma once

#include "Platform/Json/Field.hpp"
#include "Platform/Json/Reader.hpp"

#include <algorithm>
#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <tuple>
#include <type_traits>
#include <utility>
#include <vector>

namespace quillet::platform::json {

/// Reads records by their tables, and lists and optionals of whatever can be read.
class RecordReader : public Reader {
public:
    using Reader::Reader;

    template <typename T>
    bool read(std::optional<T>& value) {
        if (cursor_.peek() == 'n') {
            value.reset();
            return cursor_.passLiteral("null");
        }
        return read(value.emplace());
    }

    template <typename T>
    bool read(std::vector<T>& list) {
        std::size_t& usualLength = usualLengths_[field_];
        if (cursor_.peek() != '[') {
            return passUnexpected(expectedOf<std::vector<T>>());
        }
        bool more = cursor_.open() && cursor_.first(']');
        if (more) {
            list.reserve(usualLength + usualLength / 8 + 1);
        }
        bool good = true;
        for (; more; more = cursor_.next(']')) {
            if (!good) {
                cursor_.skip();
            } else if (!read(list.emplace_back())) {
                good = false;
                prefixError(list.size() - 1);
            }
            if (cursor_.invalid()) {
                return false;
            }
        }
        usualLength = list.size();
        return good && !cursor_.invalid();
    }

    template <typename T>
    bool read(T& value) {
        if constexpr (std::tuple_size_v<decltype(jsonFields<T>)> == 0) {
            return Reader::read(value);
        } else {
            constexpr auto count = std::tuple_size_v<decltype(jsonFields<T>)>;
            return readRecord(value, std::make_index_sequence<count>());
        }
    }

private:
    static constexpr std::size_t mostFields = 64;

    /// Where the reading of one object stands.
    struct Members {
        /// Whether the cursor is at the key of another member.
        bool more = false;
        /// One bit for each field of the table whose key was seen.
        std::uint64_t seen = 0;
        /// The place in the table of the first field that could not be read.
        std::size_t failed = mostFields;
        /// The place in the table of the field whose value the cursor is at, where the key was already
        /// passed.
        std::size_t named = mostFields;
    };

    template <typename Record, std::size_t... places>
    bool readRecord(Record& record, std::index_sequence<places...>) {
        static_assert(sizeof...(places) <= mostFields);
        if (cursor_.peek() != '{') {
            return passUnexpected(expectedOf<Record>());
        }
        Members members;
        members.more = cursor_.open() && cursor_.first('}');
        while (members.more) {
            // Each round offers every field the member then at hand. Members in the table's order all find
            // theirs in a single round.
            const std::uint64_t before = members.seen;
            (tryField<places>(record, members), ...);
            if (members.more && members.seen == before) {
                passOrName<Record, places...>(members);
            }
        }
        constexpr std::uint64_t required = ((isRequired<Record, places> ? bit(places) : 0) | ...);
        if ((members.seen & required) != required) {
            (missField<Record, places>(members), ...);
        }
        return members.failed == mostFields && !cursor_.invalid();
    }

    template <std::size_t place, typename Record>
    void tryField(Record& record, Members& members) {
        if (!members.more || (members.seen & bit(place))) {
            return;
        }
        const bool here =
            members.named == mostFields ? cursor_.takeKey(quotedKey<Record, place>) : members.named == place;
        if (here) {
            readField<place>(record, members);
        }
    }

    /// Passes a member whose key is not in the table or was seen before. Where the key is in the table once
    /// its escapes are gone, passes no more than the key and names the field.
    template <typename Record, std::size_t... places>
    void passOrName(Members& members) {
        std::string_view key;
        if (!passKey(key)) {
            members.more = false;
            return;
        }
        ((!(members.seen & bit(places)) && key == std::get<places>(jsonFields<Record>).key
              ? members.named = places
              : 0),
         ...);
        if (members.named == mostFields) {
            cursor_.skip();
            members.more = nextMember();
        }
    }

    template <std::size_t place, typename Record>
    void readField(Record& record, Members& members) {
        constexpr auto field = std::get<place>(jsonFields<Record>);
        members.seen |= bit(place);
        if (members.failed < place) {
            cursor_.skip();
        } else {
            field_ = place;
            if (!read(record.*field.member) && !cursor_.invalid()) {
                members.failed = place;
                prefixError(field.key);
            }
        }
        members.named = mostFields;
        members.more = nextMember();
    }

    bool nextMember() { return !cursor_.invalid() && cursor_.next('}'); }

    template <typename Record, std::size_t place>
    void missField(Members& members) {
        if (isRequired<Record, place> && !(members.seen & bit(place)) && place < members.failed) {
            constexpr auto field = std::get<place>(jsonFields<Record>);
            members.failed = place;
            fail(DecodingError::Reason::missingKey, expectedOf<Member<Record, place>>());
            prefixError(field.key);
        }
    }

    template <typename Record, std::size_t place>
    using Member =
        std::remove_cvref_t<decltype(std::declval<Record&>().*std::get<place>(jsonFields<Record>).member)>;
    template <typename Record, std::size_t place>
    static constexpr bool isRequired = !isOptional<Member<Record, place>>;

    template <typename Record, std::size_t place>
    static constexpr auto quotedKey = [] {
        constexpr std::string_view key = std::get<place>(jsonFields<Record>).key;
        std::array<char, key.size() + 2> quoted{};
        quoted.front() = quoted.back() = '"';
        std::copy(key.begin(), key.end(), quoted.begin() + 1);
        return quoted;
    }();

    static constexpr std::uint64_t bit(std::size_t place) { return std::uint64_t{1} << place; }

    /// For each place in a table, the length of the list last read there: a fair guess at the next one's,
    /// which can ask for hardly more memory than that list has filled.
    std::array<std::size_t, mostFields> usualLengths_{};
    /// The place in its table of the field being read.
    std::size_t field_ = 0;
};

} // namespace quillet::platform::json
