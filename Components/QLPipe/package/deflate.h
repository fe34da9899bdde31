#pragma once
// Compression of the blocks of a file, independently of each other.
#include <cstdint>
#include <string>
#include <string_view>

namespace qlpipe {

/// The part of the previous block that a block may refer to.
inline constexpr std::size_t kDeflateWindow = 32 * 1024;

/// Throws TransferError if zlib is not installed.
void needDeflate();

/// Returns a block as a part of a deflate stream, which is complete with the last block. `before` is the end of the
/// previous block, at most kDeflateWindow bytes. The same arguments always produce the same bytes.
std::string deflated(std::string_view before, std::string_view block, bool isLast);

/// Continues a CRC-32, which begins with 0.
std::uint32_t continuedCrc(std::uint32_t crc, std::string_view bytes);

} // namespace qlpipe
