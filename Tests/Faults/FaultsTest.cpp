#include "Checkout/CheckoutFactory.hpp"
#include "KelCommon/KelAnalyticsManager.hpp"
#include "KelDS/KelAppearance.hpp"
#include "Models/Bodies.hpp"
#include "Quillet/Quillet.hpp"
#include "Quillet/Testing/RecordingHost.hpp"
#include "Support/FaultServer.hpp"
#include "Support/Stage.hpp"
#include "Workers/CheckoutWorkerFactory.hpp"

#include <QThread>

#include <gmock/gmock.h>

namespace quillet::testing {

namespace {

using ::testing::IsEmpty;
using namespace quillet::tests;

/// What the first screen shows.
enum class First { summary, timeOut, gone };
/// What the checkout shows.
enum class Checkout { result, dialog, nothing };

struct Fault {
    const char* name;
    /// Made of the body that would be good; an answer without a piece is one of a server that nobody trusts.
    std::function<Answer(const std::string&)> answer;
    First first;
    Checkout checkout;
};

Fault status(const char* name, int status, std::string body, First first, Checkout checkout) {
    return {name, [=](const std::string&) { return Answer::complete(status, body); }, first, checkout};
}

std::vector<Fault> faults() {
    using enum Answer::Ending;
    const std::string html = "<html><body>A page</body></html>";
    const std::string refusal =
        R"({"details":"d","error":"ERROR_CART_ALREADY_SUBMITTED","statusCode":422,"path":"/p"})";
    const std::string failure =
        R"({"error":{"response":{"statusCode":422,"message":"m","error":"e"},"status":422,)"
        R"("message":"ERROR_CART_ALREADY_SUBMITTED"},"statusCode":500,"path":"/p"})";
    return {
        {"none", [](auto& good) { return Answer::complete(200, good); }, First::summary, Checkout::result},
        {"a slow sender", [](auto& good) { return Answer::complete(200, good).sliced(1); }, First::summary,
         Checkout::result},
        {"a failure with a good body", [](auto& good) { return Answer::complete(500, good); }, First::summary,
         Checkout::result},
        {"a time-out with a good body", [](auto& good) { return Answer::complete(504, good); },
         First::summary, Checkout::result},
        {"a refusal with a good body", [](auto& good) { return Answer::complete(422, good); }, First::summary,
         Checkout::result},
        {"closed",
         [](auto&) {
             return Answer{{""}, close};
         },
         First::gone, Checkout::dialog},
        {"reset",
         [](auto&) {
             return Answer{{""}, reset};
         },
         First::gone, Checkout::dialog},
        {"cut in the body",
         [](auto& good) {
             auto answer = Answer::complete(200, good);
             answer.pieces[0].pop_back();
             return Answer{answer.pieces, cut};
         },
         First::gone, Checkout::dialog},
        {"cut where the end of the connection is the body's",
         [](auto& good) {
             return Answer{{"HTTP/1.1 200 OK\r\n\r\n" + good.substr(0, good.size() - 1)}, close};
         },
         First::gone, Checkout::nothing},
        {"over the limit", [](auto& good) { return Answer::complete(200, good + std::string(20'000, ' ')); },
         First::gone, Checkout::dialog},
        {"damaged packing",
         [](auto& good) { return Answer::complete(200, good, "Content-Encoding: gzip\r\n"); }, First::gone,
         Checkout::dialog},
        {"no HTTP",
         [](auto&) {
             return Answer{{"220 ready\r\n"}, close};
         },
         First::gone, Checkout::dialog},
        {"nobody's certificate", [](auto&) { return Answer{}; }, First::gone, Checkout::dialog},
        {"a redirect", [](auto&) { return Answer::complete(307, "", "Location: https://other.test/\r\n"); },
         First::gone, Checkout::nothing},
        {"no content", [](auto&) { return Answer{{"HTTP/1.1 204 No Content\r\n\r\n"}}; }, First::gone,
         Checkout::nothing},
        status("an empty body", 200, "", First::gone, Checkout::nothing),
        status("a web page", 200, html, First::gone, Checkout::nothing),
        status("another record", 200, refusal, First::gone, Checkout::nothing),
        status("401", 401, "", First::gone, Checkout::dialog),
        status("403", 403, html, First::gone, Checkout::dialog),
        status("404", 404, refusal, First::gone, Checkout::dialog),
        status("409", 409, refusal, First::gone, Checkout::dialog),
        status("422", 422, refusal, First::gone, Checkout::dialog),
        status("422 with a failure's body", 422, failure, First::gone, Checkout::dialog),
        status("429", 429, "", First::gone, Checkout::dialog),
        status("500", 500, failure, First::gone, Checkout::dialog),
        status("502", 502, html, First::gone, Checkout::dialog),
        status("503", 503, "", First::gone, Checkout::dialog),
        status("504", 504, "", First::timeOut, Checkout::dialog),
        status("504 with a failure's body", 504, failure, First::timeOut, Checkout::dialog),
        status("504 with a web page", 504, html, First::timeOut, Checkout::dialog),
    };
}

/// Whatever it is told comes on the main thread.
class MainThreadAnalytics final : public kel::KelAnalyticsManagerType {
public:
    explicit MainThreadAnalytics(Log log) : recording_(std::move(log)) {}
    void trackScreen(const kel::KelAnalyticsScreenType& screen) override {
        EXPECT_EQ(QThread::currentThread(), qApp->thread());
        recording_.trackScreen(screen);
    }
    void trackEvent(const kel::KelAnalyticsEventType& event) override {
        EXPECT_EQ(QThread::currentThread(), qApp->thread());
        recording_.trackEvent(event);
    }

private:
    RecordingAnalytics recording_;
};

/// All that is shown but icons, which are letters of a private alphabet, in the order of the items.
std::vector<std::string> textsOf(const QQuickItem& item) {
    std::vector<std::string> texts;
    if (!item.isVisible() || item.opacity() == 0) {
        return texts;
    }
    if (const auto text = item.property("text").toString(); !text.isEmpty()) {
        return text.front().category() == QChar::Other_PrivateUse ? texts : std::vector{text.toStdString()};
    }
    for (const QQuickItem* const child : item.childItems()) {
        const auto more = textsOf(*child);
        texts.insert(texts.end(), more.begin(), more.end());
    }
    return texts;
}

const std::vector<std::string> summary = {"En Curso",
                                          "Ciclo actual: 05",
                                          "Inicio: 01/03/2024",
                                          "Cierre: 22/03/2024",
                                          "Puntos en curso: <b>12</b>",
                                          "Resumen del Pedido:",
                                          "Ciclo del pedido: <b>05</b>",
                                          "05/03/2024",
                                          "Total de productos: <b>1</b>",
                                          "Puntos del pedido: <b>6</b>",
                                          "<b>Recuerda:</b> Puedes seguir acumulando tus ventas hasta "
                                          "alcanzar el puntaje deseado para realizar tu Nuevo "
                                          "Pedido.",
                                          "Enviar productos a mi carrito"};
const std::vector<std::string> registered = {"¡Pedido del cliente registrado y con estatus en curso!",
                                             "El pedido enviado por WhatsApp, fue registrado con éxito.",
                                             "Ver Pedidos", "Cerrar"};
const std::vector<std::string> timeOut = {"Lo sentimos, algo salió mal", "Actualizar"};
const std::vector<std::string> gone = {"Lo sentimos, pero esta información ya no está disponible.", "Volver"};
const std::vector<std::string> dialog = {
    "¡Ups, tuvimos un problema!",
    "Estamos experimentando inestabilidad en nuestros sistemas. Por favor, inténtalo de nuevo más tarde.",
    "Actualizar", "Cerrar"};
const std::vector<std::string> someSent = {"<b>Recuerda:</b> Puedes seguir acumulando tus ventas hasta "
                                           "alcanzar el puntaje deseado para realizar tu Nuevo "
                                           "Pedido.",
                                           "Ir al carrito",
                                           "Ciclo actual: ",
                                           "5 puntos enviados en total",
                                           "Algunos productos no fueron enviados al carrito. ¡Vea!",
                                           "Productos no enviados:",
                                           "7",
                                           "Productos enviados con éxito:",
                                           "6",
                                           "Productos enviados",
                                           "2",
                                           "Labial",
                                           "Code: 1",
                                           "0 puntos",
                                           "Productos no enviados",
                                           "1",
                                           "Crema",
                                           "Code: 2",
                                           "9 puntos"};
const std::string firstScreen = "screen Pedidos de mis clientes";
const std::string resultScreen = "screen Feedback de produtos";
const std::string errorScreen = "screen Error";
const std::string orderCame = event("Register Order", "Deep Linking");

struct Faults : ::testing::Test {
    Faults() {
        // Dates are shown by the device's time.
        qputenv("TZ", "UTC");
        kel::KelAppearance::current().setReducedMotion(true);
        kel::KelAnalyticsManager::shared()->setSink(std::make_shared<MainThreadAnalytics>(log));
        platform::URLSessionConfiguration::setDefaultConfiguration(
            {.caBundleFile = authority.bundleFile(),
             .hostMappings = {{.host = gateway, .address = "127.0.0.1", .port = server.port()}},
             .maximumBodyBytes = 16 << 10});
    }
    ~Faults() override {
        kel::KelAppearance::current().setReducedMotion(false);
        kel::KelAnalyticsManager::shared()->setSink(nullptr);
        platform::URLSessionConfiguration::setDefaultConfiguration({});
        EXPECT_THAT(Stage::complaints(), IsEmpty());
    }

    /// What the call is answered, and what the next one.
    void script(const Fault& fault, const std::string& goodBody, const std::vector<std::string>& next = {}) {
        auto answer = fault.answer(goodBody);
        if (answer.pieces.empty()) {
            server.setContext(TestAuthority().serverContext(gateway));
            return;
        }
        server.enqueue(std::move(answer));
        ++expectedRequests;
        scriptGood(next);
    }
    void scriptGood(const std::vector<std::string>& bodies) {
        server.setContext(authority.serverContext(gateway));
        for (const auto& body : bodies) {
            server.enqueue(Answer::complete(200, body));
        }
        expectedRequests += bodies.size();
    }
    void openFirst() { ASSERT_TRUE(present(starter.createRootViewController(), stage.stack())); }
    void openCheckout() {
        const auto screen = CheckoutFactory(std::make_unique<CheckoutWorkerFactory>(
                                                "CL", 41051, starter.authorization(), starter.domainUrl()),
                                            std::make_unique<CheckoutConfigurator>(), host)
                                .create();
        ASSERT_TRUE(present(screen, stage.stack()));
    }
    [[nodiscard]] bool isSettled() const { return !stage.stack().property("busy").toBool(); }
    /// All texts, and what was told to the host since.
    void expect(std::vector<std::string> texts, const std::vector<std::string>& more,
                const std::vector<std::string>& told) {
        texts.insert(texts.end(), more.begin(), more.end());
        std::vector<std::string> shown;
        EXPECT_TRUE(turnUntil([&] {
            shown = textsOf(*stage.window().contentItem());
            return shown == texts && isSettled() && server.requests().size() == expectedRequests;
        })) << ::testing::PrintToString(shown);
        EXPECT_EQ(taken(log), told);
    }
    /// Nothing covers the host's bar any more.
    void expectNoOverlay() {
        EXPECT_TRUE(turnUntil([&, clicks = stage.barClicks()] {
            stage.clickBar();
            return stage.barClicks() > clicks;
        }));
    }
    void expectTheSummary(const std::vector<std::string>& told) {
        expect(summary, registered, told);
        stage.click("Ver Pedidos");
        expect(summary, {}, {event("Register Order", "View Orders")});
        expectNoOverlay();
        stage.popAll();
    }
    void expectTheResult() {
        expect(someSent, {}, {resultScreen});
        expectNoOverlay();
        stage.popAll();
    }

    Log log = makeLog();
    std::shared_ptr<RecordingNavigation> host = std::make_shared<RecordingNavigation>(log);
    Starter starter = Starter::create("token", "idp", {"cart-1", 41051, "CL"}, host).value();
    std::string gateway = starter.domainUrl();
    TestAuthority authority;
    FaultServer server{authority.serverContext(gateway)};
    Stage stage;
    std::size_t expectedRequests = 0;
};

} // namespace

TEST_F(Faults, OfTheAssociationLeadToTheirScreenAndToNoOther) {
    for (const auto& fault : faults()) {
        SCOPED_TRACE(fault.name);
        script(fault, orderJson, {openOrdersJson});
        openFirst();
        if (fault.first == First::summary) {
            expectTheSummary({firstScreen, orderCame});
            continue;
        }
        expect(fault.first == First::timeOut ? timeOut : gone, {}, {firstScreen, errorScreen});
        expectNoOverlay();
        scriptGood({orderJson, openOrdersJson});
        if (fault.first == First::timeOut) {
            stage.click("Actualizar");
            expectTheSummary({orderCame});
        } else {
            stage.popAll();
            openFirst();
            expectTheSummary({firstScreen, orderCame});
        }
    }
    RecordProperty("cases", static_cast<int>(faults().size()));
}

TEST_F(Faults, OfTheCheckoutLeadToTheirScreenAndToNoOther) {
    for (const auto& fault : faults()) {
        SCOPED_TRACE(fault.name);
        script(fault, checkoutJson);
        openCheckout();
        if (fault.checkout == Checkout::result) {
            expectTheResult();
            continue;
        }
        if (fault.checkout == Checkout::dialog) {
            expect(dialog, {}, {errorScreen});
            scriptGood({checkoutJson});
            stage.click("Actualizar");
        } else {
            ASSERT_TRUE(turnUntil([&] { return server.requests().size() == expectedRequests; }));
            expectNoOverlay();
            expect({}, {}, {});
            stage.popAll();
            scriptGood({checkoutJson});
            openCheckout();
        }
        expectTheResult();
    }
    RecordProperty("cases", static_cast<int>(faults().size()));
}

} // namespace quillet::testing
