// Without an installation, nothing is looked for in the root folder of the file system, where anything may be.
#include "Apps/common/installation.h"
#include "Apps/common/installed_controls.h"
#include "Apps/common/maker.h"
#include "Components/DesignTargetAccess/design_target_mgr.h"
#include "tests/support/temp_folder.h"
#include <cstdlib>
#include <gtest/gtest.h>
#include <sched.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

constexpr int kForbidden = 100;

/// Returns how many of the three parts are found from the installation's root.
int partsFoundFrom(const std::string& installation) {
    designtargetaccess::DesignTargetMgr targets{installation};
    targets.Initialize();
    const bool hasControls = !apps::InstalledControls{installation}.classNames().empty();
    const bool hasAddresses = !apps::appOf(installation, {}).WebAddress.empty();
    return int(targets.Count() > 0) + int(hasControls) + int(hasAddresses);
}

bool enter(const std::string& root) {
    if (::geteuid() != 0 && ::unshare(CLONE_NEWUSER) != 0) return false;
    return ::chroot(root.c_str()) == 0 && ::chdir("/") == 0;
}

/// The same in a process that has `root` as its root folder; kForbidden if this system does not allow that.
int partsFoundInRoot(const std::string& root, const std::string& installation) {
    const auto child = ::fork();
    if (child == 0) ::_exit(enter(root) ? partsFoundFrom(installation) : kForbidden);
    int status = -1;
    ::waitpid(child, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

TEST(NoInstallation, TheSearchEndsAtTheRootFolder) {
    const test::TempFolder folder;
    EXPECT_EQ(apps::installationBeside(folder.path()), "");
    EXPECT_EQ(apps::installationBeside(""), "");
}

TEST(NoInstallation, AFolderOfThisNameWithoutRegistryAndTargetsIsNone) {
    const test::TempFolder folder;
    const std::filesystem::path installation = std::filesystem::path(folder.path()) / "installation";
    std::filesystem::create_directories(installation / "registry");
    EXPECT_EQ(apps::installationBeside(folder.path()), "");
    std::filesystem::create_directories(installation / "targets");
    EXPECT_EQ(apps::installationBeside(folder.path()), std::filesystem::canonical(installation).string());
}

TEST(NoInstallation, NothingIsReadFromTheRootFolder) {
    const test::TempFolder root;
    std::filesystem::copy(FERNWICK_SOURCE_DIR "/installation", root.path(), std::filesystem::copy_options::recursive);
    const int found = partsFoundInRoot(root.path(), "/.");
    if (found == kForbidden) GTEST_SKIP() << "this system does not allow chroot";
    EXPECT_EQ(found, 3);
    EXPECT_EQ(partsFoundInRoot(root.path(), ""), 0);
}

} // namespace
