#pragma once
// Builds compiled code by hand: a small assembler for tests of the runtime.
#include "Components/Image/code/code_image.h"
#include "Components/Image/code/instruction.h"
#include "Components/Tamarik/vm/program.h"
#include <algorithm>
#include <bit>
#include <memory>
#include <string_view>
#include <vector>

namespace code_builder {

using image::BaseType;
using image::Op;
using image::Pass;
using image::SlotType;
using image::TypeForm;

inline constexpr SlotType kLongSlot{BaseType::Long}, kDoubleSlot{BaseType::Double}, kTextSlot{BaseType::Text},
    kVariantSlot{BaseType::Variant}, kCurrencySlot{BaseType::Currency}, kAnySlot{BaseType::Object};
inline SlotType arrayOf(BaseType base, std::uint32_t id = 0) { return {base, TypeForm::Array, id}; }
inline SlotType refTo(BaseType base, std::uint32_t id = 0) { return {base, TypeForm::Reference, id}; }
inline SlotType object(std::uint32_t number) { return {BaseType::Object, TypeForm::Value, number}; }

struct Argument {
    Pass pass;
    std::uint32_t slot;
};

class Builder;

/// One procedure; its code is appended to the image when the image is built.
class Code {
public:
    Code(Builder& builder, std::uint32_t number) : builder_(builder), number_(number) {}

    /// Adds a variable and returns its slot.
    std::uint32_t add(SlotType type, bool isTemporary = false);
    std::uint32_t parameter(SlotType type);
    std::uint32_t result(SlotType type);

    using Label = std::size_t;
    Label label() {
        labels_.push_back(0);
        return labels_.size() - 1;
    }
    Code& here(Label label) {
        labels_[label] = words_.size();
        return *this;
    }
    Code& op(Op op, std::uint32_t a = 0, std::uint32_t b = 0, std::uint32_t c = 0) {
        words_.push_back(image::encode(op, a, b, c));
        return *this;
    }
    Code& wide(Op op, std::uint32_t a, std::uint32_t bc) {
        words_.push_back(image::encodeWide(op, a, bc));
        return *this;
    }
    /// An instruction with one more word.
    Code& op1(Op op, std::uint32_t extra, std::uint32_t a = 0, std::uint32_t b = 0, std::uint32_t c = 0) {
        this->op(op, a, b, c);
        words_.push_back(extra);
        return *this;
    }
    Code& jump(Op op, Label to, std::uint32_t a = 0, std::uint32_t b = 0, std::uint32_t c = 0) {
        fixes_.push_back({words_.size(), words_.size() + 1, to});
        return op1(op, 0, a, b, c);
    }
    Code& table(Op op, std::uint32_t a, const std::vector<Label>& to) {
        const std::size_t at = words_.size();
        this->op(op, a, 0, static_cast<std::uint32_t>(to.size()));
        for (const Label label : to) {
            fixes_.push_back({at, words_.size(), label});
            words_.push_back(0);
        }
        return *this;
    }
    Code& slots(const std::vector<std::uint32_t>& list) {
        for (std::size_t i = 0; i < list.size(); i += 2)
            words_.push_back(list[i] | (i + 1 < list.size() ? list[i + 1] << 16 : 0));
        return *this;
    }
    Code& call(Op op, std::uint32_t target, std::uint32_t result, const std::vector<Argument>& arguments,
               std::uint32_t b = 0) {
        op1(op, target, result, b, static_cast<std::uint32_t>(arguments.size()));
        std::vector<std::uint32_t> list;
        for (const Argument& argument : arguments) list.push_back(image::encodeArgument(argument.pass, argument.slot));
        return slots(list);
    }
    Code& word(std::uint32_t value) {
        words_.push_back(value);
        return *this;
    }
    /// Begins a statement at a line.
    Code& statement(std::uint32_t line);
    std::uint32_t floating(double value);
    std::uint32_t currency(std::int64_t scaled);
    void finish();
    [[nodiscard]] std::uint32_t number() const { return number_; }
    [[nodiscard]] image::Procedure& procedure() const;

private:
    struct Fix {
        std::size_t from, word;
        Label to;
    };
    std::uint32_t addNumber(std::uint64_t bits);

    Builder& builder_;
    std::uint32_t number_;
    std::vector<std::uint32_t> words_;
    std::vector<std::uint64_t> numbers_;
    std::vector<std::size_t> labels_;
    std::vector<Fix> fixes_;
};

class Builder {
public:
    Builder() { image.modules.push_back({text("Main"), text("Main.bas"), image::kNone}); }

    image::CodeImage image;

    std::uint32_t text(std::string_view words) {
        const auto found = std::find(image.texts.begin(), image.texts.end(), words);
        if (found == image.texts.end()) {
            image.texts.emplace_back(words);
            return static_cast<std::uint32_t>(image.texts.size() - 1);
        }
        return static_cast<std::uint32_t>(found - image.texts.begin());
    }
    Code& procedure(std::string_view name) {
        const auto number = static_cast<std::uint32_t>(image.procedures.size());
        image.procedures.push_back({});
        image.procedures.back().name = text(name);
        codes_.push_back(std::make_unique<Code>(*this, number));
        return *codes_.back();
    }
    std::uint32_t global(SlotType type) {
        std::uint32_t slot = 0;
        for (const auto& variable : image.globals) slot += sizeOf(variable.type);
        image.globals.push_back({type});
        return slot;
    }
    std::uint32_t import(std::string_view name, SlotType result, std::vector<SlotType> parameters) {
        image.imports.push_back({text(name), result, std::move(parameters)});
        return static_cast<std::uint32_t>(image.imports.size() - 1);
    }
    [[nodiscard]] std::uint32_t sizeOf(SlotType type) const {
        if (type.base != BaseType::Record || type.form != TypeForm::Value) return slotsOf(type);
        std::uint32_t slots = 0;
        for (const auto& field : image.records[type.id].fields) slots += sizeOf(field.type);
        return slots;
    }
    std::shared_ptr<const tamarik::Program> build(std::uint32_t start = 0) {
        for (const auto& code : codes_) code->finish();
        image.start = start;
        return std::make_shared<tamarik::Program>(std::make_shared<image::CodeImage>(image));
    }

private:
    std::vector<std::unique_ptr<Code>> codes_;
};

inline image::Procedure& Code::procedure() const { return builder_.image.procedures[number_]; }

inline std::uint32_t Code::add(SlotType type, bool isTemporary) {
    std::uint32_t slot = 0;
    for (const auto& variable : procedure().variables) slot += builder_.sizeOf(variable.type);
    procedure().variables.push_back({type, isTemporary});
    return slot;
}
inline std::uint32_t Code::parameter(SlotType type) {
    ++procedure().parameters;
    return add(type);
}
inline std::uint32_t Code::result(SlotType type) { return procedure().resultSlot = add(type); }
inline Code& Code::statement(std::uint32_t line) {
    const auto at = static_cast<std::uint32_t>(words_.size());
    procedure().lines.push_back({at, line});
    procedure().statements.push_back(at);
    return *this;
}
inline std::uint32_t Code::addNumber(std::uint64_t bits) {
    numbers_.push_back(bits);
    return static_cast<std::uint32_t>(numbers_.size() - 1);
}
inline std::uint32_t Code::floating(double value) { return addNumber(std::bit_cast<std::uint64_t>(value)); }
inline std::uint32_t Code::currency(std::int64_t scaled) { return addNumber(static_cast<std::uint64_t>(scaled)); }
inline void Code::finish() {
    for (const Fix& fix : fixes_)
        words_[fix.word] = static_cast<std::uint32_t>(static_cast<std::int64_t>(labels_[fix.to]) -
                                                      static_cast<std::int64_t>(fix.from));
    auto& image = builder_.image;
    procedure().code = static_cast<std::uint32_t>(image.code.size());
    procedure().words = static_cast<std::uint32_t>(words_.size());
    procedure().numbers = static_cast<std::uint32_t>(image.numbers.size());
    image.code.insert(image.code.end(), words_.begin(), words_.end());
    image.numbers.insert(image.numbers.end(), numbers_.begin(), numbers_.end());
}

} // namespace code_builder
