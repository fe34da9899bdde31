#include "Basic/tables/code_page_table.h"

namespace basic {

namespace {

std::uint16_t valueOf(const std::uint16_t (&blocks)[kBlockCount], unsigned number) noexcept {
    return kCodePageBlocks[blocks[number / kBlockSize]][number % kBlockSize];
}

} // namespace

char32_t CodePageTable::next(std::string_view bytes, std::size_t& at) const noexcept {
    const auto lead = static_cast<unsigned char>(bytes[at++]);
    if (const auto alone = valueOf(characterBlocks, lead)) return alone;
    if (at < bytes.size()) {
        const auto trail = static_cast<unsigned char>(bytes[at]);
        if (const auto pair = valueOf(characterBlocks, lead << 8U | trail)) {
            ++at;
            return pair;
        }
    }
    return kBytePlane + lead;
}

bool CodePageTable::append(std::string& bytes, char32_t character) const {
    if (character < 0x80 || standsForByte(character)) {
        bytes += static_cast<char>(character & 0xFF);
        return true;
    }
    const unsigned code = character <= 0xFFFF ? valueOf(byteBlocks, character) : 0;
    if (code == 0) return false;
    if (code > 0xFF) bytes += static_cast<char>(code >> 8);
    bytes += static_cast<char>(code & 0xFF);
    return true;
}

} // namespace basic
