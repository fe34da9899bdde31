#include "Host/model/project.h"
#include "tests/support/test_host.h"
#include <sys/stat.h>

using test::errorOf;
using test::SampleProject;
using test::TestHost;

namespace {

const auto kTwoComponents =
    SampleProject().form("frmMain", "Option Explicit\r\n").module("modMain", "Sub Main()\r\nEnd Sub\r\n");

} // namespace

TEST(HostProject, HasTheValuesOfItsFile) {
    TestHost host;
    const auto project = host.open(kTwoComponents);
    EXPECT_EQ(project->Name(), "Hello");
    EXPECT_EQ(project->FileName(), host.folder / "Hello.vbp");
    EXPECT_FALSE(project->IsDirty());
    EXPECT_TRUE(project->Saved());
    EXPECT_TRUE(project->VBE());
    EXPECT_TRUE(host.ide->loadProblems().empty());
}

TEST(HostProject, SavingWithoutAChangeLeavesEveryByteAndTheTime) {
    TestHost host;
    const auto project = host.open(kTwoComponents);
    const auto before = host::readFile(project->FileName()).stamp;
    project->SaveAs(project->FileName());
    for (const auto& component : project->VBComponents()->items()) component->SaveAs(component->FileNames(1));
    EXPECT_TRUE(before.sameFileState(host::readFile(project->FileName()).stamp));
    EXPECT_EQ(host.folder.read("Hello.vbp"), kTwoComponents.text());
    EXPECT_EQ(host.folder.read("frmMain.frm"), test::formText("frmMain", "Option Explicit\r\n"));
}

TEST(HostProject, AWrittenPropertyIsReadBackAndSaved) {
    TestHost host;
    const auto project = host.open(kTwoComponents);
    EXPECT_EQ(errorOf([&] { project->ReadProperty("Quinloft Global", "TargetDevice"); }), 5);
    project->WriteProperty("Quinloft Global", "TargetDevice", "PalmOS-DragonBall");
    EXPECT_TRUE(project->IsDirty());
    EXPECT_FALSE(project->Saved());
    EXPECT_EQ(project->ReadProperty("quinloft global", "targetdevice"), "PalmOS-DragonBall");
    project->SaveAs(project->FileName());
    EXPECT_FALSE(project->IsDirty());
    EXPECT_EQ(host.folder.read("Hello.vbp"),
              kTwoComponents.text() + "\r\n[Quinloft Global]\r\nTargetDevice=PalmOS-DragonBall\r\n");
}

TEST(HostProject, WritingTheSameValueIsNoChange) {
    TestHost host;
    const auto project = host.open(SampleProject().handheld("PocketPC-SH3"));
    project->WriteProperty("Quinloft Global", "TargetDevice", "PocketPC-SH3");
    EXPECT_FALSE(project->IsDirty());
}

TEST(HostProject, AFailedSaveKeepsTheOldFileAndTheDirtyMark) {
    TestHost host;
    const auto project = host.open(kTwoComponents);
    project->WriteProperty("A", "k", "v");
    ::chmod(project->FileName().c_str(), 0444);
    EXPECT_EQ(errorOf([&] { project->SaveAs(project->FileName()); }), 75);
    EXPECT_TRUE(project->IsDirty());
    EXPECT_EQ(host.folder.read("Hello.vbp"), kTwoComponents.text());
    EXPECT_EQ(errorOf([&] { project->SaveAs(host.folder / "none/Hello.vbp"); }), 76);
    EXPECT_EQ(project->FileName(), host.folder / "Hello.vbp");
}

TEST(HostProject, DoesNotOverwriteAFileThatChangedOnDisk) {
    TestHost host;
    const auto project = host.open(kTwoComponents);
    project->WriteProperty("A", "k", "v");
    host.folder.write("Hello.vbp", "Type=Exe\r\n");
    EXPECT_EQ(errorOf([&] { project->SaveAs(project->FileName()); }), 75);
    EXPECT_EQ(host.folder.read("Hello.vbp"), "Type=Exe\r\n");
    const auto form = project->VBComponents()->Item("frmMain");
    form->CodeModule()->InsertLines(1, "' mine");
    host.folder.write("frmMain.frm", "another program's");
    EXPECT_EQ(errorOf([&] { form->SaveAs(form->FileNames(1)); }), 75);
    EXPECT_TRUE(form->IsDirty());
}

TEST(HostProject, SavingElsewhereAdaptsThePathsOfMembers) {
    TestHost host;
    const auto project = host.open(kTwoComponents);
    std::filesystem::create_directory(host.folder / "deep");
    project->SaveAs(host.folder / "deep/Copy.vbp");
    EXPECT_EQ(project->FileName(), host.folder / "deep/Copy.vbp");
    const auto text = host.folder.read("deep/Copy.vbp");
    EXPECT_NE(text.find("Form=..\\frmMain.frm\r\n"), std::string::npos) << text;
    EXPECT_NE(text.find("Module=modMain; ..\\modMain.bas\r\n"), std::string::npos) << text;
    EXPECT_EQ(host.folder.read("Hello.vbp"), kTwoComponents.text());
    EXPECT_EQ(project->VBComponents()->Item("modMain")->FileNames(1), host.folder / "modMain.bas");
}

TEST(HostProject, SavingElsewhereAdaptsReferencesAndDocuments) {
    TestHost host;
    host.folder.write("lib/Other.vbp", "Type=Exe\r\n");
    host.folder.write("lib/thing.dll", "");
    const auto project =
        host.open(SampleProject()
                      .member("Reference=*\\Alib\\Other.vbp")
                      .member("Reference=*\\G{11111111-2222-3333-4444-55555555AAAA}#1.0#0#lib\\thing.dll#A")
                      .member("Reference=*\\G{11111111-2222-3333-4444-55555555BBBB}#1.0#0#C:\\x\\gone.dll#B")
                      .member("Object={831FDD16-0C5C-11D2-A9FC-0000F8754DA1}#2.0#0; MSCOMCTL.OCX")
                      .member("Form=Missing.frm")
                      .member("RelatedDoc=readme.txt"));
    std::filesystem::create_directory(host.folder / "deep");
    project->SaveAs(host.folder / "deep/Copy.vbp");
    const auto text = host.folder.read("deep/Copy.vbp");
    EXPECT_EQ(text.substr(0, text.find("Startup")),
              "Type=Exe\r\n"
              "Reference=*\\A..\\lib\\Other.vbp\r\n"
              "Reference=*\\G{11111111-2222-3333-4444-55555555AAAA}#1.0#0#..\\lib\\thing.dll#A\r\n"
              "Reference=*\\G{11111111-2222-3333-4444-55555555BBBB}#1.0#0#C:\\x\\gone.dll#B\r\n"
              "Object={831FDD16-0C5C-11D2-A9FC-0000F8754DA1}#2.0#0; MSCOMCTL.OCX\r\n"
              "Form=..\\Missing.frm\r\n"
              "RelatedDoc=..\\readme.txt\r\n");
}

TEST(HostProject, AFailedSaveElsewhereKeepsItsLines) {
    TestHost host;
    const auto project = host.open(kTwoComponents);
    EXPECT_EQ(errorOf([&] { project->SaveAs(host.folder / "none/Copy.vbp"); }), 76);
    EXPECT_FALSE(project->IsDirty());
    EXPECT_EQ(basic::cast<host::Project>(project)->file().bytes(), kTwoComponents.text());
}

TEST(HostProject, ANewNameIsWrittenToTheFile) {
    TestHost host;
    const auto project = host.open(kTwoComponents);
    project->Name("World");
    EXPECT_EQ(project->Name(), "World");
    EXPECT_TRUE(project->IsDirty());
    project->SaveAs(project->FileName());
    EXPECT_NE(host.folder.read("Hello.vbp").find("Name=\"World\"\r\n"), std::string::npos);
}

TEST(HostProject, WithoutANameItIsNamedLikeItsFile) {
    TestHost host;
    EXPECT_EQ(host.openFile(host.folder.write("Bare.vbp", "Type=Exe\r\n"))->Name(), "Bare");
}

TEST(HostProject, ARemovedProjectRaisesErrors) {
    TestHost host;
    const auto project = host.open(kTwoComponents);
    const auto components = project->VBComponents();
    const auto form = components->Item("frmMain");
    const auto code = form->CodeModule();
    const auto reference = project->References()->Item(1);
    host.ide->VBProjects()->Remove(project);
    EXPECT_EQ(errorOf([&] { project->Name(); }), 440);
    EXPECT_EQ(errorOf([&] { project->SaveAs(host.folder / "x.vbp"); }), 440);
    EXPECT_EQ(errorOf([&] { components->Count(); }), 440);
    EXPECT_EQ(errorOf([&] { form->Name(); }), 440);
    EXPECT_EQ(errorOf([&] { code->CountOfLines(); }), 440);
    EXPECT_EQ(errorOf([&] { reference->Name(); }), 440);
    EXPECT_EQ(host.ide->VBProjects()->Count(), 0);
    EXPECT_FALSE(host.ide->ActiveVBProject());
}

TEST(HostProject, TheNameOfAnotherProjectIsRefused) {
    TestHost host;
    host.open(SampleProject("First"));
    const auto second = host.open(SampleProject("Second"));
    EXPECT_EQ(errorOf([&] { second->Name("FIRST"); }), 32813);
    EXPECT_EQ(second->Name(), "Second");
    second->Name("SECOND");
    EXPECT_EQ(second->Name(), "SECOND");
}
