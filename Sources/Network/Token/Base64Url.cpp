#include "Network/Token/Base64Url.hpp"

#include "Platform/Http/Process/OpenSsl.hpp"

#include <openssl/evp.h>

#include <algorithm>
#include <cstddef>

namespace quillet {

std::string base64Url(std::string_view bytes) {
    platform::keepOpenSslToTheEnd();
    // EVP_EncodeBlock counts in int; blocks of a multiple of three bytes can be encoded one by one and
    // joined.
    constexpr std::size_t block = 3 << 20;
    std::string text;
    for (; !bytes.empty(); bytes.remove_prefix(std::min(block, bytes.size()))) {
        const auto part = bytes.substr(0, block);
        std::string encoded((part.size() + 2) / 3 * 4 + 1, '\0');
        const int length = EVP_EncodeBlock(reinterpret_cast<unsigned char*>(encoded.data()),
                                           reinterpret_cast<const unsigned char*>(part.data()),
                                           static_cast<int>(part.size()));
        text.append(encoded, 0, static_cast<std::size_t>(length));
    }
    while (text.ends_with('=')) {
        text.pop_back();
    }
    for (char& c : text) {
        c = c == '+' ? '-' : c == '/' ? '_' : c;
    }
    return text;
}

} // namespace quillet
