#pragma once

#include <cstdint>
#include <cstdio>
#include <string>
#include <vector>

#include <sys/types.h>

namespace quillet::gateway {

/// The result of a run of the program. Death by a signal is the status 128 plus the signal's number.
struct Ended {
    int status = -1;
    std::string output;
};

/// The program as a child process, whose standard input has ended. The destructor kills it if it still runs.
class GatewayProcess {
public:
    /// `launcher` is a command that is followed by the program and its arguments. The streams are a shell's:
    /// what goes to its standard output is kept.
    explicit GatewayProcess(std::vector<std::string> arguments, std::vector<std::string> launcher = {},
                            const std::string& streams = "2>&1");
    ~GatewayProcess();
    GatewayProcess(const GatewayProcess&) = delete;
    GatewayProcess& operator=(const GatewayProcess&) = delete;

    /// Waits for the line with the port; 0 if the program ended without one.
    std::uint16_t port();

    [[nodiscard]] pid_t id() const { return id_; }

    /// Sends a signal, unless it is 0, reads the rest of the output and waits for the end.
    Ended end(int signal = 0);

private:
    std::FILE* output_ = nullptr;
    pid_t id_ = -1;
};

/// Runs the program to its end.
Ended runGateway(const std::vector<std::string>& arguments, const std::string& streams = "2>&1");

} // namespace quillet::gateway
