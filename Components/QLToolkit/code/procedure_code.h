#pragma once
// The instructions of one procedure while they are made.
#include "Components/Image/code/instruction.h"
#include "Components/QLToolkit/code/module_code.h"
#include <bit>
#include <span>

namespace qltoolkit {

/// A place that jumps lead to, which may become known later.
enum class Label : std::uint32_t {};

class ProcedureCode {
public:
    explicit ProcedureCode(ModuleCode& module) : module_(module) {}

    void begin() {
        words_.clear();
        labels_.clear();
        jumps_.clear();
        fixes_.clear();
        numbers_.clear();
        numberPlaces_.clear();
        lines_.clear();
        statements_.clear();
        last_ = lastLabel_ = kUnknown;
    }

    using Op = image::Op;
    void emit(Op op, std::uint32_t a = 0, std::uint32_t b = 0, std::uint32_t c = 0) {
        last_ = here();
        words_.push_back(image::encode(op, a, b, c));
    }
    void emitWide(Op op, std::uint32_t a, std::uint32_t bc) {
        last_ = here();
        words_.push_back(image::encodeWide(op, a, bc));
    }
    /// Makes the last instruction write to another slot of the same type, if it wrote to `from` and nothing can see that.
    bool redirect(std::uint32_t from, std::uint32_t to);
    void extra(std::uint32_t word) { words_.push_back(word); }
    void extra(std::uint32_t number, FixKind kind) {
        fixes_.push_back({here(), kind});
        words_.push_back(number);
    }
    /// Slots or arguments, two a word.
    void halves(std::span<const std::uint16_t> list) {
        for (std::size_t i = 0; i < list.size(); i += 2)
            words_.push_back(list[i] | (i + 1 < list.size() ? std::uint32_t{list[i + 1]} << 16 : 0));
    }

    Label label() {
        labels_.push_back(kUnknown);
        return static_cast<Label>(labels_.size() - 1);
    }
    void place(Label label) { labels_[static_cast<std::size_t>(label)] = lastLabel_ = here(); }
    /// The distance of a jump whose instruction began at `from`.
    void jumpTo(Label label, std::uint32_t from) {
        jumps_.push_back({here(), from, label});
        words_.push_back(0);
    }
    void jump(Op op, Label label, std::uint32_t a = 0, std::uint32_t b = 0, std::uint32_t c = 0) {
        const auto from = here();
        emit(op, a, b, c);
        jumpTo(label, from);
    }
    [[nodiscard]] std::uint32_t here() const { return static_cast<std::uint32_t>(words_.size()); }

    /// The place of a constant among those of the procedure.
    std::uint32_t number(std::uint64_t bits) {
        const auto [at, isNew] = numberPlaces_.try_emplace(bits, static_cast<std::uint32_t>(numbers_.size()));
        if (isNew) numbers_.push_back(bits);
        return at->second;
    }
    std::uint32_t number(double value) { return number(std::bit_cast<std::uint64_t>(value)); }

    void line(std::uint32_t line) {
        if (!lines_.empty() && lines_.back().line == line) return;
        if (!lines_.empty() && lines_.back().code == here()) lines_.pop_back();
        lines_.push_back({here(), line});
    }
    void statement() {
        if (statements_.empty() || statements_.back() != here()) statements_.push_back(here());
    }

    ModuleCode& module() { return module_; }
    /// Fills in the jumps and appends everything to the module.
    void finish(image::Procedure procedure, std::uint32_t number, bool resumes);

private:
    void completeJumps();

    static constexpr std::uint32_t kUnknown = 0xFFFFFFFF;
    struct PendingJump {
        std::uint32_t word, from;
        Label label;
    };
    ModuleCode& module_;
    std::vector<std::uint32_t> words_;
    std::vector<std::uint32_t> labels_;
    std::vector<PendingJump> jumps_;
    std::vector<Fix> fixes_;
    std::vector<std::uint64_t> numbers_;
    std::unordered_map<std::uint64_t, std::uint32_t> numberPlaces_;
    std::vector<image::LineStart> lines_;
    std::vector<std::uint32_t> statements_;
    std::uint32_t last_ = kUnknown, lastLabel_ = kUnknown; // where the last instruction begins, and the last label is
};

} // namespace qltoolkit
