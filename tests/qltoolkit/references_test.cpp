// All uses of a name in a program.
#include "tests/qltoolkit/referenced_program.h"
#include <gtest/gtest.h>

namespace {

using test::ReferencedProgram;

TEST(References, FindsAllPlacesOfAPublicNameInAllModules) {
    ReferencedProgram program;
    program
        .add("Module1.bas",
             "Public Total|s As Long\n' Totals in a comment\nSub Main()\n  totals = 1: s = \"Totals\"\nEnd Sub\n")
        .add("Module2.bas", "Sub Other()\n  Module1.TOTALS = Totals + 1\nEnd Sub\n");
    EXPECT_EQ(program.references(), "Module1 2*; Module1 5; Module2 3; Module2 3");
}

TEST(References, KeepsNamesOfOtherScopesApart) {
    ReferencedProgram program;
    program.add("Module1.bas",
                "Public x As Long\nSub One()\n  Dim x| As Long\n  x = 2\nEnd Sub\nSub Two()\n  x = 1\nEnd Sub\n");
    EXPECT_EQ(program.references(), "Module1 4*; Module1 5");
}

TEST(References, FindsParametersAndNamedArguments) {
    ReferencedProgram program;
    program.add("Module1.bas", "Sub Show(ByVal Wid|th As Long)\n  Debug.Print Width\nEnd Sub\n")
        .add("Module2.bas", "Sub Go()\n  Show width:=3\nEnd Sub\n");
    EXPECT_EQ(program.references(), "Module1 2*; Module1 3; Module2 3");
}

TEST(References, FindsParametersOfDeclaresAndEvents) {
    ReferencedProgram program;
    program.add("Module1.bas",
                "Declare Sub Beep2 Lib \"x\" (ByVal Tone| As Long)\nSub Go()\n  Beep2 Tone:=3\nEnd Sub\n");
    EXPECT_EQ(program.references(), "Module1 2*; Module1 4");
    ReferencedProgram events;
    events.add("Class1.cls", "Event Rung(Times| As Long)\nSub Go()\n  RaiseEvent Rung(Times:=3)\nEnd Sub\n");
    EXPECT_EQ(events.references(), "Class1 6*; Class1 8");
}

TEST(References, FindsLabelsAndTheirJumps) {
    ReferencedProgram program;
    program.add("Module1.bas", "Sub Go()\n  On Error GoTo Trap\n  On 1 GoSub Trap, Trap\nTrap|:\n  Resume Trap\nEnd "
                               "Sub\nSub Two()\nTrap:\nEnd Sub\n");
    EXPECT_EQ(program.references(), "Module1 3; Module1 4; Module1 4; Module1 5*; Module1 6");
}

TEST(References, FindsLineNumbers) {
    ReferencedProgram program;
    program.add("Module1.bas", "Sub Go()\n10 x = 10\n  GoTo 10|\nEnd Sub\n");
    EXPECT_EQ(program.references(), "Module1 3*; Module1 4");
}

TEST(References, FindsTypesAndTheirMembers) {
    const auto program = [] {
        ReferencedProgram made;
        made.add("Module1.bas", "Type Point\n  X As Long\nEnd Type\nSub Go()\n  Dim p As Point, q() As Module1.Point\n "
                                " p.X = 1\nEnd Sub\nFunction F() As Point\nEnd Function\n");
        return made;
    };
    EXPECT_EQ(program().at("Type Po|int").references(), "Module1 2*; Module1 6; Module1 6; Module1 9");
    EXPECT_EQ(program().at("p.X|").references(), "Module1 3*; Module1 7");
}

TEST(References, FindsEnumerationsAndTheirMembers) {
    const auto program = [] {
        ReferencedProgram made;
        made.add("Module1.bas", "Enum Fruit\n  Apple\n  Pear = Apple + 1\nEnd Enum\nConst C = Fruit.Apple\nSub "
                                "Go(Optional f As Fruit = Apple)\nEnd Sub\n");
        return made;
    };
    EXPECT_EQ(program().at("Enum Fr|uit").references(), "Module1 2*; Module1 6; Module1 7");
    EXPECT_EQ(program().at("= |Apple + 1").references(), "Module1 3*; Module1 4; Module1 6; Module1 7");
}

TEST(References, FindsEventsAndTheirHandlers) {
    ReferencedProgram program;
    program.add("Source.cls", "Event Changed|()\nSub Go()\n  RaiseEvent Changed\nEnd Sub\n")
        .add("Form1.frm", "Private WithEvents src As Source\nPrivate Sub src_Changed()\nEnd Sub\n");
    EXPECT_EQ(program.references(), "Source 6*; Source 8; Form1 6");
    EXPECT_EQ(program.at("WithEvents s|rc").references(), "Form1 5*; Form1 6");
}

TEST(References, FindsControlsAndTheirHandlers) {
    ReferencedProgram program;
    program.controls = "   Begin VB.CommandButton btn_Go \n   End\n";
    program.add("Form1.frm", "Private Sub btn_Go_Click()\n  btn_G|o.Caption = \"btn_Go\"\nEnd Sub\n");
    EXPECT_EQ(program.references(), "Form1 7; Form1 8");
    EXPECT_EQ(program.at("btn_Go_|Click").references(), "Form1 7*");
}

TEST(References, FindsMembersOfInterfacesAndTheirImplementations) {
    ReferencedProgram program;
    program.add("IShape.cls", "Sub Draw|()\nEnd Sub\n")
        .add("Circle.cls", "Implements IShape\nPrivate Sub IShape_Draw()\nEnd Sub\n")
        .add("Module1.bas", "Sub Go(s As IShape)\n  s.Draw\nEnd Sub\n");
    EXPECT_EQ(program.references(), "IShape 6*; Circle 7; Module1 3");
    EXPECT_EQ(program.at("Implements IS|hape").references(), "IShape 5*; Circle 6; Circle 7; Module1 2");
}

TEST(References, FindsEachProcedureOfAPropertyAndItsAttributes) {
    ReferencedProgram program;
    program
        .add("Class1.cls", "Property Get Age|() As Long\nAttribute Age.VB_UserMemId = 0\n  Age = 1\nEnd "
                           "Property\nProperty Let Age(n As Long)\nEnd Property\n")
        .add("Module1.bas", "Sub Go(c As Class1)\n  c.Age = c.Age\nEnd Sub\n");
    EXPECT_EQ(program.references(), "Class1 6*; Class1 7; Class1 8; Class1 10*; Module1 3; Module1 3");
}

TEST(References, FindsTheVariableAfterNextAndTheModuleBeforeAddressOf) {
    ReferencedProgram program;
    program.add("Module1.bas", "Sub Go()\n  For i| = 1 To 2\n  Next i\n  x = AddressOf Module1.Go\nEnd Sub\n");
    EXPECT_EQ(program.references(), "Module1 3*; Module1 4");
    EXPECT_EQ(program.at("AddressOf Modu|le1").references(), "Module1 1*; Module1 5");
}

TEST(References, FindsNamesOfLibraries) {
    ReferencedProgram program;
    program.add("Module1.bas",
                "Sub Go()\n  x = Lef|t(\"a\", 1) & Left$(\"b\", 1) & VBA.Left(\"c\", 1)\n  ' Left\nEnd Sub\n");
    EXPECT_EQ(program.references(), "Module1 3; Module1 3; Module1 3");
}

TEST(References, HaveNoMeaningInCommentsStringsAndKeywords) {
    for (const auto* place : {"' a|bc", "s = \"a|bc\"", "For| i", "End| Sub"}) {
        ReferencedProgram program;
        program.add("Module1.bas", "Sub Go()\n  abc = 1 ' abc\n  s = \"abc\"\n  For i = 1 To 2: Next\nEnd Sub\n");
        EXPECT_EQ(program.at(place).references(), "") << place;
    }
}

TEST(References, FindsForeignNamesByTheirBytes) {
    ReferencedProgram program;
    program.controls = "   Begin VB.CommandButton Kn\xC3\xB6pfchen \n   End\n";
    program.add("Form1.frm", "Private Sub Kn\xC3\xB6pfchen_Click()\n  kn\xC3\x96|PFCHEN.Caption = 1\nEnd Sub\n");
    EXPECT_EQ(program.references(), "Form1 7; Form1 8");
}

TEST(References, StopWhenTheyAreAsked) {
    ReferencedProgram program;
    program.add("Module1.bas", "Public x| As Long\n").add("Module2.bas", "Sub Go()\n  x = 1\nEnd Sub\n");
    std::stop_source stop;
    const qltoolkit::Following following{stop.get_token(), [&](std::size_t done, std::size_t all) {
                                             EXPECT_EQ(all, 4U);
                                             if (done == 3) stop.request_stop();
                                         }};
    EXPECT_EQ(program.references(following), "");
}

} // namespace
