#include "Fuzzing/Reference/Tree.hpp"
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
/// another parser does.
template <typename Response>
class Damage {
public:
    explicit Damage(std::string body) : body_(std::move(body)) {}

    std::size_t tryAll() {
        using namespace std::string_view_literals;
        constexpr auto bytes = "\"\\,:{}[]0-.eu \n\0\x1f\x80\xc3\xff"sv;
        for (std::size_t i = 0; i < body_.size(); ++i) {
            tryBody(i, body_.size() - i, "");
            tryBody(i, 1, "");
            for (const char& byte : bytes) {
                tryBody(i, 1, {&byte, 1});
                tryBody(i, 0, {&byte, 1});
            }
            for (int bit = 0; bit < 8; ++bit) {
                const char flipped = static_cast<char>(body_[i] ^ (1 << bit));
                tryBody(i, 1, {&flipped, 1});
            }
        }
        return cases_;
    }

private:
    void tryBody(std::size_t from, std::size_t length, std::string_view with) {
        // In the quick form every tenth body, and those by turns on the kernels. One failure tells enough.
        static const std::size_t step = testing::thorough(10, 1);
        static const auto all = kernels();
        if (++number_ % step != 0 || ::testing::Test::HasFailure()) {
            return;
        }
        auto body = body_;
        body.replace(from, length, with);
        for (std::size_t i = 0; i < all.size(); ++i) {
            if (step == 1 || number_ / step % all.size() == i) {
                simdjson::get_active_implementation() = all[i];
                ++cases_;
                ASSERT_STREQ(fuzzing::disagreement(body, decodeInWindows<Response>(body)), nullptr) << body;
            }
        }
    }

    std::string body_;
    std::size_t number_ = 0;
    std::size_t cases_ = 0;
};

TEST(DamageTest, EveryKernelAgreesWithAnotherParserOnDamagedBodies) {
    const simdjson::implementation* const usual = simdjson::get_active_implementation();
    const std::size_t cases =
        Damage<std::optional<OrderResponse>>(replaced(orderJson, R"({"id":1})", consultantJson)).tryAll() +
        Damage<CheckoutResponse>(checkoutJson).tryAll() + Damage<ClientError>(clientErrorJson).tryAll() +
        Damage<ServerError>(serverErrorJson).tryAll();
    simdjson::get_active_implementation() = usual;
    RecordProperty("cases", static_cast<int>(cases));
}

} // namespace quillet::tests
