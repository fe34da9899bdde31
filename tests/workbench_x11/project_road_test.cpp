// A project's settings, its conversion and its way back through the recent projects, once with the mouse only and once with
// the keyboard only.
#include "tests/workbench_x11/x_desktop.h"
#include <QCheckBox>
#include <QDialog>
#include <QLineEdit>
#include <QListWidget>
#include <QMessageBox>
#include <QPushButton>
#include <QThread>
#include <QTreeWidget>
#include <gmock/gmock.h>

using namespace test;
using testing::HasSubstr;

namespace {

struct ProjectRoad : XDesktop {
    static QDialog* dialog() {
        auto* const window = dynamic_cast<QDialog*>(QApplication::activeModalWidget());
        return window && window->isVisible() && window->isActiveWindow() ? window : nullptr;
    }
    /// Without devices of an earlier test.
    void openHello() {
        openSample("HelloWorld");
        ask([this] {
            bench->addIn().prefs.gMyDevices.clear();
            bench->addIn().prefs.saveMyDevices();
        });
    }
    static void waitForDialog(const QString& name) {
        eventually("the dialog " + name.toStdString(), [&] { return dialog() && dialog()->objectName() == name; });
    }
    static void waitForNoDialog() {
        eventually("no dialog", [] { return !QApplication::activeModalWidget(); });
    }
    static void answerBox(With hand, const char* button) {
        eventually("a question", [] { return dynamic_cast<QMessageBox*>(dialog()); });
        if (hand == With::Keyboard) return press({"Return"});
        click(ask([&] {
            for (auto* one : dialog()->findChildren<QPushButton*>())
                if (one->text().remove('&') == button) return middleOf(*one);
            return QPoint();
        }));
    }
    template <class W = QWidget>
    static W& widget(const char* name) {
        return *dialog()->findChild<W*>(name);
    }
    vbide::Ref<fernwick::clsQLProject> settings() {
        return bench->addIn().projects.FindQLProject(bench->host().ActiveVBProject());
    }

    // ---- with the mouse ----
    static void clickOn(const char* name) {
        click(ask([&] { return middleOf(widget(name)); }));
    }
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
    /// A row of the list of devices.
    static QPoint rowOf(const char* list, int row, bool itsTick = false) {
        return ask([&] {
            auto& rows = widget<QListWidget>(list);
            auto place = rows.visualItemRect(rows.item(row));
            if (itsTick) place.setWidth(place.height());
            return middleOf(*rows.viewport(), place);
        });
    }

    // ---- with the keyboard ----
    void chooseByKeys(const QString& caption, const QString& letter) {
        press({"alt+f"});
        eventually("the first menu", [this] { return menu("&File")->isVisible(); });
        constexpr int kMost = 10;
        for (int i = 0; i < kMost && !ask([&] { return menu(caption)->isVisible(); }); ++i) press({"Right"});
        eventually("the menu " + caption.toStdString(), [&] { return menu(caption)->isVisible(); });
        press({letter});
    }
    static void tabTo(const QString& name) {
        constexpr int kMost = 40;
        for (int i = 0; i < kMost; ++i) {
            if (ask([&] { return QApplication::focusWidget() && QApplication::focusWidget()->objectName() == name; }))
                return;
            press({"Tab"});
        }
        ADD_FAILURE() << "Tab does not reach " << name.toStdString();
    }
    static void pageByKeys(const char* frame) {
        tabTo("treAvailableSettings");
        press({"Down"});
        eventually(std::string("the page ") + frame, [&] { return widget(frame).isVisible(); });
    }
    // ---- a new project ----
    /// Without a project; new files are saved in the test's folder.
    void startEmpty() {
        ask([this] {
            auto& registry = bench->addIn().registry;
            constexpr char kHost[] = "Software\\Microsoft\\VisualStudio\\6.0\\Setup\\Microsoft Visual Basic";
            const fernwick::RegistryKey key{
                registry, registry.OpenOrCreateKey(fernwick::HKEY_LOCAL_MACHINE, kHost, fernwick::KEY_ALL_ACCESS)};
            registry.SetValue(key.handle(), "ProductDir", folder.path(), fernwick::REG_SZ);
        });
        connect();
        QThread::sleep(1); // within the first second a new control asks for no save
    }
    void waitForNewForm() {
        eventually("a new project with a form", [this] {
            return !QApplication::activeModalWidget() &&
                   !window().explorer().findItems("Form1", Qt::MatchStartsWith | Qt::MatchRecursive).isEmpty();
        });
    }
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
    static void waitForField(const char* name, const char* text) {
        eventually(std::string("the field with ") + text, [&] {
            const auto* const field = dialog() ? dialog()->findChild<QLineEdit*>(name) : nullptr;
            return field && field->hasFocus() && field->text() == text;
        });
    }
    static void enterByKeys(const char* page, const char* field, const char* text) {
        pageByKeys(page);
        tabTo(field);
        type(text);
    }
    void expectAllStored() {
        EXPECT_TRUE(settings()->SpacesInNameEnabled());
        EXPECT_FALSE(settings()->ScanReferences());
        EXPECT_FALSE(bench->addIn().prefs.gMyDevices.empty());
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
    clickPage("My Devices", "fraMyDevices");
    click(rowOf("lstMyDevices", 0, true));
    clickOn("btnApply");
    eventually("it is applied", [this] { return bench->host().ActiveVBProject()->IsDirty(); });
    clickOn("btnOK");
    waitForNoDialog();
    ask([this] { expectAllStored(); });

    choose("&Project", "Convert to Another &Device...");
    answerBox(With::Mouse, "OK");
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
    ask([this] {
        expectAllStored();
        EXPECT_EQ(settings()->PreCompileStepCount(), 1);
        const auto project = bench->host().ActiveVBProject();
        EXPECT_EQ(project->ReadProperty("Quinloft Palm OS", "CreatorID"), "Hell");
        EXPECT_EQ(project->ReadProperty("Quinloft PocketPC", "Version"), "2.1");
        EXPECT_EQ(project->ReadProperty("Quinloft Linux Handheld", "Folder"), "apps");
    });

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
    EXPECT_THAT(read("HelloWorld/HelloWorld.vbp"), HasSubstr("TargetDevice=PalmOS-DragonBall"));
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
    choose("&Fernwick", "&Open Fernwick Project...");
    waitForDialog("frmProjectManager");
    clickOn("btnNewProject");
    waitForDialog("frmDesignTargetNormal");
    click(rowOf("lstQuickDesignTargets", 0));
    clickOn("btnOK");
    waitForNewForm();
    doubleClick(explorerEntry("Form1"));
    eventually("the designer of Form1", [this] { return window().design().toolbox().isVisible(); });
    // a control that devices do not have is refused
    placeByMouse("CommandButton");
    answerBox(With::Mouse, "OK");
    waitForNoDialog();
    EXPECT_TRUE(ask([this] { return controls(); }).empty());
    // the first control of a device saves the project
    placeByMouse("QLButton");
    answerUntil("the project is saved", {With::Mouse, {"btnOK", "OK", "Save"}}, [this] {
        return !QApplication::activeModalWidget() && !bench->host().ActiveVBProject()->FileName().empty();
    });
    EXPECT_EQ(ask([this] { return controls(); }).size(), 1u);
    EXPECT_THAT(read("Form1.frm"), HasSubstr("QLButton"));
    EXPECT_THAT(read("Project1.vbp"), HasSubstr("IsQuinloftProject=True"));
}

TEST_F(ProjectRoad, ANewProjectByTheKeyboardAlone) {
    startEmpty();
    chooseByKeys("&Fernwick", "o");
    waitForDialog("frmProjectManager");
    tabTo("btnNewProject");
    press({"space"});
    waitForDialog("frmDesignTargetNormal");
    tabTo("lstQuickDesignTargets");
    press({"Home", "space", "Return"});
    waitForNewForm();
    press({"ctrl+r"});
    eventually("the explorer has the keys", [this] { return window().explorer().hasFocus(); });
    press({"End"});
    eventually("Form1 is chosen", [this] { return window().explorer().currentComponent() == component("Form1"); });
    press({"Return"});
    placeByKeys("CommandButton");
    answerBox(With::Keyboard, "OK");
    waitForNoDialog();
    EXPECT_TRUE(ask([this] { return controls(); }).empty());
    placeByKeys("QLButton");
    waitForDialog("frmSaveWarning");
    press({"Return"});
    for (const char* name : {"Form1.frm", "Project1.vbp"}) {
        waitForField("fileNameEdit", name);
        press({"Return"});
    }
    eventually("the project is saved", [this] {
        return !QApplication::activeModalWidget() && !bench->host().ActiveVBProject()->FileName().empty();
    });
    EXPECT_EQ(ask([this] { return controls(); }).size(), 1u);
    EXPECT_THAT(read("Form1.frm"), HasSubstr("QLButton"));
    EXPECT_THAT(read("Project1.vbp"), HasSubstr("IsQuinloftProject=True"));
}
