#include "Host/files/project_file.h"
#include "tests/support/errors.h"
#include <random>

using basic::CodePage;
using host::MemberKind;
using host::ProjectFile;
using test::errorOf;
using namespace std::string_literals;

namespace {

const auto kPage = CodePage::windows1252();

const auto kSmallProject =
    "Type=Exe\r\n"
    "Reference=*\\G{00020430-0000-0000-C000-000000000046}#2.0#0#..\\stdole2.tlb#OLE Automation\r\n"
    "Module=modMain; Main.bas\r\n"
    "Form=Main.frm\r\n"
    "Startup=\"frmMain\"\r\n"
    "Command32=\"\"\r\n"
    "Name=\"Hello\"\r\n"
    "MajorVer=1\r\n"
    "\r\n"
    "[MS Transaction Server]\r\n"
    "AutoRefresh=1\r\n"s;

std::string with(const std::string& text, const std::string& old, const std::string& replacement) {
    auto changed = text;
    changed.replace(changed.find(old), old.size(), replacement);
    return changed;
}

} // namespace

TEST(ProjectFile, PreservesAnyBytes) {
    for (const auto& bytes : {kSmallProject, ""s, "\r\n"s, "Type=Exe"s, "no project at all\n"s,
                              "[open\r\n=\r\n[]\r\n]"s, "\0\x01\xff=\0"s, "Type=Exe\nForm=a.frm\r\nModule=x\r"s,
                              "\xEF\xBB\xBFType=Exe\r\n"s, "[A]\r\nx=1\r\n[A]\r\nx=2\r\n\r\n\r\n"s}) {
        EXPECT_EQ(ProjectFile(bytes, kPage).bytes(), bytes);
        EXPECT_EQ(ProjectFile(bytes, CodePage(932)).bytes(), bytes);
    }
}

TEST(ProjectFile, ListsItsMembersInTheOrderOfTheFile) {
    ProjectFile file(kSmallProject, kPage);
    const auto members = file.members();
    ASSERT_EQ(members.size(), 3u);
    EXPECT_EQ(members[0].content.kind, MemberKind::Reference);
    EXPECT_EQ(members[1].content, (host::ProjectMember{MemberKind::Module, "modMain", "Main.bas", 3}));
    EXPECT_EQ(members[2].content, (host::ProjectMember{MemberKind::Form, "", "Main.frm", 4}));
}

TEST(ProjectFile, RemovesOnlyTheOuterQuotes) {
    const ProjectFile file("Type=Exe\r\nTitle=\"My \"Best\" App\"\r\nCommand32=\"\"a file.txt\"\"\r\nHelpFile=\"x\r\n",
                           kPage);
    EXPECT_EQ(file.setting("Title"), "My \"Best\" App");
    EXPECT_EQ(file.setting("Command32"), "\"a file.txt\"");
    EXPECT_EQ(file.setting("HelpFile"), "\"x");
    EXPECT_EQ(file.setting("type"), "Exe");
    EXPECT_EQ(file.setting("Path32"), std::nullopt);
}

TEST(ProjectFile, AcceptsExclamationMarksForQuotesAndKeepsThem) {
    ProjectFile file("Type=Exe\r\nStartup=!(None)!\r\nCommand32=!!\r\n", kPage);
    EXPECT_EQ(file.setting("Startup"), "(None)");
    EXPECT_EQ(file.setting("Command32"), "");
    file.setSetting("Startup", "Sub Main");
    EXPECT_EQ(file.bytes(), "Type=Exe\r\nStartup=!Sub Main!\r\nCommand32=!!\r\n");
}

TEST(ProjectFile, SettingAValueEditsOnlyItsLine) {
    ProjectFile file(kSmallProject, kPage);
    file.setSetting("STARTUP", "Sub Main");
    EXPECT_EQ(file.bytes(), with(kSmallProject, "Startup=\"frmMain\"", "Startup=\"Sub Main\""));
    file.setSetting("Startup", "frmMain");
    EXPECT_EQ(file.bytes(), kSmallProject);
    file.setSetting("MajorVer", "2");
    EXPECT_EQ(file.bytes(), with(kSmallProject, "MajorVer=1", "MajorVer=2"));
}

TEST(ProjectFile, ASettingWithoutItsQuotesGetsThem) {
    ProjectFile file("Type=Exe\r\ntitle=\r\nStartup = Main \r\nMajorVer=\r\n", kPage);
    EXPECT_EQ(file.setting("Startup"), "Main");
    file.setSetting("Title", "a");
    file.setSetting("Startup", "b");
    file.setSetting("MajorVer", "3");
    EXPECT_EQ(file.bytes(), "Type=Exe\r\ntitle=\"a\"\r\nStartup = \"b\" \r\nMajorVer=3\r\n");
}

TEST(ProjectFile, TextsAreQuotedAndNumbersAreNot) {
    for (const auto* text : {"ResFile32",
                             "IconForm",
                             "Startup",
                             "HelpFile",
                             "Title",
                             "ExeName32",
                             "Path32",
                             "Command32",
                             "Name",
                             "HelpContextID",
                             "Description",
                             "CompatibleMode",
                             "CompatibleEXE32",
                             "VersionCompatible32",
                             "VersionComments",
                             "VersionCompanyName",
                             "VersionFileDescription",
                             "VersionLegalCopyright",
                             "VersionLegalTrademarks",
                             "VersionProductName",
                             "CondComp"}) {
        ProjectFile file("Type=Exe\r\n", kPage);
        file.setSetting(text, "a");
        EXPECT_EQ(file.bytes(), "Type=Exe\r\n" + std::string(text) + "=\"a\"\r\n");
    }
    for (const auto* number : {"NoControlUpgrade",   "MajorVer",
                               "MinorVer",           "RevisionVer",
                               "AutoIncrementVer",   "ServerSupportFiles",
                               "DllBaseAddress",     "CompilationType",
                               "OptimizationType",   "FavorPentiumPro(tm)",
                               "CodeViewDebugInfo",  "NoAliasing",
                               "BoundsCheck",        "OverflowCheck",
                               "FlPointCheck",       "FDIVCheck",
                               "UnroundedFP",        "StartMode",
                               "Unattended",         "Retained",
                               "ThreadPerObject",    "MaxNumberOfThreads",
                               "ThreadingModel",     "RemoveUnusedControlInfo",
                               "DebugStartupOption", "DebugStartupComponent",
                               "UseExistingBrowser"}) {
        ProjectFile file("Type=Exe\r\n", kPage);
        file.setSetting(number, "1");
        EXPECT_EQ(file.bytes(), "Type=Exe\r\n" + std::string(number) + "=1\r\n");
    }
}

TEST(ProjectFile, AMissingSettingIsInsertedInOrder) {
    ProjectFile file(kSmallProject, kPage);
    file.setSetting("Title", "Hello");
    EXPECT_EQ(file.bytes(), with(kSmallProject, "Command32", "Title=\"Hello\"\r\nCommand32"));
    ProjectFile second(kSmallProject, kPage);
    second.setSetting("ThreadPerObject", "0");
    EXPECT_EQ(second.bytes(), with(kSmallProject, "MajorVer=1\r\n", "MajorVer=1\r\nThreadPerObject=0\r\n"));
    ProjectFile third("Type=Exe\r\nForm=a.frm\r\nCommand32=\"\"\r\n", kPage);
    third.setSetting("Startup", "a");
    EXPECT_EQ(third.bytes(), "Type=Exe\r\nForm=a.frm\r\nStartup=\"a\"\r\nCommand32=\"\"\r\n");
}

TEST(ProjectFile, AMemberIsAddedAfterTheLastOne) {
    ProjectFile file(kSmallProject, kPage);
    file.addMember(MemberKind::Class, "clsNew", "New.cls");
    EXPECT_EQ(file.bytes(), with(kSmallProject, "Form=Main.frm\r\n", "Form=Main.frm\r\nClass=clsNew; New.cls\r\n"));
    ProjectFile empty("Type=Exe\nName=\"x\"\n", kPage);
    const auto place = empty.addMember(MemberKind::Form, "", "a.frm");
    EXPECT_EQ(empty.bytes(), "Type=Exe\nForm=a.frm\nName=\"x\"\n");
    empty.removeMember(place);
    EXPECT_EQ(empty.bytes(), "Type=Exe\nName=\"x\"\n");
    empty.addMember(MemberKind::Form, "", "b.frm");
    EXPECT_EQ(empty.bytes(), "Type=Exe\nForm=b.frm\nName=\"x\"\n");
}

TEST(ProjectFile, AMembersLineIsRewrittenWithItsOwnKey) {
    ProjectFile file("type=Exe\r\nmodule=a; a.bas\r\nForm=f.frm\r\n", kPage);
    const auto members = file.members();
    file.setMember(members[0].place, "b", "sub\\b.bas");
    EXPECT_EQ(file.bytes(), "type=Exe\r\nmodule=b; sub\\b.bas\r\nForm=f.frm\r\n");
    file.removeMember(members[1].place);
    file.addMember(MemberKind::Form, "", "g.frm");
    EXPECT_EQ(file.bytes(), "type=Exe\r\nmodule=b; sub\\b.bas\r\nForm=g.frm\r\n");
}

TEST(ProjectFile, AddInValuesAreUnquotedLinesInSections) {
    ProjectFile file(kSmallProject, kPage);
    file.writeProperty("Quinloft Global", "IsQuinloftProject", "True");
    file.writeProperty("Quinloft Global", "Empty", "");
    file.writeProperty("Other", "a", "1");
    EXPECT_EQ(file.bytes(),
              kSmallProject + "\r\n[Quinloft Global]\r\nIsQuinloftProject=True\r\nEmpty=\r\n\r\n[Other]\r\na=1\r\n");
    EXPECT_EQ(file.readProperty("Quinloft Global", "Empty"), "");
}

TEST(ProjectFile, AMissingKeyIsAnError) {
    const ProjectFile file(kSmallProject, kPage);
    EXPECT_EQ(errorOf([&] { file.readProperty("MS Transaction Server", "None"); }), 5);
    EXPECT_EQ(errorOf([&] { file.readProperty("None", "AutoRefresh"); }), 5);
    EXPECT_EQ(errorOf([&] { file.readProperty("", "Startup"); }), 5);
}

TEST(ProjectFile, SectionsAndKeysMatchInAnyLetterCaseAndKeepTheirs) {
    ProjectFile file("Type=Exe\r\n\r\n[Größe]\r\nNumTargets=1\r\n", CodePage(65001));
    EXPECT_EQ(file.readProperty("GRÖßE", "numTARGETS"), "1");
    file.writeProperty("grÖße", "numTargets", "2");
    EXPECT_EQ(file.bytes(), "Type=Exe\r\n\r\n[Größe]\r\nNumTargets=2\r\n");
}

TEST(ProjectFile, ValuesAreSplitAtTheFirstEqualsSignAndKeptExactly) {
    ProjectFile file("Type=Exe\r\n\r\n[fastBuild]\r\nPostBuild=tool \"a b.exe\" && copy x=y \r\nq=\"z\"\r\n", kPage);
    EXPECT_EQ(file.readProperty("fastBuild", "PostBuild"), "tool \"a b.exe\" && copy x=y ");
    EXPECT_EQ(file.readProperty("fastBuild", "q"), "\"z\"");
    EXPECT_TRUE(file.writeProperty("fastBuild", "q", " \"a\" = b "));
    EXPECT_EQ(file.readProperty("fastBuild", "q"), " \"a\" = b ");
    EXPECT_FALSE(file.writeProperty("fastBuild", "q", " \"a\" = b "));
}

TEST(ProjectFile, SectionsAreNeitherSortedNorAdded) {
    const auto bytes = "Type=Exe\r\n\r\n[TaskList]\r\nNum=2\r\n\r\n[TASK1]\r\nDescription=\r\nAssignedTo=\r\n"
                       "\r\n[MS Transaction Server]\r\nAutoRefresh=1\r\n\r\n[vbAdvance]\r\nIsConsole=0\r\n"
                       "\r\n[Rubberduck]\r\nProjectId=1\r\n\r\n[TASK2]\r\nDescription=\r\n"s;
    ProjectFile file(bytes, kPage);
    EXPECT_EQ(file.readProperty("TASK1", "AssignedTo"), "");
    file.writeProperty("TASK1", "Status", "open");
    EXPECT_EQ(file.bytes(), with(bytes, "AssignedTo=\r\n", "AssignedTo=\r\nStatus=open\r\n"));
    ProjectFile bare("Type=Exe\r\n\r\n[fastBuild]\r\nfullPath=x\r\n", kPage);
    bare.writeProperty("fastBuild", "b", "1");
    EXPECT_EQ(bare.bytes(), "Type=Exe\r\n\r\n[fastBuild]\r\nfullPath=x\r\nb=1\r\n");
}

TEST(ProjectFile, ALongSectionKeepsItsOrder) {
    auto bytes = "Type=Exe\r\n\r\n[RVB]\r\n"s;
    for (int i = 55; i >= 1; --i) bytes += "DeleteClass" + std::to_string(i) + "=0\r\n";
    ProjectFile file(bytes, kPage);
    EXPECT_EQ(file.readProperty("RVB", "DeleteClass1"), "0");
    file.writeProperty("RVB", "DeleteClass30", "1");
    EXPECT_EQ(file.bytes(), with(bytes, "DeleteClass30=0", "DeleteClass30=1"));
}

TEST(ProjectFile, ADuplicateSectionIsReadFromBoth) {
    ProjectFile file("Type=Exe\r\n\r\n[A]\r\nx=1\r\n\r\n[B]\r\n\r\n[a]\r\nx=9\r\ny=2\r\n", kPage);
    EXPECT_EQ(file.readProperty("A", "x"), "1");
    EXPECT_EQ(file.readProperty("A", "y"), "2");
    file.writeProperty("A", "y", "3");
    EXPECT_EQ(file.bytes(), "Type=Exe\r\n\r\n[A]\r\nx=1\r\n\r\n[B]\r\n\r\n[a]\r\nx=9\r\ny=3\r\n");
}

TEST(ProjectFile, RefusesValuesThatCannotBeReadBack) {
    ProjectFile file(kSmallProject, kPage);
    EXPECT_EQ(errorOf([&] { file.writeProperty("A", "k", "two\r\nlines"); }), 5);
    EXPECT_EQ(errorOf([&] { file.writeProperty("A", "k", "two\nlines"); }), 5);
    EXPECT_EQ(errorOf([&] { file.writeProperty("A", "k", "two\rlines"); }), 5);
    EXPECT_EQ(errorOf([&] { file.writeProperty("A", "k\n", "v"); }), 5);
    EXPECT_EQ(errorOf([&] { file.writeProperty("A\n", "k", "v"); }), 5);
    EXPECT_EQ(errorOf([&] { file.writeProperty("A", "k=l", "v"); }), 5);
    EXPECT_EQ(errorOf([&] { file.writeProperty("A", "[k", "v"); }), 5);
    EXPECT_EQ(errorOf([&] { file.writeProperty("A", "", "v"); }), 5);
    EXPECT_EQ(errorOf([&] { file.writeProperty("", "k", "v"); }), 5);
    EXPECT_EQ(errorOf([&] { file.writeProperty("A", "k", "日本"); }), 5);
    EXPECT_EQ(errorOf([&] { file.writeProperty("日本", "k", "v"); }), 5);
    EXPECT_EQ(errorOf([&] { file.setSetting("Title", "a\nb"); }), 5);
    EXPECT_EQ(errorOf([&] { file.setSetting("Name", "日本"); }), 5);
    EXPECT_EQ(errorOf([&] { file.addMember(MemberKind::Form, "", "日本.frm"); }), 5);
    EXPECT_EQ(file.bytes(), kSmallProject);
}

TEST(ProjectFile, NewLinesEndAsTheFilesOwn) {
    ProjectFile file("Type=Exe\nName=\"x\"", kPage);
    file.writeProperty("A", "k", "v");
    EXPECT_EQ(file.bytes(), "Type=Exe\nName=\"x\"\n\n[A]\nk=v\n");
    ProjectFile blank("Type=Exe\r\n\r\n\r\n", kPage);
    blank.writeProperty("A", "k", "v");
    EXPECT_EQ(blank.bytes(), "Type=Exe\r\n\r\n\r\n[A]\r\nk=v\r\n");
    ProjectFile empty("", kPage);
    empty.writeProperty("A", "k", "v");
    EXPECT_EQ(empty.bytes(), "[A]\r\nk=v\r\n");
}

TEST(ProjectFile, RecognisesProjectFiles) {
    EXPECT_TRUE(ProjectFile(kSmallProject, kPage).looksLikeProject());
    EXPECT_TRUE(ProjectFile("\xEF\xBB\xBFType=Exe\r\n", CodePage(65001)).looksLikeProject());
    EXPECT_TRUE(ProjectFile("Form=a.frm\r\n", kPage).looksLikeProject());
    EXPECT_FALSE(ProjectFile("\x89PNG\r\n\x1a\n=\0"s, kPage).looksLikeProject());
    EXPECT_FALSE(ProjectFile("[A]\r\nType=Exe\r\n", kPage).looksLikeProject());
    EXPECT_FALSE(ProjectFile("", kPage).looksLikeProject());
}

TEST(ProjectFile, DecodesAMemberBeforeItsPathIsSplit) {
    // In this page "\" can be the second byte of a character.
    ProjectFile file("Type=Exe\r\nForm=\x95\x5C.frm\r\n", CodePage(932));
    EXPECT_EQ(file.members()[0].content.value, "表.frm");
}

TEST(ProjectFile, KeepsAMemberNamedUnlikeItsFile) {
    ProjectFile file("Type=Exe\r\nModule=mCataloglIni; mCatalogIni.bas\r\nModule = b ;  c.bas \r\nModule=only.bas\r\n",
                     kPage);
    const auto members = file.members();
    EXPECT_EQ(members[0].content.name, "mCataloglIni");
    EXPECT_EQ(members[1].content, (host::ProjectMember{MemberKind::Module, "b", "c.bas", 3}));
    EXPECT_EQ(members[2].content, (host::ProjectMember{MemberKind::Module, "", "only.bas", 4}));
}

TEST(ProjectFile, TenThousandValuesAndMembersAreFast) {
    ProjectFile file(kSmallProject, kPage);
    for (int i = 1; i <= 10'000; ++i) {
        file.writeProperty("Errors", "Error" + std::to_string(i), "x");
        file.addMember(MemberKind::Module, "m" + std::to_string(i), "m.bas");
    }
    EXPECT_EQ(file.readProperty("errors", "error9999"), "x");
    EXPECT_EQ(file.members().size(), 10'003u);
}

TEST(ProjectFile, WrittenValuesAreReadBack) {
    std::mt19937 random(7);
    const auto text = [&](std::string_view alphabet) {
        std::string made;
        for (auto n = random() % 12 + 1; n > 0; --n) made += alphabet[random() % alphabet.size()];
        return made;
    };
    for (int round = 0; round < 500; ++round) {
        ProjectFile file(text("Type=Exe[]\r\n\"!; ab"), kPage);
        const auto section = "s" + text("abc ]["), key = "k" + text("abc []\"!"), value = text("=\"! []ab;");
        file.writeProperty(section, key, value);
        const ProjectFile again(file.bytes(), kPage);
        EXPECT_EQ(again.readProperty(section, key), value) << file.bytes();
    }
}
