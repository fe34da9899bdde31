// The page of the steps around a compile.
#include "settings_world.h"

using testing::Contains;
using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;
using testing::Not;

namespace {

constexpr char kSteps[] = "Quinloft Compiler Options";

class CompilerPage : public testing::Test, protected test::SettingsWorld {
protected:
    void open(std::function<void()> act) { show("Compiler Settings", std::move(act)); }
    void storeSteps(const std::string& kind, const std::vector<std::string>& steps) {
        project->properties[{kSteps, kind + "CompileStepCount"}] = std::to_string(steps.size());
        for (std::size_t i = 0; i < steps.size(); ++i)
            project->properties[{kSteps, kind + "CompileStep" + std::to_string(i)}] = steps[i];
    }
    /// Selected rows with a star.
    static std::vector<std::string> rows(const fernwick::ListBox& list) {
        std::vector<std::string> texts;
        for (int row = 0; row < list.ListCount(); ++row)
            texts.push_back((list.Selected(row) ? "*" : "") + list.List(row));
        return texts;
    }
    std::vector<std::string> rows() { return rows(pre.lstSteps); }

    fernwick::CompilerPage& page = dialog.compiler;
    fernwick::StepList& pre = page.pre;
};

TEST_F(CompilerPage, ShowsStepsInOrderAndStoresThemOnOK) {
    storeSteps("Pre", {"one.exe", "two.exe"});
    storeSteps("Post", {"last.exe"});
    processes.codes["new.exe /q"] = 0;
    open([&] {
        EXPECT_THAT(rows(), ElementsAre("one.exe", "two.exe"));
        EXPECT_THAT(rows(page.post.lstSteps), ElementsAre("last.exe"));
        EXPECT_EQ(pre.lstSteps.Name, "lstPreSteps");
        pre.txtNewStep.Text("new.exe /q");
        pre.cmdAdd.press();
        pre.cmdAdd.press();
        EXPECT_EQ(stored("PreCompileStepCount", kSteps), "2");
        dialog.btnOK.press();
    });
    EXPECT_EQ(stored("PreCompileStepCount", kSteps), "4");
    EXPECT_EQ(stored("PreCompileStep3", kSteps), "new.exe /q");
    EXPECT_EQ(stored("PostCompileStepCount", kSteps), "1");
}

TEST_F(CompilerPage, AStepMustExist) {
    open([&] {
        pre.cmdAdd.press();
        EXPECT_TRUE(did("box 16 : Please enter a valid file name before trying to add a step."));
        pre.txtNewStep.Text("gone.exe");
        pre.cmdAdd.press();
        EXPECT_TRUE(did("box 16 : The specified file does not exist.  Please enter a valid file name before trying to "
                        "add a step."));
        EXPECT_EQ(pre.lstSteps.ListCount(), 0);
        files.files["/p/with blank.exe"] = {};
        pre.txtNewStep.Text("/p/with blank.exe");
        pre.cmdAdd.press();
        EXPECT_THAT(rows(), ElementsAre("/p/with blank.exe"));
    });
}

TEST_F(CompilerPage, BrowsesForAStepWithoutAddingIt) {
    open([&] {
        user.chosen = "/p/tool.exe";
        pre.cmdBrowse.press();
        EXPECT_EQ(user.opened.DialogTitle, "Browse for executable...");
        EXPECT_EQ(user.opened.Filter, "Executables (*.exe;*.com;*.bat)|*.exe;*.com;*.bat|All Files (*.*)|*.*");
        EXPECT_EQ(user.opened.Flags, 6148);
        EXPECT_EQ(user.opened.FileName, "");
        EXPECT_EQ(pre.txtNewStep.Text(), "/p/tool.exe");
        user.chosen = "";
        pre.cmdBrowse.press();
        EXPECT_EQ(pre.txtNewStep.Text(), "/p/tool.exe");
        EXPECT_EQ(pre.lstSteps.ListCount(), 0);
    });
}

TEST_F(CompilerPage, AnEditedStepIsReplacedInItsPlace) {
    storeSteps("Pre", {"one", "two", "three"});
    processes.codes["two /q"] = 0;
    open([&] {
        pre.cmdEdit.press();
        EXPECT_EQ(pre.txtNewStep.Text(), "");
        pre.lstSteps.Selected(1, true);
        pre.cmdEdit.press();
        EXPECT_EQ(pre.txtNewStep.Text(), "two");
        pre.cmdMoveUp.press();
        pre.txtNewStep.Text("two /q");
        pre.cmdAdd.press();
        EXPECT_THAT(rows(), ElementsAre("*two /q", "one", "three"));
        pre.cmdAdd.press();
        EXPECT_THAT(rows(), ElementsAre("*two /q", "one", "three", "two /q"));
    });
}

TEST_F(CompilerPage, AnEditedStepStaysEditedWhileOthersMove) {
    storeSteps("Pre", {"one", "two", "three"});
    processes.codes["new"] = 0;
    open([&] {
        pre.lstSteps.Selected(2, true);
        pre.cmdMoveUp.press();
        pre.txtNewStep.Text("new");
        pre.cmdAdd.press();
        EXPECT_THAT(rows(), ElementsAre("one", "*three", "two", "new"));
        pre.cmdEdit.press();
        pre.lstSteps.Selected(1, false);
        pre.lstSteps.Selected(3, true);
        pre.cmdMoveUp.press();
        pre.txtNewStep.Text("new");
        pre.cmdAdd.press();
        EXPECT_THAT(rows(), ElementsAre("one", "new", "*new", "two"));
    });
}

TEST_F(CompilerPage, AStepThatIsRemovedIsNoLongerEdited) {
    storeSteps("Pre", {"one", "two"});
    processes.codes["one"] = 0;
    open([&] {
        pre.lstSteps.Selected(0, true);
        pre.cmdEdit.press();
        user.answers = {fernwick::vbYes};
        pre.cmdRemove.press();
        pre.cmdAdd.press();
        EXPECT_THAT(rows(), ElementsAre("two", "one"));
    });
}

TEST_F(CompilerPage, SelectedStepsAreRemovedAfterAQuestion) {
    storeSteps("Pre", {"one", "two", "three"});
    open([&] {
        pre.cmdRemove.press();
        EXPECT_THAT(trace.effects, Not(Contains(HasSubstr("remove the selected"))));
        pre.lstSteps.Selected(0, true);
        pre.lstSteps.Selected(1, true);
        user.answers = {fernwick::vbNo};
        pre.cmdRemove.press();
        EXPECT_TRUE(did("box 68 : Are you sure you wish to remove the selected step(s)?"));
        EXPECT_EQ(pre.lstSteps.ListCount(), 3);
        user.answers = {fernwick::vbYes};
        pre.cmdRemove.press();
        EXPECT_THAT(rows(), ElementsAre("three"));
    });
}

TEST_F(CompilerPage, WithoutStepsOnlyTheirNumberIsStored) {
    storeSteps("Pre", {"one"});
    open([&] {
        pre.lstSteps.Selected(0, true);
        user.answers = {fernwick::vbYes};
        pre.cmdRemove.press();
        dialog.btnApply.press();
    });
    EXPECT_TRUE(did("PreCompileStepCount=0"));
    EXPECT_EQ(stored("PreCompileStep0", kSteps), "one");
}

TEST_F(CompilerPage, SelectedStepsMoveAsABlockAndStayAtTheEdge) {
    storeSteps("Pre", {"a", "b", "c", "d"});
    open([&] {
        pre.lstSteps.Selected(0, true);
        pre.lstSteps.Selected(2, true);
        pre.cmdMoveUp.press();
        EXPECT_THAT(rows(), ElementsAre("*a", "*c", "b", "d"));
        pre.cmdMoveDown.press();
        EXPECT_THAT(rows(), ElementsAre("b", "*a", "*c", "d"));
        pre.cmdMoveDown.press();
        pre.cmdMoveDown.press();
        EXPECT_THAT(rows(), ElementsAre("b", "d", "*a", "*c"));
    });
}

TEST_F(CompilerPage, TheTwinListsAreIndependent) {
    processes.codes["tool"] = 0;
    open([&] {
        page.post.txtNewStep.Text("tool");
        page.post.cmdAdd.press();
        EXPECT_EQ(pre.lstSteps.ListCount(), 0);
        dialog.btnOK.press();
    });
    EXPECT_EQ(stored("PostCompileStep0", kSteps), "tool");
    EXPECT_EQ(stored("PreCompileStepCount", kSteps), "0");
}

TEST_F(CompilerPage, HasItsTexts) {
    for (const auto* list : {&page.pre, &page.post}) {
        EXPECT_EQ(list->cmdBrowse.Caption(), "Browse...");
        EXPECT_EQ(list->cmdRemove.Caption(), "Remove...");
        EXPECT_EQ(list->cmdMoveUp.Caption(), "Move Up");
        EXPECT_EQ(list->cmdMoveDown.Caption(), "MoveDown");
    }
    EXPECT_EQ(page.post.cmdMoveDown.Name, "cmdPostMoveDown");
    EXPECT_EQ(page.chkReferenceChecking.Caption(), "Turn off reference checking during compilation");
}

TEST_F(CompilerPage, TipsAreTheMeaningsOfTheSettings) {
    open([&] {
        EXPECT_EQ(page.chkReferenceChecking.ToolTipText(), "Validation tests references. Default: True.");
        EXPECT_EQ(pre.lstSteps.ToolTipText(), "Command lines before a compile, in order.");
        EXPECT_EQ(page.post.lstSteps.ToolTipText(), "Command lines after a good compile, in order.");
        EXPECT_EQ(dialog.appName.chkSpacesInName.ToolTipText(),
                  "Underscores of the name show as blanks. Default: False.");
    });
}

TEST_F(CompilerPage, TheBoxTurnsTheCheckOfReferencesOff) {
    open([&] {
        EXPECT_EQ(page.chkReferenceChecking.Value(), 0);
        page.chkReferenceChecking.Value(1);
        dialog.btnOK.press();
    });
    EXPECT_EQ(stored("ScanReferences"), "0");
    open([&] {
        EXPECT_EQ(page.chkReferenceChecking.Value(), 1);
        page.chkReferenceChecking.Value(0);
        dialog.btnOK.press();
    });
    EXPECT_EQ(stored("ScanReferences"), "-1");
}

TEST_F(CompilerPage, HelpIsAPageOfTheGuide) {
    open([&] { page.cmdRefOffHelp.press(); });
    EXPECT_TRUE(did("box 0 Fernwick: Could not find required Fernwick help files, installation may be corrupt."));
    registry.set(fernwick::HKEY_LOCAL_MACHINE, "SOFTWARE\\Quinloft", "RootDir", "/q");
    files.files["/q/VB Toolkit/doc/Quinloft_AddIn_Guide.chm"] = {};
    open([&] { page.cmdRefOffHelp.press(); });
    EXPECT_THAT(shell.started,
                ElementsAre(EndsWith("Hh.exe ms-its:/q/VB Toolkit/doc/Quinloft_AddIn_Guide.chm::/Quinloft_AddIn_Guide_"
                                     "Fernwick Settings_Setting Compiler Settings.html")));
}

TEST_F(CompilerPage, TrustInTheFolderIsShownGivenAndTakenBack) {
    fernwick::TrustedFolders trusted(registry);
    open([&] {
        EXPECT_EQ(page.chkTrustFolder.Value(), 0);
        EXPECT_TRUE(page.chkTrustFolder.Enabled());
        page.chkTrustFolder.Value(1);
        EXPECT_FALSE(trusted.holds("/p"));
        dialog.btnApply.press();
        EXPECT_TRUE(trusted.holds("/p"));
    });
    open([&] {
        EXPECT_EQ(page.chkTrustFolder.Value(), 1);
        page.chkTrustFolder.Value(0);
        dialog.btnOK.press();
    });
    EXPECT_FALSE(trusted.holds("/p"));
}

TEST_F(CompilerPage, TrustThatCannotBeStoredIsReported) {
    registry.isReadOnly = true;
    open([&] {
        page.chkTrustFolder.Value(1);
        dialog.btnOK.press();
    });
    EXPECT_TRUE(did("box 48 Fernwick: Your settings cannot be written, so the trust in the folder did not change."));
}

TEST_F(CompilerPage, TheFolderOfAnUnsavedProjectCannotBeTrusted) {
    project->file = "";
    open([&] {
        EXPECT_FALSE(page.chkTrustFolder.Enabled());
        EXPECT_EQ(page.chkTrustFolder.ToolTipText(),
                  "Save the project first: the folder that is trusted is the project's.");
        page.chkTrustFolder.Value(1);
        dialog.btnOK.press();
    });
    EXPECT_FALSE(fernwick::TrustedFolders(registry).holds(""));
}

} // namespace
