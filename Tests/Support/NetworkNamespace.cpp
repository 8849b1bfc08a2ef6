#include "Support/NetworkNamespace.hpp"

#include <sched.h>
#include <sys/mount.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <stdexcept>

namespace quillet::testing {

namespace {

void require(bool done, const std::string& what) {
    if (!done) {
        throw std::runtime_error("Cannot make a network namespace: " + what);
    }
}

void write(const char* file, const std::string& text) {
    require(static_cast<bool>(std::ofstream(file) << text << std::flush), file);
}

// Root may create network namespaces. Other users first become root in a user namespace.
bool unshareNetwork() {
    constexpr int own = CLONE_NEWNET | CLONE_NEWNS;
    if (unshare(own) == 0) {
        return true;
    }
    const std::string user = std::to_string(getuid());
    const std::string group = std::to_string(getgid());
    if (unshare(own | CLONE_NEWUSER) != 0) {
        return false;
    }
    write("/proc/self/setgroups", "deny");
    write("/proc/self/uid_map", "0 " + user + " 1");
    write("/proc/self/gid_map", "0 " + group + " 1");
    return true;
}

void replaceFile(const std::string& file, const std::string& text) {
    std::string replacement = (std::filesystem::temp_directory_path() / "quillet-XXXXXX").string();
    const int descriptor = mkstemp(replacement.data());
    require(descriptor >= 0, replacement);
    close(descriptor);
    write(replacement.c_str(), text);
    require(mount(replacement.c_str(), file.c_str(), nullptr, MS_BIND, nullptr) == 0, file);
    std::filesystem::remove(replacement);
}

void run(const std::string& command) {
    require(std::system(command.c_str()) == 0, command);
}

} // namespace

bool mayMakeNetworkNamespace() {
    const pid_t child = fork();
    if (child == 0) {
        bool isMade = false;
        try {
            isMade = unshareNetwork() && mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0 &&
                     std::system("ip link set lo up && ip link add near type veth peer name far") == 0;
        } catch (const std::runtime_error&) {
        }
        _exit(isMade ? 0 : 1);
    }
    int status = 0;
    return child > 0 && waitpid(child, &status, 0) == child && WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

void enterNetworkNamespace(const std::string& hosts, const std::vector<std::string>& commands) {
    require(unshareNetwork(), "unshare");
    require(mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0, "mount");
    replaceFile("/etc/hosts", hosts);
    // No name server listens there, so a name that is not in the file fails at once.
    if (std::filesystem::exists("/etc/resolv.conf")) {
        replaceFile(std::filesystem::canonical("/etc/resolv.conf").string(), "nameserver 127.0.0.1\n");
    }
    run("ip link set lo up");
    for (const auto& command : commands) {
        run("ip " + command);
    }
}

} // namespace quillet::testing
