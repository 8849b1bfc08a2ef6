#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

#include <sys/types.h>

namespace quillet::gateway {

/// What a run of the program left behind.
struct Ended {
    int status = -1;
    std::string output;
    std::string errors;
};

/// The program as a person starts it: a process of its own, its three standard streams in our hands. It is
/// ended, if it still runs, when the object goes.
class GatewayProcess {
public:
    explicit GatewayProcess(const std::vector<std::string>& arguments);
    ~GatewayProcess();
    GatewayProcess(const GatewayProcess&) = delete;
    GatewayProcess& operator=(const GatewayProcess&) = delete;

    /// Waits for the line that tells the port; 0 if the program ended without one.
    std::uint16_t port();

    void signal(int number) const;
    void closeInput();

    /// Reads all that the program still writes and waits for its end. A death by signal counts as 128 and the
    /// signal.
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
