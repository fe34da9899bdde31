#include "Add-in/lifecycle/target_keys.h"
#include "lifecycle_world.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

TEST(OneTargetAPlatform, KeepsTheFirstKeyOfEachPlatform) {
    using fernwick::oneTargetAPlatform;
    EXPECT_THAT(oneTargetAPlatform({"PocketPC-SH3", "PalmOS-DragonBall", "PocketPC-ARM", "Linux"}),
                ElementsAre("PocketPC-SH3", "PalmOS-DragonBall", "Linux"));
    EXPECT_THAT(oneTargetAPlatform({"Plain", "Plain", "-x", "-y"}), ElementsAre("Plain", "Plain", "-x"));
    EXPECT_THAT(oneTargetAPlatform({}), IsEmpty());
}

class DesignTarget : public testing::Test, protected test::LifecycleWorld {
protected:
    DesignTarget() {
        targets.known = {"PocketPC-SH3", "PalmOS-DragonBall", "PocketPC-ARM"};
        project = open("A");
        chooseTarget.SetWorkingProject(projects.GetQLProject(project));
    }
    void show(std::function<void()> act) {
        user.whenShown["frmDesignTargetNormal"] = [act](fernwick::Form&) { act(); };
        chooseTarget.ShowModal();
    }
    test::Ref<test::TracedProject> project;
};

TEST_F(DesignTarget, ListsOneRowAPlatformByItsName) {
    show([&] {
        ASSERT_EQ(chooseTarget.lstQuickDesignTargets.ListCount(), 2);
        EXPECT_EQ(chooseTarget.lstQuickDesignTargets.List(0), "PocketPC-SH3");
        EXPECT_EQ(chooseTarget.lstQuickDesignTargets.List(1), "PalmOS-DragonBall");
    });
    show([&] { EXPECT_EQ(chooseTarget.lstQuickDesignTargets.ListCount(), 2); });
}

TEST_F(DesignTarget, OKNeedsARow) {
    show([&] {
        EXPECT_FALSE(chooseTarget.btnOK.Enabled());
        chooseTarget.lstQuickDesignTargets.ListIndex(1);
        EXPECT_TRUE(chooseTarget.btnOK.Enabled());
        chooseTarget.btnOK.press();
        EXPECT_FALSE(chooseTarget.isLoaded());
    });
    EXPECT_EQ(project->stored("TargetDevice"), "PalmOS-DragonBall");
}

TEST_F(DesignTarget, ADoubleClickChooses) {
    show([&] {
        chooseTarget.lstQuickDesignTargets.ListIndex(0);
        chooseTarget.lstQuickDesignTargets.DblClick.raise();
        EXPECT_FALSE(chooseTarget.isLoaded());
    });
    EXPECT_EQ(project->stored("TargetDevice"), "PocketPC-SH3");
}

TEST_F(DesignTarget, ADoubleClickWithoutARowDoesNothing) {
    show([&] { chooseTarget.lstQuickDesignTargets.DblClick.raise(); });
    EXPECT_EQ(project->stored("TargetDevice"), "(none)");
}

TEST_F(DesignTarget, CancelWritesNothing) {
    show([&] {
        chooseTarget.lstQuickDesignTargets.ListIndex(1);
        chooseTarget.btnAdvanced.press();
        chooseTarget.btnCancel.press();
        EXPECT_FALSE(chooseTarget.isLoaded());
    });
    EXPECT_EQ(project->stored("TargetDevice"), "(none)");
    EXPECT_FALSE(project->dirty);
}

} // namespace
