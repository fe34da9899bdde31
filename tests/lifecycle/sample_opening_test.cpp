// A sample replaces the open projects.
#include "lifecycle_world.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class OpeningASample : public testing::Test, protected test::LifecycleWorld {
protected:
    OpeningASample() {
        sample.fullPath = "/s/Tip.vbp";
        vbe->projects->opened = [this](const test::Ref<test::TracedProject>& project) { vbe->active = project; };
    }
    const std::vector<std::string>& pick() {
        trace.effects.clear();
        samples.open(sample);
        return trace.effects;
    }
    fernwick::clsSampleMenuItem sample;
};

TEST_F(OpeningASample, WithNothingOpenOnlyOpensIt) { EXPECT_THAT(pick(), ElementsAre("open /s/Tip.vbp alone")); }

TEST_F(OpeningASample, ClosesTheProjectInOrder) {
    open("A", "Palm-1");
    EXPECT_THAT(pick(), ElementsAre("active A", "host: remove project", "open /s/Tip.vbp alone"));
}

TEST_F(OpeningASample, LetsTheHostRunBeforeAndAfterTheRemoval) {
    open("A", "Palm-1");
    loop.Post([this] { trace.effects.push_back("first turn"); });
    removeCommand()->whenExecuted = [this] {
        vbe->removeActive();
        loop.Post([this] { trace.effects.push_back("second turn"); });
    };
    EXPECT_THAT(pick(),
                ElementsAre("active A", "first turn", "host: remove project", "second turn", "open /s/Tip.vbp alone"));
}

TEST_F(OpeningASample, DoesNothingForAnOpenSample) {
    const auto project = open("A", "Palm-1");
    project->file = sample.fullPath;
    project->dirty = true;
    EXPECT_THAT(pick(), IsEmpty());
}

TEST_F(OpeningASample, CancelKeepsTheProject) {
    open("A", "Palm-1")->dirty = true;
    user.answers = {fernwick::vbCancel};
    EXPECT_EQ(pick().size(), 1U);
    EXPECT_THAT(openNames(), ElementsAre("A"));
}

TEST_F(OpeningASample, AsksOnceAboutDiscardedChanges) {
    const auto project = open("A", "Palm-1");
    project->dirty = true;
    user.answers = {fernwick::vbNo};
    pick();
    EXPECT_FALSE(project->dirty);
    EXPECT_THAT(openNames(), ElementsAre("/s/Tip.vbp"));
}

TEST_F(OpeningASample, OpensWhenTheProjectHasGoneMeanwhile) {
    open("A", "Palm-1")->dirty = true;
    user.answers = {fernwick::vbNo};
    trace.observer = [this](const std::string& effect) {
        if (effect.starts_with("box")) vbe->active = nullptr; // closed while the question is shown
    };
    EXPECT_THAT(pick(), ElementsAre(testing::StartsWith("box"), "open /s/Tip.vbp alone"));
    EXPECT_THAT(errors.seen, IsEmpty());
}

TEST_F(OpeningASample, WithoutAPathNamesTheSupport) {
    sample.fullPath.clear();
    EXPECT_THAT(pick(),
                ElementsAre("box 16 Fernwick: There was an error in the samples menu, please contact support at "
                            "support.example"));
}

TEST_F(OpeningASample, AFailingCallIsReportedOnce) {
    for (int failing = 1;; ++failing) {
        vbe->projects->list.clear();
        projects.ClearProjectsList();
        open("A", "Palm-1");
        errors.injected = 0;
        trace.calls = 0;
        trace.failing = failing;
        pick();
        trace.failing = 0;
        if (trace.calls < failing) break;
        EXPECT_LE(errors.injected, 1) << failing;
    }
    EXPECT_THAT(errors.seen, testing::Contains("clsSampleMenuItem.myOfficeEvents_Click [50000]"));
}

} // namespace
