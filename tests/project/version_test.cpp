#include "project_world.h"

using namespace fernwick;

namespace {
/// Only the project file on disk matters, so no host project is needed.
struct ProjectVersion : test::ProjectTest {
    auto withFile(const std::string& text) {
        const auto vbProject = traced();
        host.folder.write("Hello.vbp", text);
        return wrap(vbProject);
    }
    std::string text() const { return host.folder.read("Hello.vbp"); }
};
} // namespace

TEST_F(ProjectVersion, ThreeZerosWithoutVersionLines) { EXPECT_EQ(withFile("Type=Exe\r\n")->version(), "0.0.0"); }

TEST_F(ProjectVersion, ALaterLineReplacesAnEarlierOne) {
    EXPECT_EQ(withFile("MajorVer=2\r\nMinorVer=3\r\nRevisionVer=14\r\nMinorVer=4\r\n")->version(), "2.4.14");
}

TEST_F(ProjectVersion, KeysAreCaseSensitiveAndStartTheLine) {
    EXPECT_EQ(withFile("majorver=2\r\nXMinorVer=3\r\n")->version(), "0.0.0");
}

TEST_F(ProjectVersion, AnInvalidNumberRaisesAnError) {
    EXPECT_EQ(test::errorOf([&] { withFile("MajorVer=two\r\n")->version(); }), 13);
}

TEST_F(ProjectVersion, AProjectWithoutAFileRaisesAnError) {
    const auto project = wrap(traced());
    EXPECT_EQ(test::errorOf([&] { project->version(); }), 53);
    EXPECT_EQ(test::errorOf([&] { project->GetAppInfo(); }), 53);
}

TEST_F(ProjectVersion, ApplicationInformation) {
    const auto info = withFile("MajorVer= 1 \r\nMinorVer=2\r\nRevisionVer=003\r\nTitle=\"My Title\"\r\n"
                               "VersionComments=\"only opened\r\nVersionCompanyName=a \"b\" c\r\nName=\"App\"\r\n"
                               "VersionLegalCopyright=x=y=z\r\nVersionLegalTrademarks=\"\r\nno divider\r\n"
                               "VersionFileDescription=\"d\"\r\nVersionProductName=P\r\ntitle=other\r\n")
                          ->GetAppInfo();
    EXPECT_EQ(info.Major + "." + info.Minor + "." + info.Revision, "1.2.003");
    EXPECT_EQ(info.Title, "My Title");
    EXPECT_EQ(info.Comments, "only opened");
    EXPECT_EQ(info.CompanyName, "a \"b\" c");
    EXPECT_EQ(info.ExeName, "App");
    EXPECT_EQ(info.LegalCopyright, "x=y=z");
    EXPECT_EQ(info.LegalTrademarks, "");
    EXPECT_EQ(info.FileDescription, "d");
    EXPECT_EQ(info.ProductName, "P");
}

TEST_F(ProjectVersion, ANameInALaterSectionWins) {
    EXPECT_EQ(withFile("Name=\"App\"\r\n\r\n[Other]\r\nName=Late\r\n")->GetAppInfo().ExeName, "Late");
}

TEST_F(ProjectVersion, TheRevisionIsAlwaysIncrementedByOne) {
    const auto project = withFile("Type=Exe\nRevisionVer=9\nAutoIncrementVer=1\nTitle=\"\xFC\"\n");
    project->IncerementRevision(5);
    EXPECT_EQ(text(), "Type=Exe\r\nRevisionVer=10\r\nAutoIncrementVer=1\r\nTitle=\"\xFC\"\r\n");
    EXPECT_FALSE(files.FileExists(path("Hello.vbp.temp")));
}

TEST_F(ProjectVersion, NothingIsWrittenWithoutAutoIncrement) {
    const auto project = withFile("RevisionVer=9\nAutoIncrementVer=0\n");
    EXPECT_FALSE(project->AutoIncrementVersion());
    project->IncerementRevision(1);
    EXPECT_EQ(text(), "RevisionVer=9\nAutoIncrementVer=0\n");
}

TEST_F(ProjectVersion, TheFirstAutoIncrementLineCounts) {
    EXPECT_FALSE(withFile("AutoIncrementVer=0\nAutoIncrementVer=1\n")->AutoIncrementVersion());
    EXPECT_TRUE(withFile("AutoIncrementVer=1\nAutoIncrementVer=0\n")->AutoIncrementVersion());
}

TEST_F(ProjectVersion, WithoutACopyTheRevisionIsKeptSilently) {
    const auto project = withFile("RevisionVer=9\r\nAutoIncrementVer=1\r\n");
    host.folder.write("Hello.vbp.temp/file", ""); // prevents the copy
    EXPECT_EQ(test::errorOf([&] { project->IncerementRevision(1); }), 0);
    EXPECT_EQ(text(), "RevisionVer=9\r\nAutoIncrementVer=1\r\n");
    EXPECT_TRUE(reports().empty() && user.sawNothing());
}

TEST_F(ProjectVersion, NoSuchLineMeansOff) { EXPECT_FALSE(withFile("Type=Exe\r\n")->AutoIncrementVersion()); }

TEST_F(ProjectVersion, AnOverflowingRevisionIsKeptAndRaisesAnError) {
    const auto project = withFile("RevisionVer=2147483647\r\nAutoIncrementVer=1\r\n");
    EXPECT_EQ(test::errorOf([&] { project->IncerementRevision(1); }), 6);
    EXPECT_EQ(text(), "RevisionVer=2147483647\r\nAutoIncrementVer=1\r\n");
}
