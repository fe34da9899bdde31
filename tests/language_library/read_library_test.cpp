#include "Components/Language/library.h"
#include "tests/language_library/lookup.h"
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <stdexcept>

namespace {

using language::GroupKind;
using language::Member;
using language::MemberKind;
using language::readLibrary;

Member memberFrom(const std::string& line) {
    return readLibrary("Library L\nModule M\n" + line).groups.at(0).members.at(0);
}

std::string errorOf(const std::string& text) {
    try {
        (void)readLibrary(text);
    } catch (const std::invalid_argument& error) { return error.what(); }
    return "";
}

TEST(ReadLibrary, ReadsNamesAndHelp) {
    const auto library =
        readLibrary("Library L ' all of it\n' a comment\n\nModule M ' some of it\n  Sub S ' one of it\n");
    EXPECT_EQ(library.name, "L");
    EXPECT_EQ(library.help, "all of it");
    ASSERT_EQ(library.groups.size(), 1U);
    EXPECT_EQ(library.groups[0].help, "some of it");
    EXPECT_EQ(library.groups[0].members.at(0).help, "one of it");
}

TEST(ReadLibrary, ReadsTheKindsOfGroups) {
    const auto library =
        readLibrary("Library L\nModule M\nClass C creatable open\nClass G global\nEnum E\n  one = 1\n");
    EXPECT_EQ(lookup::group(library, "M")->kind, GroupKind::Module);
    EXPECT_TRUE(lookup::group(library, "C")->creatable);
    EXPECT_TRUE(lookup::group(library, "C")->open);
    EXPECT_TRUE(lookup::group(library, "G")->global);
    EXPECT_EQ(lookup::group(library, "E")->kind, GroupKind::Enum);
    const auto& one = lookup::group(library, "E")->members.at(0);
    EXPECT_EQ(one.kind, MemberKind::Constant);
    EXPECT_EQ(one.type, "Long");
    EXPECT_EQ(one.value, "1");
}

TEST(ReadLibrary, ReadsParameters) {
    const auto member =
        memberFrom("Function F$(A, ByRef B() As Long, Optional C As VBA.X = -1, ParamArray D()) As String() pure");
    EXPECT_EQ(member.name, "F$");
    EXPECT_EQ(member.type, "String");
    EXPECT_TRUE(member.isArray);
    EXPECT_TRUE(member.pure);
    ASSERT_EQ(member.parameters.size(), 4U);
    EXPECT_EQ(member.parameters[0].type, "");
    EXPECT_TRUE(member.parameters[1].byRef);
    EXPECT_TRUE(member.parameters[1].isArray);
    EXPECT_EQ(member.parameters[2].type, "VBA.X");
    EXPECT_TRUE(member.parameters[2].optional);
    EXPECT_EQ(member.parameters[2].defaultValue, "-1");
    EXPECT_TRUE(member.parameters[3].paramArray);
    EXPECT_TRUE(member.parameters[3].isArray);
}

TEST(ReadLibrary, ReadsAttributes) {
    EXPECT_TRUE(memberFrom("Property P As Long default").isDefault);
    EXPECT_FALSE(memberFrom("Property P As Long readonly").writable);
    EXPECT_FALSE(memberFrom("Property P As Long writeonly").readable);
    EXPECT_TRUE(memberFrom("Function [_NewEnum]() As Unknown enumerates hidden").enumerates);
    EXPECT_TRUE(memberFrom("Function [_NewEnum]() As Unknown enumerates hidden").hidden);
    const auto absent = memberFrom("Sub S absent \"Don't; it's gone\" ' help");
    EXPECT_FALSE(absent.onDevices);
    EXPECT_EQ(absent.instead, "Don't; it's gone");
    EXPECT_EQ(absent.help, "help");
}

TEST(ReadLibrary, ReadsValuesOfConstants) {
    EXPECT_EQ(memberFrom("Const A As String = Chr(13) & Chr(10) ' help").value, "Chr(13) & Chr(10)");
    EXPECT_EQ(memberFrom("Const A As Long = &H8000& hidden").value, "&H8000&");
    EXPECT_EQ(memberFrom("Const A As String = \"a ' b\"").value, "\"a ' b\"");
    EXPECT_EQ(memberFrom("Const A As Long = -2147221504").value, "-2147221504");
}

TEST(ReadLibrary, LetsHandlersAssignToParametersOfEventsUnlessTheyAreByVal) {
    const auto event = memberFrom("Event E(Cancel As Integer, ByVal Node As Node)");
    EXPECT_EQ(event.kind, MemberKind::Event);
    EXPECT_TRUE(event.parameters.at(0).byRef);
    EXPECT_FALSE(event.parameters.at(1).byRef);
    EXPECT_EQ(event.parameters[1].name, "Node");
    EXPECT_FALSE(memberFrom("Sub S(A)").parameters.at(0).byRef);
}

TEST(ReadLibrary, CopiesSharedMembers) {
    const auto library = readLibrary(
        "Library L\nShared Placed\n  Property Left As Single\nClass A\n  Include Placed\nClass B\n  Include Placed");
    ASSERT_EQ(library.groups.size(), 2U);
    EXPECT_TRUE(lookup::member(library.groups[0], "Left"));
    EXPECT_TRUE(lookup::member(library.groups[1], "Left"));
}

TEST(ReadLibrary, ReadsAbsentGroups) {
    const auto library = readLibrary("Library L\nClass C open absent \"Use D\"\n Sub B");
    EXPECT_FALSE(library.groups.at(0).onDevices);
    EXPECT_EQ(library.groups[0].instead, "Use D");
    EXPECT_TRUE(library.groups[0].members.at(0).onDevices);
}

TEST(ReadLibrary, NamesTheLineAndTheReason) {
    EXPECT_EQ(errorOf("Library L\nModule M\n  Sub S puer"), "line 3: unknown word:   Sub S puer");
    EXPECT_EQ(errorOf("Module M"), "line 1: expected Library and its name: Module M");
    EXPECT_EQ(errorOf("Library L\nSub S"), "line 2: expected Module, Class, Enum or Shared first: Sub S");
}

TEST(ReadLibrary, RefusesWhatItDoesNotUnderstand) {
    for (const auto* line :
         {"Sub", "Sub S(", "Sub S(A", "Sub S(A,)", "Sub S(A As)", "Sub S(A =)", "Const C As Long",
          "Const C =", "Function F( As", "Sub S absent", "Sub S absent \"x", "Property P(", "Include Nothing", "Dim X",
          "Const C = \"x", "Const C = Chr(1", "Const C = 1 &", "Function F() As String("}) {
        EXPECT_THAT(errorOf(std::string("Library L\nModule M\n") + line), testing::StartsWith("line 3: ")) << line;
    }
    EXPECT_NE(errorOf("Library L\nLibrary L"), "");
    EXPECT_NE(errorOf("Library L extra"), "");
    EXPECT_NE(errorOf("Library L\nEnum E\n one"), "");
    EXPECT_NE(errorOf("Library L\nClass C public"), "");
}

} // namespace
