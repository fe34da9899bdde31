#include "Components/Image/code/instruction.h"

namespace image {

namespace {

constexpr std::size_t halves(std::size_t count) { return (count + 1) / 2; }

std::size_t extraWords(Extra extra, std::size_t count) {
    switch (extra) {
    case Extra::None: return 0;
    case Extra::Table: return count;
    case Extra::Slots: return halves(count);
    case Extra::TypeAndSlots:
    case Extra::Procedure:
    case Extra::Interface:
    case Extra::Import:
    case Extra::Event: return 1 + halves(count);
    default: return 1;
    }
}

} // namespace

std::size_t lengthOf(const std::uint32_t* code, std::size_t available) {
    if (available == 0) return 0;
    const Word word{*code};
    if (word.op >= kInstructionCount) return 0;
    const auto& info = kInstructions[word.op];
    // Bounds of an array are pairs.
    const std::size_t count =
        word.op == static_cast<std::uint8_t>(Op::ReDim) || word.op == static_cast<std::uint8_t>(Op::ReDimVariant)
            ? std::size_t{2} * word.c
            : word.c;
    std::size_t length = 1 + extraWords(info.extra, count);
    if (info.extra == Extra::Late) {
        if (available <= kLateHeadWords) return 0;
        length = 1 + kLateHeadWords + (code[2] >> 8) + halves(word.c);
    }
    return length <= available ? length : 0;
}

} // namespace image
