#include "Targets.hpp"

#include "Support/ListeningPort.hpp"

namespace quillet::testing {

std::vector<Target> AtTargets::targets() const {
    // A second try is not answered.
    const std::pair fails(Call::checkout, std::deque{Reply{.status = 500}, Reply::never()});
    const std::pair timesOut(Call::associate, std::deque{Reply{.status = 504}, Reply::never()});
    const std::pair isGone(Call::associate, std::deque{Reply{.status = 500}});
    const std::string home = "navigateToHome";
    const auto registered = [](const char* label) { return event("Register Order", label); };
    const auto orders = [](const char* label) { return event("My Clients Orders", label); };
    const std::vector<std::string> sending = {orders("Send Orders to Cart - Click"),
                                              "screen Feedback de produtos"};
    const std::vector<std::string> hiding = {orders("Products Sent - Hide"), orders("Products Sent - Expand"),
                                             orders("Products Sent - Hide")};
    return {
        {"orders", {}, {}, viewOrders, {registered("View Orders")}, 2},
        {"orders, closed", {}, {}, closeIcon, {registered("Close")}, 2},
        {"orders, beside", {}, {}, background, {}, 2},
        {"time-out", {timesOut}, {}, retry, {}, 3},
        {"gone", {isGone}, {}, "Volver", {home}, 2},
        {"send", {}, {viewOrders}, send, sending, 3},
        {"failure", {fails}, {viewOrders, send}, retry, {}, 4},
        {"failure, closed", {fails}, {viewOrders, send}, closeIcon, {home}, 3},
        {"failure, beside", {fails}, {viewOrders, send}, background, {home}, 3},
        {"cart", {}, {viewOrders, send}, goToCart, {orders("Go to Cart"), "navigateToCart"}, 3},
        {"section", {}, {viewOrders, send}, section, hiding, 3, true},
    };
}

Target AtTargets::target(const std::string& name) const {
    const auto all = targets();
    return *std::ranges::find(all, name, &Target::name);
}

void AtTargets::reach(const Target& target) {
    backend = ScriptedBackend::install();
    host = host ? host : std::make_shared<RecordingNavigation>(log);
    stage = stage ? std::move(stage) : std::make_shared<Stage>();
    for (const auto& [call, replies] : target.replies) {
        backend->script(call, replies);
    }
    if (target.isOverTheNetwork) {
        static const ListeningPort silence;
        const std::string gateway = Starter::create("", "", {}, nullptr)->domainUrl();
        platform::URLSessionConfiguration::setDefaultConfiguration(
            {.hostMappings = {{gateway, "127.0.0.1", silence.port()}}});
    }
    stage->popAll();
    // High enough for all of a result.
    stage->window().resize(390, 1400);
    // On the bar, or the next touch might be taken for the end of a double one with the last.
    stage->touchAt({200, 32});
    open();
    clickThrough(target.clicks);
    const auto waits = [&] { return backend->requests().size() == target.requests && settled(); };
    ASSERT_TRUE(target.tapped.isEmpty() ? turnUntil(waits) : comesToShow(target.tapped)) << target.name;
    log->clear();
}

QPointF AtTargets::place(const QString& tapped) const {
    return tapped == background ? QPointF(5, 5) : stage->middle(tapped);
}

} // namespace quillet::testing
