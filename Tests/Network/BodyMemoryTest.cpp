#include "Platform/Http/URLSession.hpp"
#include "Support/FailingAllocations.hpp"
#include "Support/SandboxedSession.hpp"

#include <gtest/gtest.h>

namespace quillet {

namespace {

using namespace std::string_literals;
using testing::Answer;

constexpr std::size_t limit = 16'777'216;
const std::string ok = "HTTP/1.1 200 OK\r\n";

// Members of 70,000 letters each.
std::string bomb(std::size_t members) {
    const auto packed =
        "\x1f\x8b\x08\x00\x00\x00\x00\x00\x02\x03\xed\xc1\x31\x01\x00\x00\x00\xc2\xa0\xac\xeb\x5f\xc2"
        "\x12\x9e\x40\x01"s +
        std::string(67, '\0') + "\x6f\x03\x04\xe2\x29\x12\x70\x11\x01\x00"s;
    std::string all;
    for (std::size_t member = 0; member < members; ++member) {
        all += packed;
    }
    return all;
}

struct LargeBody {
    const char* name;
    std::function<std::vector<std::string>()> pieces;
    /// Refused where it is not taken.
    bool isTaken = false;

    friend void PrintTo(const LargeBody& body, std::ostream* stream) { *stream << body.name; }
};

const LargeBody bodies[] = {
    {"AtTheLimit", [] { return Answer::complete(200, std::string(limit, ' ')).pieces; }, true},
    {"AtTheLimitUntilTheEnd", [] { return std::vector{ok + "\r\n" + std::string(limit, ' ')}; }, true},
    {"OverTheLimit", [] { return Answer::complete(200, std::string(limit + 1, ' ')).pieces; }},
    {"OverTheLimitUntilTheEnd", [] { return std::vector{ok + "\r\n" + std::string(limit + 1, ' ')}; }},
    // Of which the server sends but one byte.
    {"TenGigabytes", [] { return std::vector{ok + "Content-Length: 10000000000\r\n\r\n{"}; }},
    {"ThousandTimesLargerUnpacked",
     [] { return Answer::complete(200, bomb(15'000), "Content-Encoding: gzip\r\n").pieces; }},
};

struct BodyMemory : ::testing::TestWithParam<LargeBody>, testing::SandboxedSession {};

} // namespace

TEST_P(BodyMemory, GrowsByNoMoreThanTheLargestBodyThatIsTaken) {
    testing::CallRecorder calls;
    const platform::URLSession session(configuration);
    const bool isTaken = GetParam().isTaken;
    server.enqueue({GetParam().pieces(), isTaken ? Answer::Ending::close : Answer::Ending::keepOpen});
    const testing::PeakMemory peak;
    session.dataTask({.url = {testing::gatewayHost, "/"}}, calls.completion()).resume();
    const auto& outcome = calls.wait();
    const std::size_t bytes = peak.bytes();
    EXPECT_EQ(outcome.data.value_or("").size(), isTaken ? limit : 0u);
    EXPECT_EQ(outcome.error.value_or(platform::URLError{}).code,
              isTaken ? platform::URLError::Code::unknown
                      : platform::URLError::Code::dataLengthExceedsMaximum);
    // A large body's room replaces the half mebibyte or less that it had so far.
    EXPECT_LT(bytes, limit + (std::size_t{1} << 20));
    RecordProperty("KiB", std::to_string(bytes >> 10));
}

INSTANTIATE_TEST_SUITE_P(, BodyMemory, ::testing::ValuesIn(bodies),
                         [](const auto& parameter) { return parameter.param.name; });

} // namespace quillet
