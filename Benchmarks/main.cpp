#include "Decoding/DecodingCurves.hpp"
#include "Decoding/DecodingRows.hpp"
#include "Harness/Groups.hpp"
#include "Network/CallRows.hpp"
#include "Network/TokenRows.hpp"
#include "Programs/ProgramRows.hpp"
#include "Qml/QmlRows.hpp"
#include "Screens/DeliveryRows.hpp"
#include "Screens/GapRows.hpp"
#include "Screens/OpeningRows.hpp"
#include "Screens/ResultCurve.hpp"
#include "Screens/ResultRows.hpp"
#include "Screens/RingRows.hpp"
#include "Screens/ScrollRows.hpp"

namespace {

using quillet::benchmarks::Curve;
using quillet::benchmarks::Group;

constexpr Group groups[] = {
    {"decoding", "decoding open carts, beside other parsers", true, quillet::benchmarks::decodingRows},
    {"memory", "memory that a decoding takes", true, quillet::benchmarks::decodingMemoryRows},
    {"growth", "decoding of large and of hostile bodies", true, quillet::benchmarks::decodingGrowthRows},
    {"call", "a call to a server on this machine", false, quillet::benchmarks::callRows},
    {"delivery", "results on their way to the main thread", false, quillet::benchmarks::deliveryRows},
    {"token", "signing a token", true, quillet::benchmarks::tokenRows},
    {"gap", "the main thread while large bodies come and go", false, quillet::benchmarks::gapRows},
    {"summary", "showing the summary of an order", true, quillet::benchmarks::summaryRows},
    {"result", "opening a long result and its sections", true, quillet::benchmarks::resultRows},
    {"scroll", "scrolling a long result", true, quillet::benchmarks::scrollRows},
    {"ring", "the loading indicator", true, quillet::benchmarks::ringRows},
    {"qml", "what the QML was compiled to", true, quillet::benchmarks::qmlRows},
    {"programs", "whole programs that embed the module", true, quillet::benchmarks::programRows},
    {"openings", "opening and closing the module again and again", true, quillet::benchmarks::openingsRows},
};

constexpr Curve curves[] = {
    {"decoding-time", true, quillet::benchmarks::decodingTimeCurve},
    {"decoding-memory", true, quillet::benchmarks::decodingMemoryCurve},
    {"result-opened", true, quillet::benchmarks::resultOpenedCurve},
};

} // namespace

int main(int argumentCount, char** arguments) {
    return quillet::benchmarks::runGroups(groups, curves, argumentCount, arguments);
}
