#include "Fuzzing/Target.hpp"

#include <filesystem>
#include <fstream>
#include <iterator>

namespace {

std::string content(const std::filesystem::path& file) {
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

} // namespace

/// Runs each target with each input that was kept for it, without libFuzzer: `CORPUS`, a folder that has one
/// of each target's name.
int main(int argc, char** argv) {
    if (argc != 2) {
        std::fputs("fuzzing-replay CORPUS\n", stderr);
        return 2;
    }
    for (const auto* const target : quillet::fuzzing::Target::all()) {
        std::size_t inputs = 0;
        for (const auto& file :
             std::filesystem::directory_iterator(std::filesystem::path(argv[1]) / target->name)) {
            // Where the target ends the process, this says with what.
            std::printf("%s\n", file.path().c_str());
            std::fflush(stdout);
            target->run(content(file.path()));
            ++inputs;
        }
        if (inputs == 0) {
            std::fprintf(stderr, "Nothing is kept for %s.\n", target->name.data());
            return 1;
        }
    }
    return 0;
}
