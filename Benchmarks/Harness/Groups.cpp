#include "Harness/Groups.hpp"

#include "Harness/Rounds.hpp"

#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <exception>
#include <filesystem>
#include <stdexcept>
#include <string>
#include <vector>

namespace quillet::benchmarks {

namespace {

/// Names the group that the process itself is to run, and where its rows go; only `runGroups` sets it.
constexpr const char* childMark = "QUILLET_BENCHMARK_ROWS";

void printHelp(std::span<const Group> groups) {
    std::printf("usage: bench [--quick] [--seed N] [--json FILE] [GROUP ...]\ngroups:\n");
    for (const Group& group : groups) {
        std::printf("  %-10s %s\n", std::string(group.name).c_str(), std::string(group.about).c_str());
    }
}

const Group& groupNamed(std::span<const Group> groups, const std::string& name) {
    const auto found = std::ranges::find(groups, name, &Group::name);
    if (found == groups.end()) {
        throw std::invalid_argument("There is no group " + name + ".");
    }
    return *found;
}

/// Runs one group in a process of its own and returns its rows.
std::vector<Row> rowsOf(const Group& group, const Options& options) {
    const auto folder = std::filesystem::temp_directory_path();
    const std::string path = folder / ("quillet-rows-" + std::to_string(getpid()));
    std::filesystem::remove(path);
    std::vector<std::string> command = {"benchmark", "--seed", std::to_string(options.seed),
                                        std::string(group.name)};
    if (options.quick) {
        command.emplace_back("--quick");
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
        throw std::runtime_error("The group " + std::string(group.name) + " could not be measured.");
    }
    auto rows = readRows(path);
    std::filesystem::remove(path);
    return rows;
}

/// The rows of all groups that could be measured; `failed` says whether one could not.
std::vector<Row> allRows(std::span<const Group> groups, const Options& options, bool& failed) {
    std::vector<Row> rows;
    for (const Group& group : groups) {
        if (options.groups.empty() || std::ranges::find(options.groups, group.name) != options.groups.end()) {
            try {
                std::ranges::move(rowsOf(group, options), std::back_inserter(rows));
            } catch (const std::runtime_error& error) {
                std::fprintf(stderr, "%s\n", error.what());
                failed = true;
            }
        }
    }
    std::ranges::stable_sort(rows, {}, [](const Row& row) { return row.name.substr(0, 2); });
    return rows;
}

} // namespace

int runGroups(std::span<const Group> groups, int argumentCount, char** arguments) {
    try {
        const std::vector<std::string> words(arguments + 1, arguments + argumentCount);
        if (std::ranges::find(words, "--help") != words.end()) {
            printHelp(groups);
            return 0;
        }
        const Options options = optionsFrom(words);
        for (const std::string& name : options.groups) {
            (void)groupNamed(groups, name);
        }
        if (const char* const path = std::getenv(childMark)) {
            const Group& group = groupNamed(groups, options.groups.at(0));
            if (group.onOneCore && !pinToOneCore()) {
                std::fprintf(stderr, "The process cannot be kept on one core.\n");
            }
            writeRows(path, group.run(options));
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
