#include "Checkout/CheckoutFactory.hpp"
#include "Models/Bodies.hpp"
#include "Support/FaultServer.hpp"
#include "Support/ModuleTest.hpp"
#include "Support/Reading.hpp"
#include "Support/Thorough.hpp"
#include "Workers/CheckoutWorkerFactory.hpp"

#include <QFile>
#include <QRegularExpression>
#include <QThread>

#include <regex>

namespace quillet::testing {

namespace {

using Lines = std::vector<std::string>;

// Screens, by the names of their descriptions.
const std::string registered = "order-registered.light.390";
const std::string summary = "summary.light.390";
const std::string timeOut = "time-out.light.390";
const std::string gone = "generic-error.light.390";
const std::string result = "edge.no-points";
const std::string dialog = "checkout-error.light.390";
const std::string nothing = "a checkout without content";

/// What a screen reader finds on this screen.
QStringList described(const std::string& screen) {
    if (screen == nothing) {
        return {"page \"Envío al carrito\""};
    }
    QFile file(QString::fromStdString(QUILLET_KEPT_DESCRIPTIONS "/" + screen + ".txt"));
    EXPECT_TRUE(file.open(QFile::ReadOnly));
    const QString heard = QString(file.readAll()).section("heard:\n", -1).trimmed();
    // Without the sample host's own bar.
    return heard.split('\n').filter(QRegularExpression("^(?!.*#host)"));
}

/// How a call is answered, and what the first screen and the checkout show then.
struct Fault {
    std::string name;
    /// Without one the body is all that is sent.
    int status;
    /// "@" is the body that would be good.
    std::string body;
    std::string first;
    std::string checkout;
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
    std::vector<Fault> all = {
        {"none", 200, "@", registered, result},
        {"closed", 0, "", gone, dialog, "", close},
        {"a time-out with a good body", 504, "@", registered, result},
        {"cut", 200, "@", gone, dialog, "", cut},
        {"closed in a body without length", 0, "HTTP/1.1 200 OK\r\n\r\n{", gone, nothing, "", close},
        {"reset", 0, "", gone, dialog, "", reset},
        {"a redirect", 307, "", gone, nothing, "Location: https://other.test/\r\n"},
        {"a time-out", 504, tests::serverErrorJson, timeOut, dialog},
        {untrusted, 0, "", gone, dialog},
        {"over the limit", 200, std::string(20'000, ' '), gone, dialog},
        {"damaged packing", 200, "@", gone, dialog, "Content-Encoding: gzip\r\n"},
        {"no HTTP", 0, "220 ready\r\n", gone, dialog, "", close},
        {"a refusal with a good body", 422, "@", registered, result},
        {"a failure with a good body", 500, "@", registered, result},
        {"no content", 204, "", gone, nothing},
    };
    for (const auto& body : {page, refusal, tests::serverErrorJson, std::string()}) {
        all.push_back({"a strange body", 200, body, gone, nothing});
        all.push_back({"a strange time-out", 504, body, timeOut, dialog});
        for (const int status : {401, 403, 404, 409, 422, 429, 500, 502, 503}) {
            all.push_back({std::to_string(status) + " " + body, status, body, gone, dialog});
        }
    }
    return all;
}

struct Faults : ModuleTest {
    Faults() {
        // So high that nothing scrolls.
        stage->window().resize(390, 1500);
        kel::KelAnalyticsManager::shared()->setSink(std::make_shared<RecordingAnalytics>(
            log, [](const auto&) { EXPECT_EQ(QThread::currentThread(), qApp->thread()); }));
        platform::URLSessionConfiguration::setDefaultConfiguration(
            {.caBundleFile = authority.bundleFile(),
             .hostMappings = {{.host = gateway, .address = "127.0.0.1", .port = server.port()}},
             .maximumBodyBytes = 16 << 10});
    }

    /// Plays the faults, all of them or some, each with a screen of its own. Of these calls the first has the
    /// fault.
    template <typename Play>
    void forEachFault(const std::vector<Call>& calls, Play play) {
        const auto all = faults();
        const std::size_t step = thorough(12, 1);
        for (std::size_t i = 0; i < all.size(); i += step) {
            SCOPED_TRACE(all[i].name);
            if (all[i].name == untrusted) {
                server.setContext(TestAuthority::selfSignedContext(gateway));
            } else {
                script(all[i].answer(goodBody(calls.front())));
                scriptGood({calls.begin() + 1, calls.end()});
            }
            play(all[i]);
            expectNoOverlay();
            stage->popAll();
            server.setContext(authority.serverContext(gateway));
        }
        RecordProperty("cases", static_cast<int>((all.size() + step - 1) / step));
    }
    static std::string goodBody(Call call) {
        return std::regex_replace(sampleBody(call), std::regex("\"addedPoints\":20"), "\"addedPoints\":0");
    }
    void script(Answer answer) {
        server.enqueue(std::move(answer));
        ++requests;
    }
    void scriptGood(const std::vector<Call>& calls) {
        for (const Call call : calls) {
            script(Answer::complete(200, goodBody(call)));
        }
    }
    /// Waits until this and nothing else can be heard, and compares what has been told by then.
    void expect(const std::string& screen, const Lines& told) {
        const QStringList expected = described(screen);
        QStringList heard;
        EXPECT_TRUE(turnUntil([&] {
            heard = readingOrder(*QAccessible::queryAccessibleInterface(&stage->window()));
            return heard == expected && settled() && server.requests().size() == requests;
        })) << heard.join('\n').toStdString();
        EXPECT_EQ(taken(log), told);
    }
    /// Waits until nothing covers the host's bar.
    void expectNoOverlay() {
        EXPECT_TRUE(turnUntil([&, clicks = stage->barClicks()] {
            stage->clickBar();
            return stage->barClicks() > clicks;
        }));
    }
    void expectTheSummary(const Lines& told) {
        expect(registered, told);
        stage->click(viewOrders);
        expect(summary, {event("Register Order", "View Orders")});
    }

    const std::string gateway = Starter::create("", "", {}, nullptr)->domainUrl();
    TestAuthority authority;
    FaultServer server{authority.serverContext(gateway)};
    std::size_t requests = 0;
};

} // namespace

TEST_F(Faults, OfTheAssociationLeadToTheirScreenAndToNoOther) {
    const std::string screen = "screen Pedidos de mis clientes";
    const std::string came = event("Register Order", "Deep Linking");
    forEachFault({Call::associate, Call::getOpenOrders}, [&](const Fault& fault) {
        open();
        if (fault.first == registered) {
            return expectTheSummary({screen, came});
        }
        expect(fault.first, {screen, "screen Error"});
        if (fault.first == timeOut) {
            scriptGood({Call::associate, Call::getOpenOrders});
            stage->click(retry);
            expectTheSummary({came});
        }
    });
}

TEST_F(Faults, OfTheCheckoutLeadToTheirScreenAndToNoOther) {
    const CheckoutFactory checkout(
        std::make_unique<CheckoutWorkerFactory>("CL", 41052, Authorization{"jwt", "idp"}, gateway),
        std::make_unique<CheckoutConfigurator>(), host);
    forEachFault({Call::checkout}, [&](const Fault& fault) {
        ASSERT_TRUE(present(checkout.create(), stage->stack()));
        if (fault.checkout == dialog) {
            expect(dialog, {"screen Error"});
            server.setContext(authority.serverContext(gateway));
            scriptGood({Call::checkout});
            stage->click(retry);
        }
        if (fault.checkout == nothing) {
            expect(nothing, {});
        } else {
            expect(result, {"screen Feedback de produtos"});
        }
    });
}

} // namespace quillet::testing
