// Instructions on plain values: each computes one answer that is printed.
#include "tests/tamarik_vm/vm_world.h"

namespace tamarik {

namespace {

class Values : public VmWorld {
public:
    Values() : main(procedure("Main")) {
        variant = main.add(kVariantSlot);
        for (std::uint32_t i = 0; i < 4; ++i) n[i] = main.add(kLongSlot);
        for (std::uint32_t i = 0; i < 4; ++i) f[i] = main.add(kDoubleSlot);
        for (std::uint32_t i = 0; i < 4; ++i) t[i] = main.add(kTextSlot);
    }

    Code& main;
    std::uint32_t variant, n[4], f[4], t[4];

    Values& number(std::uint32_t slot, std::int32_t value) {
        main.op1(Op::LoadLong, static_cast<std::uint32_t>(value), slot);
        return *this;
    }
    Values& fraction(std::uint32_t slot, double value) {
        main.wide(Op::LoadFloat, slot, main.floating(value));
        return *this;
    }
    Values& words(std::uint32_t slot, std::string_view value) {
        main.op1(Op::LoadText, text(value), slot);
        return *this;
    }
    void print() { main.call(Op::CallNative, printItem, image::kNoSlot, {{Pass::Variant, variant}}); }
    void printLong(std::uint32_t slot) {
        main.op(Op::LongToVariant, variant, slot, static_cast<std::uint32_t>(BaseType::Long));
        print();
    }
    void printFloat(std::uint32_t slot) {
        main.op(Op::FloatToVariant, variant, slot, static_cast<std::uint32_t>(BaseType::Double));
        print();
    }
    void printText(std::uint32_t slot) {
        main.op(Op::TextToVariant, variant, slot);
        print();
    }
    Ran finish() {
        main.op(Op::Return);
        return run();
    }
    std::string printed() {
        const Ran ran = finish();
        EXPECT_EQ(ran.number, 0) << ran.error.text;
        return ran.printed;
    }
    int error() { return finish().number; }
};

struct LongCase {
    Op op;
    std::int32_t left, right;
    std::string_view printed; ///< or the error's number
    friend std::ostream& operator<<(std::ostream& out, const LongCase& c) {
        return out << infoOf(c.op).name << ' ' << c.left << ' ' << c.right;
    }
};

class LongOperations : public Values, public testing::WithParamInterface<LongCase> {};

TEST_P(LongOperations, GiveTheResultOrTheError) {
    const LongCase& c = GetParam();
    const bool isConstant = infoOf(c.op).operands[2] == image::Operand::Signed;
    number(n[0], c.left);
    if (!isConstant) number(n[1], c.right);
    main.op(c.op, n[2], n[0], isConstant ? static_cast<std::uint32_t>(c.right) & 0xFF : n[1]);
    printLong(n[2]);
    const Ran ran = finish();
    EXPECT_EQ(ran.number != 0 ? "error " + std::to_string(ran.number) : ran.printed, c.printed);
}

constexpr std::int32_t kMost = 2147483647, kLeast = -kMost - 1;
INSTANTIATE_TEST_SUITE_P(
    All, LongOperations,
    testing::Values(LongCase{Op::AddLong, 2, 3, " 5 "}, LongCase{Op::AddLong, kMost, 1, "error 6"},
                    LongCase{Op::SubtractLong, 2, 3, "-1 "}, LongCase{Op::SubtractLong, kLeast, 1, "error 6"},
                    LongCase{Op::MultiplyLong, -4, 3, "-12 "}, LongCase{Op::MultiplyLong, 65536, 65536, "error 6"},
                    LongCase{Op::DivideLong, -7, 2, "-3 "}, LongCase{Op::DivideLong, 1, 0, "error 11"},
                    LongCase{Op::DivideLong, kLeast, -1, "error 6"}, LongCase{Op::ModLong, -7, 2, "-1 "},
                    LongCase{Op::ModLong, kLeast, -1, " 0 "}, LongCase{Op::ModLong, 1, 0, "error 11"},
                    LongCase{Op::AddLongK, 1, -5, "-4 "}, LongCase{Op::AddLongK, kMost, 1, "error 6"},
                    LongCase{Op::MultiplyLongK, 5, -2, "-10 "}, LongCase{Op::MultiplyLongK, kMost, 2, "error 6"},
                    LongCase{Op::DivideLongK, 9, 2, " 4 "}, LongCase{Op::DivideLongK, 9, 0, "error 11"},
                    LongCase{Op::DivideLongK, kLeast, -1, "error 6"}, LongCase{Op::ModLongK, 9, 2, " 1 "},
                    LongCase{Op::ModLongK, 9, 0, "error 11"}, LongCase{Op::AddInteger, 32767, 1, "error 6"},
                    LongCase{Op::AddInteger, 3, 4, " 7 "}, LongCase{Op::SubtractInteger, -32768, 1, "error 6"},
                    LongCase{Op::SubtractInteger, 3, 4, "-1 "}, LongCase{Op::MultiplyInteger, 200, 200, "error 6"},
                    LongCase{Op::MultiplyInteger, 100, 100, " 10000 "}, LongCase{Op::AddIntegerK, 32767, 1, "error 6"},
                    LongCase{Op::AddIntegerK, 3, 1, " 4 "}, LongCase{Op::AndLong, 12, 10, " 8 "},
                    LongCase{Op::OrLong, 12, 10, " 14 "}, LongCase{Op::XorLong, 12, 10, " 6 "},
                    LongCase{Op::EqvLong, 12, 10, "-7 "}, LongCase{Op::ImpLong, 12, 10, "-5 "},
                    LongCase{Op::AndLongK, 12, 10, " 8 "}, LongCase{Op::NegateLong, 5, 0, "-5 "},
                    LongCase{Op::NegateLong, kLeast, 0, "error 6"}, LongCase{Op::AbsLong, -5, 0, " 5 "},
                    LongCase{Op::AbsLong, kLeast, 0, "error 6"}, LongCase{Op::CheckInteger, 32768, 0, "error 6"},
                    LongCase{Op::CheckInteger, -32768, 0, "-32768 "}, LongCase{Op::CheckByte, 255, 0, " 255 "},
                    LongCase{Op::CheckByte, -1, 0, "error 6"}, LongCase{Op::ToBoolean, 7, 0, "-1 "},
                    LongCase{Op::NotLong, 7, 0, "-8 "}, LongCase{Op::NotByte, 7, 0, " 248 "},
                    LongCase{Op::Move, 7, 0, " 7 "}));

struct FloatCase {
    Op op;
    double left, right;
    std::string_view printed;
    friend std::ostream& operator<<(std::ostream& out, const FloatCase& c) {
        return out << infoOf(c.op).name << ' ' << c.left << ' ' << c.right;
    }
};

class FloatOperations : public Values, public testing::WithParamInterface<FloatCase> {};

TEST_P(FloatOperations, GiveTheResultOrTheError) {
    const FloatCase& c = GetParam();
    const auto& operands = infoOf(c.op).operands;
    fraction(f[0], c.left).fraction(f[1], c.right);
    const auto operand = [&](int place, double value, std::uint32_t slot) {
        return operands[place] == image::Operand::NumberB || operands[place] == image::Operand::NumberC
                   ? main.floating(value)
                   : slot;
    };
    main.op(c.op, f[2], operand(1, c.left, f[0]), operands[2] == image::Operand::None ? 0 : operand(2, c.right, f[1]));
    printFloat(f[2]);
    const Ran ran = finish();
    EXPECT_EQ(ran.number != 0 ? "error " + std::to_string(ran.number) : ran.printed, c.printed);
}

INSTANTIATE_TEST_SUITE_P(
    All, FloatOperations,
    testing::Values(FloatCase{Op::AddFloat, 1.5, 2, " 3.5 "}, FloatCase{Op::AddFloat, 1.7e308, 1.7e308, "error 6"},
                    FloatCase{Op::SubtractFloat, 1.5, 2, "-0.5 "}, FloatCase{Op::MultiplyFloat, 1.5, 2, " 3 "},
                    FloatCase{Op::MultiplyFloat, 1e200, 1e200, "error 6"}, FloatCase{Op::DivideFloat, 1, 4, " 0.25 "},
                    FloatCase{Op::DivideFloat, 1, 0, "error 11"}, FloatCase{Op::DivideFloat, 0, 0, "error 6"},
                    FloatCase{Op::PowerFloat, 2, 10, " 1024 "}, FloatCase{Op::PowerFloat, -1, 0.5, "error 5"},
                    FloatCase{Op::AddFloatK, 1, 2, " 3 "}, FloatCase{Op::SubtractFloatK, 1, 2, "-1 "},
                    FloatCase{Op::MultiplyFloatK, 3, 2, " 6 "}, FloatCase{Op::DivideFloatK, 3, 2, " 1.5 "},
                    FloatCase{Op::DivideFloatK, 3, 0, "error 11"}, FloatCase{Op::SubtractKFloat, 3, 2, " 1 "},
                    FloatCase{Op::DivideKFloat, 3, 2, " 1.5 "}, FloatCase{Op::NegateFloat, 3, 0, "-3 "},
                    FloatCase{Op::AbsFloat, -3, 0, " 3 "}, FloatCase{Op::SqrFloat, 9, 0, " 3 "},
                    FloatCase{Op::SqrFloat, -9, 0, "error 5"}, FloatCase{Op::IntFloat, -1.5, 0, "-2 "},
                    FloatCase{Op::FixFloat, -1.5, 0, "-1 "}, FloatCase{Op::RoundSingle, 1e39, 0, "error 6"},
                    FloatCase{Op::RoundSingle, 0.5, 0, " 0.5 "}, FloatCase{Op::CheckDate, 1e9, 0, "error 6"}));

TEST_F(Values, RoundHalvesToEvenWhenTheyBecomeWhole) {
    for (const double half : {0.5, 1.5, 2.5, -0.5, -1.5}) {
        fraction(f[0], half);
        main.op(Op::FloatToLong, n[0], f[0]);
        printLong(n[0]);
    }
    EXPECT_EQ(printed(), " 0  2  2  0 -2 ");
}

TEST_F(Values, FailForFractionsThatNoLongHolds) {
    fraction(f[0], 2147483647.5);
    main.op(Op::FloatToLong, n[0], f[0]);
    EXPECT_EQ(error(), 6);
}

TEST_F(Values, JoinAndAppendTexts) {
    words(t[0], "ab").words(t[1], "cd");
    main.op(Op::JoinText, t[2], t[0], t[1]).op(Op::AppendText, t[2], t[2]).op(Op::AppendText, t[2], t[0]);
    printText(t[2]);
    printText(t[0]);
    EXPECT_EQ(printed(), "abcdabcdabab");
}

TEST_F(Values, DoNotChangeTheConstantOfAnAppendedText) {
    words(t[0], "ab");
    main.op(Op::AppendText, t[0], t[0]);
    words(t[1], "ab");
    words(t[2], "ab");
    printText(t[0]);
    printText(t[1]);
    EXPECT_EQ(printed(), "ababab");
}

TEST_F(Values, CompareTextsByCharactersAndIgnoringCase) {
    words(t[0], "B").words(t[1], "a");
    main.op(Op::CompareText, n[0], t[0], t[1]).op(Op::CompareNoCase, n[1], t[0], t[1]);
    printLong(n[0]);
    printLong(n[1]);
    EXPECT_EQ(printed(), "-1  1 ");
}

TEST_F(Values, FixTheLengthOfTexts) {
    words(t[0], "abc");
    main.op1(Op::FixText, 2, t[1], t[0]).op1(Op::FixText, 5, t[2], t[0]);
    printText(t[1]);
    printText(t[2]);
    main.op(Op::LengthOfText, n[0], t[2]);
    printLong(n[0]);
    EXPECT_EQ(printed(), "ababc   5 ");
}

TEST_F(Values, LoopUntilTheCounterHasPassedItsEnd) {
    number(n[0], 1).number(n[1], 4);
    const auto again = main.label();
    main.here(again);
    printLong(n[0]);
    main.jump(Op::ForLong, again, n[0], n[1], 2);
    printLong(n[0]);
    EXPECT_EQ(printed(), " 1  3  5 ");
}

TEST_F(Values, SelectTheEntryOfATable) {
    const auto one = main.label(), two = main.label(), end = main.label();
    number(n[0], 2).number(n[1], 0);
    main.table(Op::JumpTable, n[0], {one, two});
    main.jump(Op::Jump, end);
    main.here(one);
    number(n[1], 1);
    main.jump(Op::Jump, end).here(two);
    number(n[1], 2);
    main.here(end);
    printLong(n[1]);
    EXPECT_EQ(printed(), " 2 ");
}

TEST_F(Values, FailForATableEntryBelowZero) {
    const auto one = main.label();
    number(n[0], -1);
    main.here(one).table(Op::JumpTable, n[0], {one});
    EXPECT_EQ(error(), 5);
}

} // namespace

} // namespace tamarik
