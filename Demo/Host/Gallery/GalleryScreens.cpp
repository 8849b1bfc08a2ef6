#include "Gallery/GalleryScreens.hpp"

#include "Gallery/GalleryBodies.hpp"

namespace demo {

namespace {

using quillet::testing::Call;
using quillet::testing::Reply;
using enum GalleryKind;
using enum GalleryStep;

using Replies = std::map<Call, Reply>;
using Steps = std::vector<GalleryStep>;

Replies association(const Reply& reply) {
    return {{Call::associate, reply}};
}

Replies checkout(std::int64_t status, std::string_view verdict,
                 const std::vector<std::string_view>& products) {
    return {{Call::checkout, {.status = status, .body = checkoutBody(verdict, products)}}};
}

Reply noConnection() {
    return {.error = quillet::platform::URLError{quillet::platform::URLError::Code::notConnectedToInternet,
                                                 "The Internet connection appears to be offline"}};
}

} // namespace

std::vector<GalleryScreen> galleryScreens(bool quick) {
    const Replies allSent = checkout(200, "CART_SUBMITTED_SUCCESS", {"OK", "OK", "OK", "OK"});
    const Replies someSent = checkout(200, "CART_SUBMITTED_PARTIAL_SUCCESS",
                                      {"OK", "UNAVAILABLE", "QUANTITY_ERROR", "NOT_FOUND", "OK"});
    const Replies noneSent =
        checkout(422, "CART_SUBMITTED_ERROR", {"UNAVAILABLE", "QUANTITY_ERROR", "NOT_FOUND"});
    const Replies fault = {{Call::checkout, {.status = 500}}};
    const Steps toSummary{closeDialog};
    const Steps toResult{closeDialog, sendProducts};
    std::vector<GalleryScreen> screens{
        {.name = QStringLiteral("loading"),
         .kind = loading,
         .quick = true,
         .replies = association(Reply::never())},
        {.name = QStringLiteral("loading-long"),
         .kind = loading,
         .replies = association(Reply::never()),
         .steps = {waitLong}},
        {.name = QStringLiteral("order-registered"), .kind = dialog, .quick = true},
        {.name = QStringLiteral("other-consultant"),
         .kind = dialog,
         .refusal = "ERROR_CART_OTHER_CONSULTANT"},
        {.name = QStringLiteral("already-submitted"),
         .kind = dialog,
         .refusal = "ERROR_CART_ALREADY_SUBMITTED"},
        {.name = QStringLiteral("summary"), .kind = summary, .quick = true, .steps = toSummary},
        {.name = QStringLiteral("summary-end"),
         .kind = summary,
         .steps = toSummary,
         .part = GalleryPart::end},
        {.name = QStringLiteral("no-connection"), .kind = tryAgain, .replies = association(noConnection())},
        {.name = QStringLiteral("time-out"), .kind = tryAgain, .replies = association({.status = 504})},
        {.name = QStringLiteral("generic-error"), .kind = tryAgain, .replies = association({.status = 500})},
        {.name = QStringLiteral("checkout-error"), .kind = dialog, .replies = fault, .steps = toResult},
        {.name = QStringLiteral("all-sent"), .kind = result, .replies = allSent, .steps = toResult},
        {.name = QStringLiteral("some-sent"),
         .kind = result,
         .quick = true,
         .replies = someSent,
         .steps = toResult},
        {.name = QStringLiteral("some-sent-end"),
         .kind = result,
         .replies = someSent,
         .steps = toResult,
         .part = GalleryPart::end},
        {.name = QStringLiteral("none-sent"), .kind = result, .replies = noneSent, .steps = toResult},
        {.name = QStringLiteral("section-closed"),
         .kind = result,
         .replies = someSent,
         .steps = {closeDialog, sendProducts, closeSection},
         .part = GalleryPart::end},
    };
    if (quick) {
        std::erase_if(screens, [](const GalleryScreen& screen) { return !screen.quick; });
    }
    return screens;
}

} // namespace demo
