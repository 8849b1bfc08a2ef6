#pragma once

#include <sys/types.h>

#include <chrono>
#include <cstddef>
#include <string>
#include <vector>

namespace quillet::benchmarks {

/// A program from the folder of this one, which draws without a screen and in software. It runs until the
/// object ends.
class Program {
public:
    /// Throws std::runtime_error where it cannot be started.
    explicit Program(const std::string& name, const std::vector<std::string>& arguments = {});
    ~Program();
    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;

    /// Waits for the next line that the program writes to its file descriptor 3. Throws std::runtime_error
    /// where it ends without one.
    [[nodiscard]] std::string line();
    /// Its memory that is in RAM now.
    [[nodiscard]] std::size_t residentBytes() const;
    [[nodiscard]] std::chrono::steady_clock::time_point start() const { return start_; }

private:
    std::chrono::steady_clock::time_point start_;
    pid_t process_ = -1;
    int output_ = -1;
};

} // namespace quillet::benchmarks
