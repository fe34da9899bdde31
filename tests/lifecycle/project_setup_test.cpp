#include "lifecycle_world.h"

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

namespace {

class SetupProject : public testing::Test, protected test::LifecycleWorld {
protected:
    void setUp(const test::Ref<test::TracedProject>& project) {
        trace.effects.clear();
        setup.SetupProject(projects.GetQLProject(project));
    }
    void choose(int row) {
        user.whenShown["frmDesignTargetNormal"] = [=, this](fernwick::Form&) {
            chooseTarget.lstQuickDesignTargets.ListIndex(row);
            chooseTarget.btnOK.press();
        };
    }
};

TEST_F(SetupProject, EnablesTheInterfaceForAValidDevice) {
    targets.known = {"Palm-1"};
    const auto project = open("A", "Palm-1");
    setUp(project);
    EXPECT_EQ(projects.gCurrentProject, project);
    EXPECT_THAT(trace.effects,
                ElementsAre("TwipsPerPixelX=15", "TwipsPerPixelY=15", "enable menu", "enable toolbar",
                            "enable support toolbar", "Fernwick Messages hidden", "default target Palm-1",
                            "environment TavletStyle-DAF573D9-3AB3-4672-A6A7-6C23862A52E9", "cursor 1"));
}

TEST_F(SetupProject, RestoresTheMessagesWindow) {
    targets.known = {"Palm-1"};
    const auto project = open("A", "Palm-1");
    project->properties[{"Quinloft Project Compile Errors", "NumErrors"}] = "1";
    project->properties[{"Quinloft Project Compile Errors", "Error1"}] = "ERROR||0|m|1";
    project->properties[{"Quinloft Project Compile Errors", "Visible"}] = "TRUE";
    setUp(project);
    EXPECT_EQ(window->rowCount(), 2);
    EXPECT_TRUE(messages.isToolWindowShowing());
}

TEST_F(SetupProject, DisablesTheInterfaceForAForeignProject) {
    setUp(open("A", "none"));
    EXPECT_THAT(trace.effects, ElementsAre("disable menu", "disable toolbar", "disable support toolbar",
                                           "Fernwick Messages hidden", "cursor 1"));
}

TEST_F(SetupProject, OnlyActivatesTheStartUpProject) {
    const auto project = open("A");
    set(project, "StartUpProject", "{8A515BDE-2BCC-4ed4-8F0A-99E4522CC1BB}");
    setUp(project);
    EXPECT_EQ(projects.gCurrentProject, project);
    EXPECT_THAT(trace.effects, IsEmpty());
}

TEST_F(SetupProject, TakesTheOnlyTargetWithoutAsking) {
    targets.known = {"Palm-1"};
    targets.knows.required = {"{A}"};
    supportLabel();
    const auto project = open("A");
    setUp(project);
    EXPECT_EQ(project->stored("TargetDevice"), "Palm-1");
    EXPECT_FALSE(did("form frmDesignTargetNormal"));
    const auto at = [&](const std::string& what) {
        return std::find(trace.effects.begin(), trace.effects.end(), what) - trace.effects.begin();
    };
    EXPECT_LT(at("TargetDevice=Palm-1"), at("A saved /p/A.vbp"));
    EXPECT_LT(at("A saved /p/A.vbp"), at("toolbox Tavlets.QLLabel"));
    EXPECT_LT(at("toolbox Tavlets.QLLabel"), at("reference {A} 1.0"));
    EXPECT_LT(at("reference {A} 1.0"), at("default target Palm-1"));
    EXPECT_LT(at("default target Palm-1"), at("enable menu"));
}

TEST_F(SetupProject, AsksAmongSeveralTargetsThoughOneIsUsable) {
    targets.known = {"Palm-1", "Pocket-2"};
    targets.refused = {"Pocket-2"};
    const auto project = open("A");
    setUp(project);
    EXPECT_TRUE(did("form frmDesignTargetNormal"));
    EXPECT_EQ(project->stored("TargetDevice"), "(none)");
}

TEST_F(SetupProject, AsksAmongSeveralTargets) {
    targets.known = {"Palm-1", "Pocket-2"};
    choose(1);
    const auto project = open("A");
    setUp(project);
    EXPECT_EQ(project->stored("TargetDevice"), "Pocket-2");
    EXPECT_TRUE(did("enable menu"));
}

TEST_F(SetupProject, CancellingDisablesTheInterfaceAndKeepsTheProject) {
    targets.known = {"Palm-1", "Pocket-2"};
    const auto project = open("A");
    setUp(project);
    EXPECT_TRUE(did("form frmDesignTargetNormal"));
    EXPECT_TRUE(did("disable menu"));
    EXPECT_FALSE(loop.hasTimers());
    EXPECT_EQ(project->stored("TargetDevice"), "(none)");
}

TEST_F(SetupProject, AsksAgainForADeviceThatIsNoLongerValid) {
    targets.known = {"Palm-1", "Pocket-2"};
    int shown = 0;
    user.whenShown["frmDesignTargetNormal"] = [&](fernwick::Form&) {
        chooseTarget.lstQuickDesignTargets.ListIndex(shown == 0 ? 1 : 0);
        if (shown++ == 0) targets.refused = {"Pocket-2"};
        chooseTarget.btnOK.press();
    };
    const auto project = open("A");
    setUp(project);
    EXPECT_EQ(shown, 2);
    EXPECT_THAT(trace.effects,
                Contains("box 48 Fernwick: Pocket-2 support is not installed or registered. Please select a valid "
                         "device."));
    EXPECT_EQ(project->stored("TargetDevice"), "Palm-1");
    EXPECT_TRUE(did("enable menu"));
}

TEST_F(SetupProject, WithoutTargetsRemovesTheProject) {
    const auto project = open("A");
    setUp(project);
    EXPECT_TRUE(did("disable menu"));
    EXPECT_THAT(openNames(), ElementsAre("A"));
    loop.turn();
    EXPECT_THAT(openNames(), IsEmpty());
    EXPECT_FALSE(did("A saved /p/A.vbp"));
}

TEST_F(SetupProject, RefusedTargetsDoNotCount) {
    targets.known = {"Palm-1"};
    targets.refused = {"Palm-1"};
    setUp(open("A", "Palm-1"));
    EXPECT_FALSE(did("form frmDesignTargetNormal"));
    loop.turn();
    EXPECT_THAT(openNames(), IsEmpty());
}

TEST_F(SetupProject, AnUnavailableDeviceDisablesTheInterfaceAndKeepsTheProject) {
    targets.known = {"Palm-1"};
    setUp(open("A", "Gone-9"));
    EXPECT_TRUE(did("disable menu"));
    EXPECT_FALSE(loop.hasTimers());
}

TEST_F(SetupProject, LeavingAProjectKeepsItsWindowState) {
    targets.known = {"Palm-1"};
    const auto first = open("A", "Palm-1");
    setUp(first);
    messages.showToolWindow();
    setUp(open("B", "Palm-1"));
    EXPECT_EQ(first->stored("Visible"), "TRUE");
}

TEST_F(SetupProject, ASingleProjectIsNotLeft) {
    targets.known = {"Palm-1"};
    const auto first = open("A", "Palm-1");
    setUp(first);
    messages.showToolWindow();
    setUp(first);
    EXPECT_EQ(first->stored("Visible"), "(none)");
}

TEST_F(SetupProject, AFailingCallLosesOnlyItself) {
    targets.known = {"Palm-1"};
    const auto project = open("A", "Palm-1");
    const auto qlProject = projects.GetQLProject(project);
    for (int failing = 1;; ++failing) {
        errors.injected = 0;
        trace.calls = 0;
        trace.failing = failing;
        trace.effects.clear();
        setup.SetupProject(qlProject);
        trace.failing = 0;
        if (trace.calls < failing) break;
        EXPECT_LE(errors.injected, 1) << failing;
        EXPECT_EQ(projects.gCurrentProject, project) << failing;
        EXPECT_TRUE(did("cursor 1") || failing == trace.calls) << failing;
    }
}

class StartingTheProjectManager : public testing::Test, protected test::LifecycleWorld {
protected:
    StartingTheProjectManager() { targets.known = {"Palm-1"}; }
    void start(const test::Ref<test::TracedProject>& project) {
        projects.gCurrentProject = project;
        trace.effects.clear();
        setup.StartProjectManager();
        loop.turn();
    }
};

TEST_F(StartingTheProjectManager, OpensAtOnceWithoutAProject) {
    start(nullptr);
    EXPECT_THAT(trace.effects, ElementsAre("form frmProjectManager"));
}

TEST_F(StartingTheProjectManager, ClosesACleanProjectWithoutAQuestion) {
    start(open("A", "Palm-1"));
    EXPECT_THAT(trace.effects, ElementsAre("active A", "host: remove project", "form frmProjectManager"));
}

TEST_F(StartingTheProjectManager, LetsTheHostRunAroundTheRemoval) {
    const auto project = open("A", "Palm-1");
    loop.showsTurns = true;
    start(project);
    EXPECT_THAT(trace.effects,
                ElementsAre("active A", "DoEvents", "host: remove project", "DoEvents", "form frmProjectManager"));
}

TEST_F(StartingTheProjectManager, DoesNotOpenWhenSavingFails) {
    const auto fileSystem =
        classes.RegisterClass("Scripting.FileSystemObject", [this] { return basic::make<test::TracedFiles>(trace); });
    user.cancelsSaving = true;
    const auto project = open("A", "Palm-1");
    project->add("Module1", "");
    user.answers = {fernwick::vbYes};
    start(project);
    EXPECT_THAT(trace.effects,
                ElementsAre("box 35 Save Project: Save project before opening Fernwick project manager?", "save dialog",
                            "box 16 Project Not Saved: Project failed to save, Fernwick project manager will not "
                            "open."));
    EXPECT_THAT(openNames(), ElementsAre("A"));
}

TEST_F(StartingTheProjectManager, DoesNotOpenWhenTheUserCancels) {
    const auto project = open("A", "Palm-1");
    project->dirty = true;
    user.answers = {fernwick::vbCancel};
    start(project);
    EXPECT_THAT(trace.effects,
                ElementsAre("box 35 Save Project: Save project before opening Fernwick project manager?"));
}

TEST_F(StartingTheProjectManager, DiscardsTheChangesWhenTheUserDeclines) {
    const auto project = open("A", "Palm-1");
    project->dirty = true;
    user.answers = {fernwick::vbNo};
    start(project);
    EXPECT_TRUE(did("A dirty 0"));
    EXPECT_FALSE(did("A saved /p/A.vbp"));
    EXPECT_EQ(trace.effects.back(), "form frmProjectManager");
    EXPECT_THAT(openNames(), IsEmpty());
}

} // namespace
