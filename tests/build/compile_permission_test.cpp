// The conditions of a compile.
#include "Add-in/build/frmCompileWarning.h"
#include "compile_world.h"

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

namespace {

class CompilePermission : public testing::Test, protected test::CompileWorld {
protected:
    CompilePermission() {
        module = addModule("Module1");
        trace.effects.clear();
    }
    void answerSaving(const std::string& button, bool tick = false) {
        user.whenShown["frmSaveProjectFiles"] = [=, this](fernwick::Form& form) {
            question = dynamic_cast<fernwick::frmSaveProjectFiles&>(form).lblWarning.Caption();
            if (tick) dynamic_cast<fernwick::frmSaveProjectFiles&>(form).chkWarning.Value(1);
            test::press(form, button);
        };
    }
    basic::Ref<test::TracedComponent> module;
    std::string question;
};

TEST_F(CompilePermission, ACleanProjectOfThisVersionIsNotSaved) {
    EXPECT_TRUE(compile.canCompile(project));
    EXPECT_THAT(trace.effects, IsEmpty());
}

TEST_F(CompilePermission, AProjectOfAnotherVersionIsSavedFirst) {
    set("Quinloft Global", "LastCompileVersion", "3.5.0 (0623)");
    set("Quinloft Global", "AutoSaveProject", "True");
    EXPECT_FALSE(compile.lastCompileVersionGood(project));
    EXPECT_TRUE(compile.canCompile(project));
    EXPECT_THAT(trace.effects, ElementsAre("Demo saved /p/Demo.vbp", "Demo dirty 0"));
}

TEST_F(CompilePermission, ForAValidationTheVersionDoesNotMatter) {
    set("Quinloft Global", "LastCompileVersion", "");
    EXPECT_TRUE(compile.readyForValidation(project));
    EXPECT_THAT(trace.effects, IsEmpty());
}

TEST_F(CompilePermission, AMissingFileStartsTheHostsSaving) {
    files.files.erase("/p/Module1.bas");
    EXPECT_FALSE(compile.readyForValidation(project));
    EXPECT_THAT(trace.effects, ElementsAre("box 64 Fernwick: Cannot compile the project.\r\n\r\n"
                                           "Please save all project files and then recompile.",
                                           "host: save project"));
}

TEST_F(CompilePermission, AsksBeforeItSaves) {
    module->dirty = true;
    answerSaving("btnYes");
    EXPECT_TRUE(compile.canCompile(project));
    EXPECT_EQ(question, "All files in the Demo project must be saved before compiling.\r\n"
                        "Do you want to save now and continue compiling?");
    EXPECT_THAT(trace.effects, Contains("Module1 saved /p/Module1.bas"));
    EXPECT_EQ(stored("AutoSaveProject"), "False");
    EXPECT_FALSE(saveFiles.isLoaded());
}

TEST_F(CompilePermission, TheTickSavesWithoutAskingFromNowOn) {
    module->dirty = true;
    answerSaving("btnYes", true);
    EXPECT_TRUE(compile.readyForValidation(project));
    EXPECT_EQ(stored("AutoSaveProject"), "True");
    module->dirty = true;
    trace.effects.clear();
    EXPECT_TRUE(compile.canCompile(project));
    EXPECT_THAT(trace.effects, Not(Contains("form frmSaveProjectFiles")));
}

TEST_F(CompilePermission, TheTickIsStoredBeforeTheFilesAreSaved) {
    module->dirty = true;
    answerSaving("btnYes", true);
    EXPECT_TRUE(compile.canCompile(project));
    const auto stored = std::find(trace.effects.begin(), trace.effects.end(), "AutoSaveProject=True");
    const auto saved = std::find(trace.effects.begin(), trace.effects.end(), "Demo saved /p/Demo.vbp");
    ASSERT_NE(saved, trace.effects.end());
    EXPECT_LT(stored - trace.effects.begin(), saved - trace.effects.begin()); // so the file has it
}

TEST_F(CompilePermission, NoMeansThatNothingElseHappens) {
    module->dirty = true;
    answerSaving("btnNo", true);
    EXPECT_FALSE(compile.canCompile(project));
    EXPECT_THAT(trace.effects, ElementsAre("form frmSaveProjectFiles"));
    EXPECT_EQ(stored("AutoSaveProject"), "(none)");
}

TEST_F(CompilePermission, AFailedSaveBecomesAMessage) {
    module->dirty = true;
    files.files["/p/Module1.bas"].attributes = fernwick::ReadOnlyAttribute;
    set("Quinloft Global", "AutoSaveProject", "True");
    EXPECT_FALSE(compile.canCompile(project));
    EXPECT_THAT(trace.effects, Contains("box 48 ERROR: Cannot save file!: File '/p/Module1.bas' is read-only."));
    EXPECT_EQ(stored("Error1"),
              "ERROR||0|Unknown error trying to save files, please contact Quinloft at support.example|12289");
}

TEST_F(CompilePermission, ARefusedRunKeepsEarlierMessages) {
    messages.AddProjectCompileError(project, "old", "", 0, 1);
    module->dirty = true;
    answerSaving("btnNo");
    EXPECT_FALSE(run());
    EXPECT_EQ(stored("NumErrors"), "1");
    EXPECT_FALSE(did("build"));
}

TEST_F(CompilePermission, DirtyMeansAComponentThatIsNotSaved) {
    project->dirty = true;
    EXPECT_FALSE(compile.ProjectIsDirty(project));
    module->dirty = true;
    EXPECT_TRUE(compile.ProjectIsDirty(project));
}

class CompileWarning : public testing::Test, protected test::CompileWorld {
protected:
    fernwick::frmCompileWarning form{user, prefs, errors};
    int answer(const std::string& button, bool tick) {
        user.whenShown["frmCompileWarning"] = [=](fernwick::Form& shown) {
            if (tick) dynamic_cast<fernwick::frmCompileWarning&>(shown).chkWarning.Value(1);
            test::press(shown, button);
        };
        form.ShowModal();
        form.Unload();
        return form.Result;
    }
};

TEST_F(CompileWarning, BeepsAndReturnsTheButtonPressed) {
    trace.effects.clear();
    EXPECT_EQ(answer("btnYes", false), 6);
    EXPECT_EQ(answer("btnNo", false), 7);
    EXPECT_EQ(answer("btnCancel", false), 2);
    EXPECT_EQ(trace.effects[1], "beep 32");
}

TEST_F(CompileWarning, AllButtonsStoreTheOppositeOfTheTick) {
    for (const char* button : {"btnYes", "btnNo", "btnCancel"}) {
        answer(button, false);
        EXPECT_TRUE(prefs.GetQuinloftCompileWarning()) << button;
        answer(button, true);
        EXPECT_FALSE(prefs.GetQuinloftCompileWarning()) << button;
    }
}

TEST_F(CompileWarning, TheTickExplainsItself) {
    EXPECT_EQ(form.chkWarning.Caption(), "Don't show me this again");
    EXPECT_EQ(form.chkWarning.ToolTipText(), "Check this box to not see this warning dialog again");
}

TEST_F(CompileWarning, ClosingTheWindowMeansCancel) {
    answer("btnYes", false);
    user.whenShown.clear();
    form.ShowModal();
    EXPECT_EQ(form.Result, fernwick::vbCancel);
}

} // namespace
