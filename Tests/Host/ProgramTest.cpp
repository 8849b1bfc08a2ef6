#include "HostProgram.hpp"

#include <QFile>
#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <gtest/gtest.h>

#include <arpa/inet.h>
#include <sys/socket.h>
#include <unistd.h>

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

constexpr auto noneAdded = R"(# The outcome that takes the fewest taps.
open cart=41053a00-52e1-4d0b-9c77-1f0a6b2e8453 consultant=41053 country=CL environment=hml
close-icon
tap "Enviar productos a mi carrito"
expect "Productos no enviados:"
shot result
tap "Ir al carrito"
)";

} // namespace

TEST_F(Program, ReportsAPlayWithItsTrafficAnalyticsAndNavigation) {
    ASSERT_EQ(play(noneAdded), 0) << complaint.toStdString();
    EXPECT_EQ(complaint.toStdString(), "");
    const QJsonObject told = report();
    EXPECT_EQ(told["name"], "p");
    EXPECT_EQ(told["ok"], true);
    ASSERT_EQ(told["steps"].toArray().size(), 6);
    const QJsonValue shot = told["steps"][4];
    EXPECT_EQ(shot["title"], "Comentarios sobre los envíos");
    EXPECT_EQ(shot["shot"], "result.png");
    EXPECT_TRUE(QFile::exists(folder.filePath("out/result.png")));
    EXPECT_TRUE(shot["texts"].toArray().contains("Productos no enviados:"));

    QStringList requests;
    for (const QJsonValue request : told["requests"].toArray()) {
        requests << request["method"].toString() + ' ' + QString::number(request["status"].toInt());
        EXPECT_TRUE(request["url"].toString().startsWith("https://" QUILLET_GATEWAY_HOST_HML "/"));
        bool isLength = false;
        EXPECT_GT(request["headers"]["Consultant-Token"].toString().toInt(&isLength), 100);
        EXPECT_TRUE(isLength);
    }
    EXPECT_EQ(requests, (QStringList{"PATCH 200", "GET 200", "POST 422"}))
        << requests.join(", ").toStdString();

    QStringList analytics;
    for (const QJsonValue entry : told["analytics"].toArray()) {
        analytics << entry["screen"].toString() + entry["label"].toString();
    }
    EXPECT_EQ(analytics, (QStringList{"Pedidos de mis clientes", "Deep Linking", "Close",
                                      "Send Orders to Cart - Click", "Feedback de produtos", "Go to Cart"}));
    EXPECT_EQ(told["navigation"].toArray(), QJsonArray{"navigateToCart"});
}

TEST_F(Program, ShowsTheModuleAtEverySizeThatAPlayAsksFor) {
    ASSERT_EQ(play("shot asked\n"
                   "open cart=41053a00-52e1-4d0b-9c77-1f0a6b2e8453 consultant=41053 country=CL\n"
                   "close-icon\n"
                   "size 1280x800\n"
                   "expect \"Enviar productos a mi carrito\"\n"
                   "shot wide\n"
                   "size 320x320\n"
                   // The button is in view only where the page ends.
                   "absent \"Enviar productos a mi carrito\"\n"
                   "scroll end\n"
                   "expect \"Enviar productos a mi carrito\"\n"
                   "shot small\n",
                   {"--size", "768x1024"}),
              0)
        << complaint.toStdString();
    const std::pair<QString, QSize> shots[] = {
        {"asked", {768, 1024}}, {"wide", {1280, 800}}, {"small", {320, 320}}};
    for (const auto& [name, size] : shots) {
        SCOPED_TRACE(name.toStdString());
        // The pictures have two pixels to each of the screen's.
        EXPECT_EQ(QImage(folder.filePath("out/" + name + ".png")).size(), 2 * size);
    }
}

TEST_F(Program, FailsAtTheFirstStepThatIsNotMet) {
    EXPECT_EQ(play("network off\n"
                   "open cart=a consultant=1 country=CL\n"
                   "expect \"Lo sentimos, tu dispositivo está sin conexión a internet\"\n"
                   "expect \"Something else\" within=0\n"
                   "tap \"Actualizar\"\n"),
              1);
    const QJsonObject told = report();
    EXPECT_EQ(told["ok"], false);
    ASSERT_EQ(told["steps"].toArray().size(), 4);
    EXPECT_EQ(told["steps"][2]["ok"], true);
    EXPECT_EQ(told["steps"][3]["ok"], false);
}

TEST_F(Program, GoesByKeyOnlyWhereTheKeysLead) {
    const QByteArray opened = "open cart=7f3c9a10-52e1-4d0b-9c77-1f0a6b2e84d3 consultant=41052 country=CL\n"
                              "expect \"Ver Pedidos\"\n";
    const std::pair<QByteArray, QString> cases[] = {
        {"focused \"Ver Pedidos\"\npress Tab\nfocused \"Cerrar\"\npress Backtab\nfocused \"Ver Pedidos\"\n"
         "tap dialogCloseIcon by=key\nabsent \"Ver Pedidos\"\n",
         ""},
        // No key leads to a text, nor out of an open dialog.
        {"tap \"Puntos en curso: 1240\" by=key\n",
         "Tab comes round without reaching \"Puntos en curso: 1240\"; it "
         "reaches \"Ver Pedidos\", \"Cerrar\""},
        {"press Escape\nabsent \"Ver Pedidos\"\ntap \"Total de productos: 3\" by=key\n",
         "Tab comes round without reaching \"Total de productos: 3\""},
        {"press Tab\ntap \"Ver Pedidos\"\nabsent \"Ver Pedidos\"\nfocused \"Ver Pedidos\" within=0\n",
         "the focus is on "},
    };
    for (const auto& [steps, reason] : cases) {
        SCOPED_TRACE(steps.toStdString());
        EXPECT_EQ(play(opened + steps), reason.isEmpty() ? 0 : 1) << complaint.toStdString();
        const QString missing = report()["steps"].toArray().last()["missing"].toString();
        EXPECT_EQ(missing.left(reason.size()).toStdString(), reason.toStdString());
    }
}

TEST_F(Program, EndsWithOneLineWhereItCannotStart) {
    const int taken = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t length = sizeof address;
    ASSERT_EQ(::bind(taken, reinterpret_cast<sockaddr*>(&address), length), 0);
    ASSERT_EQ(::listen(taken, 1), 0);
    ::getsockname(taken, reinterpret_cast<sockaddr*>(&address), &length);

    const auto out = folder.filePath("out");
    const std::pair<std::function<int()>, QString> cases[] = {
        {[&] {
             return run({"--play", folder.filePath("none.play"), "--out", out});
         },
         "cannot read the play"},
        {[&] {
             return run({"--play", folder.path(), "--out", out});
         },
         "cannot read the play"},
        {[&] { return play("dance\n"); }, "p, line 1: unknown step \"dance\""},
        {[&] {
             return play("close\n", {"--gateway", "127.0.0.1:1", "--ca", "/nowhere"});
         },
         "cannot read the CA file /nowhere"},
        {[&] {
             return play("close\n", {"--port", QString::number(ntohs(address.sin_port))});
         },
         ""},
        {[&] {
             return play("close\n", {"--gateway-program", "/nowhere"});
         },
         "cannot start the gateway"},
    };
    for (const auto& [start, reason] : cases) {
        SCOPED_TRACE(reason.toStdString());
        EXPECT_GT(start(), 0);
        EXPECT_TRUE(complaint.startsWith("quillet-host: " + reason)) << complaint.toStdString();
        EXPECT_EQ(complaint.count('\n'), 1) << complaint.toStdString();
    }
    ::close(taken);
}

} // namespace demo::testing
