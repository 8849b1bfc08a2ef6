#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

#include <sys/types.h>

namespace quillet::gateway {

/// The result of a run of the program.
struct Ended {
    int status = -1;
    std::string output;
    std::string errors;
};

/// The program as a child process with its three standard streams as pipes. The destructor ends it if it
/// still runs.
class GatewayProcess {
public:
    explicit GatewayProcess(const std::vector<std::string>& arguments);
    ~GatewayProcess();
    GatewayProcess(const GatewayProcess&) = delete;
    GatewayProcess& operator=(const GatewayProcess&) = delete;

    /// Waits for the line with the port; 0 if the program ended without one.
    std::uint16_t port();

    void signal(int number) const;
    void closeInput();

    /// Reads the rest of the output and waits for the end. Death by a signal is 128 plus the signal's number.
    Ended wait();

private:
    pid_t process_ = -1;
    int input_ = -1;
    int output_ = -1;
    int errors_ = -1;
    std::string firstLine_;
};

/// Runs the program to its end.
Ended runGateway(const std::vector<std::string>& arguments);

/// The lines of a text file.
std::vector<std::string> linesOf(const std::filesystem::path& file);

} // namespace quillet::gateway
