#pragma once
// The words of code, as few bytes: operands that an instruction does not have are left out, and most others are one byte.
#include "Components/Image/image_bytes.h"
#include <cstdint>
#include <span>
#include <string>
#include <vector>

namespace image {

/// Raises error 321 for words that are no instructions.
std::string encodeWords(std::span<const std::uint32_t> words);
/// Reads whole instructions to the end. What their operands name is left to the verifier.
std::vector<std::uint32_t> decodeWords(Reader in);

} // namespace image
