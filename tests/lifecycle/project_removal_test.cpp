#include "lifecycle_world.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class ProjectRemoval : public testing::Test, protected test::LifecycleWorld {
protected:
    ProjectRemoval() { removal.Load(); }
    /// Runs one turn of the loop and returns its effects.
    std::vector<std::string> turn() {
        trace.effects.clear();
        loop.turn();
        return trace.effects;
    }
};

TEST_F(ProjectRemoval, WaitsForTheNextTurn) {
    const auto project = open("A");
    EXPECT_FALSE(loop.hasTimers());
    removal.RemoveProject(project, true, "");
    EXPECT_THAT(openNames(), ElementsAre("A"));
    EXPECT_THAT(turn(), ElementsAre("active A", "host: remove project"));
    EXPECT_THAT(openNames(), IsEmpty());
    EXPECT_FALSE(loop.hasTimers());
}

TEST_F(ProjectRemoval, BothTimersTickAfterAMillisecond) {
    const auto project = open("A");
    removal.RemoveProject(project, true, "");
    removal.RemoveComponent(project, project->add("Form1", ""));
    EXPECT_THAT(loop.intervals, ElementsAre(1, 1));
}

TEST_F(ProjectRemoval, LetsTheHostRunBeforeARemovalAndAroundThatOfAReplacedProject) {
    open("Other");
    const auto a = open("A"), b = open("B");
    loop.showsTurns = true;
    removal.RemoveProject(a, true, "");
    EXPECT_THAT(turn(), ElementsAre("active A", "DoEvents", "host: remove project"));
    removal.RemoveProject(b, true, "/p/New.vbp");
    EXPECT_THAT(turn(), ElementsAre("open /p/New.vbp", "B dirty 0", "active B", "DoEvents", "host: remove project",
                                    "DoEvents"));
}

TEST_F(ProjectRemoval, WithoutAnActiveProjectTheHostsCommandIsNotUsed) {
    const auto project = open("A");
    removal.RemoveProject(project, true, "");
    loop.Post([this] { loop.Post([this] { vbe->active = nullptr; }); }); // runs in the DoEvents of the removal
    EXPECT_THAT(turn(), ElementsAre("active A"));
    EXPECT_THAT(openNames(), ElementsAre("A"));
}

TEST_F(ProjectRemoval, IgnoresAForeignProject) {
    removal.RemoveProject(open("A", "none"), true, "");
    EXPECT_THAT(turn(), IsEmpty());
    EXPECT_THAT(openNames(), ElementsAre("A"));
}

TEST_F(ProjectRemoval, AProjectThatIsNotListedIsReportedAndTheNextServed) {
    const auto stranger = open("Stranger"), project = open("A");
    projects.RemoveFromProjectsList(stranger);
    removal.RemoveProject(stranger, true, "");
    removal.RemoveProject(project, true, "");
    turn();
    EXPECT_THAT(errors.seen, ElementsAre("modProjectHandler.GetQLProject [5]"));
    EXPECT_THAT(openNames(), ElementsAre("Stranger"));
}

TEST_F(ProjectRemoval, DoesNotQueueAClosedProject) {
    const auto gone = open("A");
    vbe->removeActive();
    const auto project = open("B");
    removal.RemoveProject(project, true, "/p/New.vbp");
    removal.RemoveProject(gone, true, "");
    EXPECT_THAT(turn(), ElementsAre("B dirty 0", "active B", "host: remove project", "open /p/New.vbp alone"));
    EXPECT_THAT(errors.seen, IsEmpty());
}

TEST_F(ProjectRemoval, SkipsAProjectClosedBeforeTheTurn) {
    open("Other");
    removal.RemoveProject(open("A"), true, "");
    vbe->removeActive();
    EXPECT_THAT(turn(), IsEmpty());
    EXPECT_THAT(openNames(), ElementsAre("Other"));
    EXPECT_THAT(errors.seen, IsEmpty());
}

TEST_F(ProjectRemoval, RemovesASingleProjectBeforeOpeningItsReplacement) {
    const auto project = open("A");
    project->dirty = true;
    removal.RemoveProject(project, true, "/p/B.vbp");
    EXPECT_THAT(turn(), ElementsAre("A dirty 0", "active A", "host: remove project", "open /p/B.vbp alone"));
}

TEST_F(ProjectRemoval, AmongOthersOpensTheReplacementFirst) {
    open("Other");
    removal.RemoveProject(open("A"), true, "/p/B.vbp");
    EXPECT_THAT(turn(), ElementsAre("open /p/B.vbp", "A dirty 0", "active A", "host: remove project"));
    EXPECT_THAT(openNames(), ElementsAre("Other", "/p/B.vbp"));
}

TEST_F(ProjectRemoval, AReplacementIsUsedOnce) {
    open("Other");
    const auto a = open("A"), b = open("B");
    removal.RemoveProject(a, true, "/p/New.vbp");
    removal.RemoveProject(b, false, "");
    EXPECT_THAT(turn(), ElementsAre("open /p/New.vbp", "A dirty 0", "active A", "host: remove project", "active B",
                                    "host: remove project"));
}

TEST_F(ProjectRemoval, WithoutReplacementKeepsTheEarlierPath) {
    open("Other");
    const auto a = open("A");
    removal.RemoveProject(a, true, "/p/New.vbp");
    removal.RemoveProject(a, false, "/p/Ignored.vbp");
    EXPECT_EQ(turn().front(), "open /p/New.vbp");
}

TEST_F(ProjectRemoval, StartsTheImporterForTheOldFormat) {
    addImporter();
    const auto project = open("A");
    set(project, "ProjectVersion", "1.0");
    removal.RemoveProject(project, true, "/p/New.vbp");
    EXPECT_THAT(turn(), ElementsAre("host: import"));
    removal.RemoveProject(project, true, "");
    EXPECT_THAT(turn(), ElementsAre("active A", "host: remove project", "host: import"));
}

TEST_F(ProjectRemoval, WithoutAnImporterTheOldFormatIsJustRemoved) {
    const auto project = open("A");
    set(project, "ProjectVersion", "1.0");
    removal.RemoveProject(project, true, "");
    EXPECT_THAT(turn(), ElementsAre("active A", "host: remove project"));
    EXPECT_THAT(errors.seen, IsEmpty());
}

TEST_F(ProjectRemoval, LoadsAProjectInsteadOfAllOthers) {
    removal.LoadExclusiveProject(open("A"), "/p/New.vbp", false);
    EXPECT_THAT(turn(), ElementsAre("active A", "host: remove project", "open /p/New.vbp alone"));
    EXPECT_THAT(openNames(), ElementsAre("/p/New.vbp"));
}

TEST_F(ProjectRemoval, EmptiesAProjectOnce) {
    const auto foreign = open("Foreign", "none"), project = open("A");
    const auto first = project->add("Module1", "/p/Module1.bas");
    removal.RemoveProject(foreign, true, "/p/New.vbp"); // its path keeps the project from being removed
    removal.LoadExclusiveProject(project, "", true);
    EXPECT_THAT(turn(), ElementsAre("Module1 saved /tmp/Module1", "Module1 dirty 0", "remove component Module1"));

    const auto second = project->add("Module2", "/p/Module2.bas");
    removal.RemoveProject(project, true, "/p/New.vbp");
    EXPECT_THAT(turn(), ElementsAre("open /p/New.vbp", "A dirty 0", "active A", "host: remove project"));
    EXPECT_TRUE(first->removed);
    EXPECT_FALSE(second->removed);
}

TEST_F(ProjectRemoval, APathIsLoadedOnce) {
    vbe->projects->opened = [&](const test::Ref<test::TracedProject>& opened) {
        set(opened, "IsQuinloftProject", "True");
        set(opened, "ProjectVersion", "3.5");
        projects.AddToProjectsList(opened);
        removal.RemoveProject(opened, true, ""); // in the same tick
    };
    removal.LoadExclusiveProject(open("A"), "/p/New.vbp", false);
    EXPECT_THAT(turn(), ElementsAre("active A", "host: remove project", "open /p/New.vbp alone", "active /p/New.vbp",
                                    "host: remove project"));
}

TEST_F(ProjectRemoval, APathOfADroppedRequestIsDroppedToo) {
    const auto other = open("Other");
    removal.RemoveProject(open("A"), true, "/p/New.vbp");
    vbe->removeActive();
    EXPECT_THAT(turn(), IsEmpty());
    removal.RemoveProject(other, false, "");
    EXPECT_THAT(turn(), ElementsAre("active Other", "host: remove project"));
}

TEST_F(ProjectRemoval, AReplacementThatCannotBeOpenedEndsTheReplacements) {
    int ended = 0;
    const auto heard = removal.ReplacementsEnded.connect([&] { ++ended; });
    vbe->projects->opened = [](const auto&) { throw basic::RuntimeError(basic::kFileNotFound); };
    for (const bool amongOthers : {false, true}) {
        ended = 0;
        const auto project = open("A");
        if (amongOthers) open("Other");
        removal.RemoveProject(project, true, "/p/New.vbp");
        turn();
        EXPECT_EQ(ended, 2) << amongOthers; // once more when all are served
        vbe->projects->list.clear();
        projects.ClearProjectsList();
    }
}

TEST_F(ProjectRemoval, ServesRequestsMadeDuringTheTick) {
    const auto stub = open("Stub");
    vbe->projects->opened = [&](const test::Ref<test::TracedProject>& opened) {
        set(opened, "IsQuinloftProject", "True");
        set(opened, "ProjectVersion", "3.5");
        projects.AddToProjectsList(opened);
        if (opened->name == "first") removal.RemoveProject(opened, true, "second");
        loop.DoEvents(); // never ticks inside its own tick
    };
    removal.RemoveProject(stub, true, "first");
    EXPECT_THAT(turn(), ElementsAre("Stub dirty 0", "active Stub", "host: remove project", "open first alone",
                                    "first dirty 0", "active first", "host: remove project", "open second alone"));
    EXPECT_THAT(openNames(), ElementsAre("second"));
    EXPECT_FALSE(loop.hasTimers());
}

TEST_F(ProjectRemoval, AComponentIsRemovedOnTheNextTurn) {
    const auto project = open("A");
    const auto form = project->add("Form1", "/p/Form1.frm");
    removal.RemoveComponent(project, form);
    EXPECT_THAT(turn(), ElementsAre("remove component Form1"));
    EXPECT_FALSE(loop.hasTimers());
}

TEST_F(ProjectRemoval, WaitsForAMissingComponent) {
    const auto project = open("A");
    const auto form = project->add("Form1", "/p/Form1.frm");
    removal.RemoveComponent(project, nullptr);
    EXPECT_FALSE(loop.hasTimers());
    removal.RemoveComponent(nullptr, form);
    EXPECT_THAT(turn(), ElementsAre("remove component Form1"));
}

TEST_F(ProjectRemoval, AComponentIsForgottenOnceItIsRemoved) {
    const auto project = open("A");
    const auto form = project->add("Form1", "/p/Form1.frm");
    removal.RemoveComponent(project, form);
    turn();
    removal.RemoveComponent(project, nullptr);
    EXPECT_FALSE(loop.hasTimers());
    removal.RemoveComponent(nullptr, project->add("Form2", "/p/Form2.frm"));
    EXPECT_THAT(turn(), ElementsAre("remove component Form2"));
    removal.RemoveComponent(nullptr, form);
    EXPECT_FALSE(loop.hasTimers());
}

TEST_F(ProjectRemoval, AComponentThatHasGoneSinceTheRequestIsSkipped) {
    const auto project = open("A"), closed = open("B");
    removal.RemoveComponent(project, project->add("Form1", "/p/Form1.frm"));
    project->components->list.clear();
    EXPECT_THAT(turn(), IsEmpty());
    removal.RemoveComponent(closed, closed->add("Form1", "/p/Form1.frm"));
    vbe->projects->Remove(closed);
    EXPECT_THAT(turn(), IsEmpty());
    EXPECT_FALSE(loop.hasTimers());
    EXPECT_THAT(errors.seen, IsEmpty());
}

TEST_F(ProjectRemoval, AComponentRequestedDuringARemovalIsRemovedToo) {
    struct Chain : test::TracedComponents {
        using TracedComponents::TracedComponents;
        std::function<void()> removing;
        void Remove(const test::Ref<vbide::VBComponent>& component) override {
            TracedComponents::Remove(component);
            if (const auto next = std::exchange(removing, nullptr)) next();
        }
    };
    const auto project = open("A");
    const auto components = basic::make<Chain>(trace);
    project->components = components;
    const auto first = project->add("Form1", ""), second = project->add("Form2", "");
    components->removing = [&] { removal.RemoveComponent(project, second); };
    removal.RemoveComponent(project, first);
    EXPECT_THAT(turn(), ElementsAre("remove component Form1"));
    EXPECT_THAT(turn(), ElementsAre("remove component Form2"));
    EXPECT_FALSE(loop.hasTimers());
}

TEST_F(ProjectRemoval, UnloadingDiscardsTheRequests) {
    removal.RemoveProject(open("A"), true, "");
    removal.Unload();
    EXPECT_THAT(turn(), IsEmpty());
}

TEST_F(ProjectRemoval, AFailingCallLosesOnlyItself) {
    for (int failing = 1;; ++failing) {
        vbe->projects->list.clear();
        projects.ClearProjectsList();
        const auto a = open("A"), b = open("B");
        removal.RemoveProject(a, true, "/p/New.vbp");
        errors.injected = 0;
        trace.calls = 0;
        trace.failing = failing;
        loop.turn();
        trace.failing = 0;
        EXPECT_LE(errors.injected, 1) << failing;
        EXPECT_FALSE(loop.hasTimers()) << failing;
        if (trace.calls < failing) break;
    }
}

} // namespace
