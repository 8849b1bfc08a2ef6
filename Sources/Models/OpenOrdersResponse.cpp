#include "Quillet/Orders.hpp"

#include "Models/RecordFields.hpp"
#include "Platform/Json/Decoder.hpp"

namespace quillet {

std::expected<OpenOrdersResponse, OpenOrdersResponse::Error>
OpenOrdersResponse::create(const std::optional<std::string>& data) {
    if (!data) {
        return std::unexpected(CodingError::emptyData);
    }
    return platform::json::decode<OpenOrdersResponse>(*data);
}

} // namespace quillet
