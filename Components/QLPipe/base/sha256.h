#pragma once
#include <nettle/sha2.h>
#include <string>
#include <string_view>

namespace qlpipe {

/// Computes a SHA-256 incrementally.
class Sha256 {
public:
    Sha256() { sha256_init(&state_); }
    void add(std::string_view bytes) {
        sha256_update(&state_, bytes.size(), reinterpret_cast<const std::uint8_t*>(bytes.data()));
    }
    /// Returns 64 lower-case digits and starts a new computation.
    std::string hex();

    static constexpr std::size_t kHexDigits = 2 * SHA256_DIGEST_SIZE;

private:
    sha256_ctx state_;
};

} // namespace qlpipe
