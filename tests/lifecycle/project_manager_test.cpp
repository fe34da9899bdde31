// The project manager opens recent, sample, existing and new projects.
#include "lifecycle_world.h"

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

namespace {

constexpr auto kRecentKey = "SOFTWARE\\Quinloft\\Recent Projects";
constexpr auto kSamplesKey = "SOFTWARE\\Quinloft\\VB Toolkit\\Samples";

class Manager : public testing::Test, protected test::LifecycleWorld {
protected:
    Manager() {
        remember("A", 1);
        remember("B", 2);
        registry.set(fernwick::HKEY_LOCAL_MACHINE, kSamplesKey, "Tips", "/s/Tip.vbp");
        files.files["/p/A.vbp"] = files.files["/p/B.vbp"] = files.files["/s/Tip.vbp"] = {};
        templates();
    }
    void templates() {
        vbe->templatePath = "/vb/Template";
        files.files["/vb/Template/Projects/Fernwick Project.vbp"] = {};
    }
    void remember(const std::string& name, int n) {
        const auto number = std::to_string(n);
        registry.set(fernwick::HKEY_CURRENT_USER, kRecentKey, "ProjectName" + number, name);
        registry.set(fernwick::HKEY_CURRENT_USER, kRecentKey, "ProjectPath" + number, "/p/" + name + ".vbp");
    }
    /// Shows the form to a user who does this, and returns the effects.
    std::vector<std::string> show(std::function<void()> act) {
        trace.effects.clear();
        user.whenShown["frmProjectManager"] = [act](fernwick::Form&) { act(); };
        projectManager.ShowModal();
        return trace.effects;
    }
    void press(const char* button) { test::press(projectManager, button); }
    /// The lines of the grid; cells are separated by "|".
    std::vector<std::string> lines() const {
        std::vector<std::string> all;
        for (int row = 0; row < grid.Rows(); ++row)
            all.push_back(grid.TextMatrix(row, 0) + "|" + grid.TextMatrix(row, 1));
        return all;
    }
    fernwick::Grid& grid = projectManager.grdRecentProjects;
    fernwick::TabStrip& tabs = projectManager.tbsFiles;
};

TEST_F(Manager, ShowsTheRecentProjects) {
    show([&] {
        EXPECT_EQ(projectManager.Caption(), "Fernwick Project Manager");
        EXPECT_THAT(tabs.Tabs(), ElementsAre("Recent Projects", "Sample Projects"));
        EXPECT_THAT(lines(), ElementsAre("Project|Location", "A|/p/A.vbp", "B|/p/B.vbp"));
        EXPECT_EQ(projectManager.ListName, "Recent");
        EXPECT_FALSE(projectManager.btnOpenRecent.Enabled());
    });
}

TEST_F(Manager, ShowsTheListsOfToday) {
    show([] {});
    remember("C", 3);
    show([&] {
        EXPECT_EQ(tabs.Tabs().size(), 2u);
        EXPECT_THAT(lines(), ElementsAre("Project|Location", "A|/p/A.vbp", "B|/p/B.vbp", "C|/p/C.vbp"));
    });
}

TEST_F(Manager, ATabShowsItsList) {
    show([&] {
        grid.choose(1);
        tabs.SelectedItem(2);
        EXPECT_THAT(lines(), ElementsAre("Description|Location", "Tips|/s/Tip.vbp"));
        EXPECT_EQ(projectManager.ListName, "Samples");
        EXPECT_FALSE(projectManager.btnOpenRecent.Enabled()); // nothing is selected in the new list
        tabs.SelectedItem(1);
        EXPECT_EQ(lines().size(), 3u);
        EXPECT_EQ(projectManager.ListName, "Recent");
    });
}

TEST_F(Manager, WithoutProjectsOnlyTheHeadingsAreShown) {
    registry.RegDeleteKey(fernwick::HKEY_CURRENT_USER, kRecentKey);
    registry.RegDeleteKey(fernwick::HKEY_LOCAL_MACHINE, kSamplesKey);
    show([&] {
        EXPECT_THAT(lines(), ElementsAre("Project|Location"));
        tabs.SelectedItem(2);
        EXPECT_THAT(lines(), ElementsAre("Description|Location"));
    });
}

TEST_F(Manager, KeepsTheTabAndTheWidthOfTheFirstColumn) {
    show([&] {
        EXPECT_EQ(grid.ColWidth(0), fernwick::Grid::kUsualWidth);
        grid.ColWidth(0, 3000);
        tabs.SelectedItem(2);
    });
    EXPECT_EQ(prefs.GetRecentProjColWidth(), 3000);
    EXPECT_EQ(prefs.GetProjectManagerState(), 1);
    grid.ColWidth(0, 1);
    show([&] {
        EXPECT_EQ(grid.ColWidth(0), 3000);
        EXPECT_EQ(tabs.SelectedItem(), 2);
        EXPECT_EQ(projectManager.ListName, "Samples");
        tabs.SelectedItem(1);
    });
    EXPECT_EQ(prefs.GetProjectManagerState(), 0);
}

TEST_F(Manager, OpensTheSelectedProject) {
    EXPECT_THAT(show([&] {
                    grid.choose(2);
                    press("btnOpenRecent");
                }),
                ElementsAre("form frmProjectManager", "open /p/B.vbp alone"));
    EXPECT_FALSE(projectManager.isLoaded());
}

TEST_F(Manager, OpensTheSelectedSampleByADoubleClick) {
    EXPECT_THAT(show([&] {
                    tabs.SelectedItem(2);
                    grid.choose(1);
                    grid.DblClick.raise();
                }),
                Contains("open /s/Tip.vbp alone"));
}

TEST_F(Manager, ClosesBeforeTheProjectOpens) {
    bool wasShown = true;
    vbe->projects->opened = [&](const auto&) { wasShown = projectManager.Visible(); };
    show([&] {
        grid.choose(1);
        press("btnOpenRecent");
    });
    EXPECT_FALSE(wasShown);
}

TEST_F(Manager, RaisesTheOpeningFlagWhileAProjectOpens) {
    bool flag = false;
    vbe->projects->opened = [&](const auto&) { flag = projects.gOpeningProject; };
    show([&] {
        grid.choose(1);
        press("btnOpenRecent");
    });
    EXPECT_TRUE(flag);
    EXPECT_FALSE(projects.gOpeningProject);
}

TEST_F(Manager, OpensNothingWithoutARow) {
    EXPECT_THAT(show([&] {
                    grid.choose(0); // the headings
                    EXPECT_FALSE(projectManager.btnOpenRecent.Enabled());
                    grid.DblClick.raise();
                    projectManager.btnOpenRecent.Click.raise();
                    EXPECT_TRUE(projectManager.Visible());
                }),
                ElementsAre("form frmProjectManager"));
}

TEST_F(Manager, AProjectThatIsGoneStaysInTheList) {
    files.files.erase("/p/A.vbp");
    const auto notFound = "box 0 Fernwick: Project file was not found. It may have been moved or deleted.";
    EXPECT_THAT(show([&] {
                    grid.choose(1);
                    press("btnOpenRecent");
                    grid.DblClick.raise();
                    EXPECT_TRUE(projectManager.Visible());
                }),
                ElementsAre("form frmProjectManager", notFound, notFound));
    EXPECT_EQ(recent.GetQuinloftRecentProject(1).name, "A");
}

TEST_F(Manager, AnInvalidStateIsReported) {
    EXPECT_THAT(show([&] {
                    grid.choose(1);
                    projectManager.ListName = "";
                    press("btnOpenRecent");
                    EXPECT_TRUE(projectManager.Visible());
                }),
                ElementsAre("form frmProjectManager",
                            "box 0 Fernwick: The Fernwick project manager is in an invalid state please contact "
                            "support."));
}

TEST_F(Manager, APathKeepsItsTabs) {
    registry.set(fernwick::HKEY_CURRENT_USER, kRecentKey, "ProjectPath1", "/p/a\tb.vbp");
    files.files["/p/a\tb.vbp"] = {};
    EXPECT_THAT(show([&] {
                    grid.choose(1);
                    press("btnOpenRecent");
                }),
                Contains("open /p/a\tb.vbp alone"));
}

TEST_F(Manager, ReportsAProjectThatCannotBeOpened) {
    vbe->projects->opened = [](const auto&) { throw basic::RuntimeError(basic::kPathFileAccessError); };
    show([&] {
        grid.choose(1);
        press("btnOpenRecent");
    });
    EXPECT_THAT(errors.seen, ElementsAre("frmProjectManager.btnOpenRecent_Click [75]"));
    EXPECT_FALSE(projects.gOpeningProject);
}

TEST_F(Manager, OpensANewProject) {
    EXPECT_THAT(show([&] { press("btnNewProject"); }),
                ElementsAre("form frmProjectManager", "open /vb/Template/Projects/Fernwick Project.vbp alone"));
    EXPECT_FALSE(projectManager.isLoaded());
}

TEST_F(Manager, CancelOpensNothing) {
    EXPECT_THAT(show([&] { press("btnCancel"); }), ElementsAre("form frmProjectManager"));
    EXPECT_FALSE(projectManager.isLoaded());
}

// ---- existing projects
// -------------------------------------------------------------------------------------------------------

TEST_F(Manager, OpensAnExistingFile) {
    for (const auto* name : {"/p/A.vbp", "/p/A.vbg", "/p/A.cls", "/p/A.bas", "/p/A.frm"}) {
        user.chosen = name;
        EXPECT_THAT(show([&] { press("btnOpenExisiting"); }),
                    ElementsAre("form frmProjectManager", "open dialog", std::string("open ") + name + " alone"));
        EXPECT_FALSE(projectManager.isLoaded());
    }
    EXPECT_EQ(user.opened.Filter, "Visual Basic Project (*.vbp)|*.vbp|Visual Basic Project Group (*.vbg)|*.vbg");
}

TEST_F(Manager, StaysWhenTheDialogIsCancelled) {
    EXPECT_THAT(show([&] {
                    press("btnOpenExisiting");
                    EXPECT_TRUE(projectManager.Visible());
                }),
                ElementsAre("form frmProjectManager", "open dialog"));
}

TEST_F(Manager, AsksAgainAfterAnotherKindOfFile) {
    std::vector<std::string> names{"/p/readme.txt", "/p/A.VBP", "vbp", "/p/A.vbp"};
    user.choose = [&] {
        const auto name = names.front();
        names.erase(names.begin());
        return name;
    };
    const std::string wrong = "box 0 Non Project File Selected: Please coose a Visual Basic project file.";
    EXPECT_THAT(show([&] { press("btnOpenExisiting"); }),
                ElementsAre("form frmProjectManager", "open dialog", wrong, "open dialog", wrong, "open dialog", wrong,
                            "open dialog", "open /p/A.vbp alone"));
}

TEST_F(Manager, CancelAfterAnotherKindOfFileOpensNothing) {
    std::vector<std::string> names{"/p/readme.txt", ""};
    user.choose = [&] {
        const auto name = names.front();
        names.erase(names.begin());
        return name;
    };
    EXPECT_THAT(show([&] { press("btnOpenExisiting"); }), Not(Contains(testing::HasSubstr("alone"))));
}

// ---- waiting for the last project
// -----------------------------------------------------------------------------------------------

TEST_F(Manager, WaitsUntilTheLastProjectHasClosed) {
    const auto project = open("A", "Palm-1");
    projectManager.ShowOnDelay();
    EXPECT_THAT(loop.intervals, ElementsAre(1));
    for (int i = 0; i < 3; ++i) loop.turn();
    EXPECT_THAT(trace.effects, Not(Contains("form frmProjectManager")));
    vbe->removeActive();
    loop.turn();
    EXPECT_EQ(trace.effects.back(), "form frmProjectManager");
    EXPECT_FALSE(loop.hasTimers());
}

TEST_F(Manager, WaitsOnce) {
    open("A", "Palm-1");
    projectManager.ShowOnDelay();
    projectManager.ShowOnDelay();
    vbe->removeActive();
    loop.turn();
    loop.turn();
    EXPECT_EQ(std::count(trace.effects.begin(), trace.effects.end(), "form frmProjectManager"), 1);
}

TEST_F(Manager, WaitsNoLongerOnceItIsShown) {
    open("A", "Palm-1");
    projectManager.ShowOnDelay();
    show([&] { EXPECT_FALSE(loop.hasTimers()); });
}

TEST_F(Manager, ADisconnectionEndsTheWaitAndTheForm) {
    projectManager.ShowOnDelay();
    release();
    EXPECT_FALSE(loop.hasTimers());
    show([&] {
        release();
        EXPECT_FALSE(projectManager.Visible());
    });
}

TEST_F(Manager, NeverWaitsAtTheCommandLine) {
    addIn.gConnectMode = vbide::vbext_cm_CommandLine;
    projectManager.ShowOnDelay();
    EXPECT_FALSE(loop.hasTimers());
}

TEST_F(Manager, EachFailingCallLosesAtMostOneStep) {
    for (int failing = 1;; ++failing) {
        errors.injected = 0;
        trace.calls = 0;
        trace.failing = failing;
        projectManager.ShowOnDelay();
        (void)basic::attempt([&] { loop.turn(); });
        trace.failing = 0;
        EXPECT_LE(errors.injected, 1) << failing;
        projectManager.dismiss();
        if (trace.calls < failing) break;
    }
}

} // namespace
