#pragma once
// Parts of compiled code for tests.
#include "Components/Image/code/code_image.h"
#include "Components/Image/code/instruction.h"
#include <initializer_list>
#include <string>

namespace code_parts {

using image::BaseType;
using image::CodeImage;
using image::Op;
using image::SlotType;
using image::TypeForm;

inline constexpr SlotType kLong{BaseType::Long}, kDouble{BaseType::Double}, kCurrency{BaseType::Currency},
    kText{BaseType::Text}, kVariant{BaseType::Variant}, kObject{BaseType::Object}, kNothing{};

constexpr SlotType object(std::uint32_t number) { return {BaseType::Object, TypeForm::Value, number}; }
constexpr SlotType record(std::uint32_t number) { return {BaseType::Record, TypeForm::Value, number}; }
constexpr SlotType arrayOf(SlotType element) { return {element.base, TypeForm::Array, element.id}; }
constexpr SlotType referenceTo(SlotType target) {
    return {target.base, target.form == TypeForm::Array ? TypeForm::ArrayReference : TypeForm::Reference, target.id};
}

/// Returns the number of a text, which is added if it is new.
inline std::uint32_t textOf(CodeImage& code, const std::string& text) {
    for (std::uint32_t i = 0; i < code.texts.size(); ++i)
        if (code.texts[i] == text) return i;
    code.texts.push_back(text);
    return std::uint32_t(code.texts.size() - 1);
}

struct ProcedureParts {
    std::string name;
    std::vector<SlotType> variables = {};
    std::uint32_t parameters = 0;
    std::uint32_t resultSlot = image::kNoSlot;
    std::vector<std::uint32_t> words = {image::encode(Op::Return)};
};

/// Adds a procedure and returns its number.
inline std::uint32_t addProcedure(CodeImage& code, const ProcedureParts& parts) {
    auto& procedure = code.procedures.emplace_back();
    procedure.name = textOf(code, parts.name);
    for (const auto type : parts.variables) procedure.variables.push_back({type});
    procedure.parameters = parts.parameters;
    procedure.resultSlot = parts.resultSlot;
    procedure.code = std::uint32_t(code.code.size());
    procedure.words = std::uint32_t(parts.words.size());
    code.code.insert(code.code.end(), parts.words.begin(), parts.words.end());
    return std::uint32_t(code.procedures.size() - 1);
}

} // namespace code_parts
