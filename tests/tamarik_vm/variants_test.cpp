// Operators on Variants, with the kinds of their results.
#include "Basic/runtime_error.h"
#include "Components/Tamarik/values/array_block.h"
#include "Components/Tamarik/values/encoding.h"
#include "Components/Tamarik/values/variant_conversion.h"
#include "Components/Tamarik/values/variant_operators.h"
#include "Components/Tamarik/values/variant_text.h"
#include <gtest/gtest.h>
#include <string>

namespace tamarik {

namespace {

using image::BaseType;
using image::VariantOperator;

/// A value with its kind, such as "Integer 5" or "String 5"; "error 13" for what fails.
using Written = std::string;

class Operators : public testing::Test {
public:
    Heap heap;

    ~Operators() override { EXPECT_EQ(heap.used(), 0U); }

    Variant value(const Written& written) {
        const auto blank = written.find(' ');
        const std::string kind = written.substr(0, blank),
                          rest = blank == Written::npos ? "" : written.substr(blank + 1);
        if (kind == "Empty") return {};
        if (kind == "Null") return ofKind(kNull);
        if (kind == "Boolean") return ofBoolean(rest == "True");
        const Variant text = ofText(makeTextOfUtf8(heap, rest));
        if (kind == "String") return text;
        static const std::pair<const char*, VariantKind> kKinds[] = {
            {"Byte", kByte},     {"Integer", kInteger},   {"Long", kLong}, {"Single", kSingle},
            {"Double", kDouble}, {"Currency", kCurrency}, {"Date", kDate}, {"Decimal", kDecimal}};
        for (const auto& [name, number] : kKinds) {
            if (kind != name) continue;
            // Dates are written as numbers of days.
            const Variant days = number == kDate ? ofFraction(std::stod(rest), kDate) : Variant();
            const Variant result = number == kDate ? days : converted(heap, text, number);
            release(heap, text);
            return result;
        }
        release(heap, text);
        return {};
    }

    Written written(const Variant& v) {
        static const std::pair<VariantKind, const char*> kNames[] = {
            {kEmpty, "Empty"},   {kNull, "Null"},       {kByte, "Byte"},      {kInteger, "Integer"},
            {kLong, "Long"},     {kSingle, "Single"},   {kDouble, "Double"},  {kCurrency, "Currency"},
            {kString, "String"}, {kBoolean, "Boolean"}, {kDecimal, "Decimal"}};
        if (v.kind == kDate) return "Date " + written(ofFraction(v.fraction)).substr(7);
        for (const auto& [kind, name] : kNames) {
            if (kind != v.kind) continue;
            if (kind == kEmpty || kind == kNull) return name;
            TextBlock* const text = textOf(heap, v);
            const std::string words = std::string(name) + " " + toUtf8(unitsOf(text));
            release(heap, text);
            return words;
        }
        return "kind " + std::to_string(v.kind);
    }

    Written apply(VariantOperator op, const Written& left, const Written& right, BaseType leftType = BaseType::Variant,
                  BaseType rightType = BaseType::Variant) {
        const Variant a = value(left), b = value(right);
        Variant result;
        const auto error = basic::attempt([&] { result = operate(heap, {op, false, leftType, rightType}, a, b); });
        const Written words = error.Number != 0 ? "error " + std::to_string(error.Number) : written(result);
        release(heap, a);
        release(heap, b);
        release(heap, result);
        return words;
    }
    Written unary(VariantOperator op, const Written& operand) {
        const Variant a = value(operand);
        const Variant result = operateUnary(heap, op, a);
        const Written words = written(result);
        release(heap, a);
        release(heap, result);
        return words;
    }
};

struct OperatorCase {
    VariantOperator op;
    const char *left, *right, *result;
    friend std::ostream& operator<<(std::ostream& out, const OperatorCase& c) {
        return out << static_cast<int>(c.op) << ": " << c.left << ", " << c.right;
    }
};

class OperatorTable : public Operators, public testing::WithParamInterface<OperatorCase> {};

TEST_P(OperatorTable, GivesTheValueAndItsKind) {
    const OperatorCase& c = GetParam();
    EXPECT_EQ(apply(c.op, c.left, c.right), c.result);
}

using enum VariantOperator;
INSTANTIATE_TEST_SUITE_P(
    Arithmetic, OperatorTable,
    testing::Values(
        OperatorCase{Add, "Integer 1", "Integer 2", "Integer 3"},
        OperatorCase{Add, "Integer 32767", "Integer 1", "Long 32768"},
        OperatorCase{Add, "Long 2147483647", "Long 1", "Double 2147483648"},
        OperatorCase{Add, "Byte 200", "Byte 50", "Byte 250"}, OperatorCase{Add, "Byte 200", "Byte 100", "Integer 300"},
        OperatorCase{Subtract, "Byte 1", "Byte 2", "Integer -1"},
        OperatorCase{Add, "Boolean True", "Boolean True", "Integer -2"},
        OperatorCase{Add, "Single 0.5", "Integer 1", "Single 1.5"},
        OperatorCase{Add, "Single 0.5", "Long 1", "Double 1.5"},
        OperatorCase{Add, "Currency 1.5", "Double 1", "Currency 2.5"},
        OperatorCase{Multiply, "Currency 1.5", "Double 2", "Double 3"},
        OperatorCase{Multiply, "Currency 1.5", "Long 2", "Currency 3"},
        OperatorCase{Add, "Currency 922337203685477", "Currency 1", "error 6"},
        OperatorCase{Add, "Date 1", "Integer 1", "Date 2"}, OperatorCase{Subtract, "Date 3", "Date 1", "Double 2"},
        OperatorCase{Subtract, "Date 3", "Integer 1", "Date 2"},
        OperatorCase{Add, "Decimal 0.1", "Double 0.2", "Decimal 0.3"},
        OperatorCase{Divide, "Decimal 1", "Integer 4", "Decimal 0.25"},
        OperatorCase{Divide, "Integer 1", "Integer 2", "Double 0.5"},
        OperatorCase{Divide, "Single 1", "Integer 2", "Single 0.5"},
        OperatorCase{Divide, "Integer 1", "Integer 0", "error 11"},
        OperatorCase{Divide, "Integer 0", "Integer 0", "error 6"},
        OperatorCase{IntDivide, "Double 7.5", "Integer 2", "Long 4"},
        OperatorCase{IntDivide, "Integer -7", "Integer 2", "Integer -3"},
        OperatorCase{Mod, "Byte 7", "Byte 4", "Byte 3"}, OperatorCase{Mod, "Long 7", "Integer 0", "error 11"},
        OperatorCase{Power, "Integer 2", "Integer 3", "Double 8"},
        OperatorCase{Add, "String 1", "Integer 2", "Double 3"}, OperatorCase{Add, "String 1", "String 2", "String 12"},
        OperatorCase{Add, "String x", "Integer 2", "error 13"}, OperatorCase{Add, "Empty", "Empty", "Integer 0"},
        OperatorCase{Add, "Empty", "String a", "String a"}, OperatorCase{Multiply, "Empty", "Integer 5", "Integer 0"},
        OperatorCase{Add, "Null", "Integer 5", "Null"}, OperatorCase{Concat, "Null", "String x", "String x"},
        OperatorCase{Concat, "Null", "Null", "Null"}, OperatorCase{Concat, "Integer 1", "Boolean True", "String 1True"},
        OperatorCase{Like, "String abc", "String a*", "Boolean True"},
        OperatorCase{Like, "Null", "String a*", "Null"}));

INSTANTIATE_TEST_SUITE_P(
    Logic, OperatorTable,
    testing::Values(
        OperatorCase{And, "Boolean True", "Boolean False", "Boolean False"},
        OperatorCase{And, "Byte 12", "Byte 10", "Byte 8"}, OperatorCase{Or, "Integer 1", "Boolean True", "Integer -1"},
        OperatorCase{Xor, "Long 5", "Integer 1", "Long 4"}, OperatorCase{And, "Double 2.5", "Integer 3", "Long 2"},
        OperatorCase{And, "Null", "Boolean False", "Boolean False"}, OperatorCase{And, "Boolean True", "Null", "Null"},
        OperatorCase{Or, "Null", "Boolean True", "Boolean True"}, OperatorCase{Or, "Null", "Boolean False", "Null"},
        OperatorCase{Imp, "Null", "Boolean True", "Boolean True"},
        OperatorCase{Imp, "Boolean False", "Null", "Boolean True"}, OperatorCase{Imp, "Boolean True", "Null", "Null"},
        OperatorCase{Eqv, "Null", "Boolean True", "Null"}, OperatorCase{Eqv, "Integer 5", "Integer 5", "Integer -1"},
        OperatorCase{And, "String 6", "Integer 3", "Long 2"},
        OperatorCase{Or, "Double 1E+10", "Integer 0", "error 6"}));

INSTANTIATE_TEST_SUITE_P(Comparison, OperatorTable,
                         testing::Values(OperatorCase{Less, "Integer 5", "Long 6", "Boolean True"},
                                         OperatorCase{Equal, "Empty", "Integer 0", "Boolean True"},
                                         OperatorCase{Equal, "Empty", "String ", "Boolean True"},
                                         OperatorCase{Less, "Integer 5", "String 1", "Boolean True"},
                                         OperatorCase{Greater, "String 1", "Double 5", "Boolean True"},
                                         OperatorCase{Less, "String 10", "String 9", "Boolean True"},
                                         OperatorCase{Equal, "Single 0.1", "Double 0.1", "Boolean True"},
                                         OperatorCase{Equal, "Null", "Null", "Null"},
                                         OperatorCase{Equal, "Currency 0.1", "Double 0.10001", "Boolean True"},
                                         OperatorCase{Less, "Decimal 0.1", "Decimal 0.2", "Boolean True"},
                                         OperatorCase{NotEqual, "Boolean True", "Integer -1", "Boolean False"}));

TEST_F(Operators, CompareWithTypedOperandsByTheirTypes) {
    EXPECT_EQ(apply(Equal, "Integer 5", "String 5", BaseType::Integer), "Boolean True");
    EXPECT_EQ(apply(Equal, "Integer 5", "String x", BaseType::Integer), "error 13");
    EXPECT_EQ(apply(Less, "String 10", "Integer 9", BaseType::Text), "Boolean True");
    EXPECT_EQ(apply(Equal, "Boolean True", "String True", BaseType::Boolean, BaseType::Text), "Boolean True");
}

TEST_F(Operators, JoinATypedTextWithAVariant) {
    EXPECT_EQ(apply(Add, "String 1", "Integer 2", BaseType::Text), "String 12");
    EXPECT_EQ(apply(Add, "String 1", "Integer 2", BaseType::Text, BaseType::Integer), "Double 3");
}

TEST_F(Operators, NegateInTheNextWiderType) {
    EXPECT_EQ(unary(Negate, "Integer -32768"), "Long 32768");
    EXPECT_EQ(unary(Negate, "Long -2147483648"), "Double 2147483648");
    EXPECT_EQ(unary(Negate, "Byte 5"), "Integer -5");
    EXPECT_EQ(unary(Negate, "Empty"), "Integer 0");
    EXPECT_EQ(unary(Negate, "Decimal 1.5"), "Decimal -1.5");
    EXPECT_EQ(unary(Not, "Byte 1"), "Byte 254");
    EXPECT_EQ(unary(Not, "Boolean True"), "Boolean False");
    EXPECT_EQ(unary(Not, "Null"), "Null");
}

TEST_F(Operators, KeepAFixedKindInAssignments) {
    Variant fixed = ofNumber(0, kInteger);
    fixed.flags = Variant::kFixed;
    assign(heap, fixed, ofFraction(6.4));
    EXPECT_EQ(written(fixed), "Integer 6");
    EXPECT_EQ(fixed.flags, Variant::kFixed);
    EXPECT_THROW(assign(heap, fixed, ofFraction(1e6)), basic::RuntimeError);
}

TEST_F(Operators, CopyArraysNestedDeeply) {
    Variant nested;
    constexpr int kDepth = 100000;
    const Bounds one{0, 0};
    for (int i = 0; i < kDepth; ++i) {
        ArrayBlock* const array = makeArray(heap, {{BaseType::Variant}}, {&one, 1});
        variantAt(array->as<Slot>()) = nested;
        nested = ofArray(array);
    }
    release(heap, copyOf(heap, nested));
    release(heap, nested);
    while (heap.hasPending()) destroy(heap, static_cast<ArrayBlock*>(heap.takePending()));
}

} // namespace

} // namespace tamarik
