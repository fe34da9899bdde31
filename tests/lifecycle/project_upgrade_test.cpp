// A project file of the old format is brought over to the present one.
#include "Add-in/lifecycle/known_lines.h"
#include "Add-in/lifecycle/project_upgrade.h"
#include "lifecycle_world.h"

using fernwick::UpgradeResult;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class ProjectUpgrade : public testing::Test, protected test::LifecycleWorld {
protected:
    ProjectUpgrade() { targets.known = {"Palm-1"}; }
    fernwick::Upgrade upgrade(const std::string& text) {
        files.files["/p/A.vbp"].bytes = text;
        return fernwick::upgradeProject(files, deviceServices, "/p/A.vbp");
    }
    const std::string& bytes() { return files.files["/p/A.vbp"].bytes; }
};

constexpr char kDeviceValues[] =
    "TavletStyleID=2\r\nDefaultFontName=Font\r\nDefaultFontSize=9\r\nDefaultFontStyle=0\r\n"
    "DefaultFormColor=0\r\nDefaultFormWidth=160\r\nDefaultFormHeight=160\r\n"
    "numCompileTargets=1\r\nCompileTarget1=Palm-1\r\n";

TEST_F(ProjectUpgrade, AddsTheVersionAndTheDevicesValues) {
    const std::string own = "Type=Exe\r\n\r\n[Quinloft Global]\r\nIsQuinloftProject=True\r\nTargetDevice=Palm-1\r\n";
    const std::string rest = "\r\n[MS Transaction Server]\r\nAutoRefresh=1\r\n";
    const auto done = upgrade(own + rest);
    EXPECT_EQ(done.result, UpgradeResult::Upgraded);
    EXPECT_EQ(bytes(), own + "ProjectVersion=3.5\r\n" + kDeviceValues + rest);
    EXPECT_EQ(files.files["/p/A.vbp.bak"].bytes, own + rest);
    EXPECT_EQ(done.backup, "/p/A.vbp.bak");
    EXPECT_THAT(done.unknownLines, IsEmpty());

    const auto once = bytes();
    EXPECT_EQ(upgrade(once).result, UpgradeResult::Current);
    EXPECT_EQ(bytes(), once);
    EXPECT_FALSE(files.FileExists("/p/A.vbp.bak1"));
}

TEST_F(ProjectUpgrade, ReplacesAnEmptyOrOldVersionAndKeepsOtherValues) {
    for (const auto* version : {"", "1.0"}) {
        upgrade("[Quinloft Global]\r\nProjectVersion=" + std::string(version) +
                "\r\nisquinloftproject=True\r\nTargetDevice=Palm-1\r\nDEFAULTFONTSIZE=12\r\nNumCompileTargets=0\r\n");
        EXPECT_EQ(bytes(),
                  "[Quinloft Global]\r\nProjectVersion=3.5\r\nisquinloftproject=True\r\nTargetDevice=Palm-1\r\n"
                  "DEFAULTFONTSIZE=12\r\nNumCompileTargets=0\r\nTavletStyleID=2\r\nDefaultFontName=Font\r\n"
                  "DefaultFontStyle=0\r\nDefaultFormColor=0\r\nDefaultFormWidth=160\r\n"
                  "DefaultFormHeight=160\r\n");
    }
}

TEST_F(ProjectUpgrade, ADeviceThatIsNotInstalledAddsNoValues) {
    for (const auto* device : {"TargetDevice=Gone-9\r\n", ""}) {
        const auto own = "[Quinloft Global]\r\nIsQuinloftProject=True\r\n" + std::string(device);
        upgrade(own);
        EXPECT_EQ(bytes(), own + "ProjectVersion=3.5\r\n");
    }
}

TEST_F(ProjectUpgrade, LeavesForeignProjectsAlone) {
    for (const auto* text : {"Type=Exe\r\n", "[Quinloft Global]\r\nIsQuinloftProject=False\r\n",
                             "[Other]\r\nIsQuinloftProject=True\r\n"}) {
        EXPECT_EQ(upgrade(text).result, UpgradeResult::Foreign);
        EXPECT_EQ(bytes(), text);
    }
    EXPECT_FALSE(files.FileExists("/p/A.vbp.bak"));
}

TEST_F(ProjectUpgrade, NamesTheLinesThatThisVersionDoesNotKnow) {
    const auto done = upgrade("[Quinloft Global]\r\nIsQuinloftProject=True\r\nOldOption=1\r\nMODID=x\r\n"
                              "CompileTarget12=y\r\nCompileTargetX=z\r\n[Quinloft Compiler Options]\r\n"
                              "PreCompileStepCount=1\r\nPreCompileStep0=a\r\nSpeed=9\r\n"
                              "[Quinloft Project Dependencies]\r\nNumDependencies=1\r\nDependencies0=a,b\r\nOther=1\r\n"
                              "[Quinloft Project Compile Errors]\r\nAny=1\r\n"
                              "[Quinloft Components And Tavlet Dependencies Section]\r\nNumFontDependencies=0\r\n"
                              "FontDependency1=\r\nFontDependency=\r\n[Quinloft Gone]\r\nx=1\r\n[Other]\r\ny=1\r\n");
    EXPECT_THAT(done.unknownLines,
                ElementsAre("OldOption=1", "CompileTargetX=z", "Speed=9", "Other=1", "FontDependency=", "x=1"));
}

TEST_F(ProjectUpgrade, AFailedReplacementLeavesTheOldFile) {
    const std::string own = "[Quinloft Global]\r\nIsQuinloftProject=True\r\n";
    files.files["/p/A.vbp"].bytes = own;
    files.refusesMoves = true;
    EXPECT_NE(basic::attempt([&] { fernwick::upgradeProject(files, deviceServices, "/p/A.vbp"); }).Number, 0);
    EXPECT_EQ(bytes(), own);
    EXPECT_FALSE(files.FileExists("/p/A.vbp.converting"));
}

} // namespace
