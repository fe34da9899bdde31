#include "Host/files/code_file.h"
#include "Host/model/code/code_outline.h"
#include "tests/support/test_host.h"

using test::errorOf;
using test::SampleProject;
using test::TestHost;
using vbide::Member;

namespace {

host::CodeOutline outlineOfText(std::string_view code) {
    return host::outlineOf({code, basic::CodePage::windows1252(), host::LineEnd::CrLf});
}

std::vector<std::string> memberNames(const host::CodeOutline& outline, Member::Type type) {
    std::vector<std::string> names;
    for (const auto& member : outline.members)
        if (member.type == type) names.push_back(member.Name + "@" + std::to_string(member.CodeLocation));
    return names;
}

using Names = std::vector<std::string>;

} // namespace

TEST(HostCode, LinesAreThoseOfTheCodeWindow) {
    TestHost host;
    const auto project = host.open(SampleProject().classModule(
        "clsA", "Option Explicit\r\nPublic Sub A()\r\nAttribute A.VB_Description = \"x\"\r\nEnd Sub\r\n"));
    const auto code = project->VBComponents()->Item(1)->CodeModule();
    EXPECT_EQ(code->CountOfLines(), 3);
    EXPECT_EQ(code->Lines(1, 3), "Option Explicit\r\nPublic Sub A()\r\nEnd Sub");
    EXPECT_EQ(code->Lines(3, 0), "");
    EXPECT_EQ(errorOf([&] { code->Lines(2, 3); }), 9);
    EXPECT_EQ(errorOf([&] { code->Lines(0, 1); }), 9);
    EXPECT_FALSE(project->VBComponents()->Item(1)->IsDirty());
}

TEST(HostCode, EditsChangeOnlyTheirLines) {
    TestHost host;
    const auto project = host.open(SampleProject().module("modA", "a\r\nb\nc"));
    const auto component = project->VBComponents()->Item(1);
    const auto code = component->CodeModule();
    code->InsertLines(2, "x");
    code->ReplaceLine(3, "B");
    code->DeleteLines(4);
    EXPECT_TRUE(component->IsDirty());
    code->InsertLines(99, "end");
    EXPECT_EQ(errorOf([&] { code->InsertLines(0, "x"); }), 9);
    EXPECT_EQ(errorOf([&] { code->DeleteLines(4, 2); }), 9);
    EXPECT_EQ(errorOf([&] { code->ReplaceLine(5, "x"); }), 9);
    EXPECT_EQ(errorOf([&] { code->InsertLines(1, "日本"); }), 5);
    component->SaveAs(component->FileNames(1));
    EXPECT_EQ(host.folder.read("modA.bas"), test::moduleText("modA", "a\r\nx\r\nB\nend\r\n"));
}

TEST(HostCode, AttributesFollowTheNameOfTheirMember) {
    TestHost host;
    const auto project = host.open(SampleProject().module(
        "modA", "Private WithEvents o As Timer ' x\r\nAttribute o.VB_VarHelpID = -1\r\n"
                "Public Function f( _\r\n  a)\r\nAttribute f.VB_Description = \"f.a\"\r\nAttribute f.VB_HelpID = 1\r\n"
                "End Function\r\nProperty Get p()\r\nAttribute p.VB_UserMemId = 0\r\nEnd Property\r\n"
                "Dim a, b\r\nAttribute a.VB_VarHelpID = -1\r\n"));
    const auto component = project->VBComponents()->Item(1);
    const auto code = component->CodeModule();
    code->ReplaceLine(1, "Private WithEvents oven As Timer ' x");
    code->ReplaceLine(2, ""); // an editor may write a line in two steps
    code->ReplaceLine(2, "Public Function fn( _");
    code->ReplaceLine(5, "Property Get pp()");
    code->ReplaceLine(7, "Dim c, b");
    component->SaveAs(component->FileNames(1));
    EXPECT_EQ(host.folder.read("modA.bas"),
              test::moduleText("modA", "Private WithEvents oven As Timer ' x\r\nAttribute oven.VB_VarHelpID = -1\r\n"
                                       "Public Function fn( _\r\n  a)\r\nAttribute fn.VB_Description = \"f.a\"\r\n"
                                       "Attribute fn.VB_HelpID = 1\r\nEnd Function\r\nProperty Get pp()\r\n"
                                       "Attribute pp.VB_UserMemId = 0\r\nEnd Property\r\n"
                                       "Dim c, b\r\nAttribute a.VB_VarHelpID = -1\r\n"));
}

TEST(HostCode, ListsTheDeclarationsOfAModule) {
    const auto outline = outlineOfText("Option Explicit\r\n"
                                       "Private a As Long, b(1 To 3, 2) As String, WithEvents c As Timer\r\n"
                                       "Public Const kOne = 1, kTwo = \"a, b\" ' x, y\r\n"
                                       "Public Event Changed(ByVal x As Long, y)\r\n"
                                       "Private Declare Function GetTick Lib \"kernel32\" () As Long\r\n"
                                       "Private Type Point\r\n    x As Long\r\nEnd Type\r\n"
                                       "Public Enum Colour\r\n    Red\r\nEnd Enum\r\n"
                                       "Dim late\r\n"
                                       "\r\n"
                                       "' about A\r\n"
                                       "Public Sub A(ByVal x As Long, _\r\n    y)\r\n    Dim z\r\nEnd Sub\r\n"
                                       "Friend Static Function F() As Long: F = 1: End Function\r\n"
                                       "Property Get P() As Long\r\nEnd Property\r\n"
                                       "Property Let P(v As Long)\r\nEnd Property\r\n");
    EXPECT_EQ(memberNames(outline, Member::Variable), (Names{"a@2", "b@2", "c@2", "late@12"}));
    EXPECT_EQ(memberNames(outline, Member::Const), (Names{"kOne@3", "kTwo@3"}));
    EXPECT_EQ(memberNames(outline, Member::Event), (Names{"Changed@4"}));
    EXPECT_EQ(memberNames(outline, Member::Method), (Names{"GetTick@5", "A@15", "F@19"}));
    EXPECT_EQ(memberNames(outline, Member::Property), (Names{"P@20"}));
    EXPECT_EQ(outline.declarationLines, 12);
    ASSERT_EQ(outline.procedures.size(), 4u);
    EXPECT_EQ(outline.procedures[0].start, 13);
    EXPECT_EQ(outline.procedures[0].body, 15);
    EXPECT_EQ(outline.procedures[0].end, 18);
    EXPECT_EQ(outline.procedures[3].kind, vbide::vbext_pk_Let);
}

TEST(HostCode, TextsInDeclarationsHideNothing) {
    const auto outline = outlineOfText("Const a = \"\", b = \", x\", c = \"\"\", y\", d = \"'\", e = (1), f = \"\"\r\n"
                                       "Private Const g = \": \", h = 1: Const i = \"open\r\n"
                                       "Private [odd, name] As Long, k\r\n");
    EXPECT_EQ(memberNames(outline, Member::Const), (Names{"a@1", "b@1", "c@1", "d@1", "e@1", "f@1", "g@2", "h@2"}));
    EXPECT_EQ(memberNames(outline, Member::Variable), (Names{"odd, name@3", "k@3"}));
}

TEST(HostCode, ListsVariablesWithEventsAndInterfaces) {
    const auto outline =
        outlineOfText("Implements IShape\r\nImplements Project1.IStore ' both\r\n"
                      "Private a As Long, WithEvents b As Timer, c As Timer\r\n"
                      "Public WithEvents tree As _\r\n    MSComctlLib.TreeView\r\n"
                      "Dim WithEvents lost, WithEvents odd As , Implements\r\nImplements\r\n"
                      "Sub A()\r\n    Dim WithEvents late As Timer\r\n    Implements None\r\nEnd Sub\r\n");
    Names sources;
    for (const auto& [name, className, isInterface] : outline.sources)
        sources.push_back(name + " " + className + (isInterface ? " i" : ""));
    EXPECT_EQ(sources, (Names{"IShape IShape i", "IStore Project1.IStore i", "b Timer", "tree MSComctlLib.TreeView"}));
}

TEST(HostCode, FindsProceduresByNameAndKind) {
    TestHost host;
    const auto project = host.open(
        SampleProject().module("modA", "Dim x\r\n\r\nSub A()\r\nEnd Sub\r\n' note\r\nSub B()\r\nEnd Sub\r\n"));
    const auto code = project->VBComponents()->Item(1)->CodeModule();
    EXPECT_EQ(code->CountOfDeclarationLines(), 1);
    EXPECT_EQ(code->ProcStartLine("a", vbide::vbext_pk_Proc), 2);
    EXPECT_EQ(code->ProcCountLines("A", vbide::vbext_pk_Proc), 3);
    EXPECT_EQ(code->ProcStartLine("B", vbide::vbext_pk_Proc), 5);
    EXPECT_EQ(errorOf([&] { code->ProcStartLine("A", vbide::vbext_pk_Get); }), 35);
    code->InsertLines(1, "Option Explicit");
    EXPECT_EQ(code->ProcStartLine("B", vbide::vbext_pk_Proc), 6);
}

TEST(HostCode, HandlesInvalidCode) {
    for (const auto* text : {"", "Sub", "Property", "Public", "Private ,,", "Sub A(", "\"", "[", "Dim [", "Type X",
                             "End Sub", "_", " _\r\n _", "Const"})
        EXPECT_NO_THROW(outlineOfText(text)) << text;
}

TEST(HostCode, APaneKeepsItsSelection) {
    TestHost host;
    const auto pane =
        host.open(SampleProject().module("modA", "a\r\n"))->VBComponents()->Item(1)->CodeModule()->CodePane();
    EXPECT_FALSE(pane->Window()->Visible());
    pane->Show();
    pane->SetSelection(1, 2, 3, 4);
    int startLine = 0, startColumn = 0, endLine = 0, endColumn = 0;
    pane->GetSelection(startLine, startColumn, endLine, endColumn);
    EXPECT_EQ((std::vector<int>{startLine, startColumn, endLine, endColumn}), (std::vector<int>{1, 2, 3, 4}));
    EXPECT_TRUE(pane->Window()->Visible());
}

TEST(HostCode, PanesAndEditsAreReported) {
    TestHost host;
    const auto project = host.open(SampleProject().module("modA", "Sub A()\r\nEnd Sub\r\n"));
    const auto code = project->VBComponents()->Item(1)->CodeModule();
    std::string reported;
    const auto note = [&](const char* what) {
        return [&reported, what](const auto& component) { reported += component->Name() + " " + what + ";"; };
    };
    const auto shown = host.ide->panes.shown.connect(note("shown"));
    const auto selected = host.ide->panes.selectionSet.connect(note("selected"));
    const auto changed = host.ide->panes.codeChanged.connect(note("changed"));
    code->CodePane()->Show();
    code->CodePane()->Window()->SetFocus();
    code->CodePane()->SetSelection(2, 1, 2, 9999);
    code->ReplaceLine(1, "Sub B()");
    EXPECT_EQ(reported, "modA shown;modA shown;modA selected;modA changed;");
}

TEST(HostCode, APaneOfARemovedComponentCannotBeShown) {
    TestHost host;
    const auto project = host.open(SampleProject().module("modA", "Sub A()\r\nEnd Sub\r\n"));
    const auto pane = project->VBComponents()->Item(1)->CodeModule()->CodePane();
    project->VBComponents()->Remove(project->VBComponents()->Item(1));
    EXPECT_EQ(errorOf([&] { pane->Show(); }), 440);
}
