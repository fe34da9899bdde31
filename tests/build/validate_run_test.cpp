// The run of a validation from its start to its end.
#include "validate_world.h"

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

namespace {

constexpr char kCompileFailed[] = "FAILED - Errors (1 items) must be fixed to deploy this project.";

class ValidateRun : public testing::Test, protected test::ValidateWorld {};

TEST_F(ValidateRun, ShowsNoMessageWithoutFindings) {
    window->SetStatusText("as the compile left it");
    EXPECT_TRUE(run());
    EXPECT_THAT(rows(), IsEmpty());
    EXPECT_EQ(status(), "as the compile left it");
    EXPECT_FALSE(messages.isToolWindowShowing());
    EXPECT_FALSE(validate.isLoaded());
}

TEST_F(ValidateRun, ShowsItsProgress) {
    std::vector<std::string> notified;
    const auto atWork = validate.aniValidate.Playing.watch([&](int playing) {
        if (playing == 0) return;
        EXPECT_EQ(validate.Caption(), "Validating Demo...");
        EXPECT_EQ(validate.MousePointer(), fernwick::vbHourglass);
        EXPECT_TRUE(validate.finishedImg.Visible() && validate.aniValidate.Visible());
        EXPECT_FALSE(validate.failedImg.Visible());
        EXPECT_EQ(validate.aniValidate.FileName(), "/install/VB TOOLKIT/BIN/QLVALIDATE.AVI");
        notified.push_back("plays " + std::to_string(playing));
    });
    const auto text = validate.stsUpdate.SimpleText.watch([&](const std::string& now) {
        EXPECT_FALSE(validate.aniValidate.Visible());
        EXPECT_EQ(validate.MousePointer(), fernwick::vbDefault);
        notified.push_back(now);
    });
    run();
    EXPECT_THAT(notified, ElementsAre("plays -1", "Finished"));
    EXPECT_EQ(validate.prgbarUpdate.Max(), 1);
    EXPECT_EQ(validate.prgbarUpdate.Value(), 0);
}

TEST_F(ValidateRun, AFailureShowsThePictureTheWindowAndTheStatus) {
    addReference("{1}", true);
    bool failed = false;
    const auto watch = validate.failedImg.Visible.watch([&](bool visible) { failed = visible; });
    EXPECT_FALSE(run());
    EXPECT_TRUE(failed);
    EXPECT_EQ(status(), kCompileFailed);
    EXPECT_TRUE(messages.isToolWindowShowing());
}

TEST_F(ValidateRun, LaterActivationsDoNotRestartIt) {
    addReference("{1}", true);
    const auto again = validate.Refreshed.connect([&] { validate.activate(); });
    EXPECT_FALSE(run());
    EXPECT_EQ(rows().size(), 1U);
}

TEST_F(ValidateRun, WithReferenceCheckingOffReportsNothing) {
    set("Quinloft Global", "ScanReferences", "False");
    addReference("{1}", true);
    EXPECT_TRUE(run());
    EXPECT_THAT(rows(), IsEmpty());
}

TEST_F(ValidateRun, AProjectWithoutComponentsIsNotScanned) {
    project->components->list.clear();
    addReference("{1}", true);
    project->dirty = true;
    EXPECT_TRUE(run());
    EXPECT_THAT(rows(), IsEmpty());
    EXPECT_THAT(trace.effects, Contains("Demo saved /p/Demo.vbp"));
}

TEST_F(ValidateRun, SavesTheFilesEvenWhenReferencesFail) {
    addReference("{1}", true);
    EXPECT_FALSE(run());
    EXPECT_THAT(trace.effects, Contains("Demo saved /p/Demo.vbp")); // the messages changed the project
}

TEST_F(ValidateRun, ARefusedProjectIsNeitherScannedNorSaved) {
    addReference("{1}", true);
    files.files.erase("/p/Demo.vbp");
    messages.AddProjectCompileError(project, "from the compile", "", 0, 1);
    EXPECT_FALSE(run());
    EXPECT_THAT(trace.effects, Contains("box 64 Fernwick: Cannot compile the project.\r\n\r\n"
                                        "Please save all project files and then recompile."));
    EXPECT_THAT(trace.effects, Not(Contains("Demo saved /p/Demo.vbp")));
    EXPECT_EQ(rows().size(), 1U);
    EXPECT_EQ(status(), kCompileFailed);
    EXPECT_TRUE(messages.isToolWindowShowing()); // no finding of this run has shown it
}

TEST_F(ValidateRun, ACompileOfAnotherVersionDoesNotCauseASave) {
    set("Quinloft Global", "LastCompileVersion", "3.5.0 (0623)");
    EXPECT_TRUE(run());
    EXPECT_THAT(trace.effects, Not(Contains("form frmSaveProjectFiles")));
}

TEST_F(ValidateRun, AStoppedRunDoesNotInheritAnEarlierSuccess) {
    EXPECT_TRUE(run());
    validate.Visible(true); // already visible, so it cannot be shown modally
    EXPECT_FALSE(run());
    EXPECT_THAT(errors.seen, ElementsAre("frmValidate.ValidateProject [400]"));
    validate.Visible(false);
}

TEST_F(ValidateRun, AFailingCallSkipsOnlyItself) {
    addReference("{1}", true);
    dependOn({"{A}", "{B}"});
    targets.knows.references = {"{A}"};
    run();
    const auto baseline = trace.effects;
    for (int failing = 1;; ++failing) {
        messages.ClearProjectCompileErrors(project);
        errors.seen.clear();
        errors.injected = trace.calls = 0;
        trace.failing = failing;
        run();
        const bool swept = trace.calls < failing;
        trace.failing = 0;
        if (swept) break;
        EXPECT_LE(errors.injected, 1) << failing;
        EXPECT_FALSE(validate.isLoaded()) << failing;
    }
    messages.ClearProjectCompileErrors(project);
    EXPECT_FALSE(run());
    EXPECT_EQ(trace.effects.size(), baseline.size());
}

} // namespace
