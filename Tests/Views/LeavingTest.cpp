#include "Checkout/CheckoutFactory.hpp"
#include "KelCommon/KelAnalyticsManager.hpp"
#include "Models/Bodies.hpp"
#include "Quillet/Quillet.hpp"
#include "Quillet/Testing/RecordingHost.hpp"
#include "Support/FaultServer.hpp"
#include "Support/Stage.hpp"
#include "Views/Animation/ViewAnimating.hpp"
#include "Workers/CheckoutWorkerFactory.hpp"

#include <QPointer>

#include <gmock/gmock.h>

#include <atomic>
#include <latch>
#include <ostream>

namespace quillet::testing {

namespace {

using ::testing::IsEmpty;
using namespace quillet::tests;

/// The number of ended calls.
class EndCounter final : public platform::URLSessionObserving {
public:
    void willSend(std::uint64_t, const platform::URLRequest&) override {}
    void didEnd(std::uint64_t, const platform::URLRequest&, const platform::URLSessionExchangeEnd&) override {
        ++ends;
    }

    std::atomic<std::size_t> ends = 0;
};

/// What is pending when the host removes the screen.
enum class Pending { answer, fadeOfATap, screenReader };

struct Case {
    const char* name;
    enum { summary, checkout } first;
    /// The answers to the calls in order; the last may be pending.
    std::vector<Answer> answers;
    /// Clicked before.
    std::vector<const char*> clicks;
    Pending pending;
    /// Tapped just before the removal, or pressed by a screen reader after it: StackView blocks input on
    /// moving pages, but not a screen reader.
    const char* used = nullptr;

    friend void PrintTo(const Case& testCase, std::ostream* stream) { *stream << testCase.name; }
};

std::vector<Case> cases() {
    const auto order = Answer::complete(200, orderJson);
    const auto openOrders = Answer::complete(200, openOrdersJson);
    const auto result = Answer::complete(200, checkoutJson);
    const auto timeOut = Answer::complete(504, "");
    const auto failure = Answer::complete(500, "");
    using enum Pending;
    return {
        {"SummaryAssociates", Case::summary, {order}, {}, answer},
        {"SummaryGetsOrders", Case::summary, {order, openOrders}, {}, answer},
        {"SummaryFails", Case::summary, {failure, failure}, {}, answer},
        {"SummaryDialog", Case::summary, {order, openOrders}, {}, fadeOfATap, "Ver Pedidos"},
        {"SummarySends",
         Case::summary,
         {order, openOrders},
         {"Ver Pedidos"},
         screenReader,
         "Enviar productos a mi carrito"},
        {"SummaryRetries", Case::summary, {timeOut, failure}, {}, screenReader, "Actualizar"},
        {"CheckoutSucceeds", Case::checkout, {result}, {}, answer},
        {"CheckoutFails", Case::checkout, {failure}, {}, answer},
        {"CheckoutRetries", Case::checkout, {failure}, {}, fadeOfATap, "Actualizar"},
        {"CheckoutGoesHome", Case::checkout, {failure}, {}, fadeOfATap, "dialogCloseIcon"},
        {"ResultGoesToCart", Case::checkout, {result}, {}, screenReader, "Ir al carrito"},
        {"ResultHidesSection", Case::checkout, {result}, {}, screenReader, "Productos enviados"},
    };
}

struct Leaving : ::testing::TestWithParam<Case> {
    Leaving() {
        kel::KelAnalyticsManager::shared()->setSink(std::make_shared<RecordingAnalytics>(log));
        platform::URLSessionConfiguration::setDefaultConfiguration(
            {.caBundleFile = authority.bundleFile(),
             .hostMappings = {{.host = gateway, .address = "127.0.0.1", .port = server.port()}},
             .observer = calls});
    }
    ~Leaving() override {
        letAnswerGo();
        kel::KelAnalyticsManager::shared()->setSink(nullptr);
        platform::URLSessionConfiguration::setDefaultConfiguration({});
        EXPECT_THAT(Stage::complaints(), IsEmpty());
    }

    void letAnswerGo() {
        if (const auto gate = std::exchange(gate_, nullptr)) {
            gate->count_down();
        }
    }

    void script(std::vector<Answer> answers) {
        if (GetParam().pending == Pending::answer) {
            std::string& whole = answers.back().pieces[0];
            answers.back() = {.pieces = {whole.substr(0, 1), whole.substr(1)}, .gate = gate_};
        }
        for (Answer& answer : answers) {
            server.enqueue(std::move(answer));
        }
    }

    void open() {
        const auto starter = Starter::create("token", "idp", {"cart-1", 41051, "CL"}, host);
        const auto screen =
            GetParam().first == Case::summary
                ? starter->createRootViewController()
                : CheckoutFactory(std::make_unique<CheckoutWorkerFactory>(
                                      "CL", 41051, starter->authorization(), starter->domainUrl()),
                                  std::make_unique<CheckoutConfigurator>(), host)
                      .create();
        ASSERT_TRUE(present(screen, stage.stack()));
    }

    [[nodiscard]] bool settled() const { return !stage.stack().property("busy").toBool(); }
    [[nodiscard]] bool comesToShow(const char* text) const {
        return turnUntil([&] { return stage.shows(text) && settled(); });
    }

    Log log = makeLog();
    std::shared_ptr<RecordingNavigation> host = std::make_shared<RecordingNavigation>(log);
    std::string gateway = Starter::create("", "", {}, nullptr)->domainUrl();
    TestAuthority authority;
    FaultServer server{authority.serverContext(gateway)};
    std::shared_ptr<EndCounter> calls = std::make_shared<EndCounter>();
    Stage stage;

private:
    std::shared_ptr<std::latch> gate_ = std::make_shared<std::latch>(1);
};

} // namespace

TEST_P(Leaving, EndsWithThePopAndNotWithItsAnimation) {
    const Case& way = GetParam();
    script(way.answers);
    open();
    for (const char* text : way.clicks) {
        ASSERT_TRUE(comesToShow(text));
        stage.click(text);
        ASSERT_TRUE(turnUntil([&] { return !stage.shows(text); }));
    }
    ASSERT_TRUE(turnUntil([&] { return server.requests().size() == way.answers.size() && settled(); }));
    ASSERT_TRUE(!way.used || comesToShow(way.used));
    const QPointer<QObject> screen = stage.stack()
                                         .property("currentItem")
                                         .value<QQuickItem*>()
                                         ->property("viewController")
                                         .value<QObject*>();
    const int depth = stage.depth();
    log->clear();

    std::function<bool()> came = [] { return true; };
    std::chrono::milliseconds wayOut(1'000);
    bool faded = false;
    if (way.pending == Pending::answer) {
        came = [&] { return calls->ends == way.answers.size(); };
    } else if (way.pending == Pending::fadeOfATap) {
        stage.click(way.used);
        // As long as the dialog's fade, and driven by the same clock.
        ViewAnimatingWrapper().animate(
            std::chrono::milliseconds(710), [](double) {}, [&] { faded = true; });
        came = [&] { return faded; };
        wayOut *= 2;
    }
    stage.popSlowly(wayOut);
    ASSERT_FALSE(settled());
    letAnswerGo();
    if (way.pending == Pending::screenReader) {
        stage.pressByScreenReader(way.used);
    }
    ASSERT_TRUE(turnUntil(came));
    EXPECT_FALSE(settled());
    ASSERT_TRUE(turnUntil([&] { return settled() && !screen; }));

    EXPECT_THAT(*log, IsEmpty());
    EXPECT_EQ(server.requests().size(), way.answers.size());
    EXPECT_EQ(stage.depth(), depth - 1);
    EXPECT_FALSE(stage.shows("dialogCloseIcon"));
}

INSTANTIATE_TEST_SUITE_P(Screens, Leaving, ::testing::ValuesIn(cases()),
                         [](const auto& testCase) { return std::string(testCase.param.name); });

} // namespace quillet::testing
