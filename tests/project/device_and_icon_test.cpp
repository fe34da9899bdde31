#include "project_world.h"
#include <filesystem>

using namespace fernwick;

namespace {
struct ProjectDevice : test::ProjectTest {
    basic::Ref<test::ListedTarget> palm = addTarget("Palm"), pocket = addTarget("Pocket");
    basic::Ref<clsQLProject> project = open(test::SampleProject{}.handheld("Palm"));
};
using ProjectIcon = ProjectDevice;
} // namespace

TEST_F(ProjectDevice, SettingTheDeviceMakesItTheOnlyCompileTarget) {
    project->TargetDevice("Pocket");
    EXPECT_EQ(project->TargetDevice(), "Pocket");
    EXPECT_EQ(stored(project, "NumCompileTargets"), "1");
    EXPECT_EQ(stored(project, "CompileTarget1"), "Pocket");
    EXPECT_EQ(project->designTarget()->Key(), "Pocket");
}

TEST_F(ProjectDevice, TheDesignTargetIsFetchedOnceForAKey) {
    EXPECT_EQ(project->VBPTemplate(), "");
    project->InitDesignTarget();
    EXPECT_EQ(project->VBPTemplate(), "/templates/Palm.vbp");
    EXPECT_EQ(project->FormTemplate() + project->ModuleTemplate() + project->ClassModuleTemplate(),
              "/templates/Palm.frm/templates/Palm.bas/templates/Palm.cls");
    const auto first = project->designTarget();
    targets->list[0] = basic::make<test::ListedTarget>("Palm");
    project->InitDesignTarget();
    project->TargetDevice("Palm");
    EXPECT_EQ(project->designTarget(), first);
    project->TargetDevice("Pocket");
    project->TargetDevice("Palm");
    EXPECT_FALSE(project->designTarget() == first);
}

TEST_F(ProjectDevice, AnUnknownKeyHasNoDesignTarget) {
    project->TargetDevice("Nobody");
    EXPECT_FALSE(project->designTarget());
    EXPECT_TRUE(reports().empty());
}

TEST_F(ProjectIcon, TheDefaultIconIsStoredAsNothing) {
    project->IconFileName(path("installed/VB TOOLKIT/bin/QLDEFAULT.ICO"));
    EXPECT_EQ(stored(project, "IconFileName"), "");
    EXPECT_EQ(project->IconFileName(), project->DefaultIconFileName());
    project->IconFileName("");
    EXPECT_EQ(stored(project, "IconFileName"), "");
}

TEST_F(ProjectIcon, AnIconInTheProjectFolderIsStoredRelative) {
    host.folder.write("Icons/my.ico", "");
    project->IconFileName(path("Icons/my.ico"));
    EXPECT_EQ(stored(project, "IconFileName"), "Icons\\my.ico");
    EXPECT_EQ(project->IconFileName(), path("Icons/my.ico"));
}

TEST_F(ProjectIcon, AnIconElsewhereIsStoredAsGiven) {
    project->IconFileName("/usr/share/my.ico");
    EXPECT_EQ(stored(project, "IconFileName"), "/usr/share/my.ico");
    EXPECT_EQ(project->IconFileName(), "/usr/share/my.ico");
}

TEST_F(ProjectIcon, AProjectFolderInsideThePathIsEnoughForARelativePath) {
    const auto copy = path("Backup") + host.folder.path() + "/my.ico"; // the folder's path appears twice
    const auto elsewhere = "/srv" + host.folder.path() + "/my.ico";    // not at the beginning
    project->IconFileName(copy);
    EXPECT_EQ(stored(project, "IconFileName").substr(0, 7), "Backup\\");
    project->IconFileName(elsewhere);
    EXPECT_EQ(stored(project, "IconFileName").substr(0, 3), "..\\");
}

TEST_F(ProjectIcon, APathWithADriveIsReturnedUnchanged) {
    project->VBProject()->WriteProperty("Quinloft Global", "IconFileName", "C:\\Icons\\my.ico");
    EXPECT_EQ(project->IconFileName(), "C:\\Icons\\my.ico");
}

TEST_F(ProjectIcon, AProjectWithoutAFileStoresTheIconAsGiven) {
    const auto fresh = wrap(host.ide->VBProjects()->AddFromTemplate(test::SampleProject{"T"}.writeTo(host.folder)));
    fresh->IconFileName(path("my.ico"));
    EXPECT_EQ(stored(fresh, "IconFileName"), path("my.ico"));
}

TEST_F(ProjectIcon, ThePipeGetsACopyInTheTemporaryFolder) {
    project->IconFileName(host.folder.write("Icons/my.ico", "new"));
    const auto temporary = files.GetSpecialFolder(TemporaryFolder) + "/my.ico";
    files.WriteBytes(temporary, "old");
    EXPECT_EQ(project->GetTempIcon(), temporary);
    EXPECT_EQ(files.ReadBytes(temporary), "new");
    EXPECT_EQ(host.folder.read("Icons/my.ico"), "new");
}

TEST_F(ProjectIcon, AReadOnlyCopyIsReplaced) {
    const auto icon = host.folder.write("my.ico", "icon");
    std::filesystem::permissions(icon, std::filesystem::perms::owner_read);
    project->IconFileName(icon);
    const auto copy = project->GetTempIcon();
    EXPECT_EQ(project->GetTempIcon(), copy);
    EXPECT_EQ(files.ReadBytes(copy), "icon");
    EXPECT_TRUE(reports().empty());
}

TEST_F(ProjectIcon, WithoutAnIconThereIsNoCopy) {
    project->IconFileName(path("none.ico"));
    EXPECT_EQ(project->GetTempIcon(), "");
    EXPECT_TRUE(reports().empty());
}

TEST_F(ProjectIcon, TheDefaultIconIsCopiedTooAndACopyThatFailsIsReported) {
    const auto copy = project->GetTempIcon();
    EXPECT_EQ(files.ReadBytes(copy), "icon");
    files.DeleteFile(copy, true);
    std::filesystem::create_directory(copy); // prevents the copy
    EXPECT_EQ(project->GetTempIcon(), copy);
    EXPECT_EQ(reports(), (std::vector<std::string>{"clsQLProject.GetTempIcon [70]"}));
}
