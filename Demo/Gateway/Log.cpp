#include "Gateway/Log.hpp"

#include "Gateway/Json.hpp"

#include <array>
#include <cerrno>
#include <chrono>
#include <cstdio>
#include <cstring>
#include <ctime>

#include <fcntl.h>
#include <unistd.h>

namespace quillet::gateway {

namespace {

std::string now() {
    const auto time = std::chrono::system_clock::now();
    const auto seconds = std::chrono::floor<std::chrono::seconds>(time);
    const auto clock = std::chrono::system_clock::to_time_t(seconds);
    std::tm utc{};
    gmtime_r(&clock, &utc);
    const auto milliseconds = std::chrono::duration_cast<std::chrono::milliseconds>(time - seconds).count();
    std::array<char, 32> day{};
    std::array<char, 8> fraction{};
    std::strftime(day.data(), day.size(), "%FT%T", &utc);
    std::snprintf(fraction.data(), fraction.size(), ".%03dZ", static_cast<int>(milliseconds));
    return std::string(day.data()) + fraction.data();
}

Json headersOf(const Request& request) {
    Json headers = Json::object();
    for (const auto& [name, value] : request.headers) {
        if (sameHeader(name, "Consultant-Token")) {
            headers[name] = value.size();
        } else if (headers.contains(name)) {
            headers[name] = headers[name].get<std::string>() + ", " + value;
        } else {
            headers[name] = value;
        }
    }
    return headers;
}

} // namespace

struct Log::File {
    explicit File(int opened) : descriptor(opened) {}
    ~File() { ::close(descriptor); }
    File(const File&) = delete;
    File& operator=(const File&) = delete;

    const int descriptor;
    std::mutex mutex;
};

std::expected<Log, std::string> Log::open(const std::filesystem::path& file) {
    const int descriptor = ::open(file.c_str(), O_WRONLY | O_APPEND | O_CREAT | O_CLOEXEC, 0644);
    if (descriptor < 0) {
        return std::unexpected("cannot write the log " + file.string() + ": " + std::strerror(errno));
    }
    return Log(std::make_shared<File>(descriptor));
}

void Log::write(std::uint64_t connection, const Request& request, const Outcome& outcome) {
    Json line{{"time", now()},
              {"connection", connection},
              {"method", request.method},
              {"path", request.target},
              {"status", nullptr},
              {"fault", nullptr},
              {"consultant", nullptr},
              {"bytesIn", request.body.size()},
              {"bytesOut", 0}};
    if (outcome.isAnswered()) {
        line["status"] = outcome.reply.status;
        line["bytesOut"] = outcome.reply.body.size();
    }
    if (outcome.fault) {
        line["fault"] = name(outcome.fault->kind);
    }
    if (outcome.consultant) {
        line["consultant"] = *outcome.consultant;
    }
    line["headers"] = headersOf(request);
    const auto text = line.dump(-1, ' ', false, Json::error_handler_t::replace) + '\n';

    const std::lock_guard lock(file_->mutex);
    const auto end = ::lseek(file_->descriptor, 0, SEEK_END);
    const auto written = ::write(file_->descriptor, text.data(), text.size());
    if (written > 0 && static_cast<std::size_t>(written) < text.size()) {
        // Half a line would spoil the next one. Where this fails too, there is nobody to tell.
        [[maybe_unused]] const int failure = ::ftruncate(file_->descriptor, end);
    }
}

} // namespace quillet::gateway
