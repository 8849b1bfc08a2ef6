#include "HostProgram.hpp"

#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTcpServer>

namespace demo::testing {

namespace {

struct Program : HostProgram {
    /// Runs the host on a play with these steps and returns its exit status.
    int play(const QByteArray& steps, const QStringList& more) {
        return run(QStringList{"--play", write(steps), "--out", folder.filePath("out")} + more);
    }
};

// The outcome that takes the fewest taps. The button is in view only where the page ends.
constexpr auto noneAdded = R"(size 320x320
open cart=41053a00-52e1-4d0b-9c77-1f0a6b2e8453 consultant=41053 country=CL environment=hml
close-icon
absent "Enviar productos a mi carrito"
scroll end
expect "Enviar productos a mi carrito"
size 844x390
tap "Enviar productos a mi carrito"
expect "Productos no enviados:"
shot wide
tap "Ir para o carrinho"
back
title "Pedidos recibidos"
)";

} // namespace

TEST_F(Program, ReportsAPlayWithItsPicturesTrafficAnalyticsAndNavigation) {
    ASSERT_EQ(play(noneAdded, {"--language", "pt"}), 0) << complaint;
    EXPECT_EQ(complaint, "");
    QFile file(folder.filePath("out/tour.json"));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QJsonObject told = QJsonDocument::fromJson(file.readAll())["plays"][0].toObject();
    EXPECT_EQ(told["name"], "p");
    EXPECT_EQ(told["ok"], true);
    ASSERT_EQ(told["steps"].toArray().size(), 13);
    const QJsonValue result = told["steps"][9];
    EXPECT_EQ(result["title"], "Comentarios sobre los envíos");
    EXPECT_EQ(result["shot"], "wide.png");
    EXPECT_TRUE(result["texts"].toArray().contains("Productos no enviados:"));
    // The pictures have two pixels to each of the screen's.
    EXPECT_EQ(QImage(folder.filePath("out/wide.png")).size(), QSize(1688, 780));

    QStringList traffic;
    for (const QJsonValue request : told["requests"].toArray()) {
        traffic << request["method"].toString() + ' ' + QString::number(request["status"].toInt());
        EXPECT_TRUE(request["url"].toString().startsWith("https://" QUILLET_GATEWAY_HOST_HML "/"));
        // Its length stands for the token.
        EXPECT_GT(request["headers"]["Consultant-Token"].toString().toInt(), 100);
    }
    for (const QJsonValue entry : told["analytics"].toArray()) {
        traffic << entry["screen"].toString() + entry["label"].toString();
    }
    EXPECT_EQ(traffic.join(", ").toStdString(),
              "PATCH 200, GET 200, POST 422, Pedidos de mis clientes, Deep Linking, Close, "
              "Send Orders to Cart - Click, Feedback de produtos, Go to Cart");
    EXPECT_EQ(told["navigation"].toArray(), QJsonArray{"navigateToCart"});
}

TEST_F(Program, EndsWithOneLineWhereItCannotStart) {
    QTcpServer taken;
    ASSERT_TRUE(taken.listen(QHostAddress::LocalHost));
    const std::tuple<const char*, QStringList, std::string> cases[] = {
        {"close", {"--gateway", "127.0.0.1:1", "--ca", "/nowhere"}, "cannot read the CA file /nowhere\n"},
        {"close", {"--port", QString::number(taken.serverPort())}, "quillet-gateway: cannot listen on "},
        {"close", {"--gateway-program", "/nowhere"}, "cannot start the gateway: "},
        {"dance", {}, "p, line 1: unknown step \"dance\"\n"},
    };
    for (const auto& [steps, options, reason] : cases) {
        EXPECT_GT(play(steps, options), 0);
        EXPECT_EQ(complaint.substr(0, reason.size() + 14), "quillet-host: " + reason);
        EXPECT_EQ(complaint.find('\n'), complaint.size() - 1) << complaint;
    }
}

} // namespace demo::testing
