#include "Gateway/Router.hpp"

#include "Gateway/Carts.hpp"
#include "Gateway/Checkout.hpp"
#include "Gateway/ErrorBodies.hpp"

#include <utility>

namespace quillet::gateway {

namespace {

Reply answer(Database& database, const Consultant& consultant, const Call& call, const std::string& target) {
    switch (call.kind) {
    case CallKind::associate:
        return associate(database, consultant, call, target);
    case CallKind::open:
        return listOpenCarts(database, consultant);
    case CallKind::checkout:
        return checkOut(database, consultant);
    }
    std::unreachable();
}

} // namespace

Router::Router(std::filesystem::path data, const Identity& identity)
    : data_(std::move(data)), identity_(identity) {}

Outcome Router::handle(const Request& request) const {
    auto call = checkRequest(request, identity_);
    if (!call) {
        return {.reply = std::move(call.error()), .fault = {}, .consultant = {}};
    }
    try {
        return carryOut(*call, request.target);
    } catch (const std::exception& error) {
        // Whatever cannot be done is the database's fault: what it holds, or that it cannot be reached.
        return {.reply = serverError(500, request.target, "ERROR_DATABASE", error.what()),
                .fault = {},
                .consultant = call->consultant};
    }
}

Outcome Router::carryOut(const Call& call, const std::string& target) const {
    auto database = openStore(data_);
    Outcome outcome{.reply = {}, .fault = {}, .consultant = call.consultant};
    const auto consultant = findConsultant(database, call.consultant);
    if (!consultant || (call.kind != CallKind::associate && consultant->country != call.country)) {
        outcome.reply = clientError(404, target, "There is no such consultant in this country.");
        return outcome;
    }
    outcome.fault = takeFault(database, consultant->id, call.kind);
    if (outcome.fault && outcome.fault->kind == FaultKind::silence) {
        return outcome;
    }
    if (auto instead = outcome.fault ? replyInPlace(*outcome.fault, target) : std::nullopt) {
        outcome.reply = std::move(*instead);
    } else {
        outcome.reply = answer(database, *consultant, call, target);
    }
    return outcome;
}

} // namespace quillet::gateway
