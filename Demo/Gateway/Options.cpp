#include "Gateway/Options.hpp"

#include <array>
#include <charconv>

#include <getopt.h>

namespace quillet::gateway {

namespace {

enum Option { data = 256, port, reset, log, ca, stopWithStdin, fault, stock, quota, list, help, showVersion };

constexpr std::array longOptions{
    option{"data", required_argument, nullptr, data},
    option{"port", required_argument, nullptr, port},
    option{"reset", no_argument, nullptr, reset},
    option{"log", required_argument, nullptr, log},
    option{"ca", required_argument, nullptr, ca},
    option{"stop-with-stdin", no_argument, nullptr, stopWithStdin},
    option{"fault", required_argument, nullptr, fault},
    option{"stock", required_argument, nullptr, stock},
    option{"quota", required_argument, nullptr, quota},
    option{"list", no_argument, nullptr, list},
    option{"help", no_argument, nullptr, help},
    option{"version", no_argument, nullptr, showVersion},
    option{nullptr, 0, nullptr, 0},
};

std::expected<std::uint16_t, std::string> parsePort(std::string_view text) {
    std::uint16_t number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (text.empty() || error != std::errc{} || end != text.data() + text.size()) {
        return std::unexpected("--port needs a number from 0 to 65535, not \"" + std::string(text) + "\"");
    }
    return number;
}

using Parser = std::expected<Adjustment, std::string> (*)(std::string_view);

std::optional<std::string> add(Options& options, Parser parse, std::string_view text) {
    auto adjustment = parse(text);
    if (!adjustment) {
        return adjustment.error();
    }
    options.adjustments.push_back(std::move(*adjustment));
    return {};
}

// Applies one option; returns what is wrong with it.
std::optional<std::string> take(Options& options, int found, const std::string& argument) {
    switch (found) {
    case data:
        options.data = argument;
        return {};
    case port: {
        const auto number = parsePort(argument);
        options.port = number.value_or(0);
        return number ? std::nullopt : std::optional(number.error());
    }
    case reset:
        options.reset = true;
        return {};
    case log:
        options.log = argument;
        return {};
    case ca:
        options.ca = argument;
        return {};
    case stopWithStdin:
        options.stopWithStdin = true;
        return {};
    case fault:
        return add(options, parseFault, argument);
    case stock:
        return add(options, parseStock, argument);
    case quota:
        return add(options, parseQuota, argument);
    case list:
        options.list = true;
        return {};
    case help:
        options.help = true;
        return {};
    case showVersion:
        options.version = true;
        return {};
    }
    return "this option is not known";
}

} // namespace

std::expected<Options, std::string> parseOptions(std::span<char* const> arguments) {
    // getopt expects the program's name first and a null pointer last.
    std::string program = "quillet-gateway";
    std::vector<char*> all{program.data()};
    all.insert(all.end(), arguments.begin(), arguments.end());
    all.push_back(nullptr);
    const int count = static_cast<int>(all.size()) - 1;

    Options options;
    ::optind = 0;
    ::opterr = 0;
    for (int found = 0;
         (found = ::getopt_long(count, all.data(), "+:", longOptions.data(), nullptr)) != -1;) {
        const std::string written = all[static_cast<std::size_t>(::optind - 1)];
        if (found == ':') {
            return std::unexpected(written + " needs a value");
        }
        if (found == '?') {
            return std::unexpected("unknown option " + written);
        }
        if (auto wrong = take(options, found, ::optarg ? ::optarg : "")) {
            return std::unexpected(*wrong);
        }
    }
    if (::optind < count) {
        return std::unexpected(std::string("unexpected argument ") + all[static_cast<std::size_t>(::optind)]);
    }
    if (options.data.empty() && !options.help && !options.version) {
        return std::unexpected("--data DIR is needed");
    }
    return options;
}

std::string_view helpText() {
    return R"(quillet-gateway: a local back end for the sample host. HTTPS on 127.0.0.1, state in SQLite.

  quillet-gateway --data DIR [--port N] [--reset] [--log FILE] [--ca FILE] [--stop-with-stdin]
  quillet-gateway --data DIR [--reset] [--fault "..."] [--stock ...] [--quota ...] [--list]

Serving. When it is ready it prints "listening on 127.0.0.1:PORT". It ends on SIGTERM or SIGINT.
  --data DIR          folder of the state, made if missing: gateway.sqlite, authority.pem, ca.pem, gateway.log
  --port N            port to listen on; 0, the default, takes any that is free
  --reset             seed the database afresh
  --log FILE          one JSON object a line for each request, appended (default DIR/gateway.log)
  --ca FILE           where to write the certificate that clients must trust (default DIR/ca.pem)
  --stop-with-stdin   end also when standard input ends

Errands change or show the data and end. A gateway that is serving from DIR takes them up with its next request.
  --fault "consultant=N call=associate|open|checkout kind=KIND [value=V] [times=N]"
                      make this call fail for this consultant, always or N times. A consultant has one fault for
                      each call; a new one takes the place of the old. KIND is
                        delay      carry it out, answer after V milliseconds
                        status     answer with status V instead
                        malformed  answer 200 with a broken body instead (V: shape, null, empty or html)
                        cut        carry it out, send half of the body, and close
                        silence    do nothing and never answer
                        close      carry it out, and close without an answer
                        none       take the fault away
  --stock CODE=N      units of a product in stock
  --quota CODE=N      units that each consultant may send in a cycle; CODE@CONSULTANT=N for one of them alone,
                      "none" for N to take the limit away
  --list              print the seeded orders as JSON

  --help, --version

Exit status: 0, 2 for a command line that cannot be understood, 1 for anything else that cannot be done.
)";
}

std::string_view version() {
    return QUILLET_VERSION;
}

} // namespace quillet::gateway
