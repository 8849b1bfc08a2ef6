#include "Models/RecordFields.hpp"

namespace quillet {

ProductErrorStatus productErrorStatus(std::string_view text) {
    if (text == "OK") {
        return ProductErrorStatus::none;
    }
    if (text == "UNAVAILABLE") {
        return ProductErrorStatus::unavailable;
    }
    if (text == "QUANTITY_ERROR") {
        return ProductErrorStatus::quantityError;
    }
    return ProductErrorStatus::notFound;
}

} // namespace quillet
