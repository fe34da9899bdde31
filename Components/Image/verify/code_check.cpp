#include "Components/Image/verify/code_check.h"
#include <algorithm>
#include <bit>

namespace image {

namespace {

constexpr std::size_t kBits = 64;

void setBit(std::vector<std::uint64_t>& bits, std::size_t index) {
    bits[index / kBits] |= std::uint64_t{1} << index % kBits;
}
bool hasBit(const std::vector<std::uint64_t>& bits, std::size_t index) {
    return (bits[index / kBits] >> index % kBits & 1) != 0;
}

/// Whether the machine never continues with the next instruction.
bool isLast(Op op) {
    switch (op) {
    case Op::Jump:
    case Op::Return:
    case Op::Resume:
    case Op::ResumeNext:
    case Op::ResumeAt:
    case Op::ReturnSub:
    case Op::End: return true;
    default: return false;
    }
}

} // namespace

CodeCheck::CodeCheck(const Tables& tables) : tables_(tables), code_(tables.code), slots_(tables) {
    starts_.resize(code_.code.size() / kBits + 1);
    targets_.resize(starts_.size());
}

void CodeCheck::run() {
    for (std::uint32_t i = 0; i < code_.procedures.size(); ++i) checkProcedure(i);
    checkTargets();
}

void CodeCheck::checkProcedure(std::uint32_t number) {
    number_ = number;
    procedure_ = &code_.procedures[number];
    resumes_ = false;
    slots_.assign(*procedure_);
    const auto* const begin = code_.code.data() + procedure_->code;
    const auto count = procedure_->words;
    at_ = 0;
    std::uint32_t last = 0;
    while (at_ < count) {
        const auto packed = begin[at_];
        const Word word{packed};
        if (word.op >= kInstructionCount) refuseAt(number_, at_, "instruction " + std::to_string(at_) + " is unknown");
        const auto& masks = kOperandMasks[word.op];
        const auto length = masks.length != 0 ? masks.length : lengthOf(begin + at_, count - at_);
        const Place place{word, {begin + at_, std::min<std::size_t>(length, count - at_)}};
        if (length == 0 || length > count - at_) refuseHere("is not complete");
        const bool isGood = (masks.sets[0] >> slots_.classOfSlot(word.a) & masks.sets[1] >> slots_.classOfSlot(word.b) &
                             masks.sets[2] >> slots_.classOfSlot(word.c) & 1) != 0 &&
                            (packed & masks.zeros) == 0;
        if (!isGood) refuseOperands(place);
        if (!masks.isPlain) check(place);
        if (masks.isJump) markTarget(place.extra());
        setBit(starts_, std::size_t{procedure_->code} + at_);
        last = at_;
        at_ += static_cast<std::uint32_t>(length);
    }
    checkEnd(last);
    checkStarts();
}

void CodeCheck::checkEnd(std::uint32_t last) {
    at_ = last;
    if (procedure_->words == 0) refuseAt(number_, 0, "it has no instructions");
    if (!isLast(static_cast<Op>(Word{code_.code[procedure_->code + last]}.op)))
        refuseHere("is the last one and could continue after the end");
}

void CodeCheck::checkStarts() {
    std::int64_t last = -1;
    const auto checkOne = [&](const char* what, std::uint32_t start) {
        if (start <= last) refuseAt(number_, start, std::string(what) + " do not ascend");
        if (start >= procedure_->words || !hasBit(starts_, std::size_t{procedure_->code} + start))
            refuseAt(number_, start,
                     std::string(what) + " name word " + std::to_string(start) + ", where no instruction begins");
        last = start;
    };
    for (const auto& line : procedure_->lines) checkOne("its lines", line.code);
    last = -1;
    for (const auto statement : procedure_->statements) checkOne("its statements", statement);
    const auto& statements = procedure_->statements;
    if (statements.empty() ? resumes_ : statements.front() != 0)
        refuseAt(number_, 0, "it can resume, but its statements do not begin with its code");
}

void CodeCheck::markTarget(std::uint32_t distance) {
    const auto target = std::int64_t{at_} + static_cast<std::int32_t>(distance);
    if (target < 0 || target >= procedure_->words)
        refuseHere("jumps to word " + std::to_string(target) + ", outside of the procedure");
    setBit(targets_, procedure_->code + static_cast<std::size_t>(target));
}

void CodeCheck::checkTargets() const {
    for (std::size_t i = 0; i < starts_.size(); ++i)
        if (const auto wrong = targets_[i] & ~starts_[i]; wrong != 0)
            refuseTarget(i * kBits + static_cast<std::size_t>(std::countr_zero(wrong)));
}

void CodeCheck::refuseTarget(std::size_t word) const {
    const auto after = std::ranges::upper_bound(code_.procedures, word, {}, &Procedure::code);
    // Procedures without instructions have been refused.
    const auto number = static_cast<std::uint32_t>(after - code_.procedures.begin() - 1);
    const auto target = word - code_.procedures[number].code;
    refuseAt(number, static_cast<std::uint32_t>(target),
             "a jump leads to word " + std::to_string(target) + ", where no instruction begins");
}

void CodeCheck::refuseHere(const std::string& text) const {
    const Word word{code_.code[procedure_->code + at_]};
    refuseAt(number_, at_,
             "instruction " + std::to_string(at_) + " (" + std::string(kInstructions[word.op].name) + "): " + text);
}

void CodeCheck::refuseAt(std::uint32_t procedure, std::uint32_t at, const std::string& text) const {
    throw Problem{procedure, at, "procedure " + procedureName(code_, procedure) + ", " + text};
}

} // namespace image
