#include "Gateway/Authority.hpp"

#include <cerrno>
#include <cstdio>
#include <cstring>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <openssl/pem.h>

namespace quillet::gateway {

namespace {

namespace fs = std::filesystem;
using File = std::unique_ptr<std::FILE, Freer<std::fclose>>;
using Failure = std::unexpected<std::string>;

constexpr mode_t ownerOnly = 0600;
constexpr mode_t everybodyReads = 0644;

Failure failure(const std::string& what, const fs::path& file) {
    return Failure("cannot " + what + " " + file.string() + ": " + std::strerror(errno));
}

// Writes a temporary file first, so that no reader sees a partly written one.
std::expected<fs::path, std::string> writeBeside(const fs::path& file, mode_t mode,
                                                 const Credentials& authority, bool withKey) {
    const fs::path beside = file.string() + "." + std::to_string(::getpid());
    ::unlink(beside.c_str());
    const int descriptor = ::open(beside.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, mode);
    if (descriptor < 0) {
        return failure("write", file);
    }
    File stream(::fdopen(descriptor, "w"));
    bool written = !withKey || PEM_write_PKCS8PrivateKey(stream.get(), authority.key.get(), nullptr, nullptr,
                                                         0, nullptr, nullptr) == 1;
    written = written && PEM_write_X509(stream.get(), authority.certificate.get()) == 1;
    if (std::fclose(stream.release()) != 0 || !written) {
        return failure("write", file);
    }
    return beside;
}

std::expected<Credentials, std::string> load(const fs::path& file) {
    const File stream(std::fopen(file.c_str(), "re"));
    if (!stream) {
        return failure("read", file);
    }
    Credentials authority;
    authority.key.reset(PEM_read_PrivateKey(stream.get(), nullptr, nullptr, nullptr));
    authority.certificate.reset(PEM_read_X509(stream.get(), nullptr, nullptr, nullptr));
    if (!authority.key || !authority.certificate ||
        X509_check_private_key(authority.certificate.get(), authority.key.get()) != 1) {
        return Failure("cannot read " + file.string() + ": it does not hold a key and its certificate");
    }
    return authority;
}

} // namespace

std::expected<Credentials, std::string> provideAuthority(const fs::path& data,
                                                         const fs::path& certificateFile) {
    const auto file = data / "authority.pem";
    if (std::error_code error; !fs::exists(file, error)) {
        const auto beside = writeBeside(file, ownerOnly, makeAuthority(), true);
        if (!beside) {
            return Failure(beside.error());
        }
        // Unlike rename(), link() fails if another gateway has created the file in the meantime.
        fs::create_hard_link(*beside, file, error);
        fs::remove(*beside, error);
    }
    auto authority = load(file);
    if (!authority) {
        return authority;
    }
    const auto beside = writeBeside(certificateFile, everybodyReads, *authority, false);
    if (!beside) {
        return Failure(beside.error());
    }
    if (std::rename(beside->c_str(), certificateFile.c_str()) != 0) {
        return failure("write", certificateFile);
    }
    return authority;
}

} // namespace quillet::gateway
