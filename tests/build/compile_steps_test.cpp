// The programs that run before and after a compile.
#include "compile_world.h"

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

namespace {

constexpr char kContinue[] = "box 68 Fernwick: One or more of your pre compile steps may have failed.  Do you wish to "
                             "continue with compilation?";
constexpr char kPostFailed[] = "box 64 Fernwick: Warning, One or more of your post compile steps may have failed.";

class CompileSteps : public testing::Test, protected test::CompileWorld {
protected:
    void steps(const std::string& kind, const std::vector<std::string>& lines) {
        set("Quinloft Compiler Options", kind + "CompileStepCount", std::to_string(lines.size()));
        for (std::size_t i = 0; i < lines.size(); ++i)
            set("Quinloft Compiler Options", kind + "CompileStep" + std::to_string(i), lines[i]);
    }
    std::vector<std::string> ran() const {
        std::vector<std::string> all;
        for (const auto& effect : trace.effects)
            if (effect.starts_with("run ") || effect == "build") all.push_back(effect);
        return all;
    }
};

TEST_F(CompileSteps, WithoutStepsNothingRunsOrAsks) {
    EXPECT_TRUE(run());
    EXPECT_THAT(ran(), ElementsAre("build"));
}

TEST_F(CompileSteps, AllRunThoughTheSecondFails) {
    steps("Pre", {"a", "b", "c"});
    processes.codes = {{"a", 0}, {"b", 1}, {"c", 0}};
    user.answers = {fernwick::vbNo};
    EXPECT_FALSE(run());
    EXPECT_THAT(ran(), ElementsAre("run a in /p show 2", "run b in /p show 2", "run c in /p show 2"));
    EXPECT_THAT(trace.effects, Contains(kContinue));
    EXPECT_FALSE(compile.isLoaded());
}

TEST_F(CompileSteps, AUserMayContinueAfterAFailedStep) {
    steps("Pre", {"a"});
    processes.codes = {{"a", 3}};
    user.answers = {fernwick::vbYes};
    EXPECT_TRUE(run());
    EXPECT_THAT(ran(), ElementsAre("run a in /p show 2", "build"));
}

TEST_F(CompileSteps, NoKeepsTheStatusAndClearsOldMessages) {
    messages.AddProjectCompileError(project, "old", "", 0, 1);
    steps("Pre", {"missing"});
    user.answers = {fernwick::vbNo};
    EXPECT_FALSE(run());
    EXPECT_EQ(window->lblStatusText(), "Compiling and validating...");
    EXPECT_EQ(stored("NumErrors"), "0");
}

TEST_F(CompileSteps, PostStepsDoNotChangeTheOutcome) {
    steps("Post", {"a", "missing"});
    processes.codes = {{"a", 0}};
    EXPECT_TRUE(run());
    EXPECT_THAT(ran(), ElementsAre("build", "run a in /p show 2", "run missing in /p show 2"));
    EXPECT_THAT(trace.effects, Contains(kPostFailed));
}

TEST_F(CompileSteps, PostStepsRunOnlyAfterAGoodBuild) {
    steps("Post", {"a"});
    compiler->built = compiler->finished = false;
    EXPECT_FALSE(run());
    EXPECT_THAT(ran(), ElementsAre("build"));
    EXPECT_THAT(trace.effects, Not(Contains(kPostFailed)));
}

TEST_F(CompileSteps, ACountThatFailsMeansNone) {
    steps("Pre", {"a"});
    steps("Post", {"a"});
    projects.ClearProjectsList();
    fernwick::CompileSteps run{errors, projects, Modules::processes};
    EXPECT_TRUE(run.RunPreCompileSteps(project));
    EXPECT_TRUE(run.RunPostCompileSteps(project));
    EXPECT_THAT(ran(), IsEmpty());
    EXPECT_THAT(errors.seen, ElementsAre("modProjectHandler.GetQLProject [5]", "frmCompile.RunPreCompileSteps [91]",
                                         "modProjectHandler.GetQLProject [5]", "frmCompile.RunPostCompileSteps [91]"));
}

TEST_F(CompileSteps, AMissingStepIsAFailure) {
    steps("Pre", {"a"});
    set("Quinloft Compiler Options", "PreCompileStepCount", "2");
    user.answers = {fernwick::vbYes};
    EXPECT_TRUE(run());
    EXPECT_THAT(trace.effects, Contains(kContinue));
    EXPECT_THAT(ran(), ElementsAre("build"));
}

class RunProcess : public testing::Test, protected test::TracedPlatform {
protected:
    fernwick::modProcessControl control{errors, platform};
    std::string folder = "/p";
};

TEST_F(RunProcess, ReturnsTheExitCode) {
    processes.codes = {{"tool \"a b\"", 12}};
    EXPECT_EQ(control.RunProcess("tool \"a b\"", folder), 12);
    EXPECT_THAT(trace.effects, ElementsAre("run tool \"a b\" in /p show 2", "close 7"));
}

TEST_F(RunProcess, RunsInTheAddInsFolderByDefault) {
    folder.clear();
    control.RunProcess("x", folder);
    EXPECT_EQ(folder, "/addin");
}

TEST_F(RunProcess, ReturnsMinusOneForAFailedStartOrWait) {
    EXPECT_EQ(control.RunProcess("missing", folder), -1);
    processes.codes = {{"tool", 0}};
    processes.waitFails = true;
    EXPECT_EQ(control.RunProcess("tool", folder), -1);
    EXPECT_EQ(trace.effects.back(), "close 7");
    EXPECT_THAT(errors.seen, IsEmpty());
}

} // namespace
