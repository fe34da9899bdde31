#include "Components/QLPipe/base/sha256.h"
#include <array>

namespace qlpipe {

std::string Sha256::hex() {
    std::array<std::uint8_t, SHA256_DIGEST_SIZE> digest;
    sha256_digest(&state_, digest.size(), digest.data());
    std::string text;
    for (const auto byte : digest) {
        constexpr std::string_view kDigits = "0123456789abcdef";
        text += kDigits[byte >> 4];
        text += kDigits[byte & 0xF];
    }
    return text;
}

} // namespace qlpipe
