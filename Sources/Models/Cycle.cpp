#include "Quillet/Orders.hpp"

#include "Quillet/FatalErrorWrapper.hpp"

namespace quillet {

std::string Cycle::onlyCode(const Cycle& cycle) {
    constexpr std::size_t shown = 2;
    std::string digits = std::to_string(cycle.code);
    if (digits.size() < shown) {
        FatalErrorWrapper::fatalErrorClosure("The cycle's code has fewer than two digits", __FILE_NAME__,
                                             __LINE__);
        return digits;
    }
    return digits.substr(digits.size() - shown);
}

} // namespace quillet
