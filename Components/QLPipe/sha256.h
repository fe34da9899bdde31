#pragma once
#include <nettle/sha2.h>
#include <string>
#include <string_view>

namespace qlpipe {

/// The SHA-256 of bytes that come piece by piece.
class Sha256 {
public:
    Sha256() { sha256_init(&state_); }
    void add(std::string_view bytes) {
        sha256_update(&state_, bytes.size(), reinterpret_cast<const std::uint8_t*>(bytes.data()));
    }
    /// 64 digits in lower case; begins anew.
    std::string hex();

    static constexpr std::size_t kHexDigits = 2 * SHA256_DIGEST_SIZE;

private:
    sha256_ctx state_;
};

} // namespace qlpipe
