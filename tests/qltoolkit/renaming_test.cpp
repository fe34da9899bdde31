// Renaming names, and names that cannot be renamed.
#include "Basic/case_folding.h"
#include "Components/QLToolkit/insight/renaming.h"
#include "tests/qltoolkit/referenced_program.h"
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <map>
#include <set>

namespace {

using test::ReferencedProgram;

/// The source after renaming, without its header; otherwise why it was refused.
std::string renamed(const ReferencedProgram& program, const std::string& newName, std::size_t source = 0) {
    const auto renaming = qltoolkit::renamingAt(program.input(), program.source(), program.pos());
    if (!renaming.refusal.empty()) return renaming.refusal;
    if (auto why = qltoolkit::refusalOf(program.input(), renaming, newName); !why.empty()) return why;
    const auto bytes = *qltoolkit::renamedBytes(program.input(), source, renaming.places, newName);
    return bytes.substr(bytes.find('\n', bytes.find("VB_Name")) + 1);
}

/// The same for a program of one module.
std::string renamed(const std::string& code, const std::string& newName, const std::string& file = "Module1.bas") {
    ReferencedProgram program;
    program.controls = "   Begin VB.CommandButton btnGo \n   End\n";
    return renamed(program.add(file, code), newName);
}

std::string unknown(const ReferencedProgram& program) {
    std::string text;
    const auto renaming = qltoolkit::renamingAt(program.input(), program.source(), program.pos());
    for (const auto& each : renaming.unknown) text += (text.empty() ? "" : "; ") + program.described(each.place);
    return text;
}

std::string refusal(const std::string& code, const std::string& file = "Module1.bas") {
    return renamed(code, "Other", file);
}

// ---- what is renamed ------------------------------------------------------------------------------------------------

TEST(Renaming, ChangesOnlyTheBytesOfTheName) {
    EXPECT_EQ(renamed("Sub Go()\n\tDIM coun|t%   ' count\n  COUNT% = Count + 1: s = \"count\"\nEnd Sub\n", "Total"),
              "Sub Go()\n\tDIM Total%   ' count\n  Total% = Total + 1: s = \"count\"\nEnd Sub\n");
}

TEST(Renaming, ChangesParametersAndTheirNamedArguments) {
    ReferencedProgram program;
    program.add("Module1.bas", "Sub Show(Optional Wid|th As Long)\n  x = Width\nEnd Sub\n")
        .add("Module2.bas", "Sub Go()\n  Show Width:=2\nEnd Sub\n");
    EXPECT_EQ(renamed(program, "W"), "Sub Show(Optional W As Long)\n  x = W\nEnd Sub\n");
    EXPECT_EQ(renamed(program, "W", 1), "Sub Go()\n  Show W:=2\nEnd Sub\n");
}

TEST(Renaming, ChangesLabels) {
    EXPECT_EQ(renamed("Sub Go()\n  On Error GoTo Tra|p\nTrap: x = 1\n  Resume trap\nEnd Sub\n", "Failed"),
              "Sub Go()\n  On Error GoTo Failed\nFailed: x = 1\n  Resume Failed\nEnd Sub\n");
}

TEST(Renaming, ChangesProceduresWithTheirResultsAndAttributes) {
    EXPECT_EQ(renamed("Private Function Sum|() As Long\nAttribute Sum.VB_Description = \"Sum\"\n  Sum = 1\nEnd "
                      "Function\nSub Go()\n  x = Sum()\nEnd Sub\n",
                      "Total"),
              "Private Function Total() As Long\nAttribute Total.VB_Description = \"Sum\"\n  Total = 1\nEnd "
              "Function\nSub Go()\n  x = Total()\nEnd Sub\n");
}

TEST(Renaming, ChangesAllProceduresOfAProperty) {
    EXPECT_EQ(renamed("Private n As Long\nProperty Get Age|() As Long\n  Age = n\nEnd Property\nProperty Let Age(v As "
                      "Long)\n  n = v\nEnd Property\n",
                      "Years", "Class1.cls"),
              "Private n As Long\nProperty Get Years() As Long\n  Years = n\nEnd Property\nProperty Let Years(v As "
              "Long)\n  n = v\nEnd Property\n");
}

TEST(Renaming, ChangesTypesEnumerationsConstantsAndMembers) {
    const std::string code =
        "Const Most = 3\nPrivate Type Point\n  X(Most) As Long\nEnd Type\nPrivate Enum Fruit\n  Pear = Most\nEnd Enum\n"
        "Sub Go(Optional f As Fruit = Pear)\n  Dim p As Point\n  p.X(1) = Fruit.Pear\nEnd Sub\n";
    const auto changed = [&](const std::string& name, const std::string& newName) {
        ReferencedProgram program;
        program.add("Module1.bas", code);
        const auto now = renamed(program.at(name), newName);
        auto expected = code;
        auto old = name;
        std::erase(old, '|');
        for (auto at = expected.find(old); at != expected.npos; at = expected.find(old, at + newName.size()))
            expected.replace(at, old.size(), newName);
        EXPECT_EQ(now, expected) << name;
    };
    changed("|Most", "Top");
    changed("|Point", "Place");
    changed("|X", "Y");
    changed("|Fruit", "Food");
    changed("|Pear", "Apple");
}

TEST(Renaming, ChangesPublicNamesInAllModules) {
    ReferencedProgram program;
    program.add("Module1.bas", "Public Total| As Long\n")
        .add("Form1.frm", "Sub Go()\n  Module1.Total = Total\nEnd Sub\n");
    EXPECT_EQ(renamed(program, "Sum", 1), "Sub Go()\n  Module1.Sum = Sum\nEnd Sub\n");
}

TEST(Renaming, CanChangeTheCaseAlone) {
    EXPECT_EQ(renamed("Private tota|l As Long\nSub Go()\n  TOTAL = 1\nEnd Sub\n", "Total"),
              "Private Total As Long\nSub Go()\n  Total = 1\nEnd Sub\n");
}

TEST(Renaming, KeepsBracketsAndWritesForeignLetters) {
    EXPECT_EQ(renamed("Sub Go()\n  Dim [a b|] As Long\n  [a b] = 1\nEnd Sub\n", "\xC3\xA4rger"),
              "Sub Go()\n  Dim [\xC3\xA4rger] As Long\n  [\xC3\xA4rger] = 1\nEnd Sub\n");
}

// ---- names that are not possible ------------------------------------------------------------------------------------

TEST(Renaming, RefusesWhatIsNoName) {
    const auto to = [](const std::string& name) { return renamed("Private tota|l As Long\n", name); };
    for (const auto* name : {"", "1a", "a b", "_a", "a.b", "a$", "[a]"})
        EXPECT_EQ(
            to(name),
            std::string(name) +
                " is not a valid name. A name begins with a letter and contains only letters, digits and underscores.");
    EXPECT_EQ(to("Next"), "Next is a word of the language.");
    EXPECT_EQ(to("long"), "long is a word of the language.");
    EXPECT_EQ(to("CInt"), "CInt is a word of the language.");
    EXPECT_EQ(to(std::string(256, 'a')), "A name has at most 255 characters.");
    EXPECT_NE(to(std::string(255, 'a')).find("Private aaa"), std::string::npos);
}

TEST(Renaming, RefusesANameOfTheSameScope) {
    EXPECT_EQ(renamed("Sub Go()\n  Dim a|\n  Dim b\nEnd Sub\n", "b"),
              "With the name b, line 3 of Module1.bas would have an error: Duplicate declaration in current scope: b.");
    EXPECT_NE(renamed("Private a|\nPrivate b\n", "B").find("would have an error"), std::string::npos);
    EXPECT_NE(renamed("Sub Go()\na|: x = 1\nb: x = 2\nEnd Sub\n", "b").find("would have an error"), std::string::npos);
}

TEST(Renaming, RefusesANameThatWouldCapture) {
    // a local name that hides another one, and one that would be hidden
    EXPECT_EQ(renamed("Private b\nSub Go()\n  Dim a|\n  a = b\nEnd Sub\n", "b"),
              "b has another meaning in Module1.bas, line 4, which would change.");
    EXPECT_EQ(renamed("Private b|\nSub Go()\n  Dim a\n  a = b\nEnd Sub\n", "a"),
              "a has another meaning in Module1.bas, line 4, which would change.");
    EXPECT_EQ(renamed("Sub Go()\n  Dim a|\n  a = Now\nEnd Sub\n", "Now"),
              "Now has another meaning in Module1.bas, line 3, which would change.");
}

TEST(Renaming, RefusesToCaptureNamesOfOtherModules) {
    ReferencedProgram program;
    program.add("Module1.bas", "Public a|\n")
        .add("Module2.bas", "Public b\nSub Go()\n  x = b\nEnd Sub\n")
        .add("Module3.bas", "Private c\nSub Go()\n  x = c\nEnd Sub\n");
    // a nearer name keeps its meaning
    EXPECT_EQ(renamed(program, "b"), "Public b\n");
    EXPECT_EQ(renamed(program, "c"), "Public c\n");
    program.add("Module4.bas", "Sub Go()\n  x = b\nEnd Sub\n");
    EXPECT_NE(renamed(program, "b").find("line 2 of Module4.bas"), std::string::npos) << renamed(program, "b");
}

TEST(Renaming, RefusesImplicitVariablesAsOthers) {
    EXPECT_EQ(renamed("Private a|\nSub Go()\n  b = 1\nEnd Sub\n", "b"),
              "b has another meaning in Module1.bas, line 3, which would change.");
}

TEST(Renaming, RefusesATypeThatFollowsFromTheFirstLetter) {
    EXPECT_EQ(renamed("DefInt A-H\nPrivate a|\n", "x"),
              "x has another meaning in Module1.bas, line 2, which would change.");
    EXPECT_EQ(renamed("DefInt A-H\nPrivate a|\n", "b"), "DefInt A-H\nPrivate b\n");
}

TEST(Renaming, RefusesANameThatWouldMakeAHandler) {
    EXPECT_NE(renamed("Private Sub Go|()\nEnd Sub\n", "btnGo_Click", "Form1.frm").find("has another meaning"),
              std::string::npos);
    EXPECT_NE(renamed("Private Sub Go|()\nEnd Sub\n", "Form_Load", "Form1.frm").find("has another meaning"),
              std::string::npos);
    EXPECT_EQ(renamed("Private Sub Go|()\nEnd Sub\n", "Form_Reload", "Form1.frm"),
              "Private Sub Form_Reload()\nEnd Sub\n");
    EXPECT_NE(renamed("Private Sub Go|()\nEnd Sub\n", "Main").find("may start with Sub Main"), std::string::npos);
}

TEST(Renaming, RefusesCharactersThatTheCodePageLacks) {
    qltoolkit::ProgramInput input;
    input.options.projectName = "P";
    input.sources.push_back(std::make_shared<qltoolkit::SourceText>("M.bas", "Private a\n"));
    const auto renaming = qltoolkit::renamingAt(input, 0, 8);
    EXPECT_EQ(qltoolkit::refusalOf(input, renaming, "\xD0\x96"),
              "The code page of M.bas lacks a character of \xD0\x96.");
}

// ---- what cannot be renamed -----------------------------------------------------------------------------------------

TEST(Renaming, RefusesNamesThatAreGiven) {
    EXPECT_EQ(refusal("Sub Go()\n  x = Le|n(\"\")\nEnd Sub\n"), "Len is a name of a library.");
    EXPECT_EQ(refusal("Sub Main|()\nEnd Sub\n"),
              "A program may start with Sub Main, so this name cannot be given or changed.");
    EXPECT_EQ(refusal("Sub Go()\n10| GoTo 10\nEnd Sub\n"), "10 is a line number.");
    EXPECT_EQ(refusal("Sub Go()\n  Modul|e1.Go\nEnd Sub\n"),
              "Module1 is a module, class or form. Rename it in the Properties window.");
    EXPECT_EQ(refusal("Sub Go()\n  Projec|t1.Module1.Go\nEnd Sub\n"),
              "Project1 is the project. Rename it in its properties.");
    EXPECT_EQ(refusal("Sub Go()\n  btn|Go.Caption = 1\nEnd Sub\n", "Form1.frm"),
              "btnGo is a control. Rename it in the Properties window.");
    EXPECT_EQ(refusal("Event Done|()\n", "Class1.cls"),
              "Done is an event. Procedures that handle it are named after it.");
    EXPECT_EQ(refusal("Declare Sub Beep2| Lib \"x\" ()\n"),
              "The library knows Beep2 by this name. Add an Alias to the declaration first.");
    EXPECT_EQ(refusal("Declare Sub Beep2| Lib \"x\" Alias \"Beep\" ()\n"),
              "Declare Sub Other Lib \"x\" Alias \"Beep\" ()\n");
    EXPECT_EQ(refusal("Public Size| As Long\n", "Control1.ctl"), "Forms may store values of Size under this name.");
}

TEST(Renaming, RefusesHandlersAndWhatTheyAreNamedAfter) {
    const std::string handler = " handles an event or implements an interface, so its name is given.";
    EXPECT_EQ(refusal("Private Sub btnGo_Cl|ick()\nEnd Sub\n", "Form1.frm"), "btnGo_Click" + handler);
    EXPECT_EQ(refusal("Private Sub Form_Lo|ad()\nEnd Sub\n", "Form1.frm"), "Form_Load" + handler);
    EXPECT_EQ(refusal("Private Sub Class_Initial|ize()\nEnd Sub\n", "Class1.cls"), "Class_Initialize" + handler);
    ReferencedProgram program;
    program.add("IShape.cls", "Sub Dra|w()\nEnd Sub\nEvent Moved()\n")
        .add("Circle.cls", "Implements IShape\nPrivate WithEvents s As IShape\nPrivate Sub IShape_Draw()\nEnd "
                           "Sub\nPrivate Sub s_Moved()\nEnd Sub\n");
    EXPECT_EQ(renamed(program, "Paint"), "Procedures are named after Draw, as in Circle.cls, line 3.");
    EXPECT_EQ(renamed(program.at("WithEvents |s"), "t"), "Procedures are named after s, as in Circle.cls, line 5.");
    EXPECT_EQ(renamed(program.at("Sub IShape_|Draw"), "t"), "IShape_Draw" + handler);
    EXPECT_EQ(renamed(program.at("Sub s_Mo|ved"), "t"), "s_Moved" + handler);
}

TEST(Renaming, RefusesWhatIsNotKnown) {
    EXPECT_EQ(refusal("Sub Go(o As Object)\n  o.Pai|nt\nEnd Sub\n"),
              "What Paint means is known only when the program runs.");
    EXPECT_EQ(refusal("Sub Go()\n  x = 1 |+ 1\nEnd Sub\n"), "There is no name at the cursor.");
    EXPECT_EQ(refusal("Sub Go(|\n"), "There is no name at the cursor.");
    EXPECT_EQ(refusal("Private a|\nSub Go(\n"), "The project has syntax errors. Correct them first.");
}

TEST(Renaming, ListsEqualNamesThatAreNotKnown) {
    ReferencedProgram program;
    program.add("Class1.cls", "Public Size| As Long\n")
        .add("Module1.bas", "Type T\n  Size As Long\nEnd Type\n#If Wide Then\nPublic Size\n#End If\nSub Go(o As "
                            "Object, c As Class1, t As T)\n"
                            "  o.Size = c.Size\n  ' Size\n  s = \"Size\"\n  t.Size = o.Other\nEnd Sub\n");
    EXPECT_EQ(unknown(program), "Module1 6; Module1 9");
}

TEST(Renaming, KnowsTheLocalNamesOfItsProcedure) {
    ReferencedProgram program;
    program.add("Module1.bas", "Sub Go(o As Object, Size| As Long)\n  o.Size = Size\n  o.Paint Size:=1\n#If Wide "
                               "Then\n  Size = 2\n#End If\nEnd Sub\n"
                               "Sub Other()\n  Size = 1\nEnd Sub\n");
    EXPECT_EQ(unknown(program), "Module1 4; Module1 6");
}

// ---- whole programs -------------------------------------------------------------------------------------------------

/// The modules of a sample; controls of devices are not described here.
qltoolkit::ProgramInput sampleProgram(const std::string& name) {
    qltoolkit::ProgramInput input;
    input.options.projectName = name;
    input.options.isIncomplete = true;
    std::set<std::filesystem::path> files;
    for (const auto& entry : std::filesystem::directory_iterator(std::string(FERNWICK_SOURCE_DIR "/samples/") + name))
        if (qltoolkit::fileKindOf(entry.path().string()) != qltoolkit::FileKind::Unknown) files.insert(entry.path());
    for (const auto& file : files) {
        std::ifstream stream(file, std::ios::binary);
        std::string bytes(std::istreambuf_iterator<char>(stream), {});
        input.sources.push_back(std::make_shared<qltoolkit::SourceText>(file.filename().string(), std::move(bytes)));
    }
    return input;
}

/// Where each name of the code occurs first.
std::map<std::string, qltoolkit::NamePlace> firstPlaces(const qltoolkit::ProgramInput& input) {
    std::map<std::string, qltoolkit::NamePlace> places;
    for (std::size_t i = 0; i < input.sources.size(); ++i) {
        const auto& source = *input.sources[i];
        for (auto pos = source.lineStart(source.codeBegin()); pos < source.size(); ++pos)
            if (const auto name = qltoolkit::nameAround(source, pos); !name.empty()) {
                places.try_emplace(name, qltoolkit::NamePlace{i, pos, 0});
                pos += static_cast<qltoolkit::Pos>(name.size());
            }
    }
    return places;
}

TEST(Renaming, BackGivesTheSameBytesForEachNameOfASample) {
    const auto input = sampleProgram("AddressBook");
    int renamed = 0;
    for (const auto& [name, place] : firstPlaces(input)) {
        const auto there = qltoolkit::renamingAt(input, place.source, place.pos);
        if (!there.refusal.empty() || !qltoolkit::refusalOf(input, there, "Zzyzx").empty()) continue;
        ++renamed;
        qltoolkit::ProgramInput changed{{}, {}, input.options};
        for (std::size_t i = 0; i < input.sources.size(); ++i)
            changed.sources.push_back(std::make_shared<qltoolkit::SourceText>(
                input.sources[i]->name(), *qltoolkit::renamedBytes(input, i, there.places, "Zzyzx")));
        const auto& first = there.places.front().place;
        const auto back = qltoolkit::renamingAt(changed, first.source, first.pos);
        ASSERT_EQ(back.refusal, "") << name;
        EXPECT_EQ(qltoolkit::refusalOf(changed, back, there.name), "") << name;
        ASSERT_EQ(back.places.size(), there.places.size()) << name;
        for (std::size_t i = 0; i < input.sources.size(); ++i) {
            const auto bytes = *qltoolkit::renamedBytes(changed, i, back.places, there.name);
            EXPECT_TRUE(basic::equalNoCase(bytes, input.sources[i]->text(0, input.sources[i]->size()))) << name;
        }
    }
    EXPECT_GT(renamed, 20);
}

} // namespace
