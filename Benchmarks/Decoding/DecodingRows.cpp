#include "Decoding/DecodingRows.hpp"

#include "Decoding/OnDemandDecoder.hpp"
#include "Decoding/OpenCartsBody.hpp"
#include "Harness/Heap.hpp"

#include <QByteArray>
#include <QJsonDocument>
#include <simdjson.h>

#include <optional>
#include <stdexcept>
#include <string>

namespace quillet::benchmarks {

namespace {

/// The time that `decode` takes. Its result is freed afterwards, and the allocator settled.
double timeOf(const auto& decode) {
    decltype(decode()) result;
    const double time = milliseconds([&] {
        result = decode();
        return 0;
    });
    { const auto gone = std::move(result); }
    settleHeap();
    return time;
}

void check(bool good) {
    if (!good) {
        throw std::logic_error("The body does not decode to what it should.");
    }
}

/// Both decoders have to give the same records, or else their times cannot be compared.
void checkEqual(const std::string& body, OnDemandDecoder& theirs) {
    const auto ours = OpenOrdersResponse::create(body);
    const auto other = theirs.decode(OnDemandDecoder::padded(body));
    check(ours && other && *ours == *other);
}

} // namespace

std::vector<Row> decodingRows(const Options& options) {
    keepHeap();
    const std::size_t carts = options.times(2000, 100);
    const std::optional<std::string> body = openCartsBody(options.seed, carts, 12);
    const std::size_t rounds = options.times(21, 2);

    const Measured ours = [&] {
        return timeOf([&] {
            auto response = OpenOrdersResponse::create(body);
            check(response && response->openOrders.size() == carts);
            return response;
        });
    };
    const auto bytes = QByteArray::fromStdString(*body);
    const Measured qt = [&] { return timeOf([&] { return QJsonDocument::fromJson(bytes); }); };

    const std::string padded = OnDemandDecoder::padded(*body);
    OnDemandDecoder library(OnDemandDecoder::Decimals::library);
    OnDemandDecoder own(OnDemandDecoder::Decimals::own);
    checkEqual(*body, own);
    const auto onDemand = [&](OnDemandDecoder& decoder) -> Measured {
        return [&] {
            return timeOf([&] {
                auto response = decoder.decode(padded);
                check(response && response->openOrders.size() == carts);
                return response;
            });
        };
    };

    const simdjson::padded_string document(*body);
    simdjson::dom::parser kept;
    const auto parse = [&](simdjson::dom::parser& parser) {
        return milliseconds([&] { return parser.parse(document).error(); });
    };
    const Measured dom = [&] { return parse(kept); };
    const Measured freshDom = [&] {
        simdjson::dom::parser fresh;
        return parse(fresh);
    };

    const std::string what = "decode " + std::to_string(carts) + " orders / ";
    return {
        ratioRow("01 " + what + "Qt's parser, times faster", "ms", inTurns(rounds, ours, qt), atLeast(8)),
        ratioRow("02 " + what + "On-Demand, library's decimals", "ms",
                 inTurns(rounds, ours, onDemand(library)), atMost(0.6)),
        ratioRow("02 " + what + "On-Demand, our decimals", "ms", inTurns(rounds, ours, onDemand(own)),
                 atMost(0.8)),
        ratioRow("03 " + what + "bare DOM parse, parser kept", "ms", inTurns(rounds, ours, dom),
                 atMost(1.35)),
        ratioRow("03 " + what + "bare DOM parse, parser new", "ms", inTurns(rounds, ours, freshDom),
                 atMost(1.35)),
    };
}

} // namespace quillet::benchmarks
