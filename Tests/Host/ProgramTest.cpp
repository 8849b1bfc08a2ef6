#include "HostProgram.hpp"

#include <QFile>
#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTcpServer>

#include <gtest/gtest.h>

namespace demo::testing {

namespace {

struct Program : ::testing::Test, HostProgram {
    /// Runs the host on a play with this text and returns its exit status.
    int play(const QByteArray& steps, const QStringList& more = {}) {
        QFile file(folder.filePath("p.play"));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(steps);
        file.close();
        return run(QStringList{"--play", file.fileName(), "--out", folder.filePath("out")} + more);
    }

    QJsonObject report() {
        QFile file(folder.filePath("out/tour.json"));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return QJsonDocument::fromJson(file.readAll())["plays"][0].toObject();
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
tap "Ir al carrito"
back
title "Pedidos recibidos"
)";

} // namespace

TEST_F(Program, ReportsAPlayWithItsPicturesTrafficAnalyticsAndNavigation) {
    ASSERT_EQ(play(noneAdded), 0) << complaint.toStdString();
    EXPECT_EQ(complaint.toStdString(), "");
    const QJsonObject told = report();
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

TEST_F(Program, FailsWhereQtWarnsThoughThePlayWasMet) {
    environment.insert("QT_QUICK_CONTROLS_CONF", "/nowhere");
    EXPECT_EQ(play("handmade ERROR_CART_ALREADY_SUBMITTED\nexpect \"Você já registrou este pedido!\"\n",
                   {"--language", "pt"}),
              1);
    EXPECT_EQ(report()["ok"], true);
}

TEST_F(Program, EndsWithOneLineWhereItCannotStart) {
    QTcpServer taken;
    ASSERT_TRUE(taken.listen(QHostAddress::LocalHost));
    const std::pair<QStringList, QString> cases[] = {
        {{"--gateway", "127.0.0.1:1", "--ca", "/nowhere"}, "cannot read the CA file /nowhere"},
        {{"--port", QString::number(taken.serverPort())}, "quillet-gateway: cannot listen on 127.0.0.1:"},
        {{"--gateway-program", "/nowhere"}, "cannot start the gateway: "},
    };
    for (const auto& [options, reason] : cases) {
        SCOPED_TRACE(reason.toStdString());
        EXPECT_GT(play("close\n", options), 0);
        EXPECT_TRUE(complaint.startsWith("quillet-host: " + reason)) << complaint.toStdString();
        EXPECT_EQ(complaint.count('\n'), 1) << complaint.toStdString();
    }
    EXPECT_EQ(play("dance\n"), 2);
    EXPECT_EQ(complaint.toStdString(), "quillet-host: p, line 1: unknown step \"dance\"\n");
    EXPECT_EQ(run({"--play", folder.path(), "--out", folder.path()}), 2);
    EXPECT_EQ(complaint, "quillet-host: cannot read the play " + folder.path() + "\n");
}

} // namespace demo::testing
