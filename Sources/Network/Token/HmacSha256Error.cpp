#include "Quillet/Authorization.hpp"

namespace quillet {

std::string description(HmacSha256Error error) {
    return "The operation couldn’t be completed. (Quillet.HmacSha256Error error " +
           std::to_string(static_cast<int>(error)) + ".)";
}

} // namespace quillet
