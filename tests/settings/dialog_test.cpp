// The frame of the settings dialog: its tree, how pages replace each other, and what OK, Apply and Cancel store.
#include "settings_world.h"

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

namespace {

class SettingsDialog : public testing::Test, protected test::SettingsWorld {
protected:
    void choose(const std::string& key) { dialog.treAvailableSettings.choose(key); }
    const std::string& selected() const { return dialog.treAvailableSettings.SelectedItem(); }
};

TEST_F(SettingsDialog, HasATreeOfPages) {
    showAny([&] {
        EXPECT_THAT(nodes(), ElementsAre("Project Settings", "  App Name/Icon", "  Dependencies", "  Compiler Settings",
                                         "General Settings", "  My Devices"));
        const auto& tree = dialog.treAvailableSettings.Nodes();
        EXPECT_EQ(tree[0].Text, "Game - Project Settings");
        EXPECT_EQ(tree[1].Text, "App Name/Icon");
        EXPECT_TRUE(tree[0].Expanded);
        EXPECT_TRUE(tree[4].Expanded);
        EXPECT_EQ(dialog.Caption(), "Fernwick Settings");
        EXPECT_EQ(dialog.txtSubdialogTitle.Caption(), "Fernwick Settings");
    });
    EXPECT_THAT(trace.effects, ElementsAre("cursor 1", "form frmQuinloftSettings"));
}

TEST_F(SettingsDialog, ListsPagesOfPipesBeforeTheCompilerSettings) {
    givePage("Palm OS Settings");
    showAny([&] {
        EXPECT_THAT(nodes(), ElementsAre("Project Settings", "  App Name/Icon", "  Dependencies", "  Palm OS Settings",
                                         "  Compiler Settings", "General Settings", "  My Devices"));
    });
}

TEST_F(SettingsDialog, IsEmptiedWhenItOpensAgain) {
    givePage("Palm OS Settings");
    showAny();
    showAny([&] { EXPECT_EQ(nodes().size(), 7u); });
    EXPECT_EQ(pagesAlive, 0);
}

TEST_F(SettingsDialog, OpensOnTheFirstPageWithoutAnyOther) {
    showAny([&] {
        EXPECT_THAT(frames(), ElementsAre("fraAppName"));
        EXPECT_EQ(selected(), "App Name/Icon");
        EXPECT_EQ(dialog.CurrentDialog, "App Name/Icon");
    });
}

TEST_F(SettingsDialog, OpensOnTheStoredPage) {
    store("LastSettingsDialog", "My Devices");
    showAny([&] {
        EXPECT_THAT(frames(), ElementsAre("fraMyDevices"));
        EXPECT_EQ(selected(), "My Devices");
    });
}

TEST_F(SettingsDialog, OpensOnTheNamedPageRatherThanTheStoredOne) {
    store("LastSettingsDialog", "My Devices");
    show("Dependencies", [&] {
        EXPECT_THAT(frames(), ElementsAre("fraDependencies"));
        EXPECT_EQ(selected(), "Dependencies");
    });
}

TEST_F(SettingsDialog, OpensOnTheCompileTargetsWithoutANode) {
    show("Compile Targets", [&] {
        EXPECT_THAT(frames(), ElementsAre("fraCompileTargets"));
        EXPECT_EQ(selected(), "");
        choose("General Settings");
        EXPECT_EQ(selected(), "");
        EXPECT_THAT(frames(), ElementsAre("fraCompileTargets"));
        EXPECT_EQ(dialog.compileTargets.lblCompileTargets.Caption(), "CompileTargets");
    });
    EXPECT_THAT(errors.seen, ElementsAre("frmQuinloftSettings.ShowQuinloftSettings [35601]"));
}

TEST_F(SettingsDialog, OpensWithoutAPageForOneThatThisMachineLacks) {
    store("LastSettingsDialog", "PocketPC Settings");
    showAny([&] {
        EXPECT_THAT(frames(), IsEmpty());
        choose("Project Settings");
        EXPECT_EQ(selected(), "");
        choose("Dependencies");
        EXPECT_THAT(frames(), ElementsAre("fraDependencies"));
    });
    EXPECT_THAT(errors.seen, ElementsAre("frmQuinloftSettings.ShowQuinloftSettings [35601]"));
}

TEST_F(SettingsDialog, ShowsOnePageAtATimeInOnePlace) {
    showAny([&] {
        for (const auto& [node, frame] :
             std::vector<std::pair<std::string, std::string>>{{"Dependencies", "fraDependencies"},
                                                              {"Compiler Settings", "fraCompilerOptions"},
                                                              {"My Devices", "fraMyDevices"},
                                                              {"App Name/Icon", "fraAppName"}}) {
            choose(node);
            EXPECT_THAT(frames(), ElementsAre(frame));
            const auto& shown = dynamic_cast<fernwick::Frame&>(dialog.control(frame));
            EXPECT_EQ(shown.Top(), 1075);
            EXPECT_EQ(shown.Left(), 3150);
        }
        EXPECT_EQ(dialog.dependencies.fraDependencies.Top(), 10000);
    });
}

TEST_F(SettingsDialog, ARootChangesNeitherThePageNorTheSelectedNode) {
    showAny([&] {
        choose("Dependencies");
        choose("General Settings");
        EXPECT_EQ(selected(), "Dependencies");
        choose("Project Settings");
        EXPECT_EQ(selected(), "Dependencies");
        EXPECT_THAT(frames(), ElementsAre("fraDependencies"));
    });
}

TEST_F(SettingsDialog, TheIconIsCheckedWhenItsPageIsLeftButNotOnOpening) {
    store("IconFileName", "gone.ico");
    show("Dependencies", [&] {
        EXPECT_FALSE(did("box 48 Fernwick: ERROR - The icon specified was not found. Will use "
                         "the default Icon."));
    });
    show("App Name/Icon", [&] {
        choose("My Devices");
        EXPECT_TRUE(did("box 48 Fernwick: ERROR - The icon specified was not found. Will use the default Icon."));
    });
}

TEST_F(SettingsDialog, APipesPageIsShownAndHiddenByThePipe) {
    givePage("Palm OS Settings");
    showAny([&] {
        EXPECT_EQ(dialog.pipes.picPipePages.Pages().size(), 1u);
        trace.effects.clear();
        choose("Palm OS Settings");
        EXPECT_THAT(frames(), IsEmpty());
        EXPECT_TRUE(dialog.pipes.picPipePages.Pages().front()->Visible());
        choose("Compiler Settings");
        EXPECT_THAT(trace.effects,
                    ElementsAre("show Palm OS Settings", "validate Palm OS Settings", "hide Palm OS Settings"));
    });
}

TEST_F(SettingsDialog, APipesPageMayRefuseToBeLeft) {
    givePage("Palm OS Settings");
    pageIsValid = false;
    showAny([&] {
        choose("Palm OS Settings");
        choose("Dependencies");
        EXPECT_EQ(selected(), "Palm OS Settings");
        EXPECT_THAT(frames(), IsEmpty());
        EXPECT_FALSE(did("hide Palm OS Settings"));
        pageIsValid = true;
        choose("Dependencies");
        EXPECT_THAT(frames(), ElementsAre("fraDependencies"));
    });
}

TEST_F(SettingsDialog, APageThatWasNeverShownIsNeitherCheckedNorStored) {
    givePage("Palm OS Settings");
    showAny([&] {
        choose("Dependencies");
        dialog.btnOK.press();
    });
    EXPECT_THAT(trace.effects, Not(Contains("validate Palm OS Settings")));
    EXPECT_THAT(trace.effects, Not(Contains("apply Palm OS Settings")));
    EXPECT_THAT(trace.effects, Contains("close Palm OS Settings"));
}

TEST_F(SettingsDialog, OKStoresInOrderThenThePageThenClosesThePages) {
    givePage("Palm OS Settings");
    files.files["/p/a.txt"].bytes = "abc";
    showAny([&] {
        choose("Palm OS Settings");
        user.chosen = "/p/a.txt";
        dialog.dependencies.btnAdd.press();
        trace.effects.clear();
        dialog.btnOK.press();
        EXPECT_FALSE(dialog.isLoaded());
    });
    EXPECT_THAT(trace.effects,
                ElementsAre("NumDependencies=1", "Dependencies0=a.txt,TXT", "SpacesInNameEnabled=False",
                            "IconFileName=", "PreCompileStepCount=0", "PostCompileStepCount=0", "ScanReferences=-1",
                            "apply Palm OS Settings", "LastSettingsDialog=Palm OS Settings", "close Palm OS Settings"));
    EXPECT_EQ(pagesAlive, 0);
}

TEST_F(SettingsDialog, ApplyStoresAndStaysOpen) {
    givePage("Palm OS Settings");
    showAny([&] {
        choose("Palm OS Settings");
        dialog.appName.chkSpacesInName.Value(1);
        dialog.btnApply.press();
        EXPECT_TRUE(dialog.Visible());
        EXPECT_EQ(stored("SpacesInNameEnabled"), "True");
        EXPECT_EQ(stored("LastSettingsDialog"), "Palm OS Settings");
        EXPECT_FALSE(did("close Palm OS Settings"));
        dialog.appName.chkSpacesInName.Value(0);
    });
    EXPECT_EQ(stored("SpacesInNameEnabled"), "True");
}

TEST_F(SettingsDialog, CancelWritesNothing) {
    givePage("Palm OS Settings");
    prefs.gMyDevices = {"Palm-2"};
    const auto before = project->properties;
    showAny([&] {
        choose("Palm OS Settings");
        dialog.appName.chkSpacesInName.Value(1);
        dialog.compiler.chkReferenceChecking.Value(1);
        dialog.myDevices.lstMyDevices.Selected(0, true);
        dialog.btnCancel.press();
        EXPECT_FALSE(dialog.isLoaded());
    });
    EXPECT_EQ(project->properties, before);
    EXPECT_FALSE(project->dirty);
    EXPECT_THAT(prefs.gMyDevices, ElementsAre("Palm-2"));
    EXPECT_THAT(trace.effects, Contains("close Palm OS Settings"));
    EXPECT_THAT(trace.effects, Not(Contains("apply Palm OS Settings")));
}

TEST_F(SettingsDialog, KeepsNoProjectAlive) {
    const std::weak_ptr<fernwick::clsQLProject> known = projects.GetQLProject(project).shared();
    showAny();
    projects.RemoveFromProjectsList(project);
    EXPECT_TRUE(known.expired());
}

TEST_F(SettingsDialog, TheCloseBoxCancels) {
    EXPECT_TRUE(dialog.CloseBoxCancels);
    EXPECT_TRUE(dialog.btnCancel.Cancel);
    EXPECT_TRUE(dialog.btnOK.Default);
}

TEST_F(SettingsDialog, AnErrorOfAPageIsReported) {
    givePage("Palm OS Settings");
    showAny([&] {
        choose("Palm OS Settings");
        trace.failing = trace.calls + 1;
        choose("Dependencies");
    });
    EXPECT_THAT(errors.seen, ElementsAre("frmQuinloftSettings.hideSubDialogFrame [50000]"));
    EXPECT_EQ(dialog.LastSettingsDialog, "Palm OS Settings");
}

/// Whichever call fails: it is reported, the rest is done, and nothing stays open.
TEST_F(SettingsDialog, AFailingCallLeavesNothingBehind) {
    givePage("Palm OS Settings");
    store("IconFileName", "gone.ico");
    files.files["/p/a.txt"].bytes = "abc";
    const auto use = [&] {
        show("App Name/Icon", [&] {
            user.chosen = "/p/a.txt";
            dialog.dependencies.btnAdd.press();
            choose("Palm OS Settings");
            choose("Compiler Settings");
            dialog.btnOK.press();
        });
    };
    const auto before = project->properties;
    for (int failing = 1;; ++failing) {
        project->properties = before;
        errors.seen.clear();
        errors.injected = 0;
        trace.calls = 0;
        trace.failing = failing;
        use();
        const bool swept = trace.calls < failing;
        trace.failing = 0;
        if (swept) break;
        EXPECT_LE(errors.injected, 1) << failing;
        for (const auto& seen : errors.seen)
            EXPECT_THAT(seen, testing::ContainsRegex("\\[(50000|91|5|9|35601)\\]")) << failing;
        EXPECT_FALSE(dialog.isLoaded()) << failing;
        EXPECT_EQ(pagesAlive, 0) << failing;
    }
}

TEST_F(SettingsDialog, HelpIsTheAddInsGuide) {
    registry.set(fernwick::HKEY_LOCAL_MACHINE, "SOFTWARE\\Quinloft", "RootDir", "/q");
    files.files["/q/VB Toolkit/doc/Quinloft_Addin_Guide.chm"] = {};
    showAny([&] { dialog.btnHelp.press(); });
    EXPECT_THAT(shell.started, ElementsAre("Hh.exe /q/VB Toolkit/doc/Quinloft_Addin_Guide.chm"));
}

TEST_F(SettingsDialog, ScanOnActivateScansOnceAndChangesNothing) {
    const auto before = project->properties;
    show(
        "Dependencies", [&] { EXPECT_FALSE(dialog.ScanOnActivate); }, true);
    EXPECT_EQ(project->properties, before);
}

TEST_F(SettingsDialog, WithoutAProjectOffersTheUsersSettingsOnly) {
    givePage("Palm OS Settings");
    project = nullptr;
    show("My Devices", [&] {
        EXPECT_THAT(nodes(), ElementsAre("General Settings", "  My Devices"));
        EXPECT_THAT(frames(), ElementsAre("fraMyDevices"));
        dialog.myDevices.lstMyDevices.Selected(1, true);
        dialog.btnOK.press();
    });
    EXPECT_THAT(prefs.gMyDevices, ElementsAre("Palm-2"));
    EXPECT_THAT(errors.seen, IsEmpty());
}

// ---- pages of pipes ----

TEST_F(SettingsDialog, TargetsOfOnePipeHaveOnePage) {
    givePage("Palm OS Settings");
    showAny([&] {
        EXPECT_EQ(dialog.pipes.PipeDialogs.size(), 1u);
        EXPECT_EQ(pagesAlive, 1);
    });
    EXPECT_THAT(trace.effects, Contains("create page of Game at 1075,3150"));
}

TEST_F(SettingsDialog, APageBelongsToTheActiveProject) {
    givePage("Palm OS Settings");
    const auto other = open("Other", "Palm-1");
    vbe->active = other;
    showAny([&] { EXPECT_EQ(dialog.treAvailableSettings.Nodes()[0].Text, "Game - Project Settings"); });
    EXPECT_THAT(trace.effects, Contains("create page of Other at 1075,3150"));
}

TEST_F(SettingsDialog, APipeWithoutAPageAddsNothing) {
    givePage("");
    showAny([&] {
        EXPECT_TRUE(dialog.pipes.PipeDialogs.empty());
        EXPECT_EQ(pagesAlive, 0);
        EXPECT_EQ(nodes().size(), 6u);
    });
}

TEST_F(SettingsDialog, APipeThatCannotBeCreatedAddsNothingSilently) {
    showAny([&] { EXPECT_EQ(nodes().size(), 6u); });
    EXPECT_THAT(errors.seen, IsEmpty());
}

TEST_F(SettingsDialog, WithoutTargetsThereAreNeitherPagesNorDevices) {
    givePage("Palm OS Settings");
    targets.known.clear();
    prefs.gMyDevices = {"Palm-1"};
    showAny([&] {
        EXPECT_EQ(nodes().size(), 6u);
        EXPECT_EQ(dialog.myDevices.lstMyDevices.ListCount(), 0);
        dialog.btnOK.press();
    });
    EXPECT_THAT(prefs.gMyDevices, ElementsAre("Palm-1"));
}

// ---- My Devices ----

TEST_F(SettingsDialog, MyDevicesAreTickedAndStored) {
    prefs.gMyDevices = {"Palm-2"};
    show("My Devices", [&] {
        const auto& list = dialog.myDevices.lstMyDevices;
        ASSERT_EQ(list.ListCount(), 2);
        EXPECT_EQ(list.List(0), "Palm-1");
        EXPECT_FALSE(list.Selected(0));
        EXPECT_TRUE(list.Selected(1));
        EXPECT_EQ(list.ItemData(1), 1);
        EXPECT_EQ(dialog.myDevices.lblMyDevices.Caption(),
                  "This list allows you to select the devices which you have connected.  The devices that are checked "
                  "in the list below will be used when any of the 'To My Devices' menu items are selected in the "
                  "Fernwick menu.");
        dialog.myDevices.lstMyDevices.Selected(0, true);
        dialog.myDevices.lstMyDevices.Selected(1, false);
        dialog.btnApply.press();
    });
    EXPECT_THAT(prefs.gMyDevices, ElementsAre("Palm-1"));
    prefs.loadMyDevices();
    EXPECT_THAT(prefs.gMyDevices, ElementsAre("Palm-1"));
}

} // namespace
