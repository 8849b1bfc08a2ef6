#pragma once

#include "Platform/Json/RecordReader.hpp"
#include "Platform/Json/StructuralIndex.hpp"
#include "Quillet/Platform/CodingErrors.hpp"

#include <expected>
#include <string>
#include <utility>

namespace quillet::platform::json {

/// Decodes a whole body into a `T`: a record with a field table, or a std::optional or std::vector of one.
/// The whole body is validated, including ignored members. May be called on any thread. The recursion depth
/// is that of the record types.
///
/// If there are several errors, invalid JSON is reported first; else, in each record, the error of the first
/// field in its table, and in each list that of the first element. If an object has a key twice, the first
/// value counts. `window` is how many bytes are looked at ahead; the result does not depend on it.
template <typename T>
[[nodiscard]] std::expected<T, DecodingError> decode(const std::string& body,
                                                     std::size_t window = StructuralIndex::usualWindow) {
    StructuralIndex index(body, window);
    RecordReader reader(body, index);
    std::expected<T, DecodingError> result;
    const bool read = reader.canRead() && reader.read(*result);
    if (!reader.passedAll()) {
        result = std::unexpected(DecodingError{});
    } else if (!read) {
        result = std::unexpected(reader.takeError());
    }
    return result;
}

} // namespace quillet::platform::json
