#include "Harness/Options.hpp"

#include <charconv>
#include <stdexcept>

namespace quillet::benchmarks {

namespace {

std::uint32_t seedFrom(const std::string& text) {
    std::uint32_t seed = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), seed);
    if (error != std::errc() || end != text.data() + text.size()) {
        throw std::invalid_argument("--seed needs a number below 2^32, not \"" + text + "\".");
    }
    return seed;
}

} // namespace

Options optionsFrom(const std::vector<std::string>& arguments) {
    Options options;
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        const std::string& argument = arguments[i];
        const auto value = [&] {
            if (++i == arguments.size()) {
                throw std::invalid_argument(argument + " needs a value.");
            }
            return arguments[i];
        };
        if (argument == "--quick") {
            options.quick = true;
        } else if (argument == "--seed") {
            options.seed = seedFrom(value());
        } else if (argument == "--json") {
            options.json = value();
        } else if (argument == "--curves") {
            options.curves = value();
        } else if (argument.starts_with("-")) {
            throw std::invalid_argument("There is no option " + argument + ".");
        } else {
            options.groups.push_back(argument);
        }
    }
    return options;
}

} // namespace quillet::benchmarks
