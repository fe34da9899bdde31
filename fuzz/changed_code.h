#pragma once
// Changes of compiled code in one place. Many of them keep to the types of the slots, so that a verifier accepts the result.
#include "Components/Image/code/code_image.h"
#include "Components/Image/code/instruction.h"
#include "Components/Image/verify/operand_masks.h"
#include "Components/Image/verify/slot_table.h"
#include "Components/Image/verify/tables.h"
#include "tests/support/random_code.h"
#include <algorithm>
#include <vector>

namespace fuzz {

class CodeChange {
public:
    CodeChange(image::CodeImage& code, const support::RandomNumber& next) : code_(code), next_(next) {}

    /// Changes one word, or all of an instruction; now and then nothing.
    void changeInstructions() {
        switch (next_(11)) {
        case 0: return changeWord();
        case 1: return changeFollowingWord();
        case 2: return changeOperation();
        case 3:
        case 4: return copyInstruction();
        default: return changeSlot();
        }
    }

    /// Changes the type of a variable, or what else the tables say of a procedure or class.
    void changeTable() {
        image::Procedure& procedure = one(code_.procedures);
        switch (next_(6)) {
        case 0:
            if (!procedure.variables.empty()) changeType(one(procedure.variables).type);
            break;
        case 1: changeType(one(one(code_.classes).fields).type); break;
        case 2: changeType(one(code_.globals).type); break;
        case 3: changeType(one(one(code_.records).fields).type); break;
        case 4: changeType(one(code_.arrays).element); break;
        default: procedure.resultSlot = next_(20);
        }
    }

private:
    struct Instruction {
        std::uint32_t* first;
        std::size_t words;
        [[nodiscard]] const image::InstructionInfo& info() const { return image::kInstructions[*first & 0xFF]; }
    };

    template <class List>
    auto one(List&& list) -> decltype(list[0]) {
        return list[next_(static_cast<std::uint32_t>(std::size(list)))];
    }
    static std::uint32_t shiftOf(std::uint32_t operand) { return 8 * (1 + operand); }

    std::vector<Instruction> instructionsOf(const image::Procedure& procedure) {
        std::vector<Instruction> found;
        std::uint32_t* const end = code_.code.data() + procedure.code + procedure.words;
        for (std::uint32_t* at = end - procedure.words; at != end; at += found.back().words)
            found.push_back({at, image::lengthOf(at, static_cast<std::size_t>(end - at))});
        return found;
    }

    void changeType(image::SlotType& type) {
        switch (next_(3)) {
        case 0: type.base = static_cast<image::BaseType>(next_(image::kBaseTypes)); break;
        case 1: type.form = static_cast<image::TypeForm>(next_(4)); break;
        default: type.id = next_(5);
        }
    }

    void changeWord() {
        std::uint32_t& word = one(code_.code);
        if (next_(2) == 0) {
            word ^= 1U << next_(32);
            return;
        }
        // An operand becomes a different slot.
        const std::uint32_t shift = shiftOf(next_(3));
        word = (word & ~(0xFFU << shift)) | next_(32) << shift;
    }

    /// Changes a word after the first: takes over that of an instruction of the same kind, or becomes slightly different.
    void changeFollowingWord() {
        const auto instructions = instructionsOf(one(code_.procedures));
        const Instruction to = one(instructions);
        if (to.words == 1) return;
        const auto place = 1 + next_(static_cast<std::uint32_t>(to.words - 1));
        const Instruction from = one(instructions);
        if (from.info().extra == to.info().extra && from.words > place)
            to.first[place] = from.first[place];
        else
            to.first[place] += next_(2) == 0 ? 1U : ~0U;
    }

    /// Does something else with the same operands.
    void changeOperation() {
        const Instruction to = one(instructionsOf(one(code_.procedures)));
        std::vector<std::uint32_t> others;
        for (std::uint32_t op = 0; op < image::kInstructionCount; ++op) {
            const auto& info = image::kInstructions[op];
            if (info.operands == to.info().operands && info.extra == to.info().extra) others.push_back(op);
        }
        *to.first = (*to.first & ~0xFFU) | one(others);
    }

    /// Replaces an instruction by one of the same procedure, or takes over one of its operands.
    void copyInstruction() {
        const auto instructions = instructionsOf(one(code_.procedures));
        const Instruction from = one(instructions), to = one(instructions);
        if (from.words == to.words && next_(2) == 0) {
            std::copy_n(from.first, from.words, to.first);
            return;
        }
        const std::uint32_t slot = *from.first >> shiftOf(next_(3)) & 0xFF, place = shiftOf(next_(3));
        *to.first = (*to.first & ~(0xFFU << place)) | slot << place;
    }

    /// Names a different slot that the table of instructions allows.
    void changeSlot() {
        const image::Procedure& procedure = one(code_.procedures);
        const Instruction to = one(instructionsOf(procedure));
        const std::uint32_t operand = next_(3);
        const image::TypeSet allowed = image::slotsFor(to.info().operands[operand]);
        if (allowed == 0) return;
        const image::Tables tables{code_};
        image::SlotTable slots{tables};
        slots.assign(procedure);
        std::vector<std::uint32_t> others;
        for (std::uint32_t slot = 0; slot < 256; ++slot)
            if (allowed >> slots.classOfSlot(static_cast<std::uint8_t>(slot)) & 1) others.push_back(slot);
        if (others.empty()) return;
        const std::uint32_t shift = shiftOf(operand);
        *to.first = (*to.first & ~(0xFFU << shift)) | one(others) << shift;
    }

    image::CodeImage& code_;
    const support::RandomNumber& next_;
};

} // namespace fuzz
