// The code page of a project: what decides, the names of its files, and that no byte changes unasked.
#include "Host/files/path_lookup.h"
#include "Host/files/project_code_page.h"
#include "Host/model/project.h"
#include "tests/support/test_host.h"

using basic::CodePage;
using basic::CodePageReason;
using test::errorOf;
using test::moduleText;
using test::SampleProject;
using test::TestHost;

namespace {

std::string big5(const std::string& text) { return CodePage(950).encode(text); }

basic::Ref<host::Project> own(const basic::Ref<vbide::VBProject>& project) {
    return basic::cast<host::Project>(project);
}

std::string formWithCharset(int charset, const std::string& name) {
    auto text = test::formText(name);
    const std::string font =
        "   BeginProperty Font \r\n      Charset         =   " + std::to_string(charset) + "\r\n   EndProperty\r\n";
    return text.insert(text.find("End\r\n"), font);
}

/// A project whose form has this character set, with a module of ASCII and one of other text.
SampleProject withCharset(int charset, const std::string& text) {
    return SampleProject()
        .member("Form=frmMain.frm", "frmMain.frm", formWithCharset(charset, "frmMain"))
        .module("modPlain", "' plain\r\n")
        .module("modText", text);
}

} // namespace

TEST(ProjectCodePage, OnePageServesAllFilesOfAProject) {
    TestHost host;
    const auto project = host.open(withCharset(136, big5("' 儲存\r\n")));
    EXPECT_EQ(own(project)->codePage().page.number(), 950);
    EXPECT_EQ(own(project)->codePage().reason, CodePageReason::Charset);
    EXPECT_EQ(project->VBComponents()->Item("modText")->CodeModule()->Lines(1, 1), "' 儲存");
    const auto plain = project->VBComponents()->Item("modPlain");
    plain->CodeModule()->InsertLines(1, "' 開啟");
    plain->SaveAs(plain->FileNames(1));
    EXPECT_EQ(host.folder.read("modPlain.bas"), moduleText("modPlain", big5("' 開啟\r\n") + "' plain\r\n"));
    EXPECT_EQ(errorOf([&] { plain->CodeModule()->InsertLines(1, "' Größe"); }), 5);
    EXPECT_EQ(plain->CodeModule()->Lines(1, 1), "' 開啟");
}

TEST(ProjectCodePage, NewComponentsAndValuesAreInThePageOfTheProject) {
    TestHost host;
    const auto project = host.open(withCharset(204, CodePage(1251).encode("' Привет\r\n")));
    project->WriteProperty("Quinloft Global", "Title", "Пример");
    const auto added = project->VBComponents()->Add(vbide::vbext_ct_StdModule);
    added->CodeModule()->InsertLines(1, "' Файл");
    added->SaveAs(host.folder / "added.bas");
    project->SaveAs(project->FileName());
    EXPECT_NE(host.folder.read("Hello.vbp").find(CodePage(1251).encode("Title=Пример")), std::string::npos);
    EXPECT_NE(host.folder.read("added.bas").find(CodePage(1251).encode("' Файл")), std::string::npos);
}

TEST(ProjectCodePage, NamesOnDiskReveal) {
    TestHost host;
    host.folder.write("課程/模組.bas", moduleText("modA"));
    const auto text = "Type=Exe\r\nModule=modA; " + big5("課程\\模組.bas") + "\r\n";
    const auto project = host.openFile(host.folder.write("Big5.vbp", text));
    EXPECT_EQ(own(project)->codePage().page.number(), 950);
    EXPECT_EQ(own(project)->codePage().reason, CodePageReason::FileNames);
    EXPECT_EQ(project->VBComponents()->Count(), 1);
    project->SaveAs(project->FileName());
    EXPECT_EQ(host.folder.read("Big5.vbp"), text);
}

TEST(ProjectCodePage, NamesThatAreNotUtf8OnDiskAreFound) {
    TestHost host;
    host.folder.write(big5("模組.bas"), moduleText("modA"));
    const auto project = host.openFile(
        host.folder.write("Big5.vbp", "Type=Exe\r\nModule=modA; " + big5("模組.bas") + "\r\nCodePage=950\r\n"));
    EXPECT_EQ(project->VBComponents()->Count(), 1);
}

TEST(ProjectCodePage, AGroupFindsProjectsByTheirNames) {
    TestHost host;
    host.folder.write("課程/說明.vbp", SampleProject("A").text());
    const auto group = host.folder.write("All.vbg", "VBGROUP 5.0\r\nProject=" + big5("課程\\說明.vbp") + "\r\n");
    EXPECT_EQ(host.openFile(group)->Name(), "A");
}

TEST(ProjectCodePage, FilesThatAreUtf8StayThat) {
    TestHost host;
    const auto project = host.open(withCharset(136, "' 儲存檔案 Größe\r\n").module("modOld", big5("' 說明\r\n")));
    EXPECT_EQ(project->VBComponents()->Item("modText")->CodeModule()->Lines(1, 1), "' 儲存檔案 Größe");
    EXPECT_EQ(project->VBComponents()->Item("modOld")->CodeModule()->Lines(1, 1), "' 說明");
}

TEST(ProjectCodePage, BytesThatThePageLacksSurviveAnEdit) {
    TestHost host;
    const std::string odd = "' \xFF\xFE \x80 \xA4\r\nDim a ' \xA4\x22\r\n";
    const auto project = host.open(withCharset(0, odd + big5("' 說明\r\n")));
    own(project)->codePage(950);
    const auto before = host.folder.read("modText.bas");
    const auto module = project->VBComponents()->Item("modText");
    module->CodeModule()->InsertLines(1, "' 開");
    module->SaveAs(module->FileNames(1));
    auto expected = before;
    expected.insert(expected.find("' \xFF"), big5("' 開\r\n"));
    EXPECT_EQ(host.folder.read("modText.bas"), expected);
}

TEST(ProjectCodePage, TheUsersChoiceIsStoredAndRemoved) {
    TestHost host;
    const auto bytes = CodePage(1251).encode("' Привет\r\n");
    const auto sample = SampleProject().module("modA", bytes);
    const auto project = host.open(sample);
    const auto module = project->VBComponents()->Item("modA");
    EXPECT_EQ(module->CodeModule()->Lines(1, 1), "' Ïðèâåò") << "nothing reveals a single-byte page";
    module->CodeModule()->InsertLines(1, "' mine");
    own(project)->codePage(1251);
    EXPECT_EQ(module->CodeModule()->Lines(1, 2), "' mine\r\n' Привет");
    EXPECT_TRUE(module->IsDirty());
    EXPECT_TRUE(project->IsDirty());
    project->SaveAs(project->FileName());
    EXPECT_EQ(host.folder.read("Hello.vbp"), sample.text() + "CodePage=1251\r\n");
    own(project)->codePage({});
    EXPECT_EQ(module->CodeModule()->Lines(2, 1), "' Ïðèâåò");
    project->SaveAs(project->FileName());
    EXPECT_EQ(host.folder.read("Hello.vbp"), sample.text());
    EXPECT_EQ(errorOf([&] { own(project)->codePage(12345); }), 5);
}

TEST(ProjectCodePage, TheStoredPageDecidesWhenTheProjectIsOpened) {
    TestHost host;
    const auto path = withCharset(136, "' \xC3\xA9\r\n").writeTo(host.folder);
    host.folder.write("Hello.vbp", host.folder.read("Hello.vbp") + "CodePage=1253\r\n");
    EXPECT_EQ(own(host.openFile(path))->codePage().page.number(), 1253);
}

TEST(ProjectCodePage, AGivenPageOverridesAll) {
    test::TempFolder folder;
    host::HostOptions options;
    options.codePage = CodePage(1250);
    const auto ide = host::Host::create(std::move(options));
    const auto project = ide->VBProjects()->AddFromFile(withCharset(136, "' \xB3\r\n").writeTo(folder));
    EXPECT_EQ(project->VBComponents()->Item("modText")->CodeModule()->Lines(1, 1), "' ł");
}
