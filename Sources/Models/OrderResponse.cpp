#include "Models/OrderResponse.hpp"

#include "Models/Json/Decoder.hpp"

namespace quillet {

std::expected<std::optional<OrderResponse>, OrderResponse::Error>
OrderResponse::create(const std::optional<std::string>& data) {
    if (!data) {
        return std::unexpected(ResponseCodingError::emptyData);
    }
    return json::decode<std::optional<OrderResponse>>(*data);
}

} // namespace quillet
