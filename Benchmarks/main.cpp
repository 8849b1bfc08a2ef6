#include "Harness/Groups.hpp"
#include "Network/TokenRows.hpp"

namespace {

using quillet::benchmarks::Group;

constexpr Group groups[] = {
    {"token", "signing a token", true, quillet::benchmarks::tokenRows},
};

} // namespace

int main(int argumentCount, char** arguments) {
    return quillet::benchmarks::runGroups(groups, argumentCount, arguments);
}
