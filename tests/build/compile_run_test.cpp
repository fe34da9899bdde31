// The run of a compile from its start to its end.
#include "compile_world.h"
#include "tests/support/traced_form.h"

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

namespace {

constexpr char kFailed[] = "box 16 Fernwick: One or more errors occurred during compilation.\r\n"
                           "Refer to the Fernwick Messages window for the list of errors.";

class CompileRun : public testing::Test, protected test::CompileWorld {
protected:
    std::string status() { return window->lblStatusText(); }
};

TEST_F(CompileRun, PerformsItsStepsInOrder) {
    addModule("Module1");
    project->components->startUp.isSubMain = true;
    project->references->list.push_back(basic::make<test::TracedReference>(trace, "/lib/Tools.tlb"));
    files.files["/p/Demo.vbp"] = {"Type=Exe\r\nCondComp=\"DEBUGGING = -1\"\r\nTitle=\"Demo\"\r\nMajorVer=2\r\n"};
    set("Quinloft Project Compile Errors", "NumErrors", "3");
    EXPECT_TRUE(run());
    EXPECT_THAT(trace.effects,
                ElementsAre("form frmCompile", "reset", "file 1 /lib/Tools.tlb", "file 0 /p/Module1.bas",
                            "output /p/Demo", "start-up 'Sub Main'", "constant DEBUGGING=-1", "NumErrors=0",
                            "version Major=2", "version Title=Demo", "build", "reset", "NumTavletFileDependencies=0",
                            "NumTavletFileDependencies=0", "NumComponentDependencies=0", "NumComponentDependencies=0",
                            "NumFontDependencies=0", "NumFontDependencies=0", "Demo saved /p/Demo.vbp",
                            "LastCompileVersion=3.5.0 (0624)"));
    EXPECT_EQ(status(), "SUCCESS - Compile and validate completed successfully.");
    EXPECT_FALSE(compile.isLoaded());
}

TEST_F(CompileRun, CompilesAnEmptyProject) {
    EXPECT_TRUE(run());
    EXPECT_THAT(trace.effects, Contains("output /p/Demo"));
    EXPECT_THAT(trace.effects, Contains("start-up ''"));
    EXPECT_THAT(trace.effects, Contains("build"));
}

TEST_F(CompileRun, ShowsItsProgress) {
    std::vector<std::string> texts;
    const auto watch = compile.stsUpdate.SimpleText.watch([&](const std::string& text) { texts.push_back(text); });
    compiler->work = [&](test::FakeCompiler& c) {
        EXPECT_EQ(compile.Caption(), "Compiling Demo...");
        EXPECT_EQ(compile.MousePointer(), fernwick::vbHourglass);
        EXPECT_TRUE(compile.aniCompile.Visible());
        EXPECT_EQ(compile.aniCompile.FileName(), "/install/VB TOOLKIT/BIN/QLCOMPILE.AVI");
        EXPECT_EQ(compile.aniCompile.Playing(), -1);
        EXPECT_FALSE(compile.finishedImg.Visible());
        c.BuildStatus.raise("45% completed");
        EXPECT_EQ(compile.prgbarUpdate.Value(), 45.0F);
        c.BuildStatus.raise("Linking");
        EXPECT_EQ(compile.prgbarUpdate.Value(), 45.0F);
    };
    const auto watchEnd = compile.finishedImg.Visible.watch([&](bool visible) {
        if (!visible) return;
        EXPECT_FALSE(compile.aniCompile.Visible());
        EXPECT_EQ(compile.aniCompile.Playing(), 0);
    });
    run();
    EXPECT_THAT(texts, ElementsAre("Compiler Build Started", "45% completed", "Linking",
                                   "Scanning Project Dependencies...", "Running PostCompile Steps..."));
    EXPECT_EQ(compile.MousePointer(), fernwick::vbDefault);
}

TEST_F(CompileRun, LaterActivationsDoNotRestartIt) {
    files.files["/p/Demo.vbp"].attributes = fernwick::ReadOnlyAttribute; // the notice activates the form again
    run();
    EXPECT_EQ(std::count(trace.effects.begin(), trace.effects.end(), "build"), 1);
}

TEST_F(CompileRun, AReadOnlyProjectIsCompiledAndNotSaved) {
    files.files["/p/Demo.vbp"].attributes = fernwick::ReadOnlyAttribute;
    EXPECT_TRUE(run());
    EXPECT_THAT(trace.effects, Contains("box 64 Fernwick: Demo is ReadOnly, compile errors will not be saved."));
    EXPECT_THAT(trace.effects, Not(Contains("Demo saved /p/Demo.vbp")));
    EXPECT_EQ(stored("NumTavletFileDependencies"), "0"); // in the host, not on disk
}

TEST_F(CompileRun, AFailedBuildIsReportedAndOpensTheFirstError) {
    addModule("Module1");
    compiler->built = compiler->finished = false;
    compiler->work = [](test::FakeCompiler& c) { c.BuildError.raise("No such name", "/p/Module1.bas", 2, 1042); };
    EXPECT_FALSE(run());
    EXPECT_EQ(status(), "FAILED - Errors (1 items) must be fixed to deploy this project.");
    EXPECT_TRUE(messages.isToolWindowShowing());
    EXPECT_THAT(trace.effects, Contains(kFailed));
    EXPECT_EQ(trace.effects.back(), "2,1-2,9999");
    EXPECT_THAT(trace.effects, Not(Contains("Demo saved /p/Demo.vbp")));
    EXPECT_EQ(stored("Error1"), "ERROR|/p/Module1.bas|2|No such name|1042");
}

TEST_F(CompileRun, AWarningShowsTheWindowAtOnce) {
    compiler->work = [&](test::FakeCompiler& c) {
        c.BuildWarning.raise("Unused", "", 0, 1500);
        EXPECT_TRUE(messages.isToolWindowShowing());
    };
    EXPECT_TRUE(run());
    EXPECT_EQ(status(), "SUCCESS with Warnings - This project can be deployed, but may not function as expected.");
}

TEST_F(CompileRun, BuildsResultControlsTheRunAndTheEventItsOutcome) {
    compiler->built = false;
    EXPECT_TRUE(run());
    EXPECT_FALSE(did("Demo saved /p/Demo.vbp"));
    compiler->built = true;
    compiler->finished = false;
    EXPECT_FALSE(run());
    EXPECT_TRUE(did("Demo saved /p/Demo.vbp"));
}

TEST_F(CompileRun, AStoppedRunDoesNotInheritAnEarlierSuccess) {
    EXPECT_TRUE(run());
    files.files.erase("/p/Demo.vbp");
    EXPECT_FALSE(run());
    EXPECT_THAT(trace.effects, ElementsAre("form frmCompile",
                                           "box 64 Fernwick: Cannot compile the project.\r\n\r\n"
                                           "Please save all project files and then recompile.",
                                           "host: save project", kFailed));
}

TEST_F(CompileRun, WithoutACompilerItKeepsOldMessagesAndAddsOne) {
    messages.AddProjectCompileError(project, "old", "", 0, 1);
    compilerClass.reset();
    EXPECT_FALSE(run());
    EXPECT_THAT(trace.effects, Contains("box 16 Fernwick: Compiler tools could not be loaded. Terminating compile.\r\n"
                                        "Please contact Quinloft at support.example"));
    EXPECT_EQ(stored("NumErrors"), "2");
    EXPECT_EQ(stored("Error2"),
              "ERROR||0|Compiler tools could not be loaded. Please contact Quinloft at support.example|2999");
    EXPECT_FALSE(compile.isLoaded());
    EXPECT_THAT(errors.seen, IsEmpty());
}

TEST_F(CompileRun, RefusesAFactoryOfAnotherClass) {
    int created = 0;
    registerFactory([&created] { return ++created, basic::make<fernwick::Object>(); });
    EXPECT_FALSE(run());
    EXPECT_EQ(created, 1);
    EXPECT_THAT(stored("Error1"), HasSubstr("|2999"));
}

TEST_F(CompileRun, RecordsWhatTheCompilerDependedOn) {
    compiler->work = [](test::FakeCompiler& c) {
        c.AddDependency.raise("", 1);
        c.AddDependency.raise("Device\\Tool.prc", 1);
        c.AddDependency.raise("8a516a60-1b8e-11d3-8c4b-0050046eccf2", 0);
        c.AddDependency.raise("{8A516A61-1B8E-11D3-8C4B-0050046ECCF2}", 0);
        c.AddDependency.raise("no guid", 0);
        c.AddDependency.raise("8A516A60+1B8E-11D3-8C4B-0050046ECCF2", 0);
    };
    EXPECT_TRUE(run());
    EXPECT_EQ(stored("NumTavletFileDependencies"), "1");
    EXPECT_EQ(stored("NumComponentDependencies"), "2");
    EXPECT_EQ(stored("ComponentDependency1"), "{8A516A60-1B8E-11D3-8C4B-0050046ECCF2}");
    EXPECT_EQ(stored("ComponentDependency2"), "{8A516A61-1B8E-11D3-8C4B-0050046ECCF2}");
}

TEST_F(CompileRun, ForgetsTheDependenciesOfThePreviousRun) {
    compiler->work = [](test::FakeCompiler& c) { c.AddDependency.raise("Tool.prc", 1); };
    run();
    run();
    EXPECT_EQ(stored("NumTavletFileDependencies"), "1");
}

TEST_F(CompileRun, StoresTheFontsOfTheLastScan) {
    addModule("Module1");
    set("Quinloft Components And Tavlet Dependencies Section", "NumFontDependencies", "1");
    set("Quinloft Components And Tavlet Dependencies Section", "FontDependency1", "Ari_08B.CMF");
    run();
    EXPECT_EQ(stored("NumFontDependencies"), "0");
    EXPECT_EQ(stored("FontDependency1"), "");
}

TEST_F(CompileRun, StoresTheFontsOfItsFormsAndWarnsAboutMissingOnesEachTime) {
    const auto designer = basic::make<test::TracedDesigner>(trace);
    project->add("frmMain", "/p/frmMain.frm", vbide::vbext_ct_VBForm)->designer = designer;
    designer->add("QLLabel", "Arial", 0, 12);
    designer->add("QLLabel", "Gone", 0, 12);
    files.files["/p/frmMain.frm"] = {};
    files.files["/p/own.cmf"] = {std::string("\2\14\0\0\0", 5) + std::string(19, '\0') + "Arial"};
    for (int compilation = 0; compilation < 2; ++compilation) {
        EXPECT_TRUE(run());
        EXPECT_EQ(stored("NumFontDependencies"), "1");
        EXPECT_EQ(stored("FontDependency1"), "own.cmf");
        EXPECT_EQ(stored("NumErrors"), "1");
        EXPECT_THAT(stored("Error1"), HasSubstr("Could Not Find 'Gone'"));
        EXPECT_EQ(status(), "SUCCESS with Warnings - This project can be deployed, but may not function as expected.");
    }
}

TEST_F(CompileRun, ReportsAnUnknownDependencyType) {
    compiler->work = [](test::FakeCompiler& c) { c.AddDependency.raise("x", 7); };
    EXPECT_TRUE(run());
    EXPECT_THAT(trace.effects, Contains("box 0 Fernwick: Recieved unexpected dependency type from compiler."));
}

TEST_F(CompileRun, AFailingCallSkipsOnlyItself) {
    addModule("Module1");
    project->components->startUp.component = project->components->list.front();
    project->references->list.push_back(basic::make<test::TracedReference>(trace, "/lib/Tools.oca"));
    compiler->work = [](test::FakeCompiler& c) {
        c.BuildStatus.raise("50% completed");
        c.BuildWarning.raise("w", "/p/Module1.bas", 2, 1500);
        c.AddDependency.raise("Tool.prc", 1);
    };
    run();
    const auto baseline = trace.effects;
    for (int failing = 1;; ++failing) {
        errors.seen.clear();
        errors.injected = 0;
        trace.calls = 0;
        trace.failing = failing;
        run();
        const bool swept = trace.calls < failing;
        trace.failing = 0;
        if (swept) break;
        EXPECT_LE(errors.injected, 1) << failing;
        for (const auto& seen : errors.seen) EXPECT_THAT(seen, testing::ContainsRegex("\\[(50000|91|5|9)\\]"));
        EXPECT_FALSE(compile.isLoaded()) << failing;
        if (did("build")) {
            // without the wrapper, which the first call finds, nothing is written to the project
            EXPECT_LE(test::lost(baseline, trace.effects).size(), failing == 1 ? 8U : 2U) << failing;
        }
    }
    EXPECT_TRUE(run());
    EXPECT_EQ(status(), "SUCCESS with Warnings - This project can be deployed, but may not function as expected.");
}

// What the form shows on the way

class CompileProgress : public CompileRun {
protected:
    /// Notes what was shown, in order.
    std::vector<std::string> seen;
    std::vector<std::string> runAndSee() {
        run();
        return seen;
    }
    const fernwick::Subscription failed = compile.failedImg.Visible.watch([this](bool visible) {
        if (visible) seen.push_back("failed");
    });
    const fernwick::Subscription text =
        compile.stsUpdate.SimpleText.watch([this](const std::string& now) { seen.push_back(now); });
};

TEST_F(CompileProgress, ARefusedRunShowsThePictureOfFailure) {
    files.files.erase("/p/Demo.vbp");
    EXPECT_THAT(runAndSee(), ElementsAre("failed"));
}

TEST_F(CompileProgress, AFailedBuildShowsThePictureAndTheText) {
    compiler->built = compiler->finished = false;
    EXPECT_THAT(runAndSee(), ElementsAre("Compiler Build Started", "failed", "Compile Finished with Error"));
}

TEST_F(CompileProgress, TheFormHasTheFocusBeforeItShowsTheEnd) {
    const auto painted = compile.Refreshed.connect(
        [this] { seen.push_back(compile.finishedImg.Visible() ? "painted with the end" : "painted"); });
    compiler->work = [this](test::FakeCompiler&) { seen.clear(); };
    runAndSee();
    ASSERT_GE(seen.size(), 3U);
    EXPECT_EQ(seen[0], "painted"); // a form that gets the focus paints itself
    EXPECT_EQ(seen[1], "Scanning Project Dependencies...");
    EXPECT_EQ(seen[2], "painted with the end");
}

TEST_F(CompileProgress, ThePercentageHasAFraction) {
    compiler->work = [this](test::FakeCompiler& c) {
        c.BuildStatus.raise("45.5% completed");
        EXPECT_EQ(compile.prgbarUpdate.Value(), 45.5F);
    };
    EXPECT_TRUE(run());
}

TEST_F(CompileProgress, AStatusIsPaintedAndTheHostProcessesItsEventsAfterwards) {
    const auto painted = compile.Refreshed.connect([this] {
        seen.push_back("painted");
        loop.Post([this] { seen.push_back("processed"); });
    });
    compiler->work = [this](test::FakeCompiler& c) {
        seen.clear();
        c.BuildStatus.raise("Linking");
        EXPECT_THAT(seen, ElementsAre("Linking", "painted", "processed"));
    };
    EXPECT_TRUE(run());
}

TEST_F(CompileProgress, EachTextIsPaintedAndTheHostProcessesItsEvents) {
    const auto painted = compile.stsUpdate.Refreshed.connect([this] {
        seen.push_back("painted");
        loop.Post([this] { seen.push_back("processed"); });
    });
    compile.displayInfo("Information");
    compile.displayError("Error");
    EXPECT_THAT(seen, ElementsAre("Information", "painted", "processed", "Error", "painted", "processed"));
}

TEST_F(CompileProgress, TheAnimationPlaysBeforeTheNoticeOfAReadOnlyProject) {
    files.files["/p/Demo.vbp"].attributes = fernwick::ReadOnlyAttribute;
    int notices = 0;
    trace.observer = [&](const std::string& effect) {
        if (effect.find("ReadOnly") == std::string::npos) return;
        EXPECT_EQ(compile.aniCompile.Playing(), fernwick::Animation::kForever);
        ++notices;
    };
    EXPECT_TRUE(run());
    EXPECT_EQ(notices, 1);
}

/// A compiler class that cannot create a compiler.
class NoCompilerFactory : public qltoolkit::CompilerFactory {
public:
    basic::Ref<qltoolkit::Compiler> CreateCompiler() override { throw basic::RuntimeError(basic::kCantCreateObject); }
};

TEST_F(CompileRun, AFactoryWithoutACompilerIsReleasedWithTheForm) {
    std::weak_ptr<fernwick::Object> made;
    registerFactory([&made] {
        const auto factory = std::make_shared<NoCompilerFactory>();
        made = factory;
        return factory;
    });
    bool heldDuringTheBox = false;
    trace.observer = [&](const std::string& effect) {
        if (effect.find("could not be loaded") != std::string::npos && effect.starts_with("box"))
            heldDuringTheBox = !made.expired();
    };
    EXPECT_FALSE(run());
    EXPECT_TRUE(heldDuringTheBox);
    EXPECT_TRUE(made.expired());
}

TEST_F(CompileRun, TheCompilerIsReleasedAtTheEnd) {
    const auto before = compiler.shared().use_count();
    EXPECT_TRUE(run());
    EXPECT_EQ(compiler.shared().use_count(), before);
}

} // namespace
