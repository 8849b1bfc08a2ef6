#include "Gateway/GatewayProcess.hpp"
#include "Gateway/Json.hpp"
#include "Gateway/TemporaryFolder.hpp"

#include <algorithm>
#include <csignal>
#include <fstream>

#include <gmock/gmock.h>

namespace quillet::gateway {

namespace {

using testing::HasSubstr;
using testing::MatchesRegex;

} // namespace

TEST(GatewayCommandLine, IsRefusedInOneClearLineWhenItIsWrong) {
    const TemporaryFolder folder;
    const std::string data = folder.path();
    struct Wrong {
        std::vector<std::string> arguments;
        std::string message;
    };
    const std::vector<Wrong> cases{
        {{}, "--data DIR is needed"},
        {{"--nonsense"}, "unknown option --nonsense"},
        {{"--data", data, "extra"}, "unexpected argument extra"},
        {{"--data", data, "--port", "65536"}, "--port needs a number"},
        {{"--data", data, "--stock", "70412=-1"}, "does not understand"},
        {{"--data", data, "--quota", "70412@=3"}, "does not understand"},
        {{"--data", data, "--fault", "consultant=41051 call=open kind=status value=99"}, "from 200 to 599"},
        {{"--data", data, "--fault", "consultant=41051 call=open kind=cut times=0"}, "1 or more"},
        {{"--data", data, "--fault", "consultant=41051 call=open kind=cut colour=red"}, "colour"},
    };
    for (const auto& wrong : cases) {
        SCOPED_TRACE(wrong.message);
        const auto ended = runGateway(wrong.arguments);
        EXPECT_EQ(ended.status, 2);
        EXPECT_EQ(ended.output, "");
        EXPECT_THAT(ended.errors, HasSubstr(wrong.message));
        EXPECT_EQ(std::ranges::count(ended.errors, '\n'), 1);
    }
}

TEST(GatewayCommandLine, EndsWithOneLineWhenTheMachineRefuses) {
    const TemporaryFolder folder;
    const std::string data = folder.path();
    GatewayProcess other({"--data", data + "/other"});
    const auto taken = std::to_string(other.port());
    for (const char* const name : {"/text", "/key", "/folder"}) {
        std::filesystem::create_directory(data + name);
    }
    std::ofstream(data + "/text/gateway.sqlite") << std::string(5000, 'x');
    std::ofstream(data + "/key/authority.pem") << "no key\n";
    const std::vector<std::pair<std::vector<std::string>, std::string>> cases{
        {{"--data", data + "/third", "--port", taken}, "127.0.0.1:" + taken},
        {{"--data", data + "/text/gateway.sqlite"}, "gateway.sqlite"},
        {{"--data", data + "/text"}, "not a database"},
        {{"--data", data + "/key"}, "does not hold a key"},
        {{"--data", data + "/folder", "--log", data}, "cannot write the log"},
        {{"--data", data + "/folder", "--ca", data + "/no/ca.pem"}, "/no/ca.pem"},
        {{"--data", data + "/folder", "--stock", "1=1"}, "there is no product 1"},
        {{"--data", data + "/folder", "--fault", "consultant=1 call=open kind=cut"},
         "there is no consultant 1"},
    };
    for (const auto& [arguments, message] : cases) {
        SCOPED_TRACE(message);
        const auto ended = runGateway(arguments);
        EXPECT_EQ(ended.status, 1);
        EXPECT_THAT(ended.errors, HasSubstr(message));
        EXPECT_EQ(std::ranges::count(ended.errors, '\n'), 1);
    }
}

TEST(GatewayCommandLine, TellsAboutItself) {
    EXPECT_THAT(runGateway({"--help"}).output, HasSubstr("--stop-with-stdin"));
    EXPECT_THAT(runGateway({"--version"}).output, MatchesRegex("quillet-gateway [0-9.]+\n"));
    const TemporaryFolder folder;
    const auto list = Json::parse(runGateway({"--data", folder.path(), "--list"}).output);
    EXPECT_EQ(list.size(), 18u);
    EXPECT_EQ(list[1]["cart"], "7f3c9a10-52e1-4d0b-9c77-1f0a6b2e84d3");
    EXPECT_EQ(list[1]["consultant"], 41052);
}

TEST(GatewayCommandLine, StopsWhenAskedToInEachWay) {
    const TemporaryFolder folder;
    GatewayProcess withInput({"--data", folder.path(), "--stop-with-stdin"});
    ASSERT_NE(withInput.port(), 0);
    withInput.closeInput();
    EXPECT_EQ(withInput.wait().status, 0);

    GatewayProcess withoutInput({"--data", folder.path()});
    ASSERT_NE(withoutInput.port(), 0);
    withoutInput.closeInput();
    withoutInput.signal(SIGINT);
    const auto ended = withoutInput.wait();
    EXPECT_EQ(ended.status, 0);
    EXPECT_EQ(ended.output + ended.errors, "");
}

} // namespace quillet::gateway
