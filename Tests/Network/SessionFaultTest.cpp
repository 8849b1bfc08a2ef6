#include "Platform/Http/URLSession.hpp"
#include "Support/SandboxedSession.hpp"

#include <gtest/gtest.h>

namespace quillet {

namespace {

using namespace std::string_literals;
using testing::Answer;
using enum platform::URLError::Code;

const std::string ok = "HTTP/1.1 200 OK\r\n";
// 70,000 times the letter a.
const auto packed =
    "\x1f\x8b\x08\x00\x00\x00\x00\x00\x02\x03\xed\xc1\x31\x01\x00\x00\x00\xc2\xa0\xac\xeb\x5f\xc2\x12\x9e\x40\x01"s +
    std::string(67, '\0') + "\x6f\x03\x04\xe2\x29\x12\x70\x11\x01\x00"s;
constexpr std::size_t unpackedSize = 70'000;

struct Fault {
    std::string name;
    Answer answer;
    platform::URLError::Code code;
};

std::ostream& operator<<(std::ostream& stream, const Fault& fault) {
    return stream << fault.name;
}

const Fault faults[] = {
    {"CutBeforeAnswer", {{}, Answer::Ending::cut}, networkConnectionLost},
    {"ClosedBeforeAnswer", {{}, Answer::Ending::close}, networkConnectionLost},
    {"CutInHeaders", {{ok + "Content-Le"}, Answer::Ending::cut}, networkConnectionLost},
    {"ClosedAfterHeaders",
     {{ok + "Content-Length: 5\r\n\r\n"}, Answer::Ending::close},
     networkConnectionLost},
    {"CutInBody", {{ok + "Content-Length: 5\r\n\r\n{}"}, Answer::Ending::cut}, networkConnectionLost},
    {"ClosedInBody", {{ok + "Content-Length: 5\r\n\r\n{}"}, Answer::Ending::close}, networkConnectionLost},
    {"CutInChunk",
     {{ok + "Transfer-Encoding: chunked\r\n\r\n5\r\n{}"}, Answer::Ending::cut},
     networkConnectionLost},
    {"ClosedBeforeLastChunk",
     {{ok + "Transfer-Encoding: chunked\r\n\r\n2\r\n{}\r\n"}, Answer::Ending::close},
     networkConnectionLost},
    {"CutInBodyWithoutLength", {{ok + "\r\n{}"}, Answer::Ending::cut}, networkConnectionLost},
    {"CutInBodyOfNoCoding",
     {{ok + "Transfer-Encoding: identity\r\nContent-Length: 2\r\n\r\n{}"}, Answer::Ending::cut},
     networkConnectionLost},
    {"CutInBodyOfMoreThanEightExabytes",
     {{ok + "Content-Length: 9223372036854775808\r\n\r\n{}"}, Answer::Ending::cut},
     networkConnectionLost},
    {"ClosedInBodyOfMoreThanEightExabytes",
     {{ok + "Content-Length: 9223372036854775808\r\n\r\n{}"}, Answer::Ending::close},
     networkConnectionLost},
    {"UnknownTransferCoding",
     {{ok + "Transfer-Encoding: squeezed\r\n\r\n{}"}, Answer::Ending::close},
     cannotParseResponse},
    {"ErrorStatusCutInBody",
     {{"HTTP/1.1 504 Late\r\nContent-Length: 5\r\n\r\n{}"}, Answer::Ending::cut},
     networkConnectionLost},
    {"NotHttp", {{"220 ready when you are\r\n"}, Answer::Ending::close}, cannotParseResponse},
    {"LongHeader", Answer::complete(200, "", "X: " + std::string(300 << 10, 'x') + "\r\n"),
     dataLengthExceedsMaximum},
    {"ManyHeaders",
     Answer::complete(200, "",
                      [] {
                          std::string headers;
                          for (int i = 0; i < 4000; ++i) {
                              headers += "X-" + std::to_string(i) + ": " + std::string(64, 'x') + "\r\n";
                          }
                          return headers;
                      }()),
     dataLengthExceedsMaximum},
    {"BodyOverTheLimit", Answer::complete(200, std::string(unpackedSize, 'a')), dataLengthExceedsMaximum},
    {"PackedBodyOverTheLimit", Answer::complete(200, packed, "Content-Encoding: gzip\r\n"),
     dataLengthExceedsMaximum},
    {"DamagedPacking", Answer::complete(200, "{}", "Content-Encoding: gzip\r\n"), cannotDecodeContentData},
    {"UnknownPacking", Answer::complete(200, "{}", "Content-Encoding: br\r\n"), cannotDecodeContentData},
    {"ShortenedPacking", Answer::complete(200, packed.substr(0, 60), "Content-Encoding: gzip\r\n"),
     cannotDecodeContentData},
};

class SessionFault : public ::testing::TestWithParam<Fault> {};

} // namespace

// All kinds of faults for a POST, which must be sent once in every case.
TEST_P(SessionFault, EndsThePostWithAnErrorAloneAndIsNotRepeated) {
    testing::SandboxedSession sandbox;
    testing::CallRecorder calls;
    sandbox.configuration.maximumBodyBytes = unpackedSize - 1;
    sandbox.server.enqueue(Answer::complete(200, "warm"));
    sandbox.server.enqueue(GetParam().answer);
    const platform::URLSession session(sandbox.configuration);
    // The connection of the GET before stays open, so there is one that the POST could have reused.
    session.dataTask({.url = {testing::gatewayHost, "/"}}, calls.completion()).resume();
    ASSERT_EQ(calls.wait().data, "warm");

    session.dataTask({.url = {testing::gatewayHost, "/"}, .httpMethod = "POST"}, calls.completion()).resume();
    const auto& outcome = calls.wait(1);
    ASSERT_TRUE(outcome.error);
    EXPECT_EQ(outcome.error->code, GetParam().code) << outcome.error->message;
    EXPECT_NE(outcome.error->message, "");
    EXPECT_FALSE(outcome.data);
    EXPECT_FALSE(outcome.response);
    EXPECT_EQ(sandbox.server.requests().size(), 2u);
    EXPECT_EQ(sandbox.server.connections(), 2u);
}

INSTANTIATE_TEST_SUITE_P(, SessionFault, ::testing::ValuesIn(faults),
                         [](const auto& parameter) { return parameter.param.name; });

TEST(Session, TakesABodyUpToTheLimitPackedOrNot) {
    const auto half = packed.size() / 2;
    for (const auto& answer :
         {Answer::complete(200, packed, "Content-Encoding: GZIP\r\n"),
          Answer{{ok + "Content-Encoding: gzip\r\n\r\n" + packed.substr(0, half), packed.substr(half)},
                 Answer::Ending::close},
          Answer::complete(200, std::string(unpackedSize, 'a'))}) {
        testing::SandboxedSession sandbox;
        testing::CallRecorder calls;
        sandbox.configuration.maximumBodyBytes = unpackedSize;
        sandbox.server.enqueue(answer);
        const platform::URLSession session(sandbox.configuration);
        session.dataTask({.url = {testing::gatewayHost, "/"}}, calls.completion()).resume();
        EXPECT_EQ(calls.wait().data, std::string(unpackedSize, 'a'));
        EXPECT_NE(sandbox.server.requests()[0].find("Accept-Encoding: "), std::string::npos);
    }
}

TEST(Session, TakesSixteenMebibytesUnlessToldOtherwise) {
    testing::SandboxedSession sandbox;
    testing::CallRecorder calls;
    const platform::URLSession session(sandbox.configuration);
    const std::size_t limit = 16'777'216;
    for (const std::size_t size : {limit, limit + 1}) {
        sandbox.server.enqueue(Answer::complete(200, std::string(size, ' ')));
        session.dataTask({.url = {testing::gatewayHost, "/"}}, calls.completion()).resume();
        const auto& outcome = calls.wait(size - limit);
        EXPECT_EQ(outcome.data.has_value(), size == limit);
        EXPECT_EQ(outcome.data.value_or("").size(), size == limit ? limit : 0);
        EXPECT_EQ(outcome.error.value_or(platform::URLError{}).code,
                  size == limit ? unknown : dataLengthExceedsMaximum);
    }
}

TEST(Session, SendsAPostAndAPatchOnAConnectionOfTheirOwn) {
    for (const std::string method : {"POST", "PATCH"}) {
        testing::SandboxedSession sandbox;
        testing::CallRecorder calls;
        const platform::URLSession session(sandbox.configuration);
        for (std::size_t call = 0; call < 3; ++call) {
            // The third connection ends after the request was read, like a kept one that the server closes.
            sandbox.server.enqueue(call < 2 ? Answer::complete(200, "{}") : Answer{{}, Answer::Ending::cut});
            session.dataTask({.url = {testing::gatewayHost, "/"}, .httpMethod = method}, calls.completion())
                .resume();
            EXPECT_EQ(calls.wait(call).error.has_value(), call == 2);
        }
        EXPECT_EQ(sandbox.server.requests().size(), 3u);
        EXPECT_EQ(sandbox.server.connections(), 3u);
    }
}

} // namespace quillet
