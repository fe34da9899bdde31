#pragma once
// The operands of one instruction as text.
#include "Components/Image/code/code_names.h"
#include <span>
#include <string>
#include <vector>

namespace image {

/// "s5"
[[nodiscard]] std::string slotText(std::uint32_t slot);
/// "L12"
[[nodiscard]] std::string labelText(std::int64_t word);

class OperandText {
public:
    /// The words are those of a known, complete instruction; `at` is its place in the procedure.
    OperandText(const CodeImage& code, const Procedure& procedure, std::span<const std::uint32_t> words,
                std::uint32_t at)
        : code_(code), procedure_(procedure), word_(words[0]), words_(words), at_(at) {}

    [[nodiscard]] std::string text() const;

private:
    [[nodiscard]] const InstructionInfo& info() const { return kInstructions[word_.op]; }
    [[nodiscard]] std::string operand(std::size_t index) const;
    [[nodiscard]] std::string number(std::uint32_t offset) const;
    [[nodiscard]] std::string extra() const;
    [[nodiscard]] std::string label(std::uint32_t distance) const;
    [[nodiscard]] std::string labels() const;
    [[nodiscard]] std::string operation() const;
    [[nodiscard]] std::string type() const;
    [[nodiscard]] std::string slots(std::size_t after, std::size_t count) const;
    [[nodiscard]] std::string call(const std::string& name) const;
    [[nodiscard]] std::string interfaceMember() const;
    [[nodiscard]] std::string import() const;
    [[nodiscard]] std::string late() const;
    [[nodiscard]] std::uint16_t half(std::size_t after, std::size_t index) const;

    const CodeImage& code_;
    const Procedure& procedure_;
    Word word_;
    std::span<const std::uint32_t> words_;
    std::uint32_t at_;
};

} // namespace image
