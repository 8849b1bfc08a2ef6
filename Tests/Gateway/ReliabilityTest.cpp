#include "Gateway/Database.hpp"
#include "Gateway/RunningGateway.hpp"
#include "Support/Thorough.hpp"

#include <QElapsedTimer>

#include <csignal>
#include <ctime>
#include <future>
#include <list>

#include <sys/resource.h>

namespace quillet::gateway {

namespace {

namespace fs = std::filesystem;

using GatewayReliability = RunningGateway;

// Consultant 41051's order gets forty products more. There is as much of each as she may send once, so that
// half an order could not be sent again.
constexpr auto largeOrder = R"(
    CREATE TEMP TABLE numbers AS
        WITH RECURSIVE n(i) AS (SELECT 900001 UNION ALL SELECT i + 1 FROM n WHERE i < 900040) SELECT i FROM n;
    INSERT INTO catalogue SELECT i, 'x', 1, 1, 100, 10, 0, 5 FROM numbers;
    INSERT INTO quotas SELECT i, 0, 2 FROM numbers;
    INSERT INTO cart_lines SELECT uuid, i, 0, i, 'x', 2, 1, 2, 100, 10, 0 FROM carts, numbers WHERE number = 300051;
    UPDATE carts SET consultant = 41051 WHERE number = 300051)";

constexpr auto stateOfLargeOrder = R"(
    SELECT printf('%s, %d lines in %d, %d left', (SELECT status FROM carts WHERE number = 300051), count(*),
                  count(DISTINCT order_id), (SELECT sum(stock) FROM catalogue WHERE code > 900000)) FROM sent)";

} // namespace

TEST_F(GatewayReliability, KeepsAnOrderWholeOrNotAtAllWhenItIsKilled) {
    const auto file = folder / "gateway.sqlite";
    const auto prepared = folder / "prepared";
    Database(file).script(largeOrder);
    gateway.end(SIGKILL);
    fs::copy_file(file, prepared);
    // Starts the gateway, and kills it when it has answered or this time is over.
    int taken = 0;
    const auto checkOut = [&](int deadline, const std::string& fault) {
        GatewayProcess serving({"--data", folder});
        const HttpsClient caller{serving.port(), folder / "ca.pem"};
        EXPECT_EQ(caller.send(openRequest(41051)).status, 200);
        Database(file).script(fault);
        QElapsedTimer timer;
        timer.start();
        const auto status = caller.send(checkoutRequest(41051), deadline).status;
        taken = static_cast<int>(timer.elapsed());
        EXPECT_EQ(serving.end(SIGKILL), -1);
        return status;
    };
    ASSERT_EQ(checkOut(20'000, ""), 200);
    const auto usual = taken;

    const auto moments = static_cast<int>(quillet::testing::thorough(6, 60));
    for (int moment = 1; moment <= moments; ++moment) {
        fs::copy_file(prepared, file, fs::copy_options::overwrite_existing);
        // With the answer held back, the later moments come after the order was sent.
        checkOut(1 + 3 * usual * moment / moments,
                 "INSERT INTO faults VALUES (41051, 'checkout', 'delay', '600000', 1)");
        EXPECT_THAT(checkOut(20'000, "DELETE FROM faults"), ::testing::AnyOf(200, 400));
        Database database(file);
        auto state = database.query(stateOfLargeOrder);
        ASSERT_TRUE(state.next());
        EXPECT_EQ(state.text(0), "SUBMITTED, 42 lines in 1, 120 left") << "killed at moment " << moment;
    }
    RecordProperty("cases", moments);
}

TEST_F(GatewayReliability, AnswersThatTheDatabaseIsLockedAndGoesOnOnceItIsNot) {
    EXPECT_EQ(client.send(associateRequest(41051, cartOf(41051))).status, 200);
    Database other(folder / "gateway.sqlite");
    other.script("BEGIN EXCLUSIVE");
    EXPECT_EQ(client.ask(checkoutRequest(41051)), "500 ERROR_DATABASE");
    other.script("ROLLBACK");
    EXPECT_EQ(client.send(checkoutRequest(41051)).status, 200);
}

TEST_F(GatewayReliability, AnswersThatTheDiskIsFullAndGoesOnOnceItIsNot) {
    const auto disk = folder / "disk";
    const auto ca = folder / "trust.pem";
    fs::create_directory(disk);
    GatewayProcess confined({"--data", disk, "--ca", ca},
                            {"unshare", "--map-root-user", "--mount", "sh", "-c",
                             "mount -t tmpfs -o size=1m none \"$0\" && exec \"$@\"", disk.c_str()});
    const auto itsPort = confined.port();
    if (itsPort == 0) {
        GTEST_SKIP() << "This machine does not let its users mount: "
                     << confined.readAllStandardError().toStdString();
    }
    const auto seen = "/proc/" + std::to_string(confined.processId()) + "/root" + disk.string();
    const HttpsClient caller{itsPort, ca};
    EXPECT_EQ(caller.send(associateRequest(41051, cartOf(41051))).status, 200);
    std::ofstream(seen + "/filling") << std::string(1 << 20, 'x');
    for (int request = 0; request < 12; ++request) {
        EXPECT_EQ(caller.ask(checkoutRequest(41051)), "500 ERROR_DATABASE");
    }
    EXPECT_EQ(caller.send(openRequest(41051)).status, 200);
    fs::remove(seen + "/filling");
    EXPECT_EQ(caller.send(checkoutRequest(41051)).status, 200);
    EXPECT_EQ(readLog(seen).back()["status"], 200);
}

TEST_F(GatewayReliability, ServesTheNextClientAmongManyThatSayNothing) {
    adjust({"--fault", "consultant=41052 call=open kind=delay value=1000"});
    auto waiting = std::async(std::launch::async, [&] { return client.send(openRequest(41052)).status; });
    std::list<QSslSocket> idle(300);
    int number = 0;
    for (QSslSocket& one : idle) {
        one.setPeerVerifyMode(QSslSocket::VerifyNone);
        one.connectToHost(QHostAddress::LocalHost, port);
        EXPECT_TRUE(one.waitForConnected());
        if (++number % 10 == 0) {
            one.startClientEncryption();
            EXPECT_TRUE(one.waitForEncrypted());
        }
    }
    EXPECT_EQ(client.send(openRequest(41051)).status, 200);
    // Whoever waits for an answer gets it.
    EXPECT_EQ(waiting.get(), 200);
    RecordProperty("cases", 300);
}

TEST_F(GatewayReliability, WaitsForAHandleInsteadOfSpinning) {
#ifdef __SANITIZE_ADDRESS__
    GTEST_SKIP()
        << "UndefinedBehaviorSanitizer looks at objects through a pipe, and takes them for none without one.";
#endif
    // By then it has all the handles that it keeps.
    const auto id = static_cast<pid_t>(gateway.processId());
    ASSERT_EQ(client.send(openRequest(41051)).status, 200);
    rlimit usual{};
    ASSERT_EQ(::prlimit(id, RLIMIT_NOFILE, nullptr, &usual), 0);
    const rlimit none{.rlim_cur = 3, .rlim_max = usual.rlim_max};
    ASSERT_EQ(::prlimit(id, RLIMIT_NOFILE, &none, nullptr), 0);
    clockid_t clock{};
    ASSERT_EQ(::clock_getcpuclockid(id, &clock), 0);
    const auto milliseconds = [&] {
        timespec used{};
        ::clock_gettime(clock, &used);
        return static_cast<int>(used.tv_sec * 1000 + used.tv_nsec / 1'000'000);
    };
    const int before = milliseconds();
    EXPECT_TRUE(client.send(openRequest(41051), 1000).isTimedOut);
    EXPECT_LT(milliseconds() - before, 50);
    ASSERT_EQ(::prlimit(id, RLIMIT_NOFILE, &usual, nullptr), 0);
    EXPECT_EQ(client.send(openRequest(41051)).status, 200);
}

} // namespace quillet::gateway
