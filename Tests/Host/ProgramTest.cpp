#include "Play/LanguagePlay.hpp"

#include <QDir>
#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QProcess>
#include <QTcpServer>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <set>

namespace demo::testing {

namespace {

/// The sample host as a person starts it, and a folder for what it writes.
struct Program : ::testing::Test {
    // Qt warns where this variable is unset, which it is not in a desktop session.
    Program() { qputenv("XDG_RUNTIME_DIR", folder.path().toUtf8()); }

    /// Runs the program to its end and returns its exit status, or -1 if it crashed.
    int run(const QStringList& arguments) {
        QProcess host;
        host.start(QUILLET_HOST_PROGRAM, arguments);
        EXPECT_TRUE(host.waitForFinished(50'000));
        complaint = QString::fromUtf8(host.readAllStandardError()).toStdString();
        return host.exitStatus() == QProcess::NormalExit ? host.exitCode() : -1;
    }
    /// Runs the host on a play with these steps.
    int play(const QByteArray& steps, const QStringList& more) {
        return run(QStringList{"--play", write(steps), "--out", folder.filePath("out")} + more);
    }
    /// Writes a play with these steps.
    QString write(const QByteArray& steps) {
        QFile file(folder.filePath("p.play"));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(steps);
        return file.fileName();
    }

    const QTemporaryDir folder;
    /// What the program wrote to standard error.
    std::string complaint;
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

TEST_F(Program, PlaysALanguageInAProcessOfItsOwn) {
    PlayScript play;
    play.name = "p";
    play.source = write("language pt\nhandmade ERROR_CART_ALREADY_SUBMITTED\n"
                        "expect \"Você já registrou este pedido!\"\nshot asked\n");
    Options tour;
    tour.outFolder = folder.path();
    tour.size = {320, 568};
    // A play that was met fails where Qt warned.
    for (const bool warns : {true, false}) {
        qputenv("QT_QUICK_CONTROLS_CONF", warns ? "/nowhere" : "");
        const QJsonObject report = runLanguagePlay(QUILLET_HOST_PROGRAM, play, tour);
        EXPECT_EQ(report["ok"], !warns);
        EXPECT_EQ(report["name"], "p");
        EXPECT_EQ(report["steps"][3]["shot"], "p/asked.png");
        EXPECT_EQ(QImage(folder.filePath("p/asked.png")).size(), QSize(640, 1136));
        EXPECT_FALSE(QFile::exists(folder.filePath("p/tour.json")));
    }
}

TEST_F(Program, DrawsAGalleryWithADifferenceAlongEachAxis) {
    ASSERT_EQ(run({"--gallery", folder.path(), "--quick"}), 0) << complaint;
    EXPECT_EQ(complaint, "");
    QFile index(folder.filePath("index.html"));
    ASSERT_TRUE(index.open(QIODevice::ReadOnly));
    const QString html = QString::fromUtf8(index.readAll());
    const QJsonArray axes =
        QJsonDocument::fromJson(html.section("const axes = ", 1).section(";\n", 0, 0).toUtf8()).array();
    qsizetype all = 1;
    for (const QJsonValue axis : axes) {
        EXPECT_GE(axis["values"].toArray().size(), 2) << axis["name"].toString().toStdString();
        all *= axis["values"].toArray().size();
    }

    std::set<QByteArray> pictures;
    for (const QString& file : QDir(folder.path()).entryList({"*.png"})) {
        SCOPED_TRACE(file.toStdString());
        const QImage picture(folder.filePath(file));
        pictures.emplace(reinterpret_cast<const char*>(picture.constBits()), picture.sizeInBytes());
        // By screen, theme, language, text size and size.
        const QStringList name = file.chopped(4).split('.');
        ASSERT_EQ(name.size(), axes.size());
        EXPECT_EQ(QStringLiteral("%1x%2").arg(picture.width()).arg(picture.height()), name[4]);
        for (qsizetype axis = 0; axis < name.size(); ++axis) {
            EXPECT_TRUE(axes[axis]["values"].toArray().contains(name[axis]));
        }
    }
    EXPECT_EQ(pictures.size(), all);
}

// The first language has a gap, and those that are drawn after it have none.
TEST_F(Program, FailsWhereItCannotWriteAPicture) {
    const QString taken = folder.filePath("loading.light.es.100.320x568.png");
    ASSERT_TRUE(QDir().mkpath(taken));
    EXPECT_EQ(run({"--gallery", folder.path(), "--quick"}), 1);
    EXPECT_NE(complaint.find("cannot write " + taken.toStdString() + "\n"), std::string::npos);
}

} // namespace demo::testing
