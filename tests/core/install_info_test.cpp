#include "Add-in/core/modFileManagement.h"
#include "Add-in/core/modQLInstallInfo.h"
#include "Host/system/file_system.h"
#include "core_world.h"
#include "tests/support/errors.h"
#include "tests/support/temp_folder.h"

using namespace fernwick;

namespace {
struct InstallInfo : test::CoreTest {
    host::FileSystem files;
    test::TempFolder root;
    modQLInstallInfo install{registry, files};
    void installAt(const std::string& folder) { setText(kMachine, "Software\\Quinloft", "RootDir", folder); }
};
} // namespace

TEST_F(InstallInfo, AnEmptyRootGivesEmptyFolders) {
    installAt("");
    EXPECT_EQ(install.GetQuinloftRootDir(), "");
    EXPECT_EQ(install.GetQuinloftFontsDir(), "");
    EXPECT_EQ(install.GetQuinloftSamplesDir(), "");
    EXPECT_EQ(install.GetVBProductDir(), "");
}

TEST_F(InstallInfo, WithoutARootNothingIsInstalledInTheCurrentFolder) {
    for (const bool isStored : {false, true}) {
        if (isStored) installAt("");
        EXPECT_EQ(install.installed("VB Toolkit\\Bin\\QLFonC.exe"), "");
        EXPECT_EQ(test::errorOf([&] { install.requireInstalled("Weirgate\\WGConfig.exe"); }), 53);
    }
}

TEST_F(InstallInfo, FoldersAreBelowTheRootInAnyLetterCase) {
    root.write("vb toolkit/SAMPLES/readme.txt", "");
    installAt(root.path());
    EXPECT_EQ(install.GetQuinloftFontsDir(), root / "Fonts");
    EXPECT_EQ(install.GetQuinloftSamplesDir(), root / "vb toolkit/SAMPLES");
    setText(kMachine, "Software\\Microsoft\\VisualStudio\\6.0\\Setup\\Microsoft Visual Basic", "ProductDir", "/vb");
    EXPECT_EQ(install.GetVBProductDir(), "/vb");
}

TEST_F(InstallInfo, OnlyAPlainTextCountsAsRoot) {
    store.set(kMachine, "Software\\Quinloft", "RootDir", std::string("/q\0", 3), REG_EXPAND_SZ);
    EXPECT_EQ(install.GetQuinloftRootDir(), "");
}

TEST_F(InstallInfo, RelativePaths) {
    const auto base = root / "Project/";
    root.write("Project/Sub/a.bmp", "");
    root.write("Other/b.bmp", "");
    EXPECT_EQ(GetRelativePath(files, base, root / "Project/Sub/a.bmp"), "Sub\\a.bmp");
    EXPECT_EQ(GetRelativePath(files, base, root / "PROJECT/sub/A.BMP"), "Sub\\a.bmp");
    EXPECT_EQ(GetRelativePath(files, base, root / "Other/b.bmp"), "..\\Other\\b.bmp");
    EXPECT_EQ(GetRelativePath(files, base, root / "Project2/b.bmp"), "..\\Project2\\b.bmp");
    EXPECT_EQ(GetRelativePath(files, base, "b.bmp"), "b.bmp");
}
