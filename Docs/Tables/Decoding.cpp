#include "Tables.hpp"

#include "Quillet/Authorization.hpp"
#include "Quillet/Checkout.hpp"
#include "Quillet/Orders.hpp"

#include <ostream>

namespace quillet::docs {

namespace {

using platform::DecodingError;

Told told(DecodingError::Reason reason) {
    switch (reason) {
    case DecodingError::Reason::invalidJson:
        return {"DecodingError, invalidJson", "not one complete JSON value in UTF-8, or nested too deep",
                "what answers in the back end's place"};
    case DecodingError::Reason::missingKey:
        return {"DecodingError, missingKey", "a required key is not there", "the back end's version"};
    case DecodingError::Reason::unexpectedValue:
        return {"DecodingError, unexpectedValue", "a value of another kind, out of range or null",
                "the value at the path"};
    }
    return {};
}

Told told(HmacSha256Error error) {
    const std::string openSsl = "the OpenSSL that the process has loaded";
    const std::string never = "not returned; kept for the codes of those that are";
    switch (error) {
    case HmacSha256Error::couldNotTransformSignatureInData:
        return {"couldNotTransformSignatureInData", "OpenSSL could not sign", openSsl};
    case HmacSha256Error::couldNotCreateCharStringFromContent:
        return {"couldNotCreateCharStringFromContent", never, ""};
    case HmacSha256Error::couldNotCreateCharStringFromSecretKey:
        return {"couldNotCreateCharStringFromSecretKey", never, ""};
    case HmacSha256Error::couldNotTransformContentToSignInData:
        return {"couldNotTransformContentToSignInData", "what is signed is not UTF-8",
                "nothing: Base64 always is"};
    case HmacSha256Error::couldNotTransformSecretKeyInData:
        return {"couldNotTransformSecretKeyInData", "the secret is not UTF-8", "what `authorize` was given"};
    }
    return {};
}

// One function for each error that decoding a body can have.
struct PrintError {
    std::ostream& out;

    void operator()(const DecodingError& error) const {
        const Told row = told(error.reason);
        printRow(out, {'`' + row.name + '`', error.description(), row.meaning, row.check});
    }
    void operator()(const CheckoutResponseMessage::CodingError& error) const {
        printRow(out, {"`CheckoutResponseMessage::CodingError`", error.decoding,
                       "the verdict is none of the three", "the back end's version"});
    }
    void operator()(ResponseCodingError error) const {
        switch (error) {
        case ResponseCodingError::emptyData:
            printEmpty("ResponseCodingError::emptyData", description(error));
        }
    }
    void operator()(OpenOrdersResponse::CodingError error) const {
        switch (error) {
        case OpenOrdersResponse::CodingError::emptyData:
            printEmpty("OpenOrdersResponse::CodingError::emptyData", "");
        }
    }
    void operator()(CheckoutResponse::CodingError error) const {
        switch (error) {
        case CheckoutResponse::CodingError::emptyData:
            printEmpty("CheckoutResponse::CodingError::emptyData", "");
        }
    }

private:
    void printEmpty(const std::string& name, const std::string& line) const {
        printRow(out, {'`' + name + '`', line, "there was no body at all", "whether there was an answer"});
    }
};

} // namespace

void printDecodingErrors(std::ostream& out) {
    printHead(out, {"Error", "In words, for example", "Meaning", "Check"});
    const PrintError print{out};
    for (const char* body : {"{", "{}", R"({"consultant":{"id":"1"}})"}) {
        std::visit(print, OrderResponse::create(body).error());
    }
    std::visit(print, CheckoutResponse::create(R"({"submittedOrderId":"1","consultant":{"id":1},
        "message":"CART_SENT"})")
                          .error());
    std::visit(print, OrderResponse::create({}).error());
    std::visit(print, OpenOrdersResponse::create({}).error());
    std::visit(print, CheckoutResponse::create({}).error());
}

void printTokenErrors(std::ostream& out) {
    printHead(out, {"`JWTError`", "`description(error)`", "Meaning", "Check"});
    const auto badToken = authorize("\xff", "provider", "secret").error();
    printRow(out, {"`platform::EncodingError`", description(badToken), "the access token is not UTF-8",
                   "the token, as the host passed it"});
    const auto values =
        valuesBetween<HmacSha256Error>(0, 9, [](HmacSha256Error error) { return !told(error).name.empty(); });
    for (const HmacSha256Error error : values) {
        const Told row = told(error);
        printRow(out, {"`HmacSha256Error::" + row.name + '`', description(error), row.meaning, row.check});
    }
}

} // namespace quillet::docs
