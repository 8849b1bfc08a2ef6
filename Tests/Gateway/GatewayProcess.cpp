#include "Gateway/GatewayProcess.hpp"

#include <array>
#include <csignal>
#include <fstream>
#include <stdexcept>

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

namespace quillet::gateway {

namespace {

// Close-on-exec: a gateway that inherits the pipe's write end would keep another gateway's input open.
std::array<int, 2> makePipe() {
    std::array<int, 2> ends{};
    if (::pipe2(ends.data(), O_CLOEXEC) != 0) {
        throw std::runtime_error("no pipe");
    }
    return ends;
}

std::string readToEnd(int descriptor) {
    std::string text;
    std::array<char, 4096> part;
    for (ssize_t size = 0; (size = ::read(descriptor, part.data(), part.size())) > 0;) {
        text.append(part.data(), static_cast<std::size_t>(size));
    }
    return text;
}

void closeOnce(int& descriptor) {
    if (descriptor >= 0) {
        ::close(descriptor);
    }
    descriptor = -1;
}

} // namespace

GatewayProcess::GatewayProcess(const std::vector<std::string>& arguments) {
    std::string program = QUILLET_GATEWAY_PROGRAM;
    auto copies = arguments;
    std::vector<char*> all{program.data()};
    for (auto& argument : copies) {
        all.push_back(argument.data());
    }
    all.push_back(nullptr);

    const auto input = makePipe();
    const auto output = makePipe();
    const auto errors = makePipe();
    posix_spawn_file_actions_t actions;
    ::posix_spawn_file_actions_init(&actions);
    ::posix_spawn_file_actions_adddup2(&actions, input[0], STDIN_FILENO);
    ::posix_spawn_file_actions_adddup2(&actions, output[1], STDOUT_FILENO);
    ::posix_spawn_file_actions_adddup2(&actions, errors[1], STDERR_FILENO);
    const int failure = ::posix_spawn(&process_, program.c_str(), &actions, nullptr, all.data(), environ);
    ::posix_spawn_file_actions_destroy(&actions);
    for (const int end : {input[0], output[1], errors[1]}) {
        ::close(end);
    }
    input_ = input[1];
    output_ = output[0];
    errors_ = errors[0];
    if (failure != 0) {
        throw std::runtime_error("cannot start " + program);
    }
}

GatewayProcess::~GatewayProcess() {
    if (process_ > 0) {
        signal(SIGKILL);
        wait();
    }
    closeOnce(input_);
    closeOnce(output_);
    closeOnce(errors_);
}

std::uint16_t GatewayProcess::port() {
    if (firstLine_.empty()) {
        for (char letter = 0; ::read(output_, &letter, 1) == 1 && letter != '\n';) {
            firstLine_ += letter;
        }
    }
    const std::string prefix = "listening on 127.0.0.1:";
    return firstLine_.starts_with(prefix)
               ? static_cast<std::uint16_t>(std::stoul(firstLine_.substr(prefix.size())))
               : std::uint16_t{0};
}

void GatewayProcess::signal(int number) const {
    ::kill(process_, number);
}
void GatewayProcess::closeInput() {
    closeOnce(input_);
}

Ended GatewayProcess::wait() {
    Ended ended{.status = -1, .output = readToEnd(output_), .errors = readToEnd(errors_)};
    int status = 0;
    ::waitpid(process_, &status, 0);
    process_ = -1;
    ended.status = WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
    return ended;
}

Ended runGateway(const std::vector<std::string>& arguments) {
    return GatewayProcess(arguments).wait();
}

std::vector<std::string> linesOf(const std::filesystem::path& file) {
    std::ifstream stream(file);
    std::vector<std::string> lines;
    for (std::string line; std::getline(stream, line);) {
        lines.push_back(line);
    }
    return lines;
}

} // namespace quillet::gateway
