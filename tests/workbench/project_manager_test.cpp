// The project manager's window on the desktop.
#include "Apps/workbench/project/recent_projects.h"
#include "tests/workbench/desktop.h"
#include <QHeaderView>
#include <QListWidget>
#include <QPushButton>
#include <QTabBar>
#include <QTreeWidget>
#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::SizeIs;

namespace {

class ProjectManagerWindow : public test::Desktop {
protected:
    using Act = std::function<void(QDialog&)>;

    ProjectManagerWindow() {
        auto& recent = bench->addIn().recent;
        recent.SaveRecentList(fernwick::modRecentProjectManagment::RecentList(20));
        bench->addIn().prefs.SetProjectManagerState(0);
        bench->addIn().prefs.SetRecentProjColWidth(-1);
        bench->connect();
        settle();
    }
    /// Opens the manager by its command; `act` is what the user does in its window.
    void manage(const Act& act) {
        bool wasShown = false;
        test::whenShown([&](QDialog& shown) {
            wasShown = true;
            EXPECT_EQ(shown.objectName(), "frmProjectManager");
            act(shown);
        });
        menuItem("&Fernwick", "&Open Fernwick Project...")->trigger();
        EXPECT_TRUE(QTest::qWaitFor([&] { return wasShown && !QApplication::activeModalWidget(); }, 2000));
        settle();
    }
    static QTreeWidget& grid(QDialog& shown) { return *shown.findChild<QTreeWidget*>("grdRecentProjects"); }
    static QTabBar& tabs(QDialog& shown) { return *shown.findChild<QTabBar*>("tbsFiles"); }
    static QPushButton& openButton(QDialog& shown) { return *shown.findChild<QPushButton*>("btnOpenRecent"); }
    static void clickRow(QDialog& shown, int row) {
        const auto at = grid(shown).visualItemRect(grid(shown).topLevelItem(row)).center();
        QTest::mouseClick(grid(shown).viewport(), Qt::LeftButton, {}, at);
    }
    static void cancel(QDialog& shown) { test::click(shown, "btnCancel"); }
    /// Opens and closes samples, so that they are recent.
    void remember(std::initializer_list<const char*> names) {
        for (const auto* name : names) {
            openSample(name);
            bench->host().VBProjects()->Remove(project());
        }
        settle();
    }
    std::vector<std::string> openNames() {
        std::vector<std::string> names;
        for (const auto& open : bench->host().VBProjects()->items()) names.push_back(open->Name());
        return names;
    }
};

TEST_F(ProjectManagerWindow, ClosesTheProjectAndListsIt) {
    remember({"TipCalculator"});
    openSample("HelloWorld");
    const auto path = project()->FileName();
    manage([&](QDialog& shown) {
        EXPECT_THAT(openNames(), SizeIs(0));
        EXPECT_EQ(shown.windowTitle(), "Fernwick Project Manager");
        EXPECT_EQ(grid(shown).headerItem()->text(1), "Location");
        ASSERT_EQ(grid(shown).topLevelItemCount(), 2);
        EXPECT_EQ(grid(shown).topLevelItem(0)->text(1).toStdString(), path);
        EXPECT_FALSE(openButton(shown).isEnabled());
        cancel(shown);
    });
    EXPECT_THAT(openNames(), SizeIs(0));
}

TEST_F(ProjectManagerWindow, OpensTheSelectedProject) {
    remember({"TipCalculator", "HelloWorld"});
    manage([&](QDialog& shown) {
        clickRow(shown, 1);
        EXPECT_TRUE(openButton(shown).isEnabled());
        QTest::keyClick(&grid(shown), Qt::Key_Return);
    });
    EXPECT_THAT(openNames(), ElementsAre("TipCalculator"));
}

TEST_F(ProjectManagerWindow, OpensADoubleClickedProject) {
    remember({"TipCalculator", "HelloWorld"});
    manage([&](QDialog& shown) {
        clickRow(shown, 1);
        const auto at = grid(shown).visualItemRect(grid(shown).topLevelItem(1)).center();
        QTest::mouseDClick(grid(shown).viewport(), Qt::LeftButton, {}, at);
    });
    EXPECT_THAT(openNames(), ElementsAre("TipCalculator"));
}

TEST_F(ProjectManagerWindow, TheKeyboardSelectsToo) {
    remember({"TipCalculator", "HelloWorld"});
    manage([&](QDialog& shown) {
        grid(shown).setFocus();
        EXPECT_FALSE(openButton(shown).isEnabled());
        QTest::keyClick(&grid(shown), Qt::Key_Home);
        QTest::keyClick(&grid(shown), Qt::Key_Down);
        EXPECT_TRUE(openButton(shown).isEnabled());
        EXPECT_EQ(bench->addIn().projectManager.grdRecentProjects.Row(), 2);
        cancel(shown);
    });
}

TEST_F(ProjectManagerWindow, ATabShowsTheSamples) {
    manage([&](QDialog& shown) {
        QTest::mouseClick(&tabs(shown), Qt::LeftButton, {}, tabs(shown).tabRect(1).center());
        EXPECT_EQ(grid(shown).headerItem()->text(0), "Description");
        EXPECT_EQ(grid(shown).topLevelItemCount(), 3);
        cancel(shown);
    });
    manage([&](QDialog& shown) {
        EXPECT_EQ(tabs(shown).currentIndex(), 1);
        cancel(shown);
    });
}

TEST_F(ProjectManagerWindow, KeepsTheWidthThatTheUserDragged) {
    manage([](QDialog& shown) { cancel(shown); });
    EXPECT_EQ(bench->addIn().prefs.GetRecentProjColWidth(), -1);
    manage([](QDialog& shown) {
        grid(shown).header()->resizeSection(0, 234);
        cancel(shown);
    });
    EXPECT_EQ(bench->addIn().prefs.GetRecentProjColWidth(), 234 * 15);
    manage([](QDialog& shown) {
        EXPECT_EQ(grid(shown).header()->sectionSize(0), 234);
        cancel(shown);
    });
}

TEST_F(ProjectManagerWindow, EscapeClosesIt) {
    manage([](QDialog& shown) { QTest::keyClick(&shown, Qt::Key_Escape); });
    EXPECT_THAT(openNames(), SizeIs(0));
}

// ---- the stub
// ----------------------------------------------------------------------------------------------------------------

class ProjectManagerStub : public ProjectManagerWindow {
protected:
    /// Chooses the stub in the New Project dialog.
    void newFernwick(const Act& act) {
        bool wasShown = false;
        test::whenShown([&](QDialog& kinds) {
            auto* const list = kinds.findChild<QListWidget*>("kinds");
            list->setCurrentItem(list->findItems("Fernwick", Qt::MatchExactly).front());
            test::whenShown([&](QDialog& shown) {
                wasShown = true;
                act(shown);
            });
            kinds.accept();
        });
        menuItem("&File", "&New Project...")->trigger();
        EXPECT_TRUE(QTest::qWaitFor([&] { return wasShown && !QApplication::activeModalWidget(); }, 2000));
        settle();
    }
};

TEST_F(ProjectManagerStub, LeavesNothing) {
    newFernwick([](QDialog& shown) { cancel(shown); });
    EXPECT_THAT(openNames(), SizeIs(0));
    EXPECT_FALSE(workbench::RecentProjects::stored().join("").contains("Template"));
    EXPECT_EQ(bench->addIn().recent.GetQuinloftRecentProject(1).name, "");
}

TEST_F(ProjectManagerStub, IsReplacedByTheChosenProject) {
    remember({"HelloWorld"});
    newFernwick([](QDialog& shown) {
        clickRow(shown, 0);
        openButton(shown).click();
    });
    EXPECT_THAT(openNames(), ElementsAre("HelloWorld"));
    EXPECT_FALSE(workbench::RecentProjects::stored().join("").contains("Template"));
}

TEST_F(ProjectManagerStub, AsksAboutUnsavedWorkOfOtherProjects) {
    remember({"HelloWorld"});
    openSample("TipCalculator");
    project()->VBComponents()->Item(1)->CodeModule()->InsertLines(1, "' new");
    std::string question;
    newFernwick([&](QDialog& shown) {
        clickRow(shown, 0);
        test::whenShown<QMessageBox>([&](QMessageBox& box) {
            question = box.text().toStdString();
            box.button(QMessageBox::Cancel)->click();
        });
        openButton(shown).click();
    });
    EXPECT_EQ(question, "Save the changes to TipCalculator?");
    EXPECT_THAT(openNames(), ElementsAre("TipCalculator"));
    EXPECT_EQ(project()->VBComponents()->Item(1)->CodeModule()->Lines(1, 1), "' new");
}

} // namespace
