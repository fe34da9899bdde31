#include "project_world.h"

using namespace fernwick;

namespace {
struct ProjectLists : test::ProjectTest {
    static constexpr const char* kDependencies = "Quinloft Components And Tavlet Dependencies Section";
    static constexpr const char* kOptions = "Quinloft Compiler Options";
    basic::Ref<clsQLProject> project = open(test::SampleProject{}.handheld());

    void store(const char* section, const std::string& key, const std::string& value) {
        project->VBProject()->WriteProperty(section, key, value);
    }
};
} // namespace

TEST_F(ProjectLists, AShorterListEmptiesTheEntriesOfALongerOne) {
    project->WriteTavletFileDependencies({"a", "b", "c", "d", "e"});
    project->WriteTavletFileDependencies({"f", "g"});
    EXPECT_EQ(stored(project, "NumTavletFileDependencies", kDependencies), "2");
    EXPECT_EQ(stored(project, "TavletFileDependency1", kDependencies), "f");
    EXPECT_EQ(stored(project, "TavletFileDependency3", kDependencies), "");
    EXPECT_EQ(stored(project, "TavletFileDependency5", kDependencies), "");
    EXPECT_EQ(project->GetTavletFileDependencies(), (Texts{"f", "g"}));
}

TEST_F(ProjectLists, ComponentsAreStoredInCapitalsFontsAsGiven) {
    project->WriteComponentDependencies({"abc"});
    project->WriteProjectFontDependencies({"Abc"});
    EXPECT_EQ(project->GetComponentDependencies(), Texts{"ABC"});
    EXPECT_EQ(project->GetFontDependencies(), Texts{"Abc"});
    EXPECT_EQ(stored(project, "FontDependency1", kDependencies), "Abc");
}

TEST_F(ProjectLists, EmptyEntriesAreKept) {
    store(kDependencies, "NumFontDependencies", "2");
    store(kDependencies, "FontDependency1", "");
    store(kDependencies, "FontDependency2", "x");
    EXPECT_EQ(project->GetFontDependencies(), (Texts{"", "x"}));
}

TEST_F(ProjectLists, AMissingEntryIsReportedUnderTheProjectsName) {
    store(kDependencies, "NumFontDependencies", "2");
    store(kDependencies, "FontDependency2", "x");
    EXPECT_EQ(project->GetFontDependencies(), Texts{"x"});
    EXPECT_EQ(reports(), Texts{"Hello clsQLProject.GetFontDependencies [5]"});
}

TEST_F(ProjectLists, AnInvalidOrExcessiveCountReadsAsZero) {
    for (const char* count : {"many", "65537", "2000000000", "-3"}) {
        store(kDependencies, "NumFontDependencies", count);
        EXPECT_EQ(project->GetFontDependencies(), Texts{}) << count;
    }
    EXPECT_TRUE(reports().empty());
}

TEST_F(ProjectLists, TheTargetListIgnoresSlotZero) {
    project->SetCompileTargetsList(Array<std::string>{0, {"", "Palm"}});
    EXPECT_EQ(stored(project, "numCompileTargets"), "1");
    EXPECT_EQ(stored(project, "CompileTarget0"), "(none)");
    EXPECT_EQ(stored(project, "CompileTarget1"), "Palm");
    EXPECT_EQ(project->NumCompileTargets(), 1);
}

TEST_F(ProjectLists, OnlyNumbersSurviveTheReadingOfTargets) {
    project->SetCompileTargetsList(Array<std::string>{1, {"Palm", "7.6", "SOFTWARE\\Quinloft\\DesignTargets\\PalmOS"}});
    Array<std::string> list;
    project->GetCompileTargetsList(list);
    EXPECT_EQ(list.LBound(), 1);
    EXPECT_EQ((Texts{list.begin(), list.end()}), (Texts{"", "8", ""}));
    EXPECT_TRUE(project->IsSetCompileTarget("8"));
    EXPECT_FALSE(project->IsSetCompileTarget("Palm"));
}

TEST_F(ProjectLists, WithoutTargetsTheListIsUnchanged) {
    Array<std::string> list{0, {"mine"}};
    project->GetCompileTargetsList(list);
    EXPECT_EQ(list[0], "mine");
    EXPECT_FALSE(project->IsSetCompileTarget(""));
}

TEST_F(ProjectLists, AnInvalidOrExcessiveTargetCountReadsAsZero) {
    Array<std::string> list{0, {"mine"}};
    for (const char* count : {"many", "65537", "2147483647", "-3"}) {
        store("Quinloft Global", "NumCompileTargets", count);
        project->GetCompileTargetsList(list);
        EXPECT_EQ(project->NumCompileTargets(), 0) << count;
        EXPECT_EQ(list[0], "mine") << count;
    }
    EXPECT_TRUE(reports().empty());
}

TEST_F(ProjectLists, AnUnallocatedTargetListIsReported) {
    project->SetCompileTargetsList({});
    EXPECT_EQ(reports(), Texts{"clsQLProject.SetCompileTargetsList [9]"});
    EXPECT_EQ(stored(project, "numCompileTargets"), "(none)");
}

TEST_F(ProjectLists, WithoutStepsTheListIsUnchanged) {
    Array<std::string> list{0, {"mine"}};
    EXPECT_FALSE(project->GetPreCompileSteps(list));
    EXPECT_EQ(list[0], "mine");
    EXPECT_EQ(project->PreCompileStepCount(), 0);
    EXPECT_TRUE(reports().empty());
}

TEST_F(ProjectLists, StepsAreStoredFromZeroWhateverTheirBounds) {
    project->SetPreCompileSteps(Array<std::string>{1, {"make", "check"}});
    EXPECT_EQ(stored(project, "PreCompileStepCount", kOptions), "2");
    EXPECT_EQ(stored(project, "PreCompileStep0", kOptions), "make");
    EXPECT_EQ(stored(project, "PreCompileStep1", kOptions), "check");
    Array<std::string> list;
    EXPECT_TRUE(project->GetPreCompileSteps(list));
    EXPECT_EQ(list.LBound(), 0);
    EXPECT_EQ(list[1], "check");
    EXPECT_EQ(project->PostCompileStepCount(), 0);
}

TEST_F(ProjectLists, AMissingStepEndsTheReading) {
    store(kOptions, "PostCompileStepCount", "3");
    store(kOptions, "PostCompileStep0", "a");
    store(kOptions, "PostCompileStep1", "b");
    Array<std::string> list;
    EXPECT_FALSE(project->GetPostCompileSteps(list));
    EXPECT_EQ((Texts{list.begin(), list.end()}), (Texts{"a", "b", ""}));
    EXPECT_TRUE(reports().empty());
}

TEST_F(ProjectLists, AStepThatCannotBeReadIsReported) {
    const auto vbProject = traced();
    vbProject->properties = {{{kOptions, "PreCompileStepCount"}, "2"}, {{kOptions, "PreCompileStep0"}, "a"}};
    const auto other = wrap(vbProject);
    Array<std::string> list;
    trace.calls = 0;
    trace.failing = 3; // the calls: the count, the first step, the second
    EXPECT_TRUE(other->GetPreCompileSteps(list));
    EXPECT_EQ((Texts{list.begin(), list.end()}), (Texts{"a", ""}));
    EXPECT_EQ(reports(), Texts{"clsQLProject.GetCompileSteps [50000]"});
}

TEST_F(ProjectLists, AnInvalidStepCountIsReported) {
    store(kOptions, "PostCompileStepCount", "three");
    EXPECT_EQ(project->PostCompileStepCount(), 0);
    EXPECT_EQ(reports(), Texts{"clsQLProject.GetCompileStepCount [13]"});
}

TEST_F(ProjectLists, ClearingTheStepsKeepsTheEntries) {
    project->SetPostCompileSteps(Array<std::string>{0, {"a"}});
    project->ZeroPostCompileSteps();
    EXPECT_EQ(stored(project, "PostCompileStepCount", kOptions), "0");
    EXPECT_EQ(stored(project, "PostCompileStep0", kOptions), "a");
}

TEST_F(ProjectLists, AListThatCouldNotBeReadAgainIsNotWritten) {
    const Texts most(65536, "x");
    project->SetPreCompileSteps(Array<std::string>{1, most});
    EXPECT_EQ(project->PreCompileStepCount(), 65536);
    EXPECT_TRUE(reports().empty());

    const auto vbProject = traced();
    vbProject->properties = {{{kDependencies, "NumFontDependencies"}, "1"}, {{kDependencies, "FontDependency1"}, "a"}};
    const auto other = wrap(vbProject);
    trace = {};
    const Texts tooMany(65537, "x");
    other->WriteProjectFontDependencies(tooMany);
    other->SetPostCompileSteps(Array<std::string>{0, tooMany});
    other->SetCompileTargetsList(Array<std::string>{1, tooMany});
    EXPECT_TRUE(trace.effects.empty());
    EXPECT_EQ(other->GetFontDependencies(), Texts{"a"});
    EXPECT_EQ(reports(), (Texts{"Hello clsQLProject.WriteProjectFontDependencies [6]",
                                "clsQLProject.SetCompileSteps [6]", "clsQLProject.SetCompileTargetsList [6]"}));
}

TEST_F(ProjectLists, EachFailingCallIsReportedOnceAndTheRestWritten) {
    int calls = 1;
    for (int failing = 1; failing <= calls; ++failing) {
        errors.seen.clear();
        const auto vbProject = traced();
        const auto other = wrap(vbProject);
        vbProject->properties[{kDependencies, "NumFontDependencies"}] = "1";
        trace = {};
        trace.failing = failing;
        other->WriteProjectFontDependencies({"a", "b"});
        calls = trace.calls;
        trace.failing = 0;
        EXPECT_LE(reports().size(), 1U) << failing;
        EXPECT_GE(trace.effects.size(), 4U) << failing;
    }
}
