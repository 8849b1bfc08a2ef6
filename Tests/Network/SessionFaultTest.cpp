#include "Models/Bodies.hpp"
#include "Network/SessionTest.hpp"
#include "Support/FailingAllocations.hpp"

#include <gtest/gtest.h>

namespace quillet::testing {

namespace {

using namespace std::string_literals;
using tests::repeated;
using enum Code;
using enum Answer::Ending;

const std::string ok = "HTTP/1.1 200 OK\r\n";
const std::string gzip = "Content-Encoding: gzip\r\n";
// 70,000 times the letter a.
const auto packed =
    "\x1f\x8b\x08\x00\x00\x00\x00\x00\x02\x03\xed\xc1\x31\x01\x00\x00\x00\xc2\xa0\xac\xeb\x5f\xc2\x12\x9e\x40\x01"s +
    std::string(67, '\0') + "\x6f\x03\x04\xe2\x29\x12\x70\x11\x01\x00"s;
const std::string unpacked(70'000, 'a');

constexpr std::size_t limit = 16'777'216;
const std::string header = "X-Header: " + std::string(54, 'x') + "\r\n";

struct SessionFaults : SessionTest {
    const platform::URLSessionOutcome& answered(Answer answer, std::optional<std::string> method = {}) {
        server.enqueue(std::move(answer));
        return exchange(*session, {.url = toGateway, .httpMethod = std::move(method)});
    }
    void expectRefusal(Answer answer, Code code, const std::string& method = "POST") {
        const auto requests = server.requests().size();
        const auto& outcome = answered(std::move(answer), method);
        ASSERT_TRUE(outcome.error);
        EXPECT_EQ(outcome.error->code, code) << outcome.error->message;
        EXPECT_NE(outcome.error->message, "");
        EXPECT_FALSE(outcome.data || outcome.response);
        EXPECT_EQ(server.requests().size(), requests + 1);
    }
    /// Afterwards there is a connection that is kept.
    void warmUp() { ASSERT_EQ(answered(Answer::complete(200, "warm")).data, "warm"); }

    std::unique_ptr<platform::URLSession> session = std::make_unique<platform::URLSession>(configuration);
};

/// An answer, which ends with a text repeated, and the code of the error that it leads to.
struct Fault {
    const char* name;
    std::string answer;
    Code code;
    Answer::Ending ending = keepOpen;
    std::string more = {};
    std::size_t times = 0;

    friend void PrintTo(const Fault& fault, std::ostream* stream) { *stream << fault.name; }
};

const std::string exabytes = "Content-Length: 9223372036854775808\r\n";

const Fault faults[] = {
    {"CutInBodyOfNoCoding", ok + "Transfer-Encoding: identity\r\nContent-Length: 2\r\n\r\n{}",
     networkConnectionLost, cut},
    {"CutInBodyOfMoreThanEightExabytes", ok + exabytes + "\r\n{}", networkConnectionLost, cut},
    {"ClosedInBodyOfMoreThanEightExabytes", ok + exabytes + "\r\n{}", networkConnectionLost, close},
    {"ErrorStatusCutInBody", "HTTP/1.1 504 Late\r\nContent-Length: 5\r\n\r\n{}", networkConnectionLost, cut},
    {"ClosedInTheHeadAfterAnInterimAnswer",
     "HTTP/1.1 103 Early\r\n\r\nHTTP/1.1 200 OK\r\nX: ", networkConnectionLost, close},
    {"UnknownTransferCoding", ok + "Transfer-Encoding: squeezed\r\n\r\n{}", cannotParseResponse, close},
    {"BadChunk", ok + "Transfer-Encoding: chunked\r\n\r\n{}\r\n", networkConnectionLost},
    {"NotHttp", "220 ready when you are\r\n", cannotParseResponse, close},
    {"UnknownPacking", ok + "Content-Length: 2\r\nContent-Encoding: br\r\n\r\n{}", cannotDecodeContentData},
    {"NoPackingUnderItsName", ok + "Content-Length: 2\r\n" + gzip + "\r\n{}", cannotDecodeContentData},
    {"HeaderLineOfTwentyMegabytes", ok + "X: ", dataLengthExceedsMaximum, keepOpen, "x", 20'000'000},
    {"HundredThousandHeaders", ok, dataLengthExceedsMaximum, keepOpen, header, 100'000},
    {"EndlessInterimAnswers", "", dataLengthExceedsMaximum, keepOpen, "HTTP/1.1 103 Early\r\nLink: x\r\n\r\n",
     20'000},
    {"LongTrailers", ok + "Transfer-Encoding: chunked\r\n\r\n0\r\n", dataLengthExceedsMaximum, keepOpen,
     header, 4'100},
    {"BodyOverTheLimit", ok + "Content-Length: 16777217\r\n\r\n", dataLengthExceedsMaximum, keepOpen, " ",
     limit + 1},
    {"BodyOverTheLimitUntilTheEnd", ok + "\r\n", dataLengthExceedsMaximum, close, " ", limit + 1},
    // Of which but one byte comes.
    {"TenGigabytes", ok + "Content-Length: 10000000000\r\n\r\n{", dataLengthExceedsMaximum},
    {"ThousandMegabytesInOneAndAHalf", ok + gzip + "\r\n", dataLengthExceedsMaximum, keepOpen, packed,
     15'000},
};

struct SessionFault : SessionFaults, ::testing::WithParamInterface<Fault> {};

} // namespace

// There is a kept connection, which the POST could have used.
TEST_P(SessionFault, EndsThePostWithAnErrorAloneInLittleMemory) {
    const auto& fault = GetParam();
    warmUp();
    Answer answer{{fault.answer + repeated(fault.more, fault.times)}, fault.ending};
    const PeakMemory peak;
    expectRefusal(std::move(answer), fault.code);
    // A large body's room replaces the half mebibyte or less that it had so far.
    EXPECT_LT(peak.bytes(), limit + (std::size_t{1} << 20));
    RecordProperty("KiB", static_cast<int>(peak.bytes() >> 10));
    warmUp();
}

INSTANTIATE_TEST_SUITE_P(, SessionFault, ::testing::ValuesIn(faults), ::testing::PrintToStringParamName());

TEST_F(SessionFaults, OfALostConnectionLetNothingButAGetBeSentAgain) {
    for (const std::string method : {"POST", "PATCH", "PUT", "DELETE", "OPTIONS"}) {
        for (const auto ending : {close, cut, reset}) {
            SCOPED_TRACE(method);
            // Neither the connection of a GET is taken nor that of another of its kind.
            warmUp();
            const auto connections = server.connections();
            EXPECT_EQ(answered(Answer::complete(200, "{}"), method).data, "{}");
            expectRefusal({{}, ending}, networkConnectionLost, method);
            EXPECT_EQ(server.connections(), connections + 2);
        }
    }
}

TEST_F(SessionFaults, OfThePackingAreFoundWhereverTheyAre) {
    const auto expectDamaged = [&](const std::string& body) {
        expectRefusal(Answer::complete(200, body, gzip), cannotDecodeContentData);
    };
    for (std::size_t bytes = 1; bytes < packed.size(); ++bytes) {
        expectDamaged(packed.substr(0, bytes));
        expectDamaged(packed + packed.substr(0, bytes));
    }
    // The last eight bytes are the checksum and the length.
    for (std::size_t last = 1; last <= 8; ++last) {
        auto damaged = packed;
        damaged[packed.size() - last] ^= 1;
        expectDamaged(damaged);
    }
}

TEST_F(SessionFaults, AreNotSeenInAnUnusualAnswer) {
    const std::string chunked =
        ok + "Transfer-Encoding: chunked\r\n\r\n2;part=1\r\n{}\r\n0\r\nX-Trailer: x\r\n\r\n";
    const struct {
        Answer answer;
        std::string body;
        std::int64_t status = 200;
    } cases[] = {
        {Answer::complete(200, "{}", repeated(header, 3'900)), "{}"},
        {Answer::complete(200, std::string(limit, ' ')), std::string(limit, ' ')},
        {Answer::complete(200, packed, "Content-Encoding: GZIP\r\n"), unpacked},
        {Answer::complete(200, packed + packed, "Content-Encoding: x-gzip\r\n"), unpacked + unpacked},
        {Answer::complete(200, packed + packed, gzip).sliced(1), unpacked + unpacked},
        {Answer::complete(200, "{}").sliced(1), "{}"},
        {Answer{{chunked}}.sliced(1), "{}"},
        // An interim answer is none.
        {Answer{{"HTTP/1.1 103 Early Hints\r\nLink: x\r\n\r\nHTTP/1.1 204 No Content\r\n\r\n"}}.sliced(1), "",
         204},
        {Answer{{ok + gzip + "\r\n" + packed}, close}.sliced(1), unpacked},
    };
    for (const auto& [answer, body, status] : cases) {
        const auto& outcome = answered(answer);
        EXPECT_TRUE(outcome.data == body) << "in call " << calls.count();
        EXPECT_EQ(outcome.response, platform::HTTPURLResponse{status});
    }
    EXPECT_EQ(server.connections(), 1u);
}

TEST_F(SessionFaults, OfRedirectsAreTheCallersMatter) {
    configuration.hostMappings.push_back({"other.test", "127.0.0.1", server.port()});
    session = std::make_unique<platform::URLSession>(configuration);
    for (const int status : {301, 302, 303, 307, 308}) {
        for (const std::string place :
             {"https://gateway.test/there", "https://other.test/", "http://gateway.test/", "/there"}) {
            for (const std::string method : {"GET", "POST"}) {
                SCOPED_TRACE(std::to_string(status) + place + method);
                const auto& outcome =
                    answered(Answer::complete(status, "moved", "Location: " + place + "\r\n"), method);
                EXPECT_EQ(outcome.data, "moved");
                EXPECT_EQ(outcome.response, platform::HTTPURLResponse{status});
                EXPECT_EQ(server.requests().size(), calls.count());
                EXPECT_TRUE(server.requests().back().starts_with(method + " / "));
            }
        }
    }
    // All calls of GET had one, each POST one of its own.
    EXPECT_EQ(server.connections(), 21u);
}

// A thread that a long head keeps busy is not the other session's.
TEST_F(SessionFaults, OfOneSessionDoNotHoldUpAnother) {
    const platform::URLSession busy(configuration);
    server.enqueue(
        {{ok + repeated(header, 3'000), repeated(header, 100'000)}, keepOpen, [this] { warmUp(); }});
    start(busy);
    EXPECT_EQ(calls.wait(1).error.value().code, dataLengthExceedsMaximum);
}

} // namespace quillet::testing
