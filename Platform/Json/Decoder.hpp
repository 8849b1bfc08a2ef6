#pragma once

#include "Platform/Json/DecodingError.hpp"
#include "Platform/Json/RecordReader.hpp"
#include "Platform/Json/StructuralIndex.hpp"

#include <expected>
#include <string>
#include <utility>

namespace quillet::platform::json {

/// Decodes a whole body into a `T`: a record with a table, or a std::optional or std::vector of one. All of
/// the body is checked, also what no field reads. May be called on any thread; recurses no deeper than
/// records nest.
///
/// Of several faults the one reported is: that the body is not JSON; else, in each record, that of the field
/// first in its table; in each list, that of the first element. Where a key stands twice in an object, its
/// first value counts.
template <typename T>
[[nodiscard]] std::expected<T, DecodingError> decode(const std::string& body) {
    const auto index = StructuralIndex::of(body);
    if (!index) {
        return std::unexpected(DecodingError{});
    }
    RecordReader reader(body, index->offsets());
    std::expected<T, DecodingError> result;
    const bool read = reader.read(*result);
    if (!reader.passedAll()) {
        result = std::unexpected(DecodingError{});
    } else if (!read) {
        result = std::unexpected(reader.takeError());
    }
    return result;
}

} // namespace quillet::platform::json
