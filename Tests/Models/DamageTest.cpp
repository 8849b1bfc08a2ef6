#include "Models/Bodies.hpp"
#include "Models/Decoding.hpp"
#include "Network/Errors/ErrorFields.hpp"
#include "Support/Thorough.hpp"

#include <simdjson.h>

namespace quillet::tests {

/// The kernels of simdjson that this processor can run. Each finds the tokens in a way of its own, and a
/// process usually runs but the best.
std::vector<const simdjson::implementation*> kernels() {
    const auto& available = simdjson::get_available_implementations();
    std::vector<const simdjson::implementation*> kernels(available.begin(), available.end());
    std::erase_if(kernels, [](const auto* kernel) { return !kernel->supported_by_runtime_system(); });
    return kernels;
}

/// Damages a body in every way of a kind at every place, and compares what each kernel makes of it with what
/// another parser does. In the quick form every tenth body, and those by turns on the kernels.
template <typename Response>
std::size_t tryDamage(const std::string& whole) {
    using namespace std::string_view_literals;
    static const auto all = kernels();
    const std::size_t step = testing::thorough(10, 1);
    std::size_t number = 0;
    std::size_t cases = 0;
    const auto tryBody = [&](std::size_t from, std::size_t length, std::string_view with) {
        // One failure tells enough.
        if (++number % step != 0 || ::testing::Test::HasFailure()) {
            return;
        }
        for (std::size_t i = 0; i < all.size(); ++i) {
            if (step == 1 || number / step % all.size() == i) {
                simdjson::get_active_implementation() = all[i];
                expectAgreement<Response>(std::string(whole).replace(from, length, with));
                ++cases;
            }
        }
    };
    for (std::size_t i = 0; i < whole.size(); ++i) {
        tryBody(i, whole.size() - i, "");
        tryBody(i, 1, "");
        for (const char& byte : "\"\\,:{}[]0-.eu \n\0\x1f\x80\xc3\xff"sv) {
            tryBody(i, 1, {&byte, 1});
            tryBody(i, 0, {&byte, 1});
        }
        for (int bit = 0; bit < 8; ++bit) {
            const char flipped = static_cast<char>(whole[i] ^ (1 << bit));
            tryBody(i, 1, {&flipped, 1});
        }
    }
    return cases;
}

TEST(DamageTest, EveryKernelAgreesWithAnotherParserOnDamagedBodies) {
    const simdjson::implementation* const usual = simdjson::get_active_implementation();
    const std::size_t cases =
        tryDamage<std::optional<OrderResponse>>(replaced(orderJson, R"({"id":1})", consultantJson)) +
        tryDamage<CheckoutResponse>(checkoutJson) + tryDamage<ClientError>(clientErrorJson) +
        tryDamage<ServerError>(serverErrorJson);
    simdjson::get_active_implementation() = usual;
    RecordProperty("cases", static_cast<int>(cases));
}

} // namespace quillet::tests
