#include "Programs/ProgramRows.hpp"

#include "Harness/Rounds.hpp"
#include "Programs/Program.hpp"

#include <unistd.h>

#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <stdexcept>
#include <string>
#include <thread>
#include <vector>

namespace quillet::benchmarks {

namespace {

constexpr double mebibyte = 1024 * 1024;

/// From the start of the process to its first frame.
double startMilliseconds(const std::string& name, const std::vector<std::string>& arguments = {}) {
    Program program(name, arguments);
    const std::chrono::nanoseconds frame(std::stoll(program.line()));
    return std::chrono::duration<double, std::milli>(frame - program.start().time_since_epoch()).count();
}

/// The memory of a program a while after it told that its window is as it stays.
double residentMebibytes(const std::string& name) {
    Program program(name);
    static_cast<void>(program.line());
    std::this_thread::sleep_for(std::chrono::seconds(1));
    return static_cast<double>(program.residentBytes()) / mebibyte;
}

/// The size of the libraries without symbols that only a debugger reads.
double strippedMegabytes(const std::filesystem::path& folder) {
    const auto stripped =
        std::filesystem::temp_directory_path() / ("quillet-stripped-" + std::to_string(getpid()));
    double bytes = 0;
    for (const std::string name : {"libQuillet.so", "libQuilletBackend.so"}) {
        const std::string command = "strip --strip-unneeded -o '" + stripped.string() + "' '" +
                                    std::filesystem::canonical(folder / name).string() + "'";
        if (std::system(command.c_str()) != 0) {
            throw std::runtime_error(name + " cannot be stripped.");
        }
        bytes += static_cast<double>(std::filesystem::file_size(stripped));
        std::filesystem::remove(stripped);
    }
    return bytes / 1e6;
}

} // namespace

std::vector<Row> programRows(const Options& options) {
    // A port at which nobody listens, and no authorities: the first frame shows that the module loads.
    const auto host = [] { return startMilliseconds("QuilletMinimalHost", {"9", "/dev/null"}); };
    const auto started =
        inTurns(options.times(15, 1), host, [] { return startMilliseconds("QuilletEmptyWindow"); });

    Samples summary;
    Samples empty;
    for (std::size_t i = 0; i < options.times(5, 1); ++i) {
        summary.add(residentMebibytes("QuilletSummaryHost"));
        empty.add(residentMebibytes("QuilletEmptyWindow"));
    }
    Row memory = plainRow("17 resident memory of the summary screen beyond an empty window's", "MiB",
                          summary.median() - empty.median(), atMost(8));
    memory.remark = shortFigure(summary.median()) + " and " + shortFigure(empty.median());

    return {
        ratioRow("11 process start to the minimal host's first frame / an empty window's", "ms", started,
                 atMost(2)),
        plainRow("17 size of the stripped libraries", "MB", strippedMegabytes(QUILLET_RELEASE_LIBRARIES),
                 atMost(1.5)),
        memory,
    };
}

} // namespace quillet::benchmarks
