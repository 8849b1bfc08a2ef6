#include "Quillet/Testing/ScriptedBackend.hpp"

#include "Quillet/Platform/URLSessionConfiguration.hpp"

#include <algorithm>
#include <utility>

namespace quillet::testing {

namespace {

Call callOf(const platform::URLRequest& request) {
    const std::string method = request.httpMethod.value_or("GET");
    return method == "PATCH" ? Call::associate : method == "POST" ? Call::checkout : Call::getOpenOrders;
}

const std::string consultant =
    R"({"id":41052,"cycle":{"code":202605,"startDate":"2026-03-01T00:00:00.000+0000",)"
    R"("endDate":"2026-03-21T23:59:59.000+0000"}})";

std::string item(int code, const std::string& name, int amount) {
    const std::string number = std::to_string(code);
    const std::string units = std::to_string(amount);
    return R"({"productCode":)" + number + R"(,"origin":"MAGAZINE","productDescription":")" + name +
           R"(","unitPoints":10,"totalPoints":)" + std::to_string(10 * amount) +
           R"(,"totalPrice":8990.00,"totalProfit":2697.00,"choosable":false,"amount":)" + units +
           R"(,"magazineAmount":)" + units +
           R"(,"unitPrice":8990.00,"unitProfit":2697.00,"imageUrl":"","isKit":false})";
}

std::string cart() {
    return R"({"cartNumber":300052,"cartUuid":"7f3c9a10-52e1-4d0b-9c77-1f0a6b2e84d3","status":"OPEN",)"
           R"("type":"SELL_OUT","createdAt":"2026-03-14T12:00:00.000+0000","totalRegularItems":3,)"
           R"("totalBenefitItems":0,"totalItems":3,"totalPoints":60,"cartTotal":53940.00,)"
           R"("regularItemsProfit":16182.00,"benefitItemsProfit":0,"totalProfit":16182.00,)"
           R"("magazineCycle":"202605","regularItems":[)" +
           item(81190, "Perfume Luz de tarde 100 ml", 1) + "," +
           item(90318, "Labial mate Arcilla rosada", 3) + "," +
           item(61204, "Champú sólido Romero y limón", 2) + R"(],"benefitItems":[]})";
}

std::string product(int code, const std::string& name, const std::string& status) {
    return R"({"productCode":)" + std::to_string(code) + R"(,"description":")" + name + R"(","status":")" +
           status + R"(","quantity":1,"totalPrice":8990.00,"unitPoints":10,"totalPoints":10})";
}

} // namespace

std::string sampleBody(Call call) {
    switch (call) {
    case Call::associate:
        return R"({"consultant":)" + consultant + R"(,"cart":)" + cart() + "}";
    case Call::getOpenOrders:
        return R"({"consultant":)" + consultant + R"(,"carts":[)" + cart() + "]}";
    case Call::checkout:
        break;
    }
    return R"({"submittedOrderId":"A-1","consultant":)" + consultant +
           R"(,"message":"CART_SUBMITTED_PARTIAL_SUCCESS","summary":{"allItems":3,"errorItems":1,)"
           R"("addedItems":2,"allPoints":30,"addedPoints":20,"addedProducts":2,"errorProducts":1},"products":[)" +
           product(81190, "Perfume Luz de tarde 100 ml", "OK") + "," +
           product(90318, "Labial mate Arcilla rosada", "OUT_OF_STOCK") + "," +
           product(61204, "Champú sólido Romero y limón", "OK") + "]}";
}

std::shared_ptr<ScriptedBackend> ScriptedBackend::install() {
    auto backend = std::make_shared<ScriptedBackend>();
    backend->clock_->addListener(backend);
    platform::URLSessionConfiguration configuration;
    configuration.loader = backend;
    configuration.clock = backend->clock_;
    platform::URLSessionConfiguration::setDefaultConfiguration(std::move(configuration));
    return backend;
}

void ScriptedBackend::uninstall() {
    platform::URLSessionConfiguration::setDefaultConfiguration({});
}

void ScriptedBackend::script(Call call, std::deque<Reply> replies) {
    const std::lock_guard lock(mutex_);
    scripts_[call] = std::move(replies);
}

std::vector<platform::URLRequest> ScriptedBackend::requests() const {
    const std::lock_guard lock(mutex_);
    return requests_;
}

void ScriptedBackend::load(const platform::URLRequest& request,
                           platform::URLSessionDataTaskCompletion completion) {
    const auto now = clock_->now();
    {
        const std::lock_guard lock(mutex_);
        requests_.push_back(request);
        Reply reply = next(callOf(request));
        if (reply.after >= request.timeoutInterval) {
            reply.error = platform::URLError{platform::URLError::Code::timedOut, "The request timed out"};
        }
        const auto due = now + std::min(reply.after, request.timeoutInterval);
        pending_.emplace(due, Pending{std::move(reply), std::move(completion)});
    }
    clockDidJump();
}

Reply ScriptedBackend::next(Call call) {
    auto& script = scripts_[call];
    if (script.empty()) {
        return Reply::sample(call);
    }
    Reply reply = script.front();
    if (script.size() > 1) {
        script.pop_front();
    }
    return reply;
}

void ScriptedBackend::clockDidJump() {
    const auto now = clock_->now();
    decltype(pending_) due;
    {
        const std::lock_guard lock(mutex_);
        while (!pending_.empty() && pending_.begin()->first <= now) {
            due.insert(pending_.extract(pending_.begin()));
        }
    }
    for (auto& [time, pending] : due) {
        const Reply& reply = pending.reply;
        if (reply.error) {
            pending.completion({}, {}, reply.error);
        } else {
            pending.completion(reply.body, platform::HTTPURLResponse{reply.status}, {});
        }
    }
}

} // namespace quillet::testing
