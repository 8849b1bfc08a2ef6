#include "Gateway/GatewayProcess.hpp"

#include <csignal>
#include <stdexcept>
#include <utility>

#include <sys/wait.h>

namespace quillet::gateway {

GatewayProcess::GatewayProcess(std::vector<std::string> arguments, std::vector<std::string> launcher,
                               const std::string& streams) {
    launcher.emplace_back(QUILLET_GATEWAY_PROGRAM);
    launcher.insert(launcher.end(), arguments.begin(), arguments.end());
    // The shell tells its number and becomes the program.
    std::string command = "echo $$; exec";
    for (const auto& word : launcher) {
        command += " '" + word + "'";
    }
    output_ = ::popen((command + " </dev/null " + streams).c_str(), "re");
    if (!output_ || std::fscanf(output_, "%d%*c", &id_) != 1) {
        throw std::runtime_error("no shell");
    }
}

GatewayProcess::~GatewayProcess() {
    if (output_) {
        end(SIGKILL);
    }
}

std::uint16_t GatewayProcess::port() {
    std::uint16_t number = 0;
    return std::fscanf(output_, "listening on 127.0.0.1:%hu%*c", &number) == 1 ? number : std::uint16_t{0};
}

Ended GatewayProcess::end(int signal) {
    if (signal != 0) {
        ::kill(id_, signal);
    }
    Ended ended;
    for (int letter = 0; (letter = std::fgetc(output_)) != EOF;) {
        ended.output += static_cast<char>(letter);
    }
    const int status = ::pclose(std::exchange(output_, nullptr));
    ended.status = WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
    return ended;
}

Ended runGateway(const std::vector<std::string>& arguments, const std::string& streams) {
    return GatewayProcess(arguments, {}, streams).end();
}

} // namespace quillet::gateway
