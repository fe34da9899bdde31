#include "Components/Image/listing/disassemble.h"
#include "tests/image_code/verify_world.h"

namespace {

using namespace code_parts;
using image::disassemble;

/// The instructions alone, without the line and place.
std::string instructionOf(std::vector<std::uint32_t> words) {
    Program program;
    program.runs(std::move(words));
    auto text = disassemble(program.code, program.main);
    const auto begin = text.find("     0  ") + 8;
    return text.substr(begin, text.find('\n', begin) - begin);
}

} // namespace

TEST(Listing, ShowsVariablesLinesAndLabels) {
    CodeImage code;
    code.modules = {{textOf(code, "Module1"), textOf(code, "Module1.bas"), image::kNone}};
    code.records = {{{{kLong}, {kVariant}}}};
    addProcedure(code, {"Count",
                        {referenceTo({BaseType::Integer}), kLong, arrayOf(kText), record(0)},
                        1,
                        2,
                        {encodeWide(Op::LoadShort, 2, 0xFFFF), encode(Op::ForLong, 2, 2, 3), 0, encode(Op::Jump),
                         std::uint32_t(-2), encode(Op::Return)}});
    code.procedures[0].lines = {{0, 4}, {3, 6}};
    code.procedures[0].variables[2].isTemporary = true;
    EXPECT_EQ(disassemble(code, 0), "Module1.Count, Module1.bas, 24 bytes\n"
                                    "  s0-1        Reference to Integer, parameter\n"
                                    "  s2          Long, result\n"
                                    "  s3          Array of Text, temporary\n"
                                    "  s4-6        Record 0\n"
                                    "     4     0  LoadShort               s2, -1\n"
                                    "L1:\n"
                                    "           1  ForLong                 s2, s2, 3, L1\n"
                                    "     6     3  Jump                    L1\n"
                                    "           5  Return\n");
    EXPECT_EQ(disassemble(code, 1), "");
}

TEST(Listing, ShowsOperands) {
    const auto text = [](std::uint32_t number) { return Program{}.code.texts[number]; };
    EXPECT_EQ(instructionOf({encodeWide(Op::LoadFloat, kD, 0)}), "LoadFloat               s2, 1");
    EXPECT_EQ(instructionOf({encodeWide(Op::LoadCurrency, kC, 1)}), "LoadCurrency            s3, 1.0000");
    EXPECT_EQ(instructionOf({encodeWide(Op::LoadCurrency, kC, 9)}), "LoadCurrency            s3, ?");
    EXPECT_EQ(instructionOf({encode(Op::LoadText, kT), 0}), "LoadText                s4, \"" + text(0) + "\"");
    Program quoting;
    quoting.code.texts[0] = "say \"a\"\x1B" + std::string(51, '-') + "\xC3\xA4";
    EXPECT_NE(disassemble(quoting.runs({encode(Op::LoadText, kT), 0}).code, 0)
                  .find("s4, \"say \"\"a\"\"\\u001B" + std::string(51, '-') + "...\"\n"),
              std::string::npos);
    EXPECT_EQ(instructionOf({encode(Op::LoadLong, kL), 0xFFFFFFFF}), "LoadLong                s0, -1");
    EXPECT_EQ(instructionOf({encode(Op::LongToText, kT, kL, 1)}), "LongToText              s4, s0, Boolean");
    EXPECT_EQ(instructionOf({encodeWide(Op::LoadWide, kL, kWide)}), "LoadWide                s0, s300");
    EXPECT_EQ(instructionOf({encode(Op::LoadTextRef, kT, kRefPoint, 1)}), "LoadTextRef             s4, s38, field 1");
    EXPECT_EQ(instructionOf({encode(Op::JumpTable, kL, 0, 2), 3, 0}), "JumpTable               s0, (L3, L0)");
    EXPECT_EQ(instructionOf({encode(Op::Operate, kV, kV, kV),
                             image::OperationWord{image::VariantOperator::Less, true, BaseType::Text}.packed()}),
              "Operate                 s5, s5, s5, < of Text and Variant, ignoring case");
    EXPECT_EQ(instructionOf({encode(Op::ReDimVariant, kV, 1, 1), image::pack(object(1)), kL | kL2 << 16}),
              "ReDimVariant            s5, 1, Object of class Shape (s0, s1)");
    EXPECT_EQ(instructionOf({encode(Op::NewObject, kO), 2}), "NewObject               s7, Circle");
    EXPECT_EQ(instructionOf({encode(Op::Call, kL, 0, 1), 1, encodeArgument(Pass::Address, kWide)}),
              "Call                    s0, Module1.Add(Address s300)");
    EXPECT_EQ(instructionOf({encode(Op::CallInterface, image::kNoSlot), 1}), "CallInterface           -, Shape.Draw()");
    EXPECT_EQ(instructionOf({encode(Op::CallNative, kT, 0, 1), 0, encodeArgument(Pass::Text, kT)}),
              "CallNative              s4, Left(Text s4)");
    EXPECT_EQ(
        instructionOf({encode(Op::VariantToLong, kL, kV, std::uint32_t(BaseType::Integer) | image::kTakesErrors)}),
        "VariantToLong           s0, s5, Integer or error");
    EXPECT_EQ(instructionOf({encode(Op::CallLate, kV, kV, 1), image::kNone, 2 | 1 << 8, 0, kV}),
              "CallLate                s5, s5, Let default member(s5), named " + text(0));
}

/// What is refused is looked at most often.
TEST(Listing, ShowsDamagedCode) {
    EXPECT_EQ(instructionOf({255}), "?");
    EXPECT_EQ(instructionOf({encode(Op::Call, kL), 99}), "Call                    s0, procedure 99()");
    EXPECT_EQ(instructionOf({encode(Op::CallInterface, kL), 9}), "CallInterface           s0, class 9.0()");
    EXPECT_EQ(instructionOf({encode(Op::CallNative, kL), 9}), "CallNative              s0, ?()");
    EXPECT_EQ(instructionOf({encode(Op::LoadText, kT), 999}), "LoadText                s4, ?");
    EXPECT_EQ(instructionOf({encode(Op::LongToText, kT, kL, 99)}), "LongToText              s4, s0, ?");
    EXPECT_EQ(instructionOf({encode(Op::Jump), 0x80000000}), "Jump                    L-2147483648");
    Program between;
    between.runs({255, encode(Op::Jump), 0, 255, 254});
    EXPECT_NE(disassemble(between.code, between.main)
                  .find("     0  ?\nL1:\n           1  Jump                    L1\n           3  ?\n           4  ?\n"),
              std::string::npos)
        << disassemble(between.code, between.main);
    CodeImage code;
    addProcedure(code, {"\x1B[2J"});
    code.procedures[0].code = 7;
    code.procedures[0].words = 0xFFFFFFFF;
    code.procedures[0].variables = {{record(3)}};
    EXPECT_EQ(disassemble(code, 0), "\\u001B[2J, 0 bytes\n  s0          Record 3\n");
}
