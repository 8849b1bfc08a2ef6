#include "Checkout/CheckoutFactory.hpp"
#include "KelCommon/KelAnalyticsManager.hpp"
#include "KelDS/KelAppearance.hpp"
#include "Models/Bodies.hpp"
#include "Quillet/Quillet.hpp"
#include "Quillet/Testing/RecordingHost.hpp"
#include "Support/FaultServer.hpp"
#include "Support/Stage.hpp"
#include "Support/Thorough.hpp"
#include "Workers/CheckoutWorkerFactory.hpp"

#include <QQmlContext>
#include <QQmlExpression>
#include <QThread>

#include <gmock/gmock.h>

namespace quillet::testing {

namespace {

using namespace quillet::tests;
using Lines = std::vector<std::string>;

const std::string summary =
    "En Curso|Ciclo actual: 05|Inicio: 01/03/2024|Cierre: 22/03/2024|Puntos en curso: <b>12</b>|Resumen del "
    "Pedido:|"
    "Ciclo del pedido: <b>05</b>|05/03/2024|Total de productos: <b>1</b>|Puntos del pedido: <b>6</b>|"
    "<b>Recuerda:</b> Puedes seguir acumulando tus ventas hasta alcanzar el puntaje deseado para realizar tu "
    "Nuevo "
    "Pedido.|Enviar productos a mi carrito|";
const std::string registered =
    "¡Pedido del cliente registrado y con estatus en curso!|"
    "El pedido enviado por WhatsApp, fue registrado con éxito.|Ver Pedidos|Cerrar|";
const std::string timeOut = "Lo sentimos, algo salió mal|Actualizar|";
const std::string gone = "Lo sentimos, pero esta información ya no está disponible.|Volver|";
const std::string result =
    "<b>Recuerda:</b> Puedes seguir acumulando tus ventas hasta alcanzar el puntaje deseado para realizar tu "
    "Nuevo "
    "Pedido.|Ir al carrito|Ciclo actual: |5 puntos enviados en total|"
    "Algunos productos no fueron enviados al carrito. ¡Vea!|Productos no enviados:|7|Productos enviados con "
    "éxito:|"
    "6|Productos enviados|2|Labial|Code: 1|0 puntos|Productos no enviados|1|Crema|Code: 2|9 puntos|";
const std::string dialog = "¡Ups, tuvimos un problema!|Estamos experimentando inestabilidad en nuestros "
                           "sistemas. Por favor, inténtalo de "
                           "nuevo más tarde.|Actualizar|Cerrar|";
const std::string nothing;

/// How a call is answered, and what the first screen and the checkout show then.
struct Fault {
    std::string name;
    /// Without one the body is all that is sent.
    int status;
    /// "@" is the body that would be good.
    std::string body;
    const std::string& first;
    const std::string& checkout;
    std::string headers = "";
    /// Of an answer that is cut the last byte is missing.
    Answer::Ending ending = Answer::Ending::keepOpen;

    [[nodiscard]] Answer answer(const std::string& goodBody) const {
        const auto& sent = body == "@" ? goodBody : body;
        Answer made = status == 0 ? Answer{{sent}} : Answer::complete(status, sent, headers);
        made.ending = ending;
        if (ending == Answer::Ending::cut) {
            made.pieces[0].pop_back();
        }
        return made;
    }
};

const std::string untrusted = "nobody's certificate";

std::vector<Fault> faults() {
    using enum Answer::Ending;
    const std::string page = "<html><body>A page</body></html>";
    const std::string refusal =
        R"({"details":"d","error":"ERROR_CART_ALREADY_SUBMITTED","statusCode":422,"path":"/p"})";
    const std::string failure =
        R"({"error":{"response":{"statusCode":422,"message":"m","error":"e"},"status":422,)"
        R"("message":"ERROR_CART_ALREADY_SUBMITTED"},"statusCode":500,"path":"/p"})";
    std::vector<Fault> all = {
        {"none", 200, "@", summary, result},
        {"closed", 0, "", gone, dialog, "", close},
        {"a time-out with a good body", 504, "@", summary, result},
        {"cut", 200, "@", gone, dialog, "", cut},
        {"closed in a body without length", 0, "HTTP/1.1 200 OK\r\n\r\n{", gone, nothing, "", close},
        {"reset", 0, "", gone, dialog, "", reset},
        {"a redirect", 307, "", gone, nothing, "Location: https://other.test/\r\n"},
        {"a time-out", 504, failure, timeOut, dialog},
        {untrusted, 0, "", gone, dialog},
        {"over the limit", 200, std::string(20'000, ' '), gone, dialog},
        {"damaged packing", 200, "@", gone, dialog, "Content-Encoding: gzip\r\n"},
        {"no HTTP", 0, "220 ready\r\n", gone, dialog, "", close},
    };
    for (const auto& body : {page, refusal, failure, std::string()}) {
        all.push_back({"a strange body", 200, body, gone, nothing});
        all.push_back({"a strange time-out", 504, body, timeOut, dialog});
        for (const int status : {401, 403, 404, 409, 422, 429, 500, 502, 503}) {
            all.push_back({std::to_string(status) + " " + body, status, body, gone, dialog});
        }
    }
    for (const int status : {422, 500}) {
        all.push_back({"a good body", status, "@", summary, result});
    }
    all.push_back({"no content", 204, "", gone, nothing});
    return all;
}

/// Whatever it is told comes on the main thread.
class MainThreadAnalytics final : public kel::KelAnalyticsManagerType {
public:
    explicit MainThreadAnalytics(Log log) : log_(std::move(log)) {}
    void trackScreen(const kel::KelAnalyticsScreenType& screen) override { add("screen " + screen.name()); }
    void trackEvent(const kel::KelAnalyticsEventType& event) override { add(event.label().value_or("")); }

private:
    void add(std::string line) {
        EXPECT_EQ(QThread::currentThread(), qApp->thread());
        log_->push_back(std::move(line));
    }

    Log log_;
};

// All that is shown but icons, which are letters of a private alphabet, in the order of the items.
std::string textsOf(const QQuickItem& item) {
    const auto text = item.property("text").toString();
    if (!item.isVisible() || item.opacity() == 0) {
        return {};
    }
    if (!text.isEmpty()) {
        return text.front().category() == QChar::Other_PrivateUse ? "" : text.toStdString() + "|";
    }
    std::string texts;
    for (const QQuickItem* const child : item.childItems()) {
        texts += textsOf(*child);
    }
    return texts;
}

struct Faults : ::testing::Test {
    Faults() {
        // Dates are shown by the device's time.
        qputenv("TZ", "UTC");
        kel::KelAppearance::current().setReducedMotion(true);
        QQmlExpression(qmlContext(&stage.stack()), &stage.stack(),
                       QStringLiteral("pushEnter = pushExit = null"))
            .evaluate();
        kel::KelAnalyticsManager::shared()->setSink(std::make_shared<MainThreadAnalytics>(log));
        platform::URLSessionConfiguration::setDefaultConfiguration(
            {.caBundleFile = authority.bundleFile(),
             .hostMappings = {{.host = starter.domainUrl(), .address = "127.0.0.1", .port = server.port()}},
             .maximumBodyBytes = 16 << 10});
    }
    ~Faults() override {
        kel::KelAppearance::current().setReducedMotion(false);
        kel::KelAnalyticsManager::shared()->setSink(nullptr);
        platform::URLSessionConfiguration::setDefaultConfiguration({});
        EXPECT_EQ(Stage::complaints(), Lines());
    }

    /// Plays the faults, all of them or some, each with a screen of its own.
    template <typename Play>
    void forEachFault(Play play) {
        const auto all = faults();
        const std::size_t step = thorough(12, 1);
        for (std::size_t i = 0; i < all.size(); i += step) {
            SCOPED_TRACE(all[i].name);
            const bool isTrusted = all[i].name != untrusted;
            server.setContext((isTrusted ? authority : stranger).serverContext(starter.domainUrl()));
            play(all[i], isTrusted);
            server.setContext(authority.serverContext(starter.domainUrl()));
        }
        RecordProperty("cases", static_cast<int>((all.size() + step - 1) / step));
    }
    void script(Answer answer) {
        server.enqueue(std::move(answer));
        ++requests;
    }
    void open(const std::shared_ptr<platform::QuickViewController>& screen) {
        ASSERT_TRUE(present(screen, stage.stack()));
    }
    /// Waits until the screen shows these texts and no other, and compares what has been told by then.
    void expect(const std::string& texts, const Lines& told) {
        std::string shown;
        EXPECT_TRUE(turnUntil([&] {
            shown = textsOf(*stage.window().contentItem());
            return shown == texts && !stage.stack().property("busy").toBool() &&
                   server.requests().size() == requests;
        })) << shown;
        EXPECT_EQ(taken(log), told);
    }
    /// Waits until nothing covers the host's bar.
    void expectNoOverlay() {
        EXPECT_TRUE(turnUntil([&, clicks = stage.barClicks()] {
            stage.clickBar();
            return stage.barClicks() > clicks;
        }));
    }
    void expectTheSummary(const Lines& told) {
        expect(summary + registered, told);
        stage.click("Ver Pedidos");
        expect(summary, {"View Orders"});
    }

    Log log = makeLog();
    Starter starter = Starter::create("token", "idp", {"cart-1", 41051, "CL"}, nullptr).value();
    TestAuthority authority;
    TestAuthority stranger;
    FaultServer server{authority.serverContext(starter.domainUrl())};
    Stage stage;
    std::size_t requests = 0;
};

} // namespace

TEST_F(Faults, OfTheAssociationLeadToTheirScreenAndToNoOther) {
    const Lines came = {"screen Pedidos de mis clientes", "Deep Linking"};
    forEachFault([&](const Fault& fault, bool isTrusted) {
        if (isTrusted) {
            script(fault.answer(orderJson));
            script(Answer::complete(200, openOrdersJson));
        }
        open(starter.createRootViewController());
        if (&fault.first == &summary) {
            expectTheSummary(came);
        } else {
            expect(fault.first, {came[0], "screen Error"});
        }
        if (&fault.first == &timeOut) {
            script(Answer::complete(200, orderJson));
            script(Answer::complete(200, openOrdersJson));
            stage.click("Actualizar");
            expectTheSummary({came[1]});
        }
        expectNoOverlay();
        stage.popAll();
    });
}

TEST_F(Faults, OfTheCheckoutLeadToTheirScreenAndToNoOther) {
    const CheckoutFactory checkout(
        std::make_unique<CheckoutWorkerFactory>("CL", 41051, starter.authorization(), starter.domainUrl()),
        std::make_unique<CheckoutConfigurator>(), std::weak_ptr<QuilletNavigationDelegate>());
    forEachFault([&](const Fault& fault, bool isTrusted) {
        if (isTrusted) {
            script(fault.answer(checkoutJson));
        }
        open(checkout.create());
        if (&fault.checkout == &nothing) {
            ASSERT_TRUE(turnUntil([&] { return server.requests().size() == requests; }));
            expectNoOverlay();
            expect(nothing, {});
        }
        if (&fault.checkout == &dialog) {
            expect(dialog, {"screen Error"});
            server.setContext(authority.serverContext(starter.domainUrl()));
            script(Answer::complete(200, checkoutJson));
            stage.click("Actualizar");
        }
        if (&fault.checkout != &nothing) {
            expect(result, {"screen Feedback de produtos"});
            expectNoOverlay();
        }
        stage.popAll();
    });
}

} // namespace quillet::testing
