#include "Components/Image/listing/operand_text.h"
#include "Basic/elementary/real_digits.h"
#include <bit>

namespace image {

namespace {

std::string quoted(const CodeImage& code, std::uint32_t text) {
    if (text >= code.texts.size()) return "?";
    std::string quoted = "\"";
    for (const char c : textNumbered(code, text)) quoted += c == '"' ? "\"\"" : std::string(1, c);
    return quoted + "\"";
}

std::string currencyText(std::uint64_t bits) {
    constexpr std::uint64_t kScale = 10000;
    const bool isNegative = bits >> 63 != 0;
    const auto size = isNegative ? 0 - bits : bits;
    auto fraction = std::to_string(kScale + size % kScale);
    fraction[0] = '.';
    return (isNegative ? "-" : "") + std::to_string(size / kScale) + fraction;
}

void join(std::string& text, const std::string& part) {
    if (part.empty()) return;
    if (!text.empty()) text += ", ";
    text += part;
}

} // namespace

std::string slotText(std::uint32_t slot) { return "s" + std::to_string(slot); }
std::string labelText(std::int64_t word) { return "L" + std::to_string(word); }

std::string OperandText::text() const {
    std::string text;
    for (std::size_t i = 0; i < 3; ++i) join(text, operand(i));
    join(text, extra());
    return text;
}

std::string OperandText::operand(std::size_t index) const {
    const std::uint8_t values[] = {word_.a, word_.b, word_.c};
    const auto value = values[index];
    switch (info().operands[index]) {
    case Operand::None:
    case Operand::CountC: return "";
    case Operand::Signed: return std::to_string(static_cast<std::int8_t>(value));
    case Operand::Unsigned: return std::to_string(value);
    case Operand::SignedBC: return std::to_string(word_.signedBC());
    case Operand::WideSlot: return slotText(word_.bc());
    case Operand::NumberB:
    case Operand::NumberC: return number(value);
    case Operand::NumberBC: return number(word_.bc());
    case Operand::BaseType:
        return std::string(nameOf(static_cast<BaseType>(value & ~kTakesErrors))) +
               ((value & kTakesErrors) != 0 ? " or error" : "");
    case Operand::OffsetC:
    case Operand::FieldC: return "field " + std::to_string(value);
    case Operand::Result:
    case Operand::ResultVariant: return value == kNoSlot ? "-" : slotText(value);
    default: return slotText(value);
    }
}

std::string OperandText::number(std::uint32_t offset) const {
    const auto index = std::uint64_t{procedure_.numbers} + offset;
    if (index >= code_.numbers.size()) return "?";
    const auto bits = code_.numbers[index];
    const bool isCurrency = static_cast<Op>(word_.op) == Op::LoadCurrency;
    return isCurrency ? currencyText(bits) : basic::shortestText(std::bit_cast<double>(bits));
}

std::string OperandText::extra() const {
    const auto number = words_.size() > 1 ? words_[1] : 0;
    switch (info().extra) {
    case Extra::None: return "";
    case Extra::Number: return std::to_string(static_cast<std::int32_t>(number));
    case Extra::Text: return quoted(code_, number);
    case Extra::Jump: return label(number);
    case Extra::Table: return labels();
    case Extra::Slots: return slots(1, word_.c);
    case Extra::TypeAndSlots: return type() + slots(2, word_.c);
    case Extra::Operation: return operation();
    case Extra::Array: return "array " + std::to_string(number);
    case Extra::Global: return "global " + std::to_string(number);
    case Extra::Field:
    case Extra::Offset: return "field " + std::to_string(number);
    case Extra::Class: return className(code_, number);
    case Extra::Procedure: return call(procedureName(code_, number));
    case Extra::Interface: return call(interfaceMember());
    case Extra::Import: return call(import());
    case Extra::Event: return call("event " + std::to_string(number));
    case Extra::Late: return late();
    }
    return "";
}

std::string OperandText::label(std::uint32_t distance) const {
    return labelText(std::int64_t{at_} + static_cast<std::int32_t>(distance));
}

std::string OperandText::labels() const {
    std::string text;
    for (const auto distance : words_.subspan(1)) join(text, label(distance));
    return "(" + text + ")";
}

std::string OperandText::operation() const {
    const auto packed = words_[1];
    const auto base = [](std::uint32_t value) { return std::string(nameOf(static_cast<BaseType>(value & 0xFF))); };
    std::string text{nameOf(static_cast<VariantOperator>(packed & 0xFF))};
    text += " of " + base(packed >> 16) + " and " + base(packed >> 24);
    return (packed >> 8 & 0xFF) != 0 ? text + ", ignoring case" : text;
}

std::string OperandText::type() const {
    const auto packed = words_[1];
    const auto form = static_cast<TypeForm>(packed >> 8 & 0xFF);
    return describe(code_, {static_cast<BaseType>(packed & 0xFF), form, packed >> 16}) + " ";
}

std::uint16_t OperandText::half(std::size_t after, std::size_t index) const {
    return static_cast<std::uint16_t>(words_[after + index / 2] >> (index % 2 * 16));
}

std::string OperandText::slots(std::size_t after, std::size_t count) const {
    const auto op = static_cast<Op>(word_.op);
    const bool arePairs = op == Op::ReDim || op == Op::ReDimVariant;
    std::string text;
    for (std::size_t i = 0; i < (arePairs ? 2 * count : count); ++i) join(text, slotText(half(after, i)));
    return "(" + text + ")";
}

std::string OperandText::call(const std::string& name) const {
    std::string text;
    for (std::size_t i = 0; i < word_.c; ++i) {
        const auto argument = half(2, i);
        join(text, std::string(nameOf(passOf(argument))) + " " + slotText(slotOf(argument)));
    }
    return name + "(" + text + ")";
}

std::string OperandText::interfaceMember() const {
    const auto number = words_[1] & 0xFFFF, index = words_[1] >> 16;
    const auto name = className(code_, number) + ".";
    if (number == 0 || number > code_.classes.size()) return name + std::to_string(index);
    const auto& members = code_.classes[number - 1].members;
    return name + (index < members.size() ? textNumbered(code_, members[index].name) : std::to_string(index));
}

std::string OperandText::import() const {
    const auto number = words_[1];
    return number < code_.imports.size() ? textNumbered(code_, code_.imports[number].name) : "?";
}

std::string OperandText::late() const {
    const auto named = words_[2] >> 8;
    std::string names;
    for (std::size_t i = 0; i < named; ++i) join(names, textNumbered(code_, words_[1 + kLateHeadWords + i]));
    std::string text{nameOf(static_cast<LateUse>(words_[2] & 0xFF))};
    text += " " + (words_[1] == kNone ? "default member" : textNumbered(code_, words_[1]));
    text += slots(1 + kLateHeadWords + named, word_.c);
    return names.empty() ? text : text + ", named " + names;
}

} // namespace image
