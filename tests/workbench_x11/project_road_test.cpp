// A project's settings, its conversion and its way back through the recent projects, once with the mouse only and once with
// the keyboard only.
#include "tests/workbench_x11/new_project.h"
#include <QAbstractItemView>
#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QDialog>
#include <QFileDialog>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMessageBox>
#include <QPushButton>
#include <QTreeWidget>
#include <gmock/gmock.h>

using namespace test;
using testing::AllOf;
using testing::HasSubstr;

namespace {

struct ProjectRoad : NewProject {
    /// Without devices of an earlier test.
    void openHello() {
        openSample("HelloWorld");
        ask([this] {
            bench->addIn().prefs.gMyDevices.clear();
            bench->addIn().prefs.saveMyDevices();
        });
    }
    static void answerBox(With hand, const char* button) {
        eventually("a question", [] { return dynamic_cast<QMessageBox*>(dialog()); });
        hand == With::Keyboard ? press({"Return"}) : answerWith(button);
    }
    static void answerWith(const char* button) {
        click(ask([&] {
            for (auto* one : dialog()->findChildren<QPushButton*>())
                if (one->text().remove('&') == button) return middleOf(*one);
            return QPoint();
        }));
    }
    vbide::Ref<fernwick::clsQLProject> settings() {
        return bench->addIn().projects.FindQLProject(bench->host().ActiveVBProject());
    }

    // ---- with the mouse ----
    static void tick(const char* name) {
        click(ask([&] {
            auto& box = widget<QCheckBox>(name);
            return middleOf(box, QRect(0, 0, box.height(), box.height()));
        }));
    }
    static void clickPage(const QString& page, const char* frame) {
        click(ask([&] {
            auto& tree = widget<QTreeWidget>("treAvailableSettings");
            return middleOf(*tree.viewport(), tree.visualItemRect(tree.findItems(page, Qt::MatchRecursive).front()));
        }));
        eventually("the page " + page.toStdString(), [&] { return widget(frame).isVisible(); });
    }
    static void chooseFromList(const char* page, int row) {
        auto& list = *ask([&] { return widget(page).findChild<QComboBox*>(); });
        click(ask([&] { return middleOf(list); }));
        eventually("the list is open", [&] { return list.view()->isVisible(); });
        click(ask(
            [&] { return middleOf(*list.view()->viewport(), list.view()->visualRect(list.model()->index(row, 0))); }));
        eventually("the row is chosen", [&] { return list.currentIndex() == row; });
    }
    static void pasteByMenu(const char* name, const char* text) {
        ask([&] { QApplication::clipboard()->setText(text); });
        rightClick(ask([&] { return middleOf(widget(name)); }));
        QPoint at;
        eventually("the menu", [&] {
            auto* const menu = dynamic_cast<QMenu*>(QApplication::activePopupWidget());
            if (!menu || !menu->isVisible()) return false;
            for (auto* action : menu->actions())
                if (action->text().startsWith("&Paste")) at = middleOf(*menu, menu->actionGeometry(action));
            return true;
        });
        click(at);
        eventually("the text", [&] { return widget<QLineEdit>(name).text() == text; });
    }
    /// In the dialog of files, which has one for each view.
    static QAbstractItemView* listOfFiles() {
        for (const char* const name : {"listView", "treeView"})
            if (auto* list = dialog() ? dialog()->findChild<QAbstractItemView*>(name) : nullptr)
                if (list->isVisible()) return list;
        return nullptr;
    }
    /// The place of a file in it.
    static QPoint fileEntry(const char* name) {
        QPoint at;
        eventually(std::string("the file ") + name, [&] {
            auto* const list = listOfFiles();
            if (!list) return false;
            for (int row = 0; row < list->model()->rowCount(list->rootIndex()); ++row)
                if (const auto entry = list->model()->index(row, 0, list->rootIndex()); entry.data().toString() == name)
                    at = middleOf(*list->viewport(), list->visualRect(entry));
            return !at.isNull();
        });
        return at;
    }

    // ---- with the keyboard ----
    static void pageByKeys(const char* frame) {
        tabTo("treAvailableSettings");
        press({"Down"});
        eventually(std::string("the page ") + frame, [&] { return widget(frame).isVisible(); });
    }
    void chooseFileByKeys(const char* name) {
        eventually("the dialog of files", [] {
            const auto* const field = dialog() ? dialog()->findChild<QLineEdit*>("fileNameEdit") : nullptr;
            return field && field->hasFocus();
        });
        press({"ctrl+a"});
        type(QString::fromStdString(folder / name));
        press({"Return"});
    }
    // ---- a new project ----
    std::vector<std::string> controls() {
        std::vector<std::string> names;
        for (const auto& control : component("Form1")->Designer()->VBControls()->items())
            names.push_back(control->ClassName());
        return names;
    }
    QPoint tool(const char* name) {
        return ask([&] {
            auto& tools = window().design().toolbox();
            auto* const item = tools.findItems(name, Qt::MatchExactly).front();
            tools.scrollToItem(item);
            return middleOf(*tools.viewport(), tools.visualItemRect(item));
        });
    }
    bool isChosen(const char* name) {
        const auto* const item = window().design().toolbox().currentItem();
        return item && item->text() == name;
    }
    void waitForDesigner() {
        eventually("the designer of Form1", [this] { return window().design().forms().current(); });
    }
    void placeByMouse(const char* name) {
        waitForDesigner();
        click(tool(name));
        eventually("the tool is chosen", [&] { return isChosen(name); });
        const auto from = ask([this] { return middleOf(*window().design().forms().current(), QRect(60, 80, 2, 2)); });
        drag(from, from + QPoint(50, 30));
    }
    void placeByKeys(const char* name) {
        waitForDesigner();
        chooseByKeys("&View", "x");
        eventually("the toolbox has the keys", [this] { return window().design().toolbox().hasFocus(); });
        press({"Home"});
        constexpr int kMost = 60;
        for (int i = 0; i < kMost && !ask([&] { return isChosen(name); }); ++i) press({"Down"});
        eventually("the tool is chosen", [&] { return isChosen(name); });
        press({"Return"});
    }
    static void enterByKeys(const char* page, const char* field, const char* text) {
        pageByKeys(page);
        tabTo(field);
        type(text);
    }
    /// What was changed on each page, in the project and in the user's store.
    void expectAllStored() {
        ask([this] {
            EXPECT_TRUE(settings()->SpacesInNameEnabled());
            EXPECT_FALSE(settings()->ScanReferences());
            bench->addIn().prefs.gMyDevices.clear();
            bench->addIn().prefs.loadMyDevices();
            EXPECT_EQ(bench->addIn().prefs.gMyDevices.size(), 1u);
            const auto project = bench->host().ActiveVBProject();
            EXPECT_EQ(project->ReadProperty("Quinloft Palm OS", "CreatorID"), "Hell");
            EXPECT_EQ(project->ReadProperty("Quinloft Linux Handheld", "Folder"), "apps");
        });
    }
    /// The same in the project's file.
    void expectAllSaved(const std::string& ofHandheld) {
        EXPECT_THAT(read("HelloWorld/HelloWorld.vbp"),
                    AllOf(HasSubstr("CreatorID=Hell"), HasSubstr("Folder=apps"), HasSubstr("data.txt,TXT"),
                          HasSubstr(ofHandheld), HasSubstr("TargetDevice=PalmOS-DragonBall")));
    }
    void closeProject() {
        ask([this] { bench->host().VBProjects()->Remove(bench->host().ActiveVBProject()); });
        eventually("no project", [this] { return bench->host().VBProjects()->items().empty(); });
    }
    void expectConverted() {
        eventually("the project is converted", [&] {
            return !QApplication::activeModalWidget() && settings() &&
                   settings()->TargetDevice() != "PalmOS-DragonBall";
        });
        EXPECT_THAT(read("HelloWorld/HelloWorld.vbp"), HasSubstr("TargetDevice=PocketPC-"));
        EXPECT_THAT(read("HelloWorld/HelloWorld.vbp.bak"), HasSubstr("TargetDevice=PalmOS-DragonBall"));
    }
    void expectOpenAgain() {
        eventually("the project is open again", [this] {
            return !QApplication::activeModalWidget() && !bench->host().VBProjects()->items().empty();
        });
        EXPECT_EQ(ask([this] { return bench->host().ActiveVBProject()->Name(); }), "HelloWorld");
    }
};

} // namespace

TEST_F(ProjectRoad, ByTheMouseAlone) {
    openHello();
    choose("&Fernwick", "Fernwick &Settings...");
    waitForDialog("frmQuinloftSettings");
    tick("chkSpacesInName");
    clickPage("Compiler Settings", "fraCompilerOptions");
    tick("chkReferenceChecking");
    clickPage("Dependencies", "fraDependencies");
    folder.write("HelloWorld/data.txt", "1");
    clickOn("btnAdd");
    click(fileEntry("data.txt"));
    eventually("the file is chosen", [] {
        const auto* const field = dialog() ? dialog()->findChild<QLineEdit*>("fileNameEdit") : nullptr;
        return field && field->text().contains("data.txt");
    });
    answerWith("Open");
    waitForDialog("frmQuinloftSettings");
    clickPage("Palm OS Settings", "PalmOSPage");
    pasteByMenu("txtCreatorID", "Hell");
    clickPage("PocketPC Settings", "PocketPCPage");
    chooseFromList("PocketPCPage", 1);
    clickPage("Linux Handheld Settings", "LinuxHandheldPage");
    pasteByMenu("txtFolder", "apps");
    clickPage("My Devices", "fraMyDevices");
    click(rowOf("lstMyDevices", 0, true));
    clickOn("btnApply");
    eventually("it is applied", [this] { return bench->host().ActiveVBProject()->IsDirty(); });
    clickOn("btnOK");
    waitForNoDialog();
    expectAllStored();

    // a copy takes the project's place
    std::filesystem::create_directory(folder / "HelloWorld/copy");
    choose("&Project", "Convert to Another &Device...");
    answerBox(With::Mouse, "OK");
    waitForDialog("frmDesignTargetConverter");
    click(rowOf("lstDesignTargets", 1));
    clickOn("btnOK");
    doubleClick(fileEntry("copy"));
    eventually("the folder", [] {
        const auto* files = dynamic_cast<QFileDialog*>(dialog());
        return files && files->directory().dirName() == "copy";
    });
    answerWith("Save");
    eventually("the copy is open", [this] {
        return !QApplication::activeModalWidget() && settings() &&
               bench->host().ActiveVBProject()->FileName() == folder / "HelloWorld/copy/HelloWorld.vbp";
    });
    EXPECT_THAT(read("HelloWorld/copy/HelloWorld.vbp"),
                AllOf(HasSubstr("TargetDevice=PocketPC-"), HasSubstr("data.txt")));
    expectAllSaved("Orientation=Portrait");
    closeProject();
    begin([this] { bench->open(folder / "HelloWorld/HelloWorld.vbp"); });
    eventually("the project is open",
               [this] { return settings() && settings()->TargetDevice() == "PalmOS-DragonBall"; });
    // in place
    choose("&Project", "Convert to Another &Device...");
    waitForDialog("frmDesignTargetConverter");
    click(rowOf("lstDesignTargets", 1));
    tick("chkOverwrite");
    clickOn("btnOK");
    expectConverted();

    closeProject();
    choose("&Fernwick", "&Open Fernwick Project...");
    waitForDialog("frmProjectManager");
    doubleClick(ask([] {
        auto& grid = widget<QTreeWidget>("grdRecentProjects");
        return middleOf(*grid.viewport(), grid.visualItemRect(grid.topLevelItem(0)));
    }));
    expectOpenAgain();
}

TEST_F(ProjectRoad, ByTheKeyboardAlone) {
    openHello();
    chooseByKeys("&Fernwick", "s");
    waitForDialog("frmQuinloftSettings");
    tabTo("chkSpacesInName");
    press({"space"});
    pageByKeys("fraDependencies");
    folder.write("HelloWorld/data.txt", "1");
    tabTo("btnAdd");
    press({"space"});
    chooseFileByKeys("HelloWorld/data.txt");
    waitForDialog("frmQuinloftSettings");
    tabTo("tvwDependencies");
    press({"Home"});
    EXPECT_EQ(ask([] { return widget<QTreeWidget>("tvwDependencies").topLevelItem(0)->text(0); }), "data.txt");
    enterByKeys("PalmOSPage", "txtCreatorID", "Hell");
    enterByKeys("PocketPCPage", "txtVersion", "2.1");
    enterByKeys("LinuxHandheldPage", "txtFolder", "apps");
    tabTo("treAvailableSettings");
    press({"End"});
    eventually("the last page", [] { return widget("fraMyDevices").isVisible(); });
    tabTo("lstMyDevices");
    press({"Home", "space"});
    tabTo("treAvailableSettings");
    press({"Up"}); // past the root, which is no page
    eventually("the compiler's page", [] { return widget("fraCompilerOptions").isVisible(); });
    tabTo("txtPreNewStep");
    type("true");
    tabTo("cmdPreAdd");
    press({"space"});
    tabTo("chkReferenceChecking");
    press({"space"});
    tabTo("btnApply");
    press({"space"});
    eventually("it is applied", [this] { return bench->host().ActiveVBProject()->IsDirty(); });
    press({"Return"});
    waitForNoDialog();
    expectAllStored();

    // a copy takes the project's place
    chooseByKeys("&Project", "d");
    answerBox(With::Keyboard, "OK");
    waitForDialog("frmDesignTargetConverter");
    tabTo("lstDesignTargets");
    press({"Home", "Down", "Return"});
    waitForField("fileNameEdit", "HelloWorld.vbp");
    std::filesystem::create_directory(folder / "copy");
    press({"ctrl+a"});
    type(QString::fromStdString(folder / "copy/HelloWorld.vbp"));
    press({"Return"});
    eventually("the copy is open", [this] {
        return !QApplication::activeModalWidget() && settings() &&
               bench->host().ActiveVBProject()->FileName() == folder / "copy/HelloWorld.vbp";
    });
    EXPECT_THAT(read("copy/HelloWorld.vbp"), HasSubstr("TargetDevice=PocketPC-"));
    expectAllSaved("Version=2.1");
    EXPECT_THAT(read("HelloWorld/HelloWorld.vbp"), HasSubstr("PreCompileStep0=true"));
    closeProject();
    begin([this] { bench->open(folder / "HelloWorld/HelloWorld.vbp"); });
    eventually("the project is open",
               [this] { return settings() && settings()->TargetDevice() == "PalmOS-DragonBall"; });
    // in place
    chooseByKeys("&Project", "d");
    waitForDialog("frmDesignTargetConverter");
    tabTo("lstDesignTargets");
    press({"Home", "Down"});
    tabTo("chkOverwrite");
    press({"space", "Return"});
    expectConverted();

    closeProject();
    chooseByKeys("&Fernwick", "o");
    waitForDialog("frmProjectManager");
    tabTo("grdRecentProjects");
    press({"Home", "Return"});
    expectOpenAgain();
}

TEST_F(ProjectRoad, ANewProjectByTheMouseAlone) {
    startEmpty();
    newProjectByMouse(0);
    openFormByMouse();
    // a control that devices do not have is refused
    placeByMouse("CommandButton");
    answerBox(With::Mouse, "OK");
    waitForNoDialog();
    EXPECT_TRUE(ask([this] { return controls(); }).empty());
    // the first control of a device saves the project
    placeByMouse("QLButton");
    saveByMouse();
    EXPECT_EQ(ask([this] { return controls(); }).size(), 1u);
    EXPECT_THAT(read("Form1.frm"), HasSubstr("QLButton"));
    EXPECT_THAT(read("Project1.vbp"), HasSubstr("IsQuinloftProject=True"));
}

TEST_F(ProjectRoad, ANewProjectByTheKeyboardAlone) {
    startEmpty();
    newProjectByKeys(0);
    openFormByKeys();
    placeByKeys("CommandButton");
    answerBox(With::Keyboard, "OK");
    waitForNoDialog();
    EXPECT_TRUE(ask([this] { return controls(); }).empty());
    placeByKeys("QLButton");
    saveByKeys();
    EXPECT_EQ(ask([this] { return controls(); }).size(), 1u);
    EXPECT_THAT(read("Form1.frm"), HasSubstr("QLButton"));
    EXPECT_THAT(read("Project1.vbp"), HasSubstr("IsQuinloftProject=True"));
}
