#include "Quillet/Orders.hpp"

#include "Models/RecordFields.hpp"
#include "Platform/Json/Decoder.hpp"

namespace quillet {

std::expected<std::optional<OrderResponse>, OrderResponse::Error>
OrderResponse::create(const std::optional<std::string>& data) {
    if (!data) {
        return std::unexpected(ResponseCodingError::emptyData);
    }
    return platform::json::decode<std::optional<OrderResponse>>(*data);
}

} // namespace quillet
