#include "Network/TokenRows.hpp"

#include "Quillet/Authorization.hpp"

#include <openssl/evp.h>
#include <openssl/hmac.h>

#include <array>
#include <random>
#include <stdexcept>
#include <string>

namespace quillet::benchmarks {

namespace {

constexpr std::size_t accessTokenBytes = 1024;

std::string accessToken(std::uint32_t seed) {
    constexpr std::string_view letters = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789-_.";
    std::mt19937 random(seed);
    std::string token(accessTokenBytes, ' ');
    for (char& letter : token) {
        letter = letters[random() % letters.size()];
    }
    return token;
}

std::string base64(std::string_view bytes) {
    std::string text((bytes.size() + 2) / 3 * 4 + 1, '\0');
    const int length =
        EVP_EncodeBlock(reinterpret_cast<unsigned char*>(text.data()),
                        reinterpret_cast<const unsigned char*>(bytes.data()), static_cast<int>(bytes.size()));
    text.resize(static_cast<std::size_t>(length));
    return text;
}

/// The same bytes through the same OpenSSL functions, without making JSON of the claims and without checks.
std::string bareToken(const std::string& accessToken, const std::string& secret) {
    std::string token = base64(R"({"alg":"HS256","typ":"JWT"})");
    token += '.';
    token += base64(R"({"access_token":")" + accessToken + "\"}");
    std::array<unsigned char, EVP_MAX_MD_SIZE> signature{};
    unsigned length = 0;
    HMAC(EVP_sha256(), secret.data(), static_cast<int>(secret.size()),
         reinterpret_cast<const unsigned char*>(token.data()), token.size(), signature.data(), &length);
    token += '.';
    return token + base64({reinterpret_cast<const char*>(signature.data()), length});
}

} // namespace

std::vector<Row> tokenRows(const Options& options) {
    const std::string claim = accessToken(options.seed);
    const std::string secret = "527308";
    const std::size_t tokens = options.times(5000, 100);
    const auto microseconds = [&](const auto& sign) {
        return milliseconds([&] {
                   std::size_t bytes = 0;
                   for (std::size_t i = 0; i < tokens; ++i) {
                       bytes += sign();
                   }
                   return bytes;
               }) *
               1000 / static_cast<double>(tokens);
    };
    const auto ours = [&] { return authorize(claim, "provider", secret)->jwt.size(); };
    const auto bare = [&] { return bareToken(claim, secret).size(); };
    // Padding is all that ours leaves out.
    if (bare() - ours() > 6) {
        throw std::logic_error("The two tokens are not of the same bytes.");
    }
    const auto rounds = inTurns(
        options.times(31, 2), [&] { return microseconds(ours); }, [&] { return microseconds(bare); });
    return {ratioRow("08 sign a token of a 1 KB access token / OpenSSL's HMAC and base64", "us", rounds,
                     atMost(1.5))};
}

} // namespace quillet::benchmarks
