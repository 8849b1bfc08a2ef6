#pragma once

#include <csignal>
#include <cstdint>
#include <cstdio>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include <sys/wait.h>

namespace quillet::gateway {

/// The result of a run of the program. Death by a signal is the status 128 plus the signal's number.
struct Ended {
    int status = -1;
    std::string output;
};

/// The program as a child process, whose standard input has ended. The destructor kills it if it still runs.
class GatewayProcess {
public:
    /// `launcher` is a command that is followed by the program and its arguments. What it writes to its
    /// standard output is kept; `streams` tells a shell what else that is.
    explicit GatewayProcess(const std::vector<std::string>& arguments, std::vector<std::string> launcher = {},
                            const std::string& streams = "2>&1") {
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
    ~GatewayProcess() {
        if (output_) {
            end(SIGKILL);
        }
    }
    GatewayProcess(const GatewayProcess&) = delete;
    GatewayProcess& operator=(const GatewayProcess&) = delete;

    /// Waits for the line with the port; 0 if the program ended without one.
    std::uint16_t port() {
        std::uint16_t number = 0;
        return std::fscanf(output_, "listening on 127.0.0.1:%hu%*c", &number) == 1 ? number
                                                                                   : std::uint16_t{0};
    }

    [[nodiscard]] pid_t id() const { return id_; }

    /// Sends a signal, reads the rest of the output and waits for the end. Signal 0 sends none.
    Ended end(int signal = 0) {
        ::kill(id_, signal);
        Ended ended;
        for (int letter = 0; (letter = std::fgetc(output_)) != EOF;) {
            ended.output += static_cast<char>(letter);
        }
        const int status = ::pclose(std::exchange(output_, nullptr));
        ended.status = WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
        return ended;
    }

private:
    std::FILE* output_ = nullptr;
    pid_t id_ = -1;
};

/// Runs the program to its end.
inline Ended runGateway(const std::vector<std::string>& arguments, const std::string& streams = "2>&1") {
    return GatewayProcess(arguments, {}, streams).end();
}

} // namespace quillet::gateway
