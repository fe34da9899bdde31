#pragma once
// Checks of the instructions of procedures.
#include "Components/Image/verify/slot_table.h"
#include <cstdint>
#include <span>
#include <vector>

namespace image {

/// Checks the code of one procedure after the other. Raises a Problem.
class CodeCheck {
public:
    explicit CodeCheck(const Tables& tables);
    void run();

private:
    /// An instruction, as the checks see it.
    struct Place {
        Word word;
        std::span<const std::uint32_t> words; ///< the instruction's own
        [[nodiscard]] Op op() const { return static_cast<Op>(word.op); }
        [[nodiscard]] const InstructionInfo& info() const { return infoOf(op()); }
        [[nodiscard]] std::uint32_t extra() const { return words[1]; }
        /// Half a word after a number of words.
        [[nodiscard]] std::uint16_t half(std::size_t after, std::size_t index) const {
            return static_cast<std::uint16_t>(words[after + index / 2] >> (index % 2 * 16));
        }
    };
    using Parameters = std::span<const SlotVariable>;

    void checkProcedure(std::uint32_t number);
    void checkEnd(std::uint32_t last);
    void checkStarts();
    void checkTargets() const;
    [[noreturn]] void refuseTarget(std::size_t word) const;

    void markTarget(std::uint32_t distance);
    [[noreturn]] void refuseOperands(const Place& place) const;
    void checkOperandsOf(const Place& place) const;
    void check(const Place& place);
    void checkUnsigned(const Place& place) const;
    void checkNumber(const Place& place) const;
    void checkBaseType(const Place& place) const;
    void checkRelation(const Place& place) const;
    void checkExtra(const Place& place);
    void checkSlots(const Place& place, std::size_t after, std::size_t count, BaseType type) const;
    void checkIndexes(const Place& place, std::size_t after, std::size_t count, BaseType type) const;
    void checkVariantArray(const Place& place) const;
    void checkOperation(const Place& place) const;
    void checkArray(const Place& place) const;
    void checkLate(const Place& place) const;
    void checkText(std::uint32_t text) const;

    void checkAssigns(SlotType to, SlotType from) const;
    void checkReference(const Place& place) const;
    void checkRefersTo(SlotType reference, SlotType target, bool isRecord) const;
    void checkThrough(const Place& place) const;
    void checkRecords(const Place& place) const;
    void checkVariable(const Place& place) const;
    void checkField(const Place& place) const;
    void checkObject(const Place& place) const;
    void checkClass(const Place& place) const;

    void checkCall(const Place& place) const;
    void checkInterface(const Place& place) const;
    void checkImport(const Place& place) const;
    void checkEvent(const Place& place) const;
    void checkCount(const Place& place, std::size_t parameters) const;
    void checkResult(const Place& place, SlotType result) const;
    void checkArgument(std::size_t index, std::uint16_t argument, SlotType parameter) const;
    [[nodiscard]] bool passes(std::uint16_t argument, SlotType type, SlotType parameter) const;
    void checkLastHalf(const Place& place, std::size_t after, std::size_t count) const;
    const ClassInfo& classOfObject(std::uint8_t slot, char operand) const;

    [[nodiscard]] SlotType typeOf(std::uint8_t slot) const { return slots_.typeAt(slot); }
    [[nodiscard]] std::string describe(SlotType type) const { return tables_.describe(type); }
    /// Raises a problem of the instruction that is checked.
    [[noreturn]] void refuseHere(const std::string& text) const;
    [[noreturn]] void refuseAt(std::uint32_t procedure, std::uint32_t at, const std::string& text) const;

    const Tables& tables_;
    const CodeImage& code_;
    SlotTable slots_;
    std::vector<std::uint64_t> starts_, targets_; ///< a bit for each word of the code
    const Procedure* procedure_ = nullptr;
    std::uint32_t number_ = 0, at_ = 0;
    bool resumes_ = false; ///< the procedure needs its statements
};

} // namespace image
