#include "Platform/Json/DecodingError.hpp"

namespace quillet::platform {

std::string DecodingError::description() const {
    const std::string place = path.empty() ? "The body" : path;
    switch (reason) {
    case Reason::invalidJson:
        return "The body is not valid JSON.";
    case Reason::missingKey:
        return place + " is missing; expected: " + expected + ".";
    case Reason::unexpectedValue:
        return place + " is not as expected: " + expected + ".";
    }
    return {};
}

} // namespace quillet::platform
