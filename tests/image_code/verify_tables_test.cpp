#include "tests/image_code/verify_world.h"
#include <bit>
#include <gmock/gmock.h>
#include <limits>
#include <utility>
#include <vector>

namespace {

using namespace code_parts;
using image::kNone;

/// What the verifier says after one change of a good program.
std::string after(const std::function<void(Program& program)>& change) {
    Program program;
    change(program);
    return program.problem();
}
std::string afterCode(const std::function<void(CodeImage& code)>& change) {
    return after([&](Program& program) { change(program.code); });
}

} // namespace

TEST(VerifyTables, AcceptAGoodProgram) {
    EXPECT_EQ(Program{}.problem(), "");
    EXPECT_FALSE(image::verify({}));
}

TEST(VerifyTables, RefuseImpossibleRecords) {
    EXPECT_EQ(afterCode([](auto& c) { c.records[0].fields[0].type = record(0); }),
              "record 0, field 0 is Record 0, which is not one of the records before it");
    EXPECT_EQ(afterCode([](auto& c) { c.records[0].fields[3] = {arrayOf(record(1))}; }),
              "record 0, field 3 is Array of Record 1, which is not one of the records before it");
    EXPECT_EQ(afterCode([](auto& c) { c.records[0].fields[0].type = referenceTo(kLong); }),
              "record 0, field 0 cannot be Reference to Long");
    EXPECT_EQ(afterCode([](auto& c) { c.records[0].fields[0].type = object(3); }),
              "record 0, field 0 cannot be Object of class class 3");
    EXPECT_EQ(afterCode([](auto& c) { c.records[0].fields[0].type = {BaseType::Half}; }),
              "record 0, field 0 cannot be the second slot of a pair");
    EXPECT_EQ(afterCode([](auto& c) { c.records[0].fields[0].fixedLength = 5; }),
              "record 0, field 0 cannot have the fixed length 5");
    EXPECT_EQ(afterCode([](auto& c) { c.records[0].fields[1].fixedLength = 65536; }),
              "record 0, field 1 cannot have the fixed length 65536");
    EXPECT_EQ(afterCode([](auto& c) { c.records[0].fields[3].array = 3; }),
              "record 0, field 3 cannot have the bounds of array 3");
    EXPECT_EQ(afterCode([](auto& c) { c.records[0].fields[3].array = 2; }),
              "record 0, field 3 cannot have the bounds of array 2");
    EXPECT_EQ(afterCode([](auto& c) { c.records.push_back({}); }), "record 2 has no fields");
}

TEST(VerifyTables, LimitTheDepthAndSizeOfRecords) {
    const auto nested = [](std::uint32_t depth, std::size_t fields) {
        return afterCode([&](auto& c) {
            c.records.resize(2);
            c.records.push_back({{{kLong}}});
            while (c.records.size() < 2 + depth)
                c.records.push_back(
                    {std::vector<image::RecordField>(fields, {record(std::uint32_t(c.records.size() - 1))})});
        });
    };
    EXPECT_EQ(nested(image::kDeepestRecord, 1), "");
    EXPECT_EQ(nested(image::kDeepestRecord + 1, 1), "record 34 contains records that are nested too deeply");
    EXPECT_EQ(nested(16, 2), "");
    EXPECT_EQ(nested(17, 2), "record 18 is too large");
    EXPECT_EQ(nested(32, 1000), "record 4 is too large");
}

TEST(VerifyTables, RefuseImpossibleArrays) {
    EXPECT_EQ(afterCode([](auto& c) { c.arrays[0].element = arrayOf(kLong); }),
              "array 0 cannot have elements of type Array of Long");
    EXPECT_EQ(afterCode([](auto& c) { c.arrays[1].element = record(2); }),
              "array 1 cannot have elements of type Record 2");
    EXPECT_EQ(afterCode([](auto& c) { c.arrays[0].fixedLength = 3; }),
              "array 0 cannot have elements of the fixed length 3");
    EXPECT_EQ(afterCode([](auto& c) { c.arrays[0].bounds.clear(); }), "array 0 has 0 dimensions");
    EXPECT_EQ(afterCode([](auto& c) { c.arrays[0].bounds.assign(61, {0, 0}); }), "array 0 has 61 dimensions");
    EXPECT_EQ(afterCode([](auto& c) { c.arrays[0].bounds = {{1, 0}}; }), ""); // without elements
    EXPECT_EQ(afterCode([](auto& c) { c.arrays[0].bounds = {{2, 0}}; }), "array 0 has the bounds 2 To 0");
    EXPECT_EQ(afterCode([](auto& c) { c.arrays[0].bounds = {{INT32_MIN, INT32_MAX}}; }), "array 0 is too large");
    EXPECT_EQ(afterCode([](auto& c) {
                  c.arrays[0].bounds.assign(60, {INT32_MIN, INT32_MAX});
              }),
              "array 0 is too large");
    EXPECT_EQ(afterCode([](auto& c) { c.arrays[0].bounds = {{1, 1 << 27}}; }), "");
    EXPECT_EQ(afterCode([](auto& c) { c.arrays[0].bounds = {{0, 1 << 27}}; }), "array 0 is too large");
}

TEST(VerifyTables, RefuseImpossibleGlobals) {
    EXPECT_EQ(afterCode([](auto& c) { c.globals[0].type = {BaseType::Integer}; }),
              "global variable 0 cannot be Integer");
    EXPECT_EQ(afterCode([](auto& c) { c.globals[0].type = referenceTo(kLong); }),
              "global variable 0 cannot be Reference to Long");
    EXPECT_EQ(afterCode([](auto& c) { c.globals[0].type = kNothing; }), "global variable 0 cannot be None");
    EXPECT_EQ(afterCode([](auto& c) {
                  c.globals[0].type = {BaseType::Text, TypeForm::Value, 1};
              }),
              "global variable 0 cannot be Text");
    EXPECT_EQ(afterCode([](auto& c) {
                  c.records.push_back({std::vector<image::RecordField>(60000, {kLong})});
                  c.globals.insert(c.globals.end(), 300, {record(2)});
              }),
              "the modules have too many variables");
}

TEST(VerifyTables, RefuseImpossibleProcedures) {
    EXPECT_EQ(afterCode([](auto& c) { c.procedures[0].name = 999; }), "procedure Module1.? has no name");
    EXPECT_EQ(afterCode([](auto& c) { c.procedures[0].module = 3; }), "procedure Main belongs to no module");
    EXPECT_EQ(afterCode([](auto& c) { c.procedures[0].variables[0].type = {BaseType::Byte}; }),
              "procedure Module1.Main has variable 0, which cannot be Byte");
    EXPECT_EQ(
        afterCode([](auto& c) { c.procedures[0].variables.insert(c.procedures[0].variables.end(), 8000, {kLong}); }),
        "procedure Module1.Main has too many variables");
    EXPECT_EQ(afterCode([](auto& c) { c.procedures[1].parameters = 7; }),
              "procedure Module1.Add has too many parameters");
    EXPECT_EQ(afterCode([](auto& c) {
                  c.procedures[1].variables.assign(256, {kLong});
                  c.procedures[1].parameters = 256;
              }),
              "procedure Module1.Add has too many parameters");
    EXPECT_EQ(afterCode([](auto& c) { c.procedures[1].variables[0].type = record(0); }),
              "procedure Module1.Add has parameter 0, which cannot be Record 0");
    for (const std::uint32_t slot : {7u, 3u, 256u, 9000u}) // beside the variables, the second of a pair
        EXPECT_EQ(afterCode([&](auto& c) { c.procedures[1].resultSlot = slot; }),
                  "procedure Module1.Add cannot have its result in slot " + std::to_string(slot));
    EXPECT_EQ(afterCode([](auto& c) { c.procedures[2].resultSlot = 0; }),
              "procedure Module1.Take cannot have its result in slot 0");
    EXPECT_EQ(afterCode([](auto& c) { c.procedures[0].numbers = 4; }),
              "procedure Module1.Main has constants that are missing");
    EXPECT_EQ(afterCode([](auto& c) { c.procedures[1].code = 0; }),
              "procedure Module1.Add does not begin where the one before ends");
    EXPECT_EQ(afterCode([](auto& c) { c.code.push_back(encode(Op::Return)); }),
              "the code does not end with the last procedure");
}

TEST(VerifyTables, RefuseImpossibleClasses) {
    EXPECT_EQ(afterCode([](auto& c) { c.classes[0].name = 999; }), "class 1 has no name");
    EXPECT_EQ(afterCode([](auto& c) { c.classes[0].module = 9; }), "class Shape belongs to no module");
    EXPECT_EQ(afterCode([](auto& c) { c.classes[0].fields[0].type = referenceTo(kLong); }),
              "class Shape has field 0, which cannot be Reference to Long");
    EXPECT_EQ(afterCode([](auto& c) { c.classes[0].fields.insert(c.classes[0].fields.end(), 65536, {kLong}); }),
              "class Shape has too many fields");
    EXPECT_EQ(afterCode([](auto& c) { c.classes[0].predeclared = 0; }),
              "class Shape has its object in the global slot 0, which is Long");
    EXPECT_EQ(afterCode([](auto& c) { c.classes[1].defaultMember = 999; }),
              "class Circle has a default member without a name");
}

TEST(VerifyTables, RefuseMembersThatAreNotWhatTheySay) {
    const auto member = [](auto change) { return afterCode([&](auto& c) { change(c.classes[0].members[0]); }); };
    EXPECT_EQ(member([](auto& m) { m.name = 999; }), "class Shape has member 0 without a name");
    EXPECT_EQ(member([](auto& m) { m.target = 99; }),
              "class Shape has procedure 99 as member Draw, which does not exist");
    EXPECT_EQ(member([](auto& m) { m.target = 0; }),
              "class Shape has Module1.Main as member Draw, which does not begin with an object of the class");
    EXPECT_EQ(member([](auto& m) { m.target = 4; }),
              "class Shape has Module1.Shape_Draw as member Draw, which does not begin with an object of the class");
    EXPECT_EQ(member([](auto& m) { m.parameters = {{BaseType::Double}}; }),
              "class Shape has Module1.Draw as member Draw, which has other parameters");
    EXPECT_EQ(member([](auto& m) { m.parameters[0].name = 999; }),
              "class Shape has member Draw with a parameter without a name");
    const auto byDefault = [&](BaseType type, std::uint64_t bits) {
        return member([&](auto& m) { m.parameters[0].byDefault = {type, bits}; });
    };
    const auto infinity = std::bit_cast<std::uint64_t>(std::numeric_limits<double>::infinity());
    const auto late = std::bit_cast<std::uint64_t>(2958466.0);
    EXPECT_EQ(byDefault(BaseType::Integer, 0xFFFF8000), "");
    EXPECT_EQ(byDefault(BaseType::Variant, 1), "");
    for (const auto& [type, bits] : std::vector<std::pair<BaseType, std::uint64_t>>{{BaseType::Boolean, 1},
                                                                                    {BaseType::Byte, 256},
                                                                                    {BaseType::Integer, 0x8000},
                                                                                    {BaseType::Single, infinity},
                                                                                    {BaseType::Double, infinity},
                                                                                    {BaseType::Date, late},
                                                                                    {BaseType::Text, 999},
                                                                                    {BaseType::Variant, 2},
                                                                                    {BaseType::Object, 0}})
        EXPECT_EQ(byDefault(type, bits), "class Shape has member Draw with a default value that does not exist");
    EXPECT_EQ(member([](auto& m) { m.result = BaseType::Record; }),
              "class Shape has Module1.Draw as member Draw, which has another result");
    EXPECT_EQ(member([](auto& m) { m.result = BaseType::None; }),
              "class Shape has Module1.Draw as member Draw, which has another result");
    EXPECT_EQ(member([](auto& m) { m.hasParamArray = true; }),
              "class Shape has Module1.Draw as member Draw, which does not end with an array of Variants");
    EXPECT_EQ(member([](auto& m) { m = {m.name, image::MemberUse::Let, true, 7, {}, BaseType::None}; }),
              "class Shape has Module1.Class_Initialize as member Draw, which takes no value");
    const auto field = [](auto change) { return afterCode([&](auto& c) { change(c.classes[0].members[1]); }); };
    for (const std::uint32_t slot : {2u, 99u}) // the second of a pair, beside the fields
        EXPECT_EQ(field([&](auto& m) { m.target = slot; }),
                  "class Shape has member Size for slot " + std::to_string(slot) + ", which is no field");
    EXPECT_EQ(field([](auto& m) { m.target = 3; }), "class Shape has member Size for slot 3, which is no field");
    EXPECT_EQ(field([](auto& m) { m.target = 1; }), "class Shape has member Size, which does not match its field");
    EXPECT_EQ(field([](auto& m) { m.parameters = {{BaseType::Long}}; }),
              "class Shape has member Size, which does not match its field");
}

TEST(VerifyTables, RefuseProceduresThatTheRuntimeCannotCall) {
    EXPECT_EQ(after([](auto& p) { p.code.classes[0].initialize = p.draw; }),
              "class Shape has Module1.Draw as initialize, which has further parameters");
    EXPECT_EQ(after([](auto& p) { p.code.classes[1].terminate = p.next; }),
              "class Circle has Module1.NewEnum as terminate, which has a result");
    EXPECT_EQ(after([](auto& p) { p.code.classes[1].prepare = p.code.classes[0].initialize; }),
              "class Circle has Module1.Class_Initialize as prepare, which does not begin with an object of the class");
    EXPECT_EQ(after([](auto& p) { p.code.classes[1].enumerator = p.drawCircle; }),
              "class Circle has Module1.Shape_Draw as enumerator, which has further parameters");
    EXPECT_EQ(after([](auto& p) { p.code.classes[0].enumerator = p.code.classes[0].initialize; }),
              "class Shape has Module1.Class_Initialize as enumerator, which does not return an object of any class");
    EXPECT_EQ(after([](auto& p) { p.code.modules[0].prepare = p.add; }),
              "module Module1 has Module1.Add as prepare, which is no Sub without parameters");
    for (const auto start : {1u, 99u})
        EXPECT_EQ(afterCode([&](auto& c) { c.start = start; }),
                  "the program starts with " + std::string(start == 1 ? "Module1.Add" : "procedure 99") +
                      ", which is no Sub without parameters of a standard module");
    EXPECT_EQ(afterCode([](auto& c) { c.procedures[0].module = 1; }),
              "the program starts with Shape.Main, which is no Sub without parameters of a standard module");
    EXPECT_EQ(afterCode([](auto& c) { c.modules[0].file = 999; }), "module 0 has no name or file");
}

TEST(VerifyTables, RefuseWrongImplementations) {
    const auto implementation = [](auto change) {
        return after([&](auto& p) { change(p, p.code.classes[1].implementations[0]); });
    };
    for (const std::uint32_t number : {0u, 2u, 3u}) {
        const auto text = implementation([&](auto&, auto& i) { i.interface = number; });
        EXPECT_TRUE(text.ends_with(", which is no other class")) << text;
    }
    EXPECT_EQ(implementation([](auto&, auto& i) { i.procedures.pop_back(); }),
              "class Circle does not implement every member of Shape");
    EXPECT_EQ(implementation([](auto&, auto& i) { i.procedures[0] = kNone; }),
              "class Circle has procedure 4294967295 as implementation of Draw, which does not exist");
    EXPECT_EQ(
        implementation([](auto& p, auto& i) { i.procedures[0] = p.draw; }),
        "class Circle has Module1.Draw as implementation of Draw, which does not begin with an object of the class");
    EXPECT_EQ(implementation([](auto& p, auto& i) { i.procedures[0] = p.handler; }),
              "class Circle has Module1.shape_Moved as implementation of Draw, which has other parameters or another "
              "result");
    EXPECT_EQ(implementation([](auto& p, auto& i) { i.procedures[1] = p.drawCircle; }),
              "class Circle has Module1.Shape_Draw as implementation of Size, which is no method");
    EXPECT_EQ(implementation([](auto& p, auto& i) {
                  i.procedures[0] = kNone;
                  p.code.classes[0].members[0].isPublic = false;
              }),
              "");
}

TEST(VerifyTables, RefuseWrongEventsAndHandlers) {
    EXPECT_EQ(afterCode([](auto& c) { c.classes[0].events[0].name = 999; }), "class Shape has event 0 without a name");
    EXPECT_EQ(afterCode([](auto& c) { c.classes[0].events[0].parameters[0] = record(0); }),
              "class Shape has event Moved with a parameter that cannot be Record 0");
    EXPECT_EQ(afterCode([](auto& c) { c.classes[0].events[0].parameters.assign(256, kLong); }),
              "class Shape has event Moved with too many parameters");
    const auto sink = [](auto change) { return after([&](auto& p) { change(p, p.code.classes[1].sinks[0]); }); };
    EXPECT_EQ(sink([](auto&, auto& s) { s.source = 0; }),
              "class Circle handles events of class 0, which does not exist");
    EXPECT_EQ(sink([](auto&, auto& s) { s.field = 1; }),
              "class Circle handles events of Shape in slot 1, which is Text");
    EXPECT_EQ(sink([](auto& p, auto&) { p.code.classes[1].fields[0].type = kObject; }),
              "class Circle handles events of Shape in slot 0, which is Object");
    EXPECT_EQ(sink([](auto&, auto& s) { s.handlers[0].event = 1; }),
              "class Circle handles event 1 of Shape, which does not exist");
    EXPECT_EQ(sink([](auto& p, auto& s) { s.handlers[0].procedure = p.drawCircle; }),
              "class Circle has Module1.Shape_Draw as handler of Moved, which has other parameters");
    EXPECT_EQ(sink([](auto& p, auto&) { p.code.procedures[p.handler].resultSlot = 1; }),
              "class Circle has Module1.shape_Moved as handler of Moved, which has a result");
}

TEST(VerifyTables, RefuseImportsThatTheRuntimeLacks) {
    EXPECT_EQ(afterCode([](auto& c) { c.imports[0].name = 999; }), "import 0 has no name");
    for (const auto type : {object(1), record(0), SlotType{BaseType::Byte}, kNothing})
        EXPECT_EQ(afterCode([&](auto& c) { c.imports[0].parameters[0] = type; }),
                  "function Left has a type that functions of the runtime cannot have");
    EXPECT_EQ(afterCode([](auto& c) { c.imports[0].parameters[0] = referenceTo(object(99)); }),
              "function Left has a type that functions of the runtime cannot have");
    for (const auto type : {referenceTo(object(1)), referenceTo(record(0))})
        EXPECT_THAT(afterCode([&](auto& c) { c.imports[0].parameters[0] = type; }),
                    testing::Not(testing::HasSubstr("functions of the runtime cannot have")));
    const auto withParameters = [](std::size_t count) {
        return afterCode([&](auto& c) {
            c.imports.push_back({c.imports[0].name, {}, std::vector<image::SlotType>(count, kLong)});
        });
    };
    EXPECT_EQ(withParameters(255), "");
    EXPECT_THAT(withParameters(256), testing::EndsWith(" has a type that functions of the runtime cannot have"));
    EXPECT_EQ(afterCode([](auto& c) { c.imports[0].result = referenceTo(kText); }),
              "function Left has a type that functions of the runtime cannot have");
    const image::Signature left{kText, {kText, kLong}}, other{kText, {kText, kDouble}}, beep{};
    const auto with = [&](const image::Signature* found) {
        const auto problem =
            image::verify(Program{}.code, [&](std::string_view name) { return name == "Beep" ? &beep : found; });
        return problem ? problem->text : "";
    };
    EXPECT_EQ(with(&left), "");
    EXPECT_EQ(with(&other), "function Left has other types in this runtime");
    EXPECT_EQ(with(&beep), "function Left has other types in this runtime");
    EXPECT_EQ(with(nullptr), "function Left is not part of this runtime");
}

TEST(VerifyTables, ShowNamesWithoutControlCharacters) {
    EXPECT_EQ(after([](auto& p) {
                  p.code.classes[0].name = p.text("a\x1B[31m\n\"\xE2\x80\xAE"), p.code.classes[0].module = 9;
              }),
              "class a\\u001B[31m\\n\"\\u202E belongs to no module");
    EXPECT_EQ(
        after([](auto& p) { p.code.classes[0].name = p.text(std::string(70, 'x')), p.code.classes[0].module = 9; }),
        "class " + std::string(60, 'x') + "... belongs to no module");
}
