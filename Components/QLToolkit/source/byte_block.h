#pragma once
// Sixteen bytes of text at once: bit i of each mask is about byte i.
#include "Components/QLToolkit/source/name_words.h"
#include <bit>
#include <cstdint>
#if defined(__SSE2__)
#include <emmintrin.h>
#endif

namespace qltoolkit {

inline constexpr std::uint32_t kBlockBytes = 16;

/// Returns 16 if the first 16 bits are 0.
inline std::uint32_t bytesBefore(std::uint32_t mask) {
    return static_cast<std::uint32_t>(std::countr_zero(mask | 1u << kBlockBytes));
}

/// For all processors. Always reads 16 bytes.
class WordByteBlock {
public:
    explicit WordByteBlock(const char* at) : low_(wordAt(at)), high_(wordAt(at + kWordBytes)) {}

    [[nodiscard]] std::uint32_t equal(char c) const { return mask(same(low_, c), same(high_, c)); }
    /// Bytes after which a line begins: a LF, or a CR without one. `at` is the block's, of which 17 bytes are read.
    [[nodiscard]] std::uint32_t lineEnds(const char* at) const {
        const auto feeds = equal('\n') | std::uint32_t{at[kBlockBytes] == '\n'} << kBlockBytes;
        return (feeds | (equal('\r') & ~(feeds >> 1))) & 0xFFFF;
    }
    /// Control characters, and bytes beyond ASCII.
    [[nodiscard]] std::uint32_t unusual() const {
        const auto usual = [](std::uint64_t word) { return ((word & kLow) + everyByte(0x80 - ' ')) & ~word; };
        return mask(~usual(low_), ~usual(high_));
    }
    [[nodiscard]] std::uint32_t beyondAscii() const { return mask(low_, high_); }
    /// Returns how many bytes precede the first that cannot be part of a name of ASCII letters, digits and underscores.
    [[nodiscard]] std::uint32_t nameBytes() const { return bytesBefore(mask(outside(low_), outside(high_))); }

private:
    static constexpr std::uint64_t kLow = everyByte(0x7F);

    static std::uint64_t same(std::uint64_t word, char c) {
        const auto rest = word ^ everyByte(static_cast<unsigned char>(c));
        return ~(((rest & kLow) + kLow) | rest);
    }
    static std::uint64_t outside(std::uint64_t word) {
        const auto between = [](std::uint64_t ascii, unsigned first, unsigned last) {
            return (ascii + everyByte(0x80 - first)) & ~(ascii + everyByte(0x7F - last));
        };
        const auto ascii = word & kLow;
        const auto underscores = everyByte(0x80) - (ascii ^ everyByte('_'));
        return ~(between(ascii | kFoldMask, 'a', 'z') | between(ascii, '0', '9') | underscores) | word;
    }
    // Collects bit 7 of each byte.
    static std::uint32_t gather(std::uint64_t word) {
        return static_cast<std::uint32_t>((word >> 7 & everyByte(1)) * 0x0102040810204080u >> 56);
    }
    static std::uint32_t mask(std::uint64_t low, std::uint64_t high) {
        return gather(low) | gather(high) << kWordBytes;
    }

    std::uint64_t low_, high_;
};

#if defined(__SSE2__)
/// The same in a few instructions.
class SseByteBlock {
public:
    explicit SseByteBlock(const char* at) : bytes_(_mm_loadu_si128(reinterpret_cast<const __m128i*>(at))) {}

    [[nodiscard]] std::uint32_t equal(char c) const { return mask(same(c)); }
    [[nodiscard]] std::uint32_t lineEnds(const char* at) const {
        return mask(_mm_or_si128(same('\n'), _mm_andnot_si128(SseByteBlock(at + 1).same('\n'), same('\r'))));
    }
    [[nodiscard]] std::uint32_t unusual() const { return mask(_mm_cmplt_epi8(bytes_, every(' '))); }
    [[nodiscard]] std::uint32_t beyondAscii() const { return mask(bytes_); }
    [[nodiscard]] std::uint32_t nameBytes() const {
        const auto letters = upTo('z', 'a', _mm_or_si128(bytes_, every(0x20)));
        const auto others = _mm_or_si128(upTo('9', '0', bytes_), _mm_cmpeq_epi8(bytes_, every('_')));
        return bytesBefore(~mask(_mm_or_si128(letters, others)));
    }

private:
    [[nodiscard]] __m128i same(char c) const { return _mm_cmpeq_epi8(bytes_, every(c)); }
    static __m128i every(int c) { return _mm_set1_epi8(static_cast<char>(c)); }
    // Moves the range to the end of the signed bytes, so that one comparison finds it.
    static __m128i upTo(int last, int first, __m128i bytes) {
        return _mm_cmpgt_epi8(_mm_add_epi8(bytes, every(127 - last)), every(126 - (last - first)));
    }
    static std::uint32_t mask(__m128i bytes) { return static_cast<std::uint32_t>(_mm_movemask_epi8(bytes)); }

    __m128i bytes_;
};
using ByteBlock = SseByteBlock;
#else
using ByteBlock = WordByteBlock;
#endif

} // namespace qltoolkit
