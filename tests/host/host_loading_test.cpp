#include "Host/model/project.h"
#include "tests/support/test_host.h"
#include <chrono>
#include <sys/stat.h>

using host::LoadProblem;
using test::errorOf;
using test::SampleProject;
using test::TestHost;
using namespace std::string_literals;

namespace {

std::string problemTexts(const TestHost& host) {
    std::string texts;
    for (const auto& [file, line, text] : host.ide->loadProblems())
        texts += std::filesystem::path(file).filename().string() + ":" + std::to_string(line) + ": " + text + "\n";
    return texts;
}

} // namespace

TEST(HostLoading, AMissingMemberIsReportedAndItsLineKept) {
    TestHost host;
    const auto sample = SampleProject().member("Form=Gone.frm").module("modMain");
    const auto project = host.open(sample);
    ASSERT_EQ(host.ide->loadProblems().size(), 1u);
    const auto& problem = host.ide->loadProblems()[0];
    EXPECT_EQ(problem.file, host.folder / "Hello.vbp");
    EXPECT_EQ(problem.line, 2u);
    EXPECT_NE(problem.text.find("Gone.frm"), std::string::npos);
    EXPECT_EQ(project->VBComponents()->Count(), 1);
    project->WriteProperty("A", "k", "v");
    project->SaveAs(project->FileName());
    EXPECT_NE(host.folder.read("Hello.vbp").find("Form=Gone.frm\r\n"), std::string::npos);
}

TEST(HostLoading, AMemberListedTwiceCountsOnce) {
    TestHost host;
    const auto project = host.open(SampleProject()
                                       .module("a")
                                       .member("Module=a; A.BAS")
                                       .member("Module=b; other.bas", "other.bas", test::moduleText("a")));
    EXPECT_EQ(project->VBComponents()->Count(), 1);
    EXPECT_EQ(problemTexts(host), "Hello.vbp:3: A.BAS: is listed twice\n"
                                  "Hello.vbp:4: other.bas: another component is also named 'a'\n");
}

TEST(HostLoading, AFolderInsteadOfAMemberIsReported) {
    TestHost host;
    std::filesystem::create_directory(host.folder / "dir.bas");
    const auto project = host.open(SampleProject().member("Module=d; dir.bas").module("ok"));
    EXPECT_EQ(project->VBComponents()->Count(), 1);
    EXPECT_NE(problemTexts(host).find("dir.bas"), std::string::npos);
}

TEST(HostLoading, AnInvalidSourceIsReportedAndNeverRewritten) {
    TestHost host;
    const auto script = "LOAD DATA\nINFILE 'x.dat'\nINTO TABLE t\n"s;
    std::string noise;
    for (int i = 0; i < 1661; ++i) noise += char(i * 7919 >> 3);
    const auto project = host.open(SampleProject()
                                       .member("UserControl=loader.ctl", "loader.ctl", script)
                                       .member("Class=noise; noise.cls", "noise.cls", noise)
                                       .module("ok"));
    EXPECT_EQ(project->VBComponents()->Count(), 1);
    ASSERT_EQ(host.ide->loadProblems().size(), 2u);
    EXPECT_NE(host.ide->loadProblems()[0].text.find("is not a Visual Basic source file"), std::string::npos);
    host.ide->saveProject(project);
    EXPECT_EQ(host.folder.read("loader.ctl"), script);
    EXPECT_EQ(host.folder.read("noise.cls"), noise);
}

TEST(HostLoading, ATruncatedFormIsReportedAndUsable) {
    TestHost host;
    const auto cut = "VERSION 5.00\r\nBegin VB.Form frmCut \r\n   Caption         =   \"x"s;
    const auto project = host.open(SampleProject().member("Form=frmCut.frm", "frmCut.frm", cut));
    EXPECT_EQ(project->VBComponents()->Count(), 1);
    ASSERT_EQ(host.ide->loadProblems().size(), 1u);
    EXPECT_EQ(host.ide->loadProblems()[0].file, host.folder / "frmCut.frm");
    const auto form = project->VBComponents()->Item(1);
    EXPECT_EQ(form->Name(), "frmCut");
    form->SaveAs(form->FileNames(1));
    EXPECT_EQ(host.folder.read("frmCut.frm"), cut);
}

TEST(HostLoading, TheNameInTheFileIsTheIdentity) {
    TestHost host;
    const auto project =
        host.open(SampleProject()
                      .member("Module=mCataloglIni; ini.bas", "ini.bas", test::moduleText("mCatalogIni"))
                      .member("Module=bare; plain.bas", "plain.bas", "Sub Main()\r\nEnd Sub")
                      .member("Form=nameless.frm", "nameless.frm", "VERSION 5.00\r\nBegin VB.Form x \r\nEnd\r\n"));
    EXPECT_EQ(project->VBComponents()->Item(1)->Name(), "mCatalogIni");
    EXPECT_EQ(project->VBComponents()->Item(2)->Name(), "bare");
    EXPECT_EQ(project->VBComponents()->Item(3)->Name(), "nameless");
    EXPECT_EQ(host.folder.read("Hello.vbp").find("mCatalogIni;"), std::string::npos);
}

TEST(HostLoading, FindsMembersWhoseLetterCaseDiffers) {
    TestHost host;
    host.folder.write("[Include]/Lib/modX.bas", test::moduleText("modX"));
    const auto sample = SampleProject().member("Module=modX; [include]\\lib\\MODX.BAS");
    const auto project = host.open(sample);
    EXPECT_EQ(problemTexts(host), "");
    EXPECT_EQ(project->VBComponents()->Item("MODx")->FileNames(1), host.folder / "[Include]/Lib/modX.bas");
    project->SaveAs(project->FileName());
    EXPECT_EQ(host.folder.read("Hello.vbp"), sample.text());
}

TEST(HostLoading, DecodesAMembersPathByTheProjectsCodePage) {
    TestHost plain;
    host::HostOptions options;
    options.codePage = basic::CodePage(950);
    const auto ide = host::Host::create(std::move(options));
    plain.folder.write("課程/modA.bas", test::moduleText("modA"));
    const auto written = basic::CodePage(950).encode("Type=Exe\r\nModule=modA; 課程\\modA.bas\r\n");
    const auto project = ide->VBProjects()->AddFromFile(plain.folder.write("Big5.vbp", written));
    EXPECT_EQ(project->VBComponents()->Count(), 1);
    project->SaveAs(project->FileName());
    EXPECT_EQ(plain.folder.read("Big5.vbp"), written);
}

TEST(HostLoading, RefusesOtherFiles) {
    TestHost host;
    const auto png = host.folder.write("picture.vbp", "\x89PNG\r\n\x1a\n\0\0"s);
    EXPECT_EQ(errorOf([&] { host.openFile(host.folder / "none.vbp"); }), 53);
    EXPECT_EQ(errorOf([&] { host.openFile(host.folder.path()); }), 75);
    const auto error = basic::attempt([&] { host.openFile(png); });
    EXPECT_EQ(error.Number, 321);
    EXPECT_EQ(error.Description, png + ": is not a Visual Basic project file");
    EXPECT_EQ(host.ide->VBProjects()->Count(), 0);
}

TEST(HostLoading, OpensTheProjectsOfAGroup) {
    TestHost host;
    SampleProject("Lib").module("modLib").writeTo(host.folder, "Lib");
    SampleProject("Test").module("modTest").writeTo(host.folder, "Test");
    const auto group = host.folder.write(
        "All.vbg",
        "VBGROUP 5.0\r\nProject=Lib\\Lib.vbp\r\nStartupProject=test\\TEST.vbp\r\nProject=gone\\Gone.vbp\r\n");
    const auto project = host.openFile(group);
    EXPECT_EQ(project->Name(), "Test");
    EXPECT_EQ(host.ide->VBProjects()->Count(), 2);
    EXPECT_EQ(host.ide->ActiveVBProject(), project);
    ASSERT_EQ(host.ide->loadProblems().size(), 1u);
    EXPECT_EQ(host.ide->loadProblems()[0].line, 4u);
    EXPECT_EQ(host.ide->loadProblems()[0].file, group);
}

TEST(HostLoading, AGroupWithoutAProjectIsAnError) {
    TestHost host;
    EXPECT_EQ(errorOf([&] { host.openFile(host.folder.write("E.vbg", "VBGROUP 5.0\r\nProject=x.vbp\r\n")); }), 321);
}

TEST(HostLoading, AProjectOpensOnlyOnce) {
    TestHost host;
    const auto project = host.open(SampleProject());
    EXPECT_EQ(errorOf([&] { host.openFile(project->FileName()); }), 55);
    EXPECT_EQ(host.ide->VBProjects()->Count(), 1);
}

TEST(HostLoading, AnExclusiveOpeningClosesOtherProjectsOnlyForAnExistingFile) {
    TestHost host;
    const auto first = host.open(SampleProject("First"));
    EXPECT_EQ(errorOf([&] { host.ide->VBProjects()->AddFromFile(host.folder / "none.vbp", true); }), 53);
    EXPECT_EQ(host.ide->VBProjects()->Count(), 1);
    const auto second = host.ide->VBProjects()->AddFromFile(SampleProject("Second").writeTo(host.folder), true);
    EXPECT_EQ(host.ide->VBProjects()->Count(), 1);
    EXPECT_EQ(host.ide->ActiveVBProject(), second);
    EXPECT_EQ(errorOf([&] { first->Name(); }), 440);
}

TEST(HostLoading, AnExclusiveOpeningReadsTheFileFirst) {
    TestHost host;
    int asked = 0;
    host.mayReplaceProjects = [&] { return ++asked > 0; };
    const auto open = host.open(SampleProject());
    const auto text = host.folder.write("Text.vbp", "some text\r\n");
    const auto group = host.folder.write("Text.vbg", "VBGROUP 5.0\r\nProject=Text.vbp\r\n");
    const auto form = host.folder.write("Text.frm", "some text\r\n");
    const auto templateFile = host.folder.write("Template/Projects/Text.vbp", "some text\r\n");
    for (const auto& path : {text, group, form, templateFile})
        EXPECT_EQ(errorOf([&] { host.ide->VBProjects()->AddFromFile(path, true); }), 321) << path;
    EXPECT_EQ(errorOf([&] { host.ide->VBProjects()->AddFromTemplate(templateFile, true); }), 321);
    EXPECT_EQ(host.ide->ActiveVBProject(), open);
    EXPECT_EQ(asked, 0);
}

TEST(HostLoading, AnExclusiveOpeningAsksOnceAboutUnsavedWork) {
    TestHost host;
    int asked = 0;
    bool agrees = false;
    host.mayReplaceProjects = [&] { return ++asked, agrees; };
    const auto next = SampleProject("Next").writeTo(host.folder);
    const auto templateFile = SampleProject("New").writeTo(host.folder, "Template/Projects");
    host.open(SampleProject("A"));
    host.open(SampleProject("B"));
    EXPECT_FALSE(host.ide->VBProjects()->AddFromFile(next, true));
    EXPECT_FALSE(host.ide->VBProjects()->AddFromTemplate(templateFile, true));
    EXPECT_EQ(host.ide->VBProjects()->Count(), 2);
    EXPECT_EQ(asked, 2);
    agrees = true;
    EXPECT_EQ(host.ide->VBProjects()->AddFromFile(next, true)->Name(), "Next");
    EXPECT_EQ(host.ide->VBProjects()->Count(), 1);
    EXPECT_EQ(asked, 3);
}

TEST(HostLoading, AnExclusiveOpeningWithNothingOpenAsksNothing) {
    TestHost host;
    host.mayReplaceProjects = [] { return false; };
    EXPECT_TRUE(host.ide->VBProjects()->AddFromFile(SampleProject("A").writeTo(host.folder), true));
}

TEST(HostLoading, AComponentOpensInANewProject) {
    TestHost host;
    const auto form = host.folder.write("lib/frmOne.frm", test::formText("frmOne"));
    const auto project = host.openFile(form);
    EXPECT_EQ(project->Name(), "Project1");
    EXPECT_EQ(project->FileName(), "");
    EXPECT_TRUE(project->IsDirty());
    EXPECT_EQ(project->VBComponents()->Item("frmOne")->FileNames(1), form);
    EXPECT_FALSE(project->VBComponents()->Item("frmOne")->IsDirty());
    project->SaveAs(host.folder / "Mine.vbp");
    EXPECT_NE(host.folder.read("Mine.vbp").find("\r\nForm=lib\\frmOne.frm\r\n"), std::string::npos);
    for (const auto& other : {host.folder.write("modOne.bas", test::moduleText("modOne")),
                              host.folder.write("clsOne.cls", test::classText("clsOne"))})
        EXPECT_EQ(host.ide->VBProjects()->AddFromFile(other, true)->VBComponents()->Count(), 1) << other;
    EXPECT_EQ(host.ide->VBProjects()->Count(), 1);
}

TEST(HostLoading, ANewProjectFromATemplateHasNoFiles) {
    TestHost host;
    const auto path = SampleProject("Template").form("frmT").handheld().writeTo(host.folder, "Template/Projects");
    basic::Ref<vbide::VBProject> seen;
    std::string whileAdded;
    const auto added = host.ide->Events()->VBProjectsEvents()->ItemAdded.connect(
        [&](basic::Ref<vbide::VBProject> project) { whileAdded = project->FileName(); });
    const auto project = host.ide->VBProjects()->AddFromTemplate(path);
    EXPECT_EQ(whileAdded, path);
    EXPECT_EQ(project->FileName(), "");
    EXPECT_TRUE(project->IsDirty());
    EXPECT_EQ(project->VBComponents()->Item(1)->FileNames(1), "");
    EXPECT_EQ(project->ReadProperty("Quinloft Global", "IsQuinloftProject"), "True");
    const auto form = project->VBComponents()->Item(1);
    form->SaveAs(host.folder / "frmT.frm");
    project->SaveAs(host.folder / "Mine.vbp");
    EXPECT_NE(host.folder.read("Mine.vbp").find("\r\nForm=frmT.frm\r\n"), std::string::npos);
}

TEST(HostLoading, ANewProjectIsSavedInAFolderWhoseNameItsCodePageLacks) {
    TestHost host;
    const auto path =
        SampleProject("Template").form("frmT").module("modT").handheld().writeTo(host.folder, "Template/Projects");
    const auto project = host.ide->VBProjects()->AddFromTemplate(path);
    host.folder.write("計算/Größe/other.txt", "");
    project->VBComponents()->Item("frmT")->SaveAs(host.folder / "計算/Größe/frmT.frm");
    project->VBComponents()->Item("modT")->SaveAs(host.folder / "計算/modT.bas");
    project->SaveAs(host.folder / "計算/Mine.vbp");
    const auto text = host.folder.read("計算/Mine.vbp");
    EXPECT_NE(text.find("\r\nForm=Gr\xF6\xDF\x65\\frmT.frm\r\n"), std::string::npos) << text;
    EXPECT_NE(text.find("\r\nModule=modT; modT.bas\r\n"), std::string::npos) << text;
}

TEST(HostLoading, AFileOfATemplateFolderOpensAsANewProject) {
    TestHost host;
    const auto path = SampleProject("Project1").writeTo(host.folder, "Template/Projects");
    const auto first = host.openFile(path), second = host.openFile(path);
    EXPECT_EQ(first->FileName(), "");
    EXPECT_EQ(first->Name(), "Project1");
    EXPECT_EQ(second->Name(), "Project2"); // as for new projects without a template
    EXPECT_NE(host.openFile(SampleProject("Templates").writeTo(host.folder, "Templates"))->FileName(), "");
}

TEST(HostLoading, ThreeThousandComponentsLoadFast) {
    TestHost host;
    SampleProject big("Big");
    for (int i = 1; i <= 3000; ++i) big.module("mod" + std::to_string(i), "Option Explicit\r\n");
    const auto path = big.writeTo(host.folder);
    const auto start = std::chrono::steady_clock::now();
    const auto project = host.openFile(path);
    const auto took = std::chrono::steady_clock::now() - start;
    EXPECT_EQ(project->VBComponents()->Count(), 3000);
    EXPECT_LT(took, std::chrono::seconds(5)); // well below a second on an idle machine
    EXPECT_EQ(project->VBComponents()->Item("MOD2999")->CodeModule()->CountOfLines(), 1);
}
