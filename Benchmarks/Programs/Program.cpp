#include "Programs/Program.hpp"

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <stdexcept>

namespace quillet::benchmarks {

namespace {

/// Where a program tells what it has to tell.
constexpr int tellingDescriptor = 3;

} // namespace

Program::Program(const std::string& name, const std::vector<std::string>& arguments) {
    std::string path = std::filesystem::read_symlink("/proc/self/exe").parent_path() / name;
    std::vector<std::string> words = arguments;
    std::vector<char*> command = {path.data()};
    for (std::string& word : words) {
        command.push_back(word.data());
    }
    command.push_back(nullptr);
    std::array<int, 2> ends{};
    if (pipe2(ends.data(), O_CLOEXEC) != 0) {
        throw std::runtime_error("There is no pipe for " + name + ".");
    }
    start_ = std::chrono::steady_clock::now();
    process_ = fork();
    if (process_ == 0) {
        setenv("QT_QPA_PLATFORM", "offscreen", 1);
        setenv("QT_QUICK_BACKEND", "software", 1);
        // What a program says of a back end that it does not reach is of no interest here.
        const int nowhere = open("/dev/null", O_WRONLY | O_CLOEXEC);
        dup2(nowhere, STDERR_FILENO);
        // On the same descriptor dup2 would leave the flag that closes it.
        if (ends[1] == tellingDescriptor) {
            fcntl(ends[1], F_SETFD, 0);
        } else {
            dup2(ends[1], tellingDescriptor);
        }
        execv(path.c_str(), command.data());
        _exit(127);
    }
    close(ends[1]);
    output_ = ends[0];
    if (process_ < 0) {
        close(output_);
        throw std::runtime_error(name + " cannot be started.");
    }
}

Program::~Program() {
    kill(process_, SIGKILL);
    waitpid(process_, nullptr, 0);
    close(output_);
}

std::string Program::line() {
    std::string line;
    char letter = 0;
    while (read(output_, &letter, 1) == 1) {
        if (letter == '\n') {
            return line;
        }
        line += letter;
    }
    throw std::runtime_error("A program ended before it told anything.");
}

std::size_t Program::residentBytes() const {
    std::ifstream file("/proc/" + std::to_string(process_) + "/statm");
    std::size_t whole = 0;
    std::size_t resident = 0;
    file >> whole >> resident;
    return resident * static_cast<std::size_t>(sysconf(_SC_PAGESIZE));
}

} // namespace quillet::benchmarks
