#include "tests/image_code/verify_world.h"

namespace {

using namespace code_parts;
using image::BaseType;
using image::LateUse;
using image::OperationWord;
using image::pack;
using image::VariantOperator;

/// What the verifier says of these instructions in Main, without its name.
std::string of(std::vector<std::uint32_t> words, const std::function<void(Program&)>& change = {}) {
    Program program;
    if (change) change(program);
    const auto text = program.runs(std::move(words)).problem();
    const std::string begin = "procedure Module1.Main, ";
    return text.starts_with(begin) ? text.substr(begin.size()) : text;
}
std::string ofAll(std::vector<std::uint32_t> words) { return Program{}.runs(std::move(words), false).problem(); }

std::uint32_t arguments(std::uint32_t first, std::uint32_t second = 0) { return first | second << 16; }
std::uint32_t passed(Pass pass, std::uint32_t slot) { return encodeArgument(pass, slot); }

} // namespace

TEST(VerifyCode, RefusesUnknownAndIncompleteInstructions) {
    EXPECT_EQ(of({255}), "instruction 0 is unknown");
    EXPECT_EQ(of({image::kInstructionCount}), "instruction 0 is unknown");
    EXPECT_EQ(ofAll({encode(Op::LoadLong, kL)}), "procedure Module1.Main, instruction 0 (LoadLong): is not complete");
    EXPECT_EQ(ofAll({encode(Op::Call, image::kNoSlot, 0, 5), 1, 0, 0}),
              "procedure Module1.Main, instruction 0 (Call): is not complete");
    EXPECT_EQ(ofAll({encode(Op::CallLate, image::kNoSlot, kV), 0}),
              "procedure Module1.Main, instruction 0 (CallLate): is not complete");
    EXPECT_EQ(ofAll({encode(Op::CallLate, image::kNoSlot, kV), 0, 0xFFFFFF00}),
              "procedure Module1.Main, instruction 0 (CallLate): is not complete");
}

TEST(VerifyCode, RefusesToContinueAfterTheEnd) {
    EXPECT_EQ(ofAll({}), "procedure Module1.Main, it has no instructions");
    const auto text = "procedure Module1.Main, instruction 0 (Stop): is the last one and could continue after the end";
    EXPECT_EQ(ofAll({encode(Op::Stop)}), text);
    for (const auto op : {Op::RaiseError, Op::Clear, Op::OnErrorOff})
        EXPECT_NE(ofAll({encode(op, 0)}), "") << infoOf(op).name;
    EXPECT_EQ(ofAll({encode(Op::Jump), 0}), "");
    EXPECT_EQ(ofAll({encode(Op::End)}), "");
    EXPECT_EQ(ofAll({encode(Op::ReturnSub)}), "");
    EXPECT_EQ(ofAll({encode(Op::ResumeAt), 0}), "");
}

TEST(VerifyCode, RefusesJumpsElsewhere) {
    for (const auto op : {Op::Jump, Op::OnErrorGoTo, Op::ResumeAt, Op::GoSub}) {
        const std::string name(image::infoOf(op).name);
        EXPECT_EQ(of({encode(op), 2}), "");
        EXPECT_EQ(of({encode(op), 3}), "instruction 0 (" + name + "): jumps to word 3, outside of the procedure");
        EXPECT_EQ(of({encode(op), 0xFFFFFFFF}),
                  "instruction 0 (" + name + "): jumps to word -1, outside of the procedure");
        EXPECT_EQ(of({encode(op), 1}), "a jump leads to word 1, where no instruction begins");
    }
    EXPECT_EQ(of({encode(Op::JumpTable, kL, 0, 2), 3, 0}), "");
    EXPECT_EQ(of({encode(Op::JumpTable, kL, 0, 0)}), "");
    EXPECT_EQ(of({encode(Op::JumpTable, kL, 0, 2), 3, 1}), "a jump leads to word 1, where no instruction begins");
    EXPECT_EQ(of({encode(Op::GoSubTable, kL, 0, 1), 0x80000000}),
              "instruction 0 (GoSubTable): jumps to word -2147483648, outside of the procedure");
    EXPECT_EQ(of({encode(Op::NextEach, kV, kO), 1}), "a jump leads to word 1, where no instruction begins");
}

TEST(VerifyCode, RefusesLinesAndStatementsElsewhere) {
    const auto lines = [](std::vector<image::LineStart> list) {
        return of({encode(Op::LoadLong, kL), 7}, [&](Program& p) { p.code.procedures[p.main].lines = list; });
    };
    EXPECT_EQ(lines({{0, 9}, {2, 1}}), "");
    EXPECT_EQ(lines({{1, 9}}), "its lines name word 1, where no instruction begins");
    EXPECT_EQ(lines({{3, 9}}), "its lines name word 3, where no instruction begins");
    EXPECT_EQ(lines({{0xFFFFFFFF, 9}}), "its lines name word 4294967295, where no instruction begins");
    EXPECT_EQ(lines({{2, 9}, {0, 9}}), "its lines do not ascend");
    EXPECT_EQ(lines({{0, 9}, {0, 9}}), "its lines do not ascend");
    const auto statements = [](Op op, std::vector<std::uint32_t> list) {
        return of({encode(op), encode(Op::LoadLong, kL), 7},
                  [&](Program& p) { p.code.procedures[p.main].statements = list; });
    };
    EXPECT_EQ(statements(Op::Resume, {0, 1, 3}), "");
    EXPECT_EQ(statements(Op::Resume, {0, 2}), "its statements name word 2, where no instruction begins");
    EXPECT_EQ(statements(Op::Resume, {0, 3, 1}), "its statements do not ascend");
    EXPECT_EQ(statements(Op::Stop, {}), "");
    for (const auto op : {Op::Resume, Op::ResumeNext, Op::OnErrorResumeNext})
        for (const auto& list : {std::vector<std::uint32_t>{}, {1}})
            EXPECT_EQ(statements(op, list), "it can resume, but its statements do not begin with its code");
}

TEST(VerifyCode, NamesTheOperandAndItsType) {
    EXPECT_EQ(of({encode(Op::AddLong, kL, kT, kL)}), "instruction 0 (AddLong): operand B names slot 4, which is Text");
    EXPECT_EQ(of({encode(Op::LoadLong, kL), 0, encode(Op::AddLong, kL, kL, kV + 1)}),
              "instruction 2 (AddLong): operand C names slot 6, which is the second slot of a pair");
    EXPECT_EQ(of({encode(Op::AddLong, 255, kL, kL)}),
              "instruction 0 (AddLong): operand A names slot 255, which does not exist");
    EXPECT_EQ(of({encode(Op::CopyText, kT, kT, 1)}), "instruction 0 (CopyText): operand C must be 0");
    EXPECT_EQ(
        of({encode(Op::AddLong, kL, kL, kL)}, [](Program& p) { p.code.procedures[p.main].variables = {{kLong}}; }), "");
    EXPECT_EQ(
        of({encode(Op::AddLong, kL, kL2, kL)}, [](Program& p) { p.code.procedures[p.main].variables = {{kLong}}; }),
        "instruction 0 (AddLong): operand B names slot 1, which does not exist");
}

TEST(VerifyCode, ForgetsTheSlotsOfTheProcedureBefore) {
    Program program;
    addProcedure(program.code, {"Last", {kLong}, 0, image::kNoSlot, {encode(Op::Clear, kL2), encode(Op::Return)}});
    EXPECT_EQ(program.problem(),
              "procedure Module1.Last, instruction 0 (Clear): operand A names slot 1, which does not exist");
}

TEST(VerifyCode, RefusesOtherTypesOfBothSlots) {
    EXPECT_EQ(of({encode(Op::Move, kL, kD)}), "instruction 0 (Move): assigns Double to Long");
    EXPECT_EQ(of({encode(Op::Move, kL, kL2)}), "");
    EXPECT_EQ(of({encode(Op::CopyArray, kLongs, kIntegers)}),
              "instruction 0 (CopyArray): assigns Array of Integer to Array of Long");
    EXPECT_EQ(of({encode(Op::ShareArray, kObjects, kShapes)}),
              "instruction 0 (ShareArray): assigns Array of Object of class Shape to Array of Object");
    EXPECT_EQ(of({encode(Op::CopyRef, kRefLong, kRefInteger)}),
              "instruction 0 (CopyRef): assigns Reference to Integer to Reference to Long");
    EXPECT_EQ(of({encode(Op::CopyObject, kO, kShape)}), "");
    EXPECT_EQ(of({encode(Op::CopyObject, kShape, kO)}),
              "instruction 0 (CopyObject): assigns Object to Object of class Shape");
    EXPECT_EQ(of({encode(Op::TakeObject, kShape, kCircle)}),
              "instruction 0 (TakeObject): assigns Object of class Circle to Object of class Shape");
}

TEST(VerifyCode, ReachesWideSlots) {
    EXPECT_EQ(of({encodeWide(Op::LoadWide, kL, kWide)}), "");
    EXPECT_EQ(of({encodeWide(Op::StoreWide, kD, kWide)}), "instruction 0 (StoreWide): assigns Double to Long");
    EXPECT_EQ(of({encodeWide(Op::LoadWide, kD, kWide)}), "instruction 0 (LoadWide): assigns Long to Double");
    EXPECT_EQ(of({encodeWide(Op::LoadWide, kL, kSlots)}), "instruction 0 (LoadWide): reads a slot that does not exist");
    EXPECT_EQ(of({encodeWide(Op::StoreWide, kL, 0xFFFF)}),
              "instruction 0 (StoreWide): writes a slot that does not exist");
    EXPECT_EQ(of({encodeWide(Op::LoadWide, kL, kPoint)}), "");
    EXPECT_EQ(of({encodeWide(Op::LoadWide, kV, kV + 1)}),
              "instruction 0 (LoadWide): assigns the second slot of a pair to Variant");
}

TEST(VerifyCode, RefusesConstantsThatDoNotExist) {
    EXPECT_EQ(of({encodeWide(Op::LoadFloat, kD, 0)}), "");
    EXPECT_EQ(of({encodeWide(Op::LoadFloat, kD, 3)}),
              "instruction 0 (LoadFloat): names constant 3, which does not exist");
    EXPECT_EQ(of({encodeWide(Op::LoadFloat, kD, 2)}),
              "instruction 0 (LoadFloat): names constant 2, which is not finite");
    EXPECT_EQ(of({encodeWide(Op::LoadCurrency, kC, 2)}), "");
    EXPECT_EQ(of({encode(Op::AddFloatK, kD, kD, 3)}),
              "instruction 0 (AddFloatK): names constant 3, which does not exist");
    EXPECT_EQ(of({encode(Op::DivideKFloat, kD, 3, kD)}),
              "instruction 0 (DivideKFloat): names constant 3, which does not exist");
    EXPECT_EQ(of({encode(Op::JumpLessFloatK, kD, 2), 0}),
              "instruction 0 (JumpLessFloatK): names constant 2, which is not finite");
    EXPECT_EQ(of({encodeWide(Op::LoadFloat, kD, 1)}, [](Program& p) { p.code.procedures[p.main].numbers = 1; }),
              "instruction 0 (LoadFloat): names constant 1, which is not finite");
}

TEST(VerifyCode, RefusesUnknownChoices) {
    for (const std::uint32_t kind : {0u, 1u, 10u}) EXPECT_EQ(of({encode(Op::LoadKind, kV, kind)}), "");
    for (const std::uint32_t kind : {2u, 9u, 11u})
        EXPECT_EQ(of({encode(Op::LoadKind, kV, kind)}),
                  "instruction 0 (LoadKind): has " + std::to_string(kind) + " as operand B");
    EXPECT_EQ(of({encode(Op::Erase, kLongs, 2)}), "instruction 0 (Erase): has 2 as operand B");
    EXPECT_EQ(of({encode(Op::ReDim, kLongs, 2, 1), 0}), "instruction 0 (ReDim): has 2 as operand B");
    EXPECT_EQ(of({encode(Op::LongToText, kT, kL, std::uint32_t(BaseType::Byte))}), "");
    EXPECT_EQ(of({encode(Op::LongToText, kT, kL, std::uint32_t(BaseType::Double))}),
              "instruction 0 (LongToText): has 6 as the type in operand C");
    EXPECT_EQ(of({encode(Op::TextToFloat, kD, kT, std::uint32_t(BaseType::Date))}), "");
    EXPECT_EQ(of({encode(Op::TextToFloat, kD, kT, 4)}), "instruction 0 (TextToFloat): has 4 as the type in operand C");
    EXPECT_EQ(of({encode(Op::VariantToLong, kL, kV, 200)}),
              "instruction 0 (VariantToLong): has 200 as the type in operand C");
    EXPECT_EQ(of({encode(Op::LoadNulls, kT), 65536}), "instruction 0 (LoadNulls): has 65536 characters");
    EXPECT_EQ(of({encode(Op::FixText, kT, kT), 65535}), "");
    EXPECT_EQ(of({encode(Op::LoadText, kT), 99}), "instruction 0 (LoadText): names text 99, which does not exist");
}

TEST(VerifyCode, RefusesUnknownOperations) {
    const auto operation = [](Op op, std::uint32_t word) {
        return of({encode(op, kV, kV, op == Op::Operate ? std::uint32_t(kV) : 0), word});
    };
    const auto unknown = [](const char* name) {
        return "instruction 0 (" + std::string(name) + "): has an unknown operator";
    };
    EXPECT_EQ(operation(Op::Operate, OperationWord{VariantOperator::Imp, true}.packed()), "");
    EXPECT_EQ(operation(Op::Operate, OperationWord{VariantOperator::Negate}.packed()), unknown("Operate"));
    EXPECT_EQ(operation(Op::Operate, 200), unknown("Operate"));
    EXPECT_EQ(operation(Op::OperateUnary, OperationWord{VariantOperator::Not}.packed()), "");
    EXPECT_EQ(operation(Op::OperateUnary, OperationWord{VariantOperator::Add}.packed()), unknown("OperateUnary"));
    EXPECT_EQ(operation(Op::OperateUnary, image::kVariantOperators), unknown("OperateUnary"));
    for (const std::uint32_t word : {2u << 8, 12u << 16, 255u << 24})
        EXPECT_EQ(operation(Op::Operate, word), "instruction 0 (Operate): has unknown types of operands");
}

TEST(VerifyCode, RefusesWrongIndexesAndBounds) {
    EXPECT_EQ(of({encode(Op::FindElement, kL, kLongs, 3), arguments(kL, kL2), kWide}), "");
    EXPECT_EQ(of({encode(Op::FindElement, kL, kLongs, 0)}), "instruction 0 (FindElement): has 0 dimensions");
    EXPECT_EQ(of({encode(Op::VariantAt, kV, kV, 0)}), "instruction 0 (VariantAt): has 0 dimensions");
    std::vector<std::uint32_t> many(31, 0);
    many[0] = encode(Op::FindElement, kL, kLongs, 60);
    EXPECT_EQ(of(many), "");
    many.push_back(0);
    many[0] = encode(Op::FindElement, kL, kLongs, 61);
    EXPECT_EQ(of(many), "instruction 0 (FindElement): has 61 dimensions");
    EXPECT_EQ(of({encode(Op::FindElement, kL, kLongs, 1), kT}),
              "instruction 0 (FindElement): names slot 4, which is Text and not Long");
    EXPECT_EQ(of({encode(Op::FindElement, kL, kLongs, 1), arguments(kL, kL2)}),
              "instruction 0 (FindElement): has half a word that must be 0");
    EXPECT_EQ(of({encode(Op::VariantAt, kV, kV, 2), arguments(kV, kV)}), "");
    EXPECT_EQ(of({encode(Op::StoreVariantElement, kV, kV, 1), kL}),
              "instruction 0 (StoreVariantElement): names slot 0, which is Long and not Variant");
    EXPECT_EQ(of({encode(Op::ReDim, kLongs, 1, 2), arguments(kL, kL2), arguments(kL, kL2)}), "");
    EXPECT_EQ(of({encode(Op::ReDim, kLongs, 1, 2), arguments(kL, kL2), arguments(kL, kD)}),
              "instruction 0 (ReDim): names slot 2, which is Double and not Long");
    const auto variant = [](std::uint32_t type) {
        return of({encode(Op::ReDimVariant, kV, 0, 1), type, arguments(kL, kL2)});
    };
    EXPECT_EQ(variant(pack({BaseType::Integer})), "");
    EXPECT_EQ(variant(pack(object(2))), "");
    for (const auto type :
         {kNothing, record(0), arrayOf(kLong), object(3), SlotType{BaseType::Long, TypeForm::Value, 1}})
        EXPECT_EQ(variant(pack(type)), "instruction 0 (ReDimVariant): has an unknown type of elements");
    EXPECT_EQ(of({encode(Op::NewArray, kPoints), 1}), "");
    EXPECT_EQ(of({encode(Op::NewArray, kLongs), 1}),
              "instruction 0 (NewArray): assigns Array of Record 0 to Array of Long");
    EXPECT_EQ(of({encode(Op::NewArray, kLongs), 3}), "instruction 0 (NewArray): names array 3, which does not exist");
}

TEST(VerifyCode, RefusesElementsOfOtherClasses) {
    EXPECT_EQ(of({encode(Op::LoadObjectAt, kO, kShapes, kL)}), "");
    EXPECT_EQ(of({encode(Op::LoadObjectFlat, kShape, kObjects, kL)}),
              "instruction 0 (LoadObjectFlat): assigns Object to Object of class Shape");
    EXPECT_EQ(of({encode(Op::StoreObjectAt, kCircle, kObjects, kL)}), "");
    EXPECT_EQ(of({encode(Op::StoreObjectFlat, kO, kShapes, kL)}),
              "instruction 0 (StoreObjectFlat): assigns Object to Object of class Shape");
}

TEST(VerifyCode, RefusesReferencesToOtherTypes) {
    EXPECT_EQ(of({encode(Op::RefAt, kRefLong, kIntegers, kL)}), "");
    EXPECT_EQ(of({encode(Op::RefAt, kRefByte, kBytes, kL)}),
              "instruction 0 (RefAt): refers to an element of Array of Byte as Reference to Byte");
    EXPECT_EQ(of({encode(Op::RefFlat, kRefLong, kBytes, kL)}),
              "instruction 0 (RefFlat): refers to an element of Array of Byte as Reference to Long");
    EXPECT_EQ(of({encode(Op::RefAt, kRefInteger, kIntegers, kL)}),
              "instruction 0 (RefAt): refers to an element of Array of Integer as Reference to Integer");
    EXPECT_EQ(of({encode(Op::RefFlat, kRefObject, kShapes, kL)}),
              "instruction 0 (RefFlat): refers to an element of Array of Object of class Shape as Reference to Object");
    EXPECT_EQ(of({encode(Op::RefAt, kRefPoint, kPoints, kL)}), "");
    const auto toSlot = [](std::uint32_t a, std::uint32_t slot) { return of({encodeWide(Op::RefSlot, a, slot)}); };
    for (const auto& [reference, slot] : {std::pair{kRefLong, kWide},
                                          {kRefInteger, kL},
                                          {kRefVariant, kV},
                                          {kRefLongs, kLongs},
                                          {kRefPoint, kPoint},
                                          {kRefPoint, kLine},
                                          {kRefLine, kLine},
                                          {kRefInteger, kPoint},
                                          {kRefShape, kShape}})
        EXPECT_EQ(toSlot(reference, slot), "") << reference << " " << slot;
    EXPECT_EQ(toSlot(kRefPoint, kLine + 5), "");
    EXPECT_EQ(toSlot(kRefPoint, kLine + 1), "instruction 0 (RefSlot): refers to Text as Reference to Record 0");
    EXPECT_EQ(toSlot(kRefLine, kPoint), "instruction 0 (RefSlot): refers to Long as Reference to Record 1");
    EXPECT_EQ(toSlot(kRefObject, kShape),
              "instruction 0 (RefSlot): refers to Object of class Shape as Reference to Object");
    EXPECT_EQ(toSlot(kRefLong, kRefLong), "instruction 0 (RefSlot): refers to Reference to Long as Reference to Long");
    EXPECT_EQ(toSlot(kRefLong, kLongs), "instruction 0 (RefSlot): refers to Array of Long as Reference to Long");
    EXPECT_EQ(toSlot(kRefLongs, kL), "instruction 0 (RefSlot): refers to Long as Reference to Array of Long");
    EXPECT_EQ(toSlot(kRefLongs, kIntegers),
              "instruction 0 (RefSlot): refers to Array of Integer as Reference to Array of Long");
    EXPECT_EQ(toSlot(kRefVariant, kV + 1),
              "instruction 0 (RefSlot): refers to the second slot of a pair as Reference to Variant");
    EXPECT_EQ(toSlot(kRefLong, kSlots), "instruction 0 (RefSlot): refers to None as Reference to Long");
    EXPECT_EQ(of({encode(Op::RefGlobal, kRefPoint), 3}), "");
    EXPECT_EQ(of({encode(Op::RefGlobal, kRefLong), 1}),
              "instruction 0 (RefGlobal): refers to Variant as Reference to Long");
    EXPECT_EQ(of({encode(Op::RefPart, kRefPoint, kRefLine), 5}), "");
    EXPECT_EQ(of({encode(Op::RefPart, kRefLong, kRefLine), 1}),
              "instruction 0 (RefPart): refers to Text as Reference to Long");
    EXPECT_EQ(of({encode(Op::RefPart, kRefLong, kRefLine), 11}),
              "instruction 0 (RefPart): refers to None as Reference to Long");
    EXPECT_EQ(of({encode(Op::RefPart, kRefLong, kRefLong), 0}),
              "instruction 0 (RefPart): has Reference to Long as operand B, which is no record");
}

TEST(VerifyCode, RefusesFieldsOfUnknownObjects) {
    EXPECT_EQ(of({encode(Op::RefField, kRefLong, kShape), 0}), "");
    EXPECT_EQ(of({encode(Op::RefField, kRefPoint, kShape), 3}), "");
    EXPECT_EQ(of({encode(Op::RefField, kRefLong, kO), 0}),
              "instruction 0 (RefField): has an object of any class as operand B");
    EXPECT_EQ(of({encode(Op::RefField, kRefLong, kShape), 99}),
              "instruction 0 (RefField): refers to None as Reference to Long");
    EXPECT_EQ(of({encode(Op::RefField, kRefShape, kCircle), 0}),
              "instruction 0 (RefField): refers to a field that is WithEvents");
    EXPECT_EQ(of({encode(Op::LoadField, kV, kShape, 1)}), "");
    EXPECT_EQ(of({encode(Op::LoadField, kL, kShape, 3)}), ""); // of a record
    EXPECT_EQ(of({encode(Op::LoadField, kL, kO, 0)}),
              "instruction 0 (LoadField): has an object of any class as operand B");
    EXPECT_EQ(of({encode(Op::LoadField, kL, kShape, 99)}),
              "instruction 0 (LoadField): reads a slot that does not exist");
    EXPECT_EQ(of({encode(Op::StoreField, kT, kShape, 0)}), "instruction 0 (StoreField): assigns Text to Long");
    EXPECT_EQ(of({encode(Op::StoreField, kShape, kCircle, 0)}),
              "instruction 0 (StoreField): assigns to a field that is WithEvents");
    EXPECT_EQ(of({encode(Op::SetSource, kShape, kCircle, 0)}), "");
    EXPECT_EQ(of({encode(Op::SetSource, kO, kCircle, 0)}),
              "instruction 0 (SetSource): assigns Object to Object of class Shape");
    EXPECT_EQ(of({encode(Op::LoadGlobal, kTexts), 14 + 1}), "");
    EXPECT_EQ(of({encode(Op::StoreGlobal, kO), 14}),
              "instruction 0 (StoreGlobal): assigns Object to Object of class Shape");
    EXPECT_EQ(of({encode(Op::LoadGlobal, kL), 99}), "instruction 0 (LoadGlobal): reads a slot that does not exist");
}

TEST(VerifyCode, RefusesTheWrongFieldOfARecord) {
    EXPECT_EQ(of({encode(Op::LoadLongRef, kL, kRefPoint, 0)}), "");
    EXPECT_EQ(of({encode(Op::LoadLongRef, kL, kRefByte, 0)}), "");
    EXPECT_EQ(of({encode(Op::LoadTextRef, kT, kRefLine, 6)}), "");
    EXPECT_EQ(of({encode(Op::LoadArrayRef, kLongs, kRefPoint, 4)}), "");
    EXPECT_EQ(of({encode(Op::LoadArrayRef, kLongs, kRefLongs, 0)}), "");
    EXPECT_EQ(of({encode(Op::StoreVariantRef, kV, kRefPoint, 2)}), "");
    EXPECT_EQ(of({encode(Op::StoreVariantRef, kV, kRefPoint, 3)}),
              "instruction 0 (StoreVariantRef): assigns Variant to the second slot of a pair");
    EXPECT_EQ(of({encode(Op::LoadTextRef, kT, kRefPoint, 0)}), "instruction 0 (LoadTextRef): assigns Long to Text");
    EXPECT_EQ(of({encode(Op::StoreTextRef, kT, kRefLong, 0)}), "instruction 0 (StoreTextRef): assigns Text to Long");
    EXPECT_EQ(of({encode(Op::LoadLongRef, kL, kRefLong, 1)}),
              "instruction 0 (LoadLongRef): has a slot of a record that Reference to Long does not refer to");
    EXPECT_EQ(of({encode(Op::LoadLongRef, kL, kRefPoint, 200)}),
              "instruction 0 (LoadLongRef): reads a slot that does not exist");
    EXPECT_EQ(of({encode(Op::LoadObjectRef, kO, kRefShape, 0)}), "");
    EXPECT_EQ(of({encode(Op::StoreObjectRef, kO, kRefShape, 0)}),
              "instruction 0 (StoreObjectRef): assigns Object to Object of class Shape");
    EXPECT_EQ(of({encode(Op::CopyRecord, kRefPoint, kRefPoint)}), "");
    EXPECT_EQ(of({encode(Op::CopyRecord, kRefPoint, kRefLine)}),
              "instruction 0 (CopyRecord): assigns Reference to Record 1 to Reference to Record 0");
    EXPECT_EQ(of({encode(Op::CopyRecord, kRefLong, kRefLong)}),
              "instruction 0 (CopyRecord): has Reference to Long as operand A, which is no record");
    EXPECT_EQ(of({encode(Op::PrepareRecord, kRefText)}),
              "instruction 0 (PrepareRecord): has Reference to Text as operand A, which is no record");
}

/// The fields of an object are reached without a check, so a slot never holds one of another class.
TEST(VerifyCode, KeepsObjectsOfOtherClassesOut) {
    for (const auto op : {Op::NewObject, Op::NeedObject, Op::CastObject}) {
        const std::string name(image::infoOf(op).name);
        const auto b = op == Op::CastObject ? std::uint32_t(kO) : 0;
        EXPECT_EQ(of({encode(op, kShape, b), 1}), "");
        EXPECT_EQ(of({encode(op, kO, b), 1}), "");
        EXPECT_EQ(of({encode(op, kShape, b), 2}),
                  "instruction 0 (" + name + "): assigns Object of class Circle to Object of class Shape");
        for (const std::uint32_t number : {0u, 3u})
            EXPECT_EQ(of({encode(op, kO, b), number}),
                      "instruction 0 (" + name + "): names class " + std::to_string(number) + ", which does not exist");
    }
    EXPECT_EQ(of({encode(Op::CheckInterface, kO, kO), 1}), "");
    EXPECT_EQ(of({encode(Op::CheckInterface, kShape, kO), 1}),
              "instruction 0 (CheckInterface): assigns an object that implements Shape to Object of class Shape");
    EXPECT_EQ(of({encode(Op::IsOfClass, kL, kO), 3}), "instruction 0 (IsOfClass): names class 3, which does not exist");
    const auto any = [](std::vector<std::uint32_t> words) {
        EXPECT_EQ(of(words), "instruction 0 (" + std::string(image::kInstructions[words[0] & 0xFF].name) +
                                 "): assigns an object of any class to Object of class Shape");
        words[0] += (std::uint32_t(kO) - kShape) << 8;
        EXPECT_EQ(of(words), "");
    };
    any({encode(Op::NewLibraryObject, kShape), 0});
    any({encode(Op::CheckLibraryClass, kShape, kO), 0});
    any({encode(Op::VariantToObject, kShape, kV)});
    any({encode(Op::BeginEach, kShape, kV)});
    any({encode(Op::BeginEachArray, kShape, kLongs)});
}

TEST(VerifyCode, ComparesArgumentsWithParameters) {
    // Add: Long, Text, Variant, Object of class Shape, Array of Long; its result is the Long.
    const std::vector<std::uint32_t> good{passed(Pass::Number, kL), passed(Pass::Text, kT), passed(Pass::Variant, kV),
                                          passed(Pass::Object, kShape), passed(Pass::Take, kLongs)};
    const auto call = [&](std::size_t index, std::uint32_t argument, std::uint32_t result = kL) {
        auto all = good;
        if (index < all.size()) all[index] = argument;
        return of({encode(Op::Call, result, 0, 5), 1, arguments(all[0], all[1]), arguments(all[2], all[3]),
                   arguments(all[4], index == 5 ? argument : 0)});
    };
    EXPECT_EQ(call(9, 0), "");
    EXPECT_EQ(call(9, 0, image::kNoSlot), "");
    EXPECT_EQ(call(9, 0, kD), "instruction 0 (Call): assigns Long to Double");
    EXPECT_EQ(call(5, 1), "instruction 0 (Call): has half a word that must be 0");
    EXPECT_EQ(call(0, passed(Pass::Number, kWide)), "");
    EXPECT_EQ(call(0, passed(Pass::Number, kD)),
              "instruction 0 (Call): passes argument 0, slot 2, which is Double, as Number to Long");
    EXPECT_EQ(call(0, passed(Pass::Take, kL)),
              "instruction 0 (Call): passes argument 0, slot 0, which is Long, as Take to Long");
    EXPECT_EQ(call(0, passed(Pass::Number, kSlots)),
              "instruction 0 (Call): passes argument 0, slot 301, which does not exist");
    EXPECT_EQ(call(1, passed(Pass::Take, kT)), "");
    EXPECT_EQ(call(1, passed(Pass::Number, kT)),
              "instruction 0 (Call): passes argument 1, slot 4, which is Text, as Number to Text");
    EXPECT_EQ(call(2, passed(Pass::TakePair, kV)), "");
    EXPECT_EQ(call(2, passed(Pass::Take, kV)),
              "instruction 0 (Call): passes argument 2, slot 5, which is Variant, as Take to Variant");
    EXPECT_EQ(
        call(2, passed(Pass::Variant, kV + 1)),
        "instruction 0 (Call): passes argument 2, slot 6, which is the second slot of a pair, as Variant to Variant");
    EXPECT_EQ(call(3, passed(Pass::Object, kO)),
              "instruction 0 (Call): passes argument 3, slot 7, which is Object, as Object to Object of class Shape");
    EXPECT_EQ(call(3, passed(Pass::Take, kCircle)),
              "instruction 0 (Call): passes argument 3, slot 9, which is Object of "
              "class Circle, as Take to Object of class Shape");
    EXPECT_EQ(call(4, passed(Pass::Take, kIntegers)),
              "instruction 0 (Call): passes argument 4, slot 12, which is Array of Integer, as Take to Array of Long");
    EXPECT_EQ(of({encode(Op::Call, image::kNoSlot, 0, 1), 1, 0}),
              "instruction 0 (Call): passes 1 arguments for 5 parameters");
    EXPECT_EQ(of({encode(Op::Call, image::kNoSlot), 99}),
              "instruction 0 (Call): calls procedure 99, which does not exist");
    EXPECT_EQ(of({encode(Op::Call, kL), 0}), "instruction 0 (Call): stores a result, but there is none");
}

TEST(VerifyCode, ComparesReferencesWithParameters) {
    // Take: references to Long, Text, Array of Long and Record 0; an object of any class.
    const std::vector<std::uint32_t> good{passed(Pass::Address, kL), passed(Pass::Ref, kRefText),
                                          passed(Pass::Address, kLongs), passed(Pass::Address, kLine + 5),
                                          passed(Pass::Object, kShape)};
    const auto call = [&](std::size_t index, std::uint32_t argument) {
        auto all = good;
        all[index] = argument;
        return of(
            {encode(Op::Call, image::kNoSlot, 0, 5), 2, arguments(all[0], all[1]), arguments(all[2], all[3]), all[4]});
    };
    EXPECT_EQ(call(0, good[0]), "");
    EXPECT_EQ(call(0, passed(Pass::Ref, kRefLong)), "");
    EXPECT_EQ(call(0, passed(Pass::TakePair, kRefLong)), "");
    EXPECT_EQ(call(0, passed(Pass::Address, kWide)), "");
    EXPECT_EQ(call(0, passed(Pass::Address, kPoint)), "");
    EXPECT_EQ(call(0, passed(Pass::Ref, kRefInteger)), "instruction 0 (Call): passes argument 0, slot 22, which is "
                                                       "Reference to Integer, as Ref to Reference to Long");
    EXPECT_EQ(call(0, passed(Pass::Address, kD)),
              "instruction 0 (Call): passes argument 0, slot 2, which is Double, as Address to Reference to Long");
    EXPECT_EQ(call(0, passed(Pass::Address, kRefLong)), "instruction 0 (Call): passes argument 0, slot 20, which is "
                                                        "Reference to Long, as Address to Reference to Long");
    EXPECT_EQ(call(0, passed(Pass::Number, kL)),
              "instruction 0 (Call): passes argument 0, slot 0, which is Long, as Number to Reference to Long");
    EXPECT_EQ(call(2, passed(Pass::Ref, kRefLongs)), "");
    EXPECT_EQ(
        call(2, passed(Pass::Address, kL)),
        "instruction 0 (Call): passes argument 2, slot 0, which is Long, as Address to Reference to Array of Long");
    EXPECT_EQ(call(3, passed(Pass::Ref, kRefPoint)), "");
    EXPECT_EQ(call(3, passed(Pass::Address, kLine + 1)),
              "instruction 0 (Call): passes argument 3, slot 50, which is Text, as Address to Reference to Record 0");
    EXPECT_EQ(call(3, passed(Pass::Ref, kRefLine)),
              "instruction 0 (Call): passes argument 3, slot 40, which is Reference "
              "to Record 1, as Ref to Reference to Record 0");
    EXPECT_EQ(call(4, passed(Pass::Take, kO)), "");
}

TEST(VerifyCode, RefusesCallsOfWhatDoesNotExist) {
    const auto object = passed(Pass::Object, kShape), anyObject = passed(Pass::Object, kO),
               number = passed(Pass::Number, kL);
    EXPECT_EQ(of({encode(Op::CallMethod, kT, 0, 2), 3, arguments(object, number)}), "");
    EXPECT_EQ(of({encode(Op::CallMethod, image::kNoSlot, 0, 0), 0}),
              "instruction 0 (CallMethod): calls Module1.Main, which is no method");
    EXPECT_EQ(of({encode(Op::CallMethod, image::kNoSlot, 0, 5), 1, 0, 0, 0}),
              "instruction 0 (CallMethod): calls Module1.Add, which is no method");
    const auto member = [](std::uint32_t classNumber, std::uint32_t index) { return classNumber | index << 16; };
    EXPECT_EQ(of({encode(Op::CallInterface, kT, 0, 2), member(1, 0), arguments(anyObject, number)}), "");
    EXPECT_EQ(of({encode(Op::CallInterface, kL, 0, 2), member(1, 0), arguments(anyObject, number)}),
              "instruction 0 (CallInterface): assigns Text to Long");
    EXPECT_EQ(of({encode(Op::CallInterface, kT, 0, 2), member(1, 0), arguments(number, number)}),
              "instruction 0 (CallInterface): passes argument 0, slot 0, which is Long, as Number to Object");
    EXPECT_EQ(of({encode(Op::CallInterface, kT, 0, 2), member(1, 0), arguments(anyObject, anyObject)}),
              "instruction 0 (CallInterface): passes argument 1, slot 7, which is Object, as Object to Long");
    EXPECT_EQ(of({encode(Op::CallInterface, kT, 0, 2), member(1, 1), arguments(anyObject, number)}),
              "instruction 0 (CallInterface): calls member 1 of Shape, which is no public method");
    for (const auto& [classNumber, index] : {std::pair{1u, 2u}, {0u, 0u}, {3u, 0u}}) {
        const auto text = of({encode(Op::CallInterface, kT), member(classNumber, index)});
        EXPECT_TRUE(text.ends_with(", which does not exist")) << text;
    }
    EXPECT_EQ(of({encode(Op::CallNative, kT, 0, 2), 0, arguments(passed(Pass::Text, kT), number)}), "");
    EXPECT_EQ(of({encode(Op::CallNative, kT, 0, 2), 0, arguments(number, number)}),
              "instruction 0 (CallNative): passes argument 0, slot 0, which is Long, as Number to Text");
    EXPECT_EQ(of({encode(Op::CallNative, kT), 1}), "instruction 0 (CallNative): stores a result, but there is none");
    EXPECT_EQ(of({encode(Op::CallNative, kT), 2}),
              "instruction 0 (CallNative): calls function 2 of the runtime, which does not exist");
    const auto byReference = passed(Pass::Address, kT);
    EXPECT_EQ(of({encode(Op::RaiseEvent, 0, kShape, 2), 0, arguments(number, byReference)}), "");
    EXPECT_EQ(of({encode(Op::RaiseEvent, 0, kO, 2), 0, arguments(number, byReference)}),
              "instruction 0 (RaiseEvent): has an object of any class as operand B");
    EXPECT_EQ(of({encode(Op::RaiseEvent, 0, kCircle, 0), 0}),
              "instruction 0 (RaiseEvent): raises event 0, which does not exist");
    EXPECT_EQ(of({encode(Op::RaiseEvent, 0, kShape, 1), 0, number}),
              "instruction 0 (RaiseEvent): passes 1 arguments for 2 parameters");
}

TEST(VerifyCode, RefusesCallsByNameWithoutANameAndType) {
    EXPECT_EQ(of({encode(Op::CallByName, kV, kV, 2), arguments(kV, kV)}), "");
    EXPECT_EQ(of({encode(Op::CallByName, kV, kV, 1), kV}), "instruction 0 (CallByName): has no name or type of call");
    EXPECT_EQ(of({encode(Op::CallByName, kV, kV, 2), arguments(kV, kL)}),
              "instruction 0 (CallByName): names slot 0, which is Long and not Variant");
}

TEST(VerifyCode, AcceptsErrorValuesInTwoConversions) {
    const auto flagged = [](image::BaseType type) { return std::uint32_t(type) | image::kTakesErrors; };
    EXPECT_EQ(of({encode(Op::VariantToLong, kL, kV, flagged(image::BaseType::Integer))}), "");
    EXPECT_EQ(of({encode(Op::VariantToLong, kL, kV, flagged(image::BaseType::Double))}),
              "instruction 0 (VariantToLong): has 134 as the type in operand C");
    EXPECT_EQ(of({encode(Op::LongToVariant, kV, kL, flagged(image::BaseType::Long))}),
              "instruction 0 (LongToVariant): has 132 as the type in operand C");
}

TEST(VerifyCode, RefusesWrongLateCalls) {
    const auto late = [](std::uint32_t name, std::uint32_t use, std::uint32_t named, std::uint32_t count,
                         std::vector<std::uint32_t> rest, std::uint32_t result = kV) {
        rest.insert(rest.begin(), {encode(Op::CallLate, result, kV, count), name, use | named << 8});
        return of(std::move(rest));
    };
    EXPECT_EQ(late(0, 0, 0, 0, {}), "");
    EXPECT_EQ(late(image::kNone, 1, 1, 2, {0, arguments(kV, kV)}, image::kNoSlot), "");
    EXPECT_EQ(late(0, 0, 0, 0, {}, kL), "instruction 0 (CallLate): operand A names slot 0, which is Long");
    EXPECT_EQ(late(99, 0, 0, 0, {}), "instruction 0 (CallLate): names text 99, which does not exist");
    EXPECT_EQ(late(0, 4, 0, 0, {}), "instruction 0 (CallLate): uses a member in an unknown way");
    EXPECT_EQ(late(0, std::uint32_t(LateUse::Set), 0, 0, {}), "instruction 0 (CallLate): assigns no value");
    EXPECT_EQ(late(0, 0, 1, 0, {0}), "instruction 0 (CallLate): has more names than arguments");
    EXPECT_EQ(late(0, std::uint32_t(LateUse::Let), 1, 1, {0, kV}),
              "instruction 0 (CallLate): has more names than arguments");
    EXPECT_EQ(late(0, 0, 1, 1, {99, kV}), "instruction 0 (CallLate): names text 99, which does not exist");
    EXPECT_EQ(late(0, 0, 0, 1, {kL}), "instruction 0 (CallLate): names slot 0, which is Long and not Variant");
    EXPECT_EQ(late(0, 0, 0, 1, {arguments(kV, 1)}), "instruction 0 (CallLate): has half a word that must be 0");
}
