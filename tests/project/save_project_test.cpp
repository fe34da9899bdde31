#include "Add-in/project/frmSaveProjectFiles.h"
#include "Add-in/project/frmSaveWarning.h"
#include "Add-in/project/modSaveProject.h"
#include "project_world.h"

using namespace fernwick;

namespace {

struct SaveProject : test::ProjectTest {
    static constexpr int kAsks = vbYesNoCancel | vbQuestion;
    std::shared_ptr<void> fileSystem =
        classes.RegisterClass("Scripting.FileSystemObject", [] { return basic::make<host::FileSystem>(); });
    basic::Ref<vbide::VBProject> project =
        projects.AddToProjectsList(host.open(test::SampleProject{}.module("modOne").handheld()))->VBProject();

    basic::Ref<vbide::VBComponent> add(vbide::vbext_ComponentType type) { return project->VBComponents()->Add(type); }
    void change() { project->VBComponents()->Item("modOne")->CodeModule()->InsertLines(1, "' changed"); }
    bool ask() { return save.SaveProject(project, true, "Save?", true, "Not saved."); }
    /// The dialog shown must equal `expected`; the user chooses `answer`.
    void expectSave(const std::string& name, const std::string& filter, const std::string& answer) {
        user.expectSave([=](const CommonDialog& dialog) {
            EXPECT_EQ(dialog.DialogTitle, "Save File");
            EXPECT_EQ(dialog.FileName, name);
            EXPECT_EQ(dialog.Filter, filter);
            EXPECT_EQ(dialog.FilterIndex, 1);
            EXPECT_TRUE(dialog.CancelError);
            return answer;
        });
    }
};

} // namespace

TEST_F(SaveProject, ACleanProjectAsksNothing) {
    EXPECT_TRUE(ask());
    EXPECT_TRUE(user.sawNothing());
}

TEST_F(SaveProject, YesSavesExistingFilesWithoutADialog) {
    change();
    project->WriteProperty("Quinloft Global", "IconWarning", "True");
    user.expectBox("Save?", vbYes, kAsks, "Save Project");
    EXPECT_TRUE(ask());
    EXPECT_THAT(host.folder.read("modOne.bas"), ::testing::HasSubstr("' changed"));
    EXPECT_THAT(host.folder.read("Hello.vbp"), ::testing::HasSubstr("IconWarning=True"));
}

TEST_F(SaveProject, NoEmptiesTheProjectAndContinues) {
    change();
    user.expectBox("Save?", vbNo, kAsks, "Save Project");
    EXPECT_TRUE(ask());
    EXPECT_EQ(project->VBComponents()->Count(), 0);
    EXPECT_THAT(host.folder.read("modOne.bas"), ::testing::Not(::testing::HasSubstr("' changed")));
}

TEST_F(SaveProject, CancelStopsWithoutTheFailureBox) {
    change();
    user.expectBox("Save?", vbCancel, kAsks, "Save Project");
    EXPECT_FALSE(ask());
}

TEST_F(SaveProject, CancelInADialogShowsTheFailure) {
    const auto module = add(vbide::vbext_ct_StdModule);
    user.expectBox("Save?", vbYes, kAsks, "Save Project");
    expectSave(module->Name() + ".bas", "Basic Files (*.bas)|*.bas|All Files (*.*)|*.*|", "");
    user.expectBox("Not saved.", vbOK, vbCritical, "Project Not Saved");
    EXPECT_FALSE(ask());
}

TEST_F(SaveProject, ChosenPathsAreUsed) {
    const auto form = add(vbide::vbext_ct_VBForm);
    const auto classModule = add(vbide::vbext_ct_ClassModule);
    expectSave(form->Name() + ".frm", "Form Files (*.frm)|*.frm|All Files (*.*)|*.*|", path("new.frm"));
    expectSave(classModule->Name() + ".cls", "Class Files (*.cls)|*.cls|All Files (*.*)|*.*|", path("new.cls"));
    EXPECT_TRUE(save.SaveProject(project, false, "", false, ""));
    EXPECT_TRUE(files.FileExists(path("new.frm")) && files.FileExists(path("new.cls")));
    EXPECT_FALSE(save.ProjectIsDirty(project));
}

TEST_F(SaveProject, AnExistingFileIsConfirmedAndNoReturnsToTheDialog) {
    add(vbide::vbext_ct_StdModule);
    host.folder.write("old.bas", "old");
    const auto question = path("old.bas") + " already exists.  Do you want to replace it?";
    user.expectSave([&](const CommonDialog&) { return path("old.bas"); });
    user.expectBox(question, vbNo, vbYesNo | vbExclamation, "Save File As");
    user.expectSave([&](const CommonDialog&) { return path("old.bas"); });
    user.expectBox(question, vbYes, vbYesNo | vbExclamation, "Save File As");
    EXPECT_TRUE(save.AskForSaveProject(project));
    EXPECT_NE(host.folder.read("old.bas"), "old");
}

TEST_F(SaveProject, AProjectWithoutAFileGetsADialogToo) {
    const auto fresh = host.ide->VBProjects()->AddFromTemplate(test::SampleProject{"Fresh"}.writeTo(host.folder, "T"));
    fresh->IsDirty(true);
    user.expectSave([&](const CommonDialog& dialog) {
        EXPECT_EQ(dialog.FileName, fresh->Name() + ".vbp");
        EXPECT_EQ(dialog.Filter, "Project Files (*.vbp)|*.vbp|All Files (*.*)|*.*|");
        EXPECT_EQ(dialog.InitDir, path("Installed"));
        return path("Saved.vbp");
    });
    EXPECT_TRUE(save.AskForSaveProject(fresh));
    EXPECT_TRUE(files.FileExists(path("Saved.vbp")));
}

TEST_F(SaveProject, DialogsStartAtTheHostsFolderElseAtHome) {
    add(vbide::vbext_ct_StdModule);
    installAt("");
    user.expectSave([&](const CommonDialog& dialog) {
        EXPECT_EQ(dialog.InitDir, files.HomeFolder());
        return "";
    });
    EXPECT_FALSE(save.AskForSaveProject(project));
    registry.set(HKEY_LOCAL_MACHINE, "Software\\Microsoft\\VisualStudio\\6.0\\Setup\\Microsoft Visual Basic",
                 "ProductDir", "/vb");
    user.expectSave([&](const CommonDialog& dialog) {
        EXPECT_EQ(dialog.InitDir, "/vb");
        return "";
    });
    EXPECT_FALSE(save.AskForSaveProject(project));
}

TEST_F(SaveProject, WithoutAFileSystemNothingIsSaved) {
    fileSystem.reset();
    user.expectBox("An error has occured while saving file, unable to access file system.", vbOK, vbCritical);
    EXPECT_FALSE(save.AskForSaveProject(project));
}

TEST_F(SaveProject, CleanComponentsAreSavedToo) {
    const auto vbProject = traced();
    vbProject->add("modClean", path("modClean.bas"));
    vbProject->dirty = true;
    EXPECT_TRUE(save.AskForSaveProject(vbProject));
    EXPECT_EQ(trace.effects, (Texts{"modClean saved " + path("modClean.bas"), "Hello saved " + path("Hello.vbp")}));
}

TEST_F(SaveProject, OnlySaveableKindsCountAsDirty) {
    add(vbide::vbext_ct_UserControl);
    project->IsDirty(false);
    EXPECT_FALSE(save.ProjectIsDirty(project));
    add(vbide::vbext_ct_StdModule);
    project->IsDirty(false);
    EXPECT_TRUE(save.ProjectIsDirty(project));
}

TEST_F(SaveProject, DirtyMeansTheProjectAComponentOrAMissingFile) {
    EXPECT_FALSE(save.ProjectIsDirty(project));
    change();
    EXPECT_TRUE(save.ProjectIsDirty(project));
    project->VBComponents()->Item("modOne")->IsDirty(false);
    project->IsDirty(true);
    EXPECT_TRUE(save.ProjectIsDirty(project));
}

TEST_F(SaveProject, NoFailureMakesUnsavedChangesCountAsSaved) {
    const auto vbProject = traced();
    vbProject->add("modTwo", path("modTwo.bas"))->dirty = true;
    int calls = 1;
    for (int failing = 1; failing <= calls; ++failing) {
        errors.seen.clear();
        trace = {};
        trace.failing = failing;
        const bool saved = save.SaveProject(vbProject, false, "", false, "");
        calls = trace.calls;
        const auto boxes =
            std::erase_if(user.wrong, [](const auto& box) { return box.ends_with("unable to access file system."); });
        EXPECT_EQ(reports().size() + boxes, 1U) << failing;
        const auto& done = trace.effects;
        EXPECT_TRUE(!saved || std::count(done.begin(), done.end(), "modTwo saved " + path("modTwo.bas")) == 1);
    }
}

namespace {
struct SaveQuestions : test::ProjectTest {
    frmSaveProjectFiles question{user, addIn};
    frmSaveWarning warning{user, addIn};
};
} // namespace

TEST_F(SaveQuestions, YesIsTrueAndTheTickTurnsTheWarningOff) {
    user.expectForm("frmSaveProjectFiles", [&](Form& form) {
        EXPECT_EQ(question.lblWarning.Caption(), "Save now?");
        EXPECT_EQ(question.chkWarning.Caption(), "Don't ask me this again");
        EXPECT_EQ(question.chkWarning.ToolTipText(),
                  "Check this box if you do not want to be asked this question again");
        question.chkWarning.Value(1);
        user.press(form, "btnYes");
    });
    EXPECT_TRUE(question.AskForProjectSave("Save now?"));
    EXPECT_EQ(question.chkWarning.Value(), 1); // until the caller unloads the form
    EXPECT_FALSE(addIn.GetQuinloftSaveWarning());
    question.Unload();
}

TEST_F(SaveQuestions, NoIsFalseAndLeavesTheWarningOn) {
    user.expectFormAndPress("frmSaveProjectFiles", "btnNo");
    EXPECT_FALSE(question.AskForProjectSave("Save now?"));
    EXPECT_TRUE(addIn.GetQuinloftSaveWarning());
    question.Unload();
}

TEST_F(SaveQuestions, AnEarlierAnswerIsForgotten) {
    user.expectFormAndPress("frmSaveProjectFiles", "btnYes");
    EXPECT_TRUE(question.AskForProjectSave("Save now?"));
    question.Unload();
    user.expectForm("frmSaveProjectFiles", [](Form& form) { form.Unload(); });
    EXPECT_FALSE(question.AskForProjectSave("Save now?"));
}

TEST_F(SaveQuestions, TheWarningStoresItsTickToo) {
    for (const bool tick : {true, false}) {
        user.expectForm("frmSaveWarning", [&](Form& form) {
            warning.chkWarning.Value(tick ? 1 : 0);
            user.press(form, "btnOK");
        });
        warning.ShowModal();
        warning.Unload();
        EXPECT_EQ(addIn.GetQuinloftSaveWarning(), !tick);
    }
}
