#pragma once

#include <filesystem>
#include <string>

#include <stdlib.h>

namespace quillet::gateway {

/// A temporary folder, removed with its contents by the destructor.
class TemporaryFolder {
public:
    ~TemporaryFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }

    [[nodiscard]] const std::filesystem::path& path() const { return path_; }

private:
    std::string pattern_ = std::filesystem::temp_directory_path() / "quillet-gateway-XXXXXX";
    const std::filesystem::path path_ = ::mkdtemp(pattern_.data());
};

} // namespace quillet::gateway
