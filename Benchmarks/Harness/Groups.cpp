#include "Harness/Groups.hpp"

#include "Harness/Rounds.hpp"

#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>
#include <vector>

namespace quillet::benchmarks {

namespace {

/// Marks a process that runs one group or curve, and says where the result goes; only `runGroups` sets it.
constexpr const char* childMark = "QUILLET_BENCHMARK_RESULT";

void printHelp(std::span<const Group> groups, std::span<const Curve> curves) {
    std::printf("usage: bench [--quick] [--seed N] [--json FILE] [GROUP ...]\n"
                "       bench [--quick] [--seed N] --curves FOLDER [CURVE ...]\ngroups:\n");
    for (const Group& group : groups) {
        std::printf("  %-10s %s\n", std::string(group.name).c_str(), std::string(group.about).c_str());
    }
    std::printf("curves:\n");
    for (const Curve& curve : curves) {
        std::printf("  %s\n", std::string(curve.name).c_str());
    }
}

template <typename Thing>
const Thing& named(std::span<const Thing> things, const std::string& name) {
    const auto found = std::ranges::find(things, name, &Thing::name);
    if (found == things.end()) {
        throw std::invalid_argument("There is nothing named " + name + " to measure.");
    }
    return *found;
}

/// Those that were asked for by name, or all.
template <typename Thing>
std::vector<Thing> chosen(std::span<const Thing> things, const std::vector<std::string>& names) {
    std::vector<Thing> chosen;
    for (const std::string& name : names) {
        chosen.push_back(named(things, name));
    }
    return names.empty() ? std::vector(things.begin(), things.end()) : chosen;
}

/// Runs one group or curve in a process of its own, which writes the result to `path`.
void measure(std::string_view name, const Options& options, const std::string& path) {
    std::filesystem::remove(path);
    std::vector<std::string> command = {"benchmark", "--seed", std::to_string(options.seed),
                                        std::string(name)};
    if (options.quick) {
        command.emplace_back("--quick");
    }
    if (options.curves) {
        command.insert(command.end(), {"--curves", *options.curves});
    }
    std::vector<char*> arguments;
    for (std::string& argument : command) {
        arguments.push_back(argument.data());
    }
    arguments.push_back(nullptr);
    std::fflush(nullptr);
    const pid_t child = fork();
    if (child == 0) {
        setenv(childMark, path.c_str(), 1);
        execv("/proc/self/exe", arguments.data());
        _exit(127);
    }
    int status = 0;
    if (child < 0 || waitpid(child, &status, 0) != child || status != 0) {
        throw std::runtime_error(std::string(name) + " could not be measured.");
    }
}

/// What a process that `measure` started does.
void runHere(std::span<const Group> groups, std::span<const Curve> curves, const Options& options,
             const std::string& path) {
    const auto pin = [](bool onOneCore) {
        if (onOneCore && !pinToOneCore()) {
            std::fprintf(stderr, "The process cannot be kept on one core.\n");
        }
    };
    if (options.curves) {
        const Curve& curve = named(curves, options.groups.at(0));
        pin(curve.onOneCore);
        std::ofstream file(path);
        file << curve.run(options);
        if (!file.flush()) {
            throw std::runtime_error("The file " + path + " cannot be written.");
        }
    } else {
        const Group& group = named(groups, options.groups.at(0));
        pin(group.onOneCore);
        writeRows(path, group.run(options));
    }
}

/// The rows of all groups that could be measured; `failed` says whether one could not.
std::vector<Row> allRows(std::span<const Group> groups, const Options& options, bool& failed) {
    const std::string path =
        std::filesystem::temp_directory_path() / ("quillet-rows-" + std::to_string(getpid()));
    std::vector<Row> rows;
    for (const Group& group : chosen(groups, options.groups)) {
        try {
            measure(group.name, options, path);
            std::ranges::move(readRows(path), std::back_inserter(rows));
        } catch (const std::runtime_error& error) {
            std::fprintf(stderr, "%s\n", error.what());
            failed = true;
        }
        std::filesystem::remove(path);
    }
    std::ranges::stable_sort(rows, {}, [](const Row& row) { return row.name.substr(0, 2); });
    return rows;
}

} // namespace

int runGroups(std::span<const Group> groups, std::span<const Curve> curves, int argumentCount,
              char** arguments) {
    try {
        const std::vector<std::string> words(arguments + 1, arguments + argumentCount);
        if (std::ranges::find(words, "--help") != words.end()) {
            printHelp(groups, curves);
            return 0;
        }
        const Options options = optionsFrom(words);
        if (const char* const path = std::getenv(childMark)) {
            runHere(groups, curves, options, path);
            return 0;
        }
        if (options.curves) {
            std::filesystem::create_directories(*options.curves);
            for (const Curve& curve : chosen(curves, options.groups)) {
                measure(curve.name, options, *options.curves + "/" + std::string(curve.name) + ".tsv");
            }
            return 0;
        }
        bool failed = false;
        const auto rows = allRows(groups, options, failed);
        printRows(rows);
        if (options.json) {
            writeRows(*options.json, rows);
        }
        return failed ? 1 : 0;
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s\n", error.what());
        return 1;
    }
}

} // namespace quillet::benchmarks
