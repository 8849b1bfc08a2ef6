#include "Quillet/Platform/CodingErrors.hpp"

namespace quillet::platform {

std::string DecodingError::description() const {
    const std::string where = path.empty() ? "The body" : path;
    switch (reason) {
    case Reason::invalidJson:
        return "The body is not valid JSON.";
    case Reason::missingKey:
        return where + " is missing; expected: " + expected + ".";
    case Reason::unexpectedValue:
        return where + " is not as expected: " + expected + ".";
    }
    return {};
}

} // namespace quillet::platform
