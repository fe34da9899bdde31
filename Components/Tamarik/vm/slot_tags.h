#pragma once
// For fuzzing: a second opinion on verified code while it runs. Each slot of the stack has a tag with the type of what was
// stored in it, which follows arguments from call to call instead of the declarations that the verifier reads. Only the form of
// the interpreter with a switch checks; the other one must do the same.
#ifdef FERNWICK_SLOT_TAGS
#include "Components/Image/code/instruction.h"
#include "Components/Image/verify/operand_masks.h"
#include "Components/Tamarik/vm/frames.h"
#include <vector>

namespace tamarik {

struct Execution;

class SlotTags {
public:
    /// Called before each instruction. Ends the process if an operand is not what the table of instructions promises, a value
    /// is not of its slot's type, or something above the top frame is not zero.
    void check(const Execution& m, const std::uint32_t* ip) noexcept;

private:
    /// What is checked at present.
    struct At {
        const Execution& m;
        const Frame& frame;
        const std::uint32_t* ip;
        const Slot* stack;
    };
    void enter(const At& at);
    void checkArguments(const At& at) const;
    void checkOperand(const At& at, image::Operand operand, std::uint32_t slot);
    void checkLists(const At& at) const;
    void require(const At& at, bool holds, const char* what) const;
    void checkValue(const At& at, const Slot* slot, image::SlotType type) const;
    [[nodiscard]] image::TypeClass tagOf(const At& at, std::uint32_t slot) const;

    std::vector<image::TypeClass> tags_; ///< 0 for a slot that is still zero
    const Frame* top_ = nullptr;         ///< the top frame at the last instruction
    const Slot* end_ = nullptr;          ///< where its slots ended
    const std::uint32_t* last_ = nullptr;
};

} // namespace tamarik
#endif
