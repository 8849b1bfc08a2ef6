#include "Decoding/DecodingCurves.hpp"

#include "Decoding/OpenCartsBody.hpp"
#include "Harness/Heap.hpp"
#include "Harness/Rounds.hpp"
#include "Quillet/Orders.hpp"

#include <QByteArray>
#include <QJsonDocument>
#include <simdjson.h>

#include <malloc.h>

#include <functional>
#include <optional>
#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

namespace quillet::benchmarks {

namespace {

constexpr double megabyte = 1e6;

/// Parses a body, and calls back while the result still exists.
using Body = std::optional<std::string>;
using Parser = std::function<void(const Body& body, const std::function<void()>& done)>;

void decode(const Body& body, const std::function<void()>& done) {
    const auto response = OpenOrdersResponse::create(body);
    done();
    if (!response) {
        throw std::logic_error("The body does not decode.");
    }
}
void parseWithQt(const Body& body, const std::function<void()>& done) {
    const auto document =
        QJsonDocument::fromJson(QByteArray::fromRawData(body->data(), static_cast<qsizetype>(body->size())));
    done();
}
void parseWithDom(const Body& body, const std::function<void()>& done) {
    simdjson::dom::parser parser;
    const auto error = parser.parse(*body).error();
    done();
    if (error != simdjson::SUCCESS) {
        throw std::logic_error("The body does not parse.");
    }
}

const std::vector<Parser> parsers = {decode, parseWithQt, parseWithDom};
constexpr auto columns = "megabytes\trecords\tQJsonDocument\tsimdjson's DOM\n";

/// A line for each size of the body, with what `figure` gives for each parser.
std::string curve(const Options& options, const std::function<double(const Parser&, const Body&)>& figure) {
    std::ostringstream text;
    text << columns;
    const auto sizes = options.quick ? std::vector<std::size_t>{20, 200}
                                     : std::vector<std::size_t>{20, 500, 1000, 2000, 4000, 8000, 13000};
    for (const std::size_t carts : sizes) {
        const Body body = openCartsBody(options.seed, carts, 12);
        text << static_cast<double>(body->size()) / megabyte;
        for (const Parser& parser : parsers) {
            text << '\t' << figure(parser, body);
        }
        text << '\n';
    }
    return text.str();
}

} // namespace

std::string decodingTimeCurve(const Options& options) {
    keepHeap();
    return curve(options, [&](const Parser& parser, const Body& body) {
        Samples times;
        for (std::size_t i = 0; i < options.times(9, 2); ++i) {
            using Clock = std::chrono::steady_clock;
            const auto start = Clock::now();
            parser(body, [&] {
                times.add(std::chrono::duration<double, std::milli>(Clock::now() - start).count());
            });
            settleHeap();
        }
        return times.median();
    });
}

std::string decodingMemoryCurve(const Options& options) {
    return curve(options, [](const Parser& parser, const Body& body) {
        parser(body, [] {});
        // Free pages that are still there from before would hide what the parser takes.
        malloc_trim(0);
        const std::size_t before = residentBytes();
        resetPeakResidentBytes();
        parser(body, [] {});
        return static_cast<double>(peakResidentBytes() - before) / megabyte;
    });
}

} // namespace quillet::benchmarks
