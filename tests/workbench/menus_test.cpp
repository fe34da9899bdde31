// The window's own commands and their menus.
#include "Apps/workbench/project/new_project.h"
#include "Apps/workbench/project/project_properties.h"
#include "Host/model/windows/tool_windows.h"
#include "tests/workbench/desktop.h"
#include <QAccessible>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QDockWidget>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QPushButton>
#include <QToolBar>
#include <gmock/gmock.h>
#include <set>

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

namespace {

struct DesktopMenus : test::Desktop {
    ~DesktopMenus() override { answers_.stop(); }

    /// Returns the items whose mnemonic another item of the same menu has, including submenus.
    static std::vector<std::string> clashes(const QMenu& menu) {
        std::map<QChar, QString> known;
        std::vector<std::string> found;
        for (const auto* action : menu.actions()) {
            const auto mnemonic = QKeySequence::mnemonic(action->text());
            if (!mnemonic.isEmpty() && !known.emplace(mnemonic.toString().back(), action->text()).second)
                found.push_back(action->text().toStdString());
            if (!action->menu()) continue;
            for (auto& below : clashes(*action->menu())) found.push_back(std::move(below));
        }
        return found;
    }
    static void withoutAccess(const QMenu& menu, std::vector<std::string>& found) {
        for (const auto* action : menu.actions()) {
            if (action->isSeparator() || !action->isVisible()) continue;
            if (QKeySequence::mnemonic(action->text()).isEmpty() && action->shortcut().isEmpty())
                found.push_back(action->text().toStdString());
        }
    }
    QMenu* top(const QString& caption) {
        for (auto* action : window().menuBar()->actions())
            if (action->text() == caption) return action->menu();
        return nullptr;
    }
    void show(QMenu& menu) {
        Q_EMIT menu.aboutToShow();
        settle();
    }
    static std::vector<std::string> texts(const QMenu& menu) {
        std::vector<std::string> all;
        for (const auto* action : menu.actions())
            if (!action->isSeparator()) all.push_back(action->text().toStdString());
        return all;
    }
};

/// Whether a screen reader can name the widget that gets the focus.
bool hasAName(QWidget& widget) {
    auto* const accessible = QAccessible::queryAccessibleInterface(&widget);
    return accessible && !accessible->text(QAccessible::Name).isEmpty();
}

} // namespace

TEST_F(DesktopMenus, ShowTheToolTipsOfTheirCommands) {
    for (const auto* top : window().menuBar()->actions()) EXPECT_TRUE(top->menu()->toolTipsVisible());
}

TEST_F(DesktopMenus, MnemonicsOfAMenuDoNotClash) {
    openSample("AddressBook");
    editor("frmList");
    for (const char* caption :
         {"&File", "&Edit", "&View", "&Project", "&Run", "&Tools", "&Add-Ins", "&Window", "&Help"}) {
        show(*top(caption));
        EXPECT_THAT(clashes(*top(caption)), IsEmpty()) << caption;
    }
}

TEST_F(DesktopMenus, OnlyTheAddInsOwnMenuSharesItsLetter) {
    bench->connect();
    settle();
    std::multiset<QString> letters;
    for (const auto* action : window().menuBar()->actions())
        letters.insert(QKeySequence::mnemonic(action->text()).toString());
    EXPECT_EQ(letters.count("Alt+F"), 2u); // File and Fernwick: the keys go from one to the other
    std::set<QString> once(letters.begin(), letters.end());
    EXPECT_EQ(letters.size(), once.size() + 1);
}

TEST_F(DesktopMenus, EveryCommandIsReachedByTheKeyboard) {
    openSample("AddressBook");
    std::vector<std::string> unreached;
    for (const char* caption : {"&File", "&Edit", "&View", "&Project", "&Run", "&Tools", "&Window", "&Help"})
        withoutAccess(*top(caption), unreached);
    EXPECT_THAT(unreached, IsEmpty());
}

TEST_F(DesktopMenus, NoKeyHasTwoCommands) {
    openSample("AddressBook");
    std::set<QString> keys;
    for (const auto* top : window().menuBar()->actions())
        for (const auto* action : top->menu()->actions()) {
            if (action->shortcut().isEmpty()) continue;
            EXPECT_TRUE(keys.insert(action->shortcut().toString()).second)
                << action->shortcut().toString().toStdString();
        }
    EXPECT_TRUE(keys.count("F5") && keys.count("F7") && keys.count("Ctrl+R") && keys.count("F1"));
}

TEST_F(DesktopMenus, EveryFocusableWidgetHasAName) {
    openSample("AddressBook");
    editor("frmList");
    bench->addIn().messages.ShowProjectCompileErrors(project(), true);
    settle();
    for (auto* widget : window().findChildren<QWidget*>()) {
        const bool takesKeys = (widget->focusPolicy() & Qt::TabFocus) != 0 && widget->isVisible();
        if (!takesKeys) continue;
        EXPECT_TRUE(hasAName(*widget)) << widget->metaObject()->className() << " "
                                       << widget->objectName().toStdString();
    }
}

// ---- File -----------------------------------------------------------------------------------------------------------

TEST_F(DesktopMenus, TheFirstFourOfTheFileMenuAreTheHosts) {
    const auto items = texts(*top("&File"));
    ASSERT_GE(items.size(), 4u);
    EXPECT_THAT(std::vector(items.begin(), items.begin() + 4),
                ElementsAre("&New Project...", "&Open Project...", "Sa&ve Project", "&Remove Project"));
}

TEST_F(DesktopMenus, ANewProjectHasTheChosenKind) {
    test::whenShown<workbench::NewProjectDialog>([](workbench::NewProjectDialog& dialog) {
        auto& kinds = *dialog.findChild<QListWidget*>("kinds");
        EXPECT_EQ(kinds.currentItem()->text(), "Fernwick Project");
        EXPECT_TRUE(dialog.grab().save(FERNWICK_BINARY_DIR "/workbench-new.png"));
        kinds.setCurrentRow(0);
        dialog.accept();
    });
    menuItem("&File", "&New Project...")->trigger();
    ASSERT_TRUE(project());
    EXPECT_EQ(project()->Name(), "Project1");
    EXPECT_EQ(project()->VBComponents()->Count(), 1);
}

TEST_F(DesktopMenus, TheTemplateCreatesAFernwickProject) {
    test::whenShown<workbench::NewProjectDialog>([](workbench::NewProjectDialog& dialog) { dialog.accept(); });
    menuItem("&File", "&New Project...")->trigger();
    ASSERT_TRUE(project());
    EXPECT_EQ(project()->ReadProperty("Quinloft Global", "IsQuinloftProject"), "True");
}

TEST_F(DesktopMenus, NoNewProjectWhenTheUserCancels) {
    test::whenShown<workbench::NewProjectDialog>([](workbench::NewProjectDialog& dialog) { dialog.reject(); });
    menuItem("&File", "&New Project...")->trigger();
    EXPECT_FALSE(project());
}

TEST_F(DesktopMenus, SaveFileSavesTheCurrentComponent) {
    openSample("AddressBook");
    component("frmPerson")->CodeModule()->InsertLines(1, "' other");
    component("frmList")->CodeModule()->InsertLines(1, "' this");
    editor("frmList");
    menuItem("&File", "&Save File")->trigger();
    EXPECT_THAT(folder.read("AddressBook/frmList.frm"), HasSubstr("' this"));
    EXPECT_FALSE(component("frmList")->IsDirty());
    EXPECT_TRUE(component("frmPerson")->IsDirty());
}

// ---- View -----------------------------------------------------------------------------------------------------------

TEST_F(DesktopMenus, ADocksCommandShowsAndFocusesIt) {
    openSample("HelloWorld");
    editor("frmHello").scintilla().setFocus();
    window().activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window()));
    const auto pressCtrlR = [this] { QTest::keyClick(QApplication::focusWidget(), Qt::Key_R, Qt::ControlModifier); };
    pressCtrlR();
    EXPECT_TRUE(window().explorer().hasFocus());
    pressCtrlR();
    settle();
    EXPECT_TRUE(window().explorerDock().isVisible());
    EXPECT_TRUE(window().explorer().hasFocus());
    window().explorerDock().hide();
    menuItem("&View", "&Project Explorer")->trigger();
    EXPECT_TRUE(window().explorerDock().isVisible());
}

TEST_F(DesktopMenus, ViewListsWindowsThenToolbarsThenTheLook) {
    openSample("HelloWorld");
    show(*top("&View"));
    EXPECT_THAT(texts(*top("&View")),
                ElementsAre("&Code", "O&bject", "&Definition", "Last Positio&n", "&Project Explorer",
                            "Properties &Window", "Toolbo&x", "&Search Results", "Fernwick &Messages", "Fernwick &Zoom",
                            "&Toolbars", "&Folding", "Zoom &In", "Zoom O&ut", "&Reset Zoom", "Dar&k Theme"));
}

TEST_F(DesktopMenus, ALetterOfTwoMenusOpensTheFirstAndThenTheSecond) {
    bench->connect();
    settle();
    window().activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window()));
    QTest::keyClick(&window(), Qt::Key_F, Qt::AltModifier);
    ASSERT_EQ(QApplication::activePopupWidget(), top("&File"));
    QTest::keyClick(top("&File"), Qt::Key_F);
    ASSERT_EQ(QApplication::activePopupWidget(), top("&Fernwick"));
    QTest::keyClick(top("&Fernwick"), Qt::Key_Escape);
}

TEST_F(DesktopMenus, CommandsOfTheAddInAreEnabledWithAProject) {
    openSample("HelloWorld");
    EXPECT_TRUE(menuItem("&Fernwick", "&Zoom Window")->isEnabled());
    EXPECT_TRUE(menuItem("&Fernwick", "Fernwick &Settings...")->isEnabled());
    EXPECT_TRUE(menuItem("&Fernwick", "Compile and &Validate")->isEnabled());
}

TEST_F(DesktopMenus, TipsShowNoMnemonics) {
    openSample("HelloWorld");
    for (const auto* bar : window().findChildren<QToolBar*>())
        for (const auto* button : bar->actions())
            EXPECT_FALSE(button->toolTip().contains('&')) << button->toolTip().toStdString();
}

TEST_F(DesktopMenus, TheMessagesHaveACommandOnceTheyExist) {
    EXPECT_FALSE(menuItem("&View", "Fernwick &Messages"));
    openSample("HelloWorld");
    ASSERT_TRUE(menuItem("&View", "Fernwick &Messages"));
    menuItem("&View", "Fernwick &Messages")->trigger();
    settle();
    EXPECT_TRUE(window().findChild<QDockWidget*>("Fernwick Messages")->isVisible());
}

TEST_F(DesktopMenus, ADockThatTheUserHidesIsHiddenForTheAddIn) {
    openSample("HelloWorld");
    const auto windows = bench->host().toolWindows().list();
    const auto messages = std::find_if(windows.begin(), windows.end(),
                                       [](const auto& one) { return one->Caption() == "Fernwick Messages"; });
    ASSERT_NE(messages, windows.end());
    (*messages)->Visible(true);
    window().findChild<QDockWidget*>("Fernwick Messages")->close();
    settle();
    EXPECT_FALSE((*messages)->Visible());
}

TEST_F(DesktopMenus, ToolbarsAreSwitchedInTheirMenu) {
    ASSERT_TRUE(menuItem("&View", "&Toolbars")->isVisible());
    auto* toolBars = menuItem("&View", "&Toolbars")->menu();
    show(*toolBars);
    ASSERT_THAT(texts(*toolBars), Contains("Standard"));
    EXPECT_TRUE(toolBars->actions().front()->isChecked());
    toolBars->actions().front()->trigger();
    settle();
    EXPECT_FALSE(window().findChild<QToolBar*>("Standard")->isVisible());
    show(*toolBars);
    EXPECT_FALSE(toolBars->actions().front()->isChecked());
}

// ---- Project, Run, Add-Ins, Window ----------------------------------------------------------------------------------

TEST_F(DesktopMenus, AFileIsRemovedFromItsProject) {
    openSample("AddressBook");
    editor("clsPerson");
    menuItem("&Project", "&Remove File")->trigger();
    settle();
    EXPECT_FALSE(entry("clsPerson"));
    EXPECT_TRUE(entry("frmList"));
}

TEST_F(DesktopMenus, RemovingAnUnsavedFileAsks) {
    openSample("AddressBook");
    editor("clsPerson");
    component("clsPerson")->CodeModule()->InsertLines(1, "' lost");
    test::whenShown<QMessageBox>([](QMessageBox& box) { box.button(QMessageBox::Cancel)->click(); });
    menuItem("&Project", "&Remove File")->trigger();
    EXPECT_TRUE(component("clsPerson")->IsDirty());
}

TEST_F(DesktopMenus, TheProjectStartsWithTheChosenComponent) {
    openSample("AddressBook");
    editor("frmPerson");
    menuItem("&Project", "Set as Start &Up")->trigger();
    EXPECT_EQ(project()->VBComponents()->StartUpObject().component, component("frmPerson"));
}

TEST_F(DesktopMenus, AProjectsPropertiesAreItsNameAndStartUpObject) {
    openSample("AddressBook");
    test::whenShown<workbench::ProjectProperties>([](workbench::ProjectProperties& dialog) {
        EXPECT_EQ(dialog.findChild<QComboBox*>("startUp")->currentText(), "frmList");
        dialog.findChild<QComboBox*>("startUp")->setCurrentText("Sub Main");
        dialog.findChild<QLineEdit*>("name")->setText("Contacts");
        EXPECT_TRUE(dialog.grab().save(FERNWICK_BINARY_DIR "/workbench-properties.png"));
        dialog.accept();
    });
    menuItem("&Project", "&Properties...")->trigger();
    EXPECT_EQ(project()->Name(), "Contacts");
    EXPECT_TRUE(project()->VBComponents()->StartUpObject().isSubMain);
    EXPECT_TRUE(project()->IsDirty());
}

TEST_F(DesktopMenus, AProjectsCodePageIsShownAndChanged) {
    const auto cyrillic = basic::CodePage(1251).encode("' Привет\r\n");
    open(test::SampleProject().module("modA", cyrillic).writeTo(folder));
    EXPECT_TRUE(editor("modA").scintilla().text().startsWith("' Ïðèâåò"));
    test::whenShown<workbench::ProjectProperties>([](workbench::ProjectProperties& dialog) {
        auto* const pages = dialog.findChild<QComboBox*>("codePage");
        EXPECT_EQ(pages->currentText(), "Detected: 1252, the default");
        pages->setCurrentText("1251 (Cyrillic)");
        dialog.accept();
    });
    menuItem("&Project", "&Properties...")->trigger();
    settle();
    EXPECT_TRUE(editor("modA").scintilla().text().startsWith("' Привет"));
    editor("modA").scintilla().insertAt("' Файл\n", 0, 0);
    settle();
    component("modA")->SaveAs(component("modA")->FileNames(1));
    EXPECT_EQ(folder.read("modA.bas"), test::moduleText("modA", basic::CodePage(1251).encode("' Файл\r\n") + cyrillic));
    project()->SaveAs(project()->FileName());
    EXPECT_THAT(folder.read("Hello.vbp"), HasSubstr("\r\nCodePage=1251\r\n"));
}

TEST_F(DesktopMenus, AnInvalidProjectNameIsRefused) {
    openSample("AddressBook");
    test::whenShown<workbench::ProjectProperties>([](workbench::ProjectProperties& dialog) {
        auto* const ok = dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok);
        for (const char* name : {"", "1st", "two words"}) {
            dialog.findChild<QLineEdit*>("name")->setText(name);
            EXPECT_FALSE(ok->isEnabled()) << name;
        }
        dialog.findChild<QLineEdit*>("name")->setText("First_1");
        EXPECT_TRUE(ok->isEnabled());
        dialog.reject();
    });
    menuItem("&Project", "&Properties...")->trigger();
    EXPECT_EQ(project()->Name(), "AddressBook");
}

TEST_F(DesktopMenus, StartingCompilesAndSendsToTheDevice) {
    qputenv("FERNWICK_DEVICES", QByteArray::fromStdString(folder / "devices"));
    openSample("HelloWorld");
    EXPECT_THAT(carryOut("&Run", "&Start on Device"), IsEmpty());
    int files = 0;
    for (const auto& file : std::filesystem::recursive_directory_iterator(folder / "devices"))
        files += file.path().filename() == "HelloWorld.0000.qlx";
    EXPECT_EQ(files, 1);
    EXPECT_TRUE(window().notice().isVisible());
    EXPECT_THAT(window().findChild<QLabel*>("noticeText")->text().toStdString(),
                HasSubstr("sent to Palm OS. It needs Tamarik"));
    const auto buttons = window().notice().findChildren<QPushButton*>();
    ASSERT_EQ(buttons.size(), 2);
    EXPECT_TRUE(window().grab().save(FERNWICK_BINARY_DIR "/workbench-notice.png"));
    EXPECT_EQ(buttons[0]->text(), "&Install Tamarik");
    EXPECT_EQ(buttons[1]->text(), "Show &Folder");
    buttons[0]->click();
    EXPECT_THAT(window().findChild<QLabel*>("noticeText")->text().toStdString(), HasSubstr("Tamarik was installed on"));
    EXPECT_EQ(window().findChild<QLabel*>("lblStatusText")->text().indexOf("Compiling"), -1);
    qunsetenv("FERNWICK_DEVICES");
}

TEST_F(DesktopMenus, APackageIsNamedAndItsFolderOffered) {
    openSample("HelloWorld");
    answer([](QDialog& window) {
        auto* const box = dynamic_cast<QMessageBox*>(&window);
        box ? box->button(QMessageBox::Ok)->click() : test::click(window, "btnYes");
    });
    const auto project = bench->addIn().projects.FindQLProject(this->project());
    bench->addIn().sendToDevice.SendProjectToDevice(project, true, project->TargetDevice());
    answers_.stop();
    EXPECT_TRUE(window().notice().isVisible());
    EXPECT_THAT(window().findChild<QLabel*>("noticeText")->text().toStdString(),
                HasSubstr("The package is " + (folder / "HelloWorld/")));
    EXPECT_EQ(window().notice().findChildren<QPushButton*>().size(), 1);
}

TEST_F(DesktopMenus, StartingWithErrorsShowsThemAndSendsNothing) {
    qputenv("FERNWICK_DEVICES", QByteArray::fromStdString(folder / "devices"));
    openSample("HelloWorld");
    component("frmHello")->CodeModule()->InsertLines(2, "Sub Broken(");
    EXPECT_THAT(carryOut("&Run", "&Start on Device"), ElementsAre(HasSubstr("errors occurred during compilation")));
    EXPECT_TRUE(window().findChild<QDockWidget*>("Fernwick Messages")->isVisible());
    EXPECT_FALSE(std::filesystem::exists(folder / "devices"));
    qunsetenv("FERNWICK_DEVICES");
}

TEST_F(DesktopMenus, StartingNeedsTheAddIn) {
    bench->open(sample("HelloWorld"));
    EXPECT_THAT(carryOut("&Run", "&Start on Device"), ElementsAre(HasSubstr("add-in is not connected")));
}

TEST_F(DesktopMenus, StartingNeedsAProjectThatTheAddInKnows) {
    bench->open(sample("HelloWorld"));
    bench->open(sample("AddressBook"));
    bench->connect();
    bench->host().ActiveVBProject(bench->host().VBProjects()->Item(1));
    EXPECT_THAT(carryOut("&Run", "&Start on Device"),
                ElementsAre(HasSubstr("HelloWorld was opened before the Fernwick add-in was connected")));
}

TEST_F(DesktopMenus, AnAddInIsConnectedFromItsMenu) {
    auto* addIns = top("&Add-Ins");
    show(*addIns);
    ASSERT_THAT(texts(*addIns), ElementsAre("Fernwick", "Fernwick Project Converter"));
    EXPECT_FALSE(addIns->actions().front()->isChecked());
    addIns->actions().front()->trigger();
    settle();
    EXPECT_TRUE(top("&Fernwick"));
    show(*addIns);
    EXPECT_TRUE(addIns->actions().front()->isChecked());
}

TEST_F(DesktopMenus, TheWindowMenuListsWhatIsOpen) {
    openSample("AddressBook");
    editor("frmList");
    editor("frmPerson");
    auto* windows = top("&Window");
    show(*windows);
    EXPECT_THAT(texts(*windows), ElementsAre("&Split", "&Other Pane", "&Next Window", "&Previous Window", "&Close",
                                             "Close &All", "&1 frmList", "&2 frmPerson"));
    windows->actions()[windows->actions().size() - 2]->trigger();
    EXPECT_EQ(window().code().currentIndex(), 0);
    menuItem("&Window", "&Next Window")->trigger();
    EXPECT_EQ(window().code().currentIndex(), 1);
    menuItem("&Window", "Close &All")->trigger();
    settle();
    EXPECT_EQ(window().code().count(), 0);
}

// ---- closing --------------------------------------------------------------------------------------------------------

TEST_F(DesktopMenus, ClosingAsksOnceForEachProjectAndCancelKeepsAll) {
    openSample("HelloWorld");
    openSample("AddressBook");
    for (const auto& open : bench->host().VBProjects()->items()) open->IsDirty(true);
    std::vector<std::string> asked;
    answer([&](QDialog& dialog) {
        auto& box = dynamic_cast<QMessageBox&>(dialog);
        asked.push_back(box.text().toStdString());
        box.button(asked.size() == 2 ? QMessageBox::Cancel : QMessageBox::Discard)->click();
    });
    EXPECT_FALSE(window().close());
    EXPECT_THAT(asked, ElementsAre("Save the changes to HelloWorld?", "Save the changes to AddressBook?"));
    EXPECT_EQ(bench->host().VBProjects()->Count(), 2);
    for (const auto& open : bench->host().VBProjects()->items()) EXPECT_TRUE(open->IsDirty());
}

TEST_F(DesktopMenus, ClosingRemovesTheProjectsAsAUserWould) {
    openSample("HelloWorld");
    std::vector<std::string> removed;
    const auto watch = bench->host().Events()->VBProjectsEvents()->ItemRemoved.connect(
        [&](auto gone) { removed.push_back(gone->Name()); });
    EXPECT_TRUE(window().close());
    EXPECT_THAT(removed, ElementsAre("HelloWorld"));
    EXPECT_EQ(bench->host().VBProjects()->Count(), 0);
}

TEST_F(DesktopMenus, DiscardedChangesAreNotSaved) {
    openSample("HelloWorld");
    component("frmHello")->CodeModule()->InsertLines(1, "' discarded");
    test::whenShown<QMessageBox>([](QMessageBox& box) { box.button(QMessageBox::Discard)->click(); });
    EXPECT_TRUE(window().close());
    EXPECT_THAT(folder.read("HelloWorld/frmHello.frm"), Not(HasSubstr("discarded")));
}

TEST_F(DesktopMenus, ANoticeHasItsButtonsBelowWhereTheBarIsNarrow) {
    workbench::NoticeBar bar;
    bar.setAttribute(Qt::WA_DontShowOnScreen);
    const QString text = "The application was sent to Palm OS. It needs Tamarik, which is not installed there.";
    const int length = bar.fontMetrics().horizontalAdvance(text);
    bar.resize(length * 3, 40);
    bar.showText(text, {{"&Install Tamarik", [] {}}, {"Show &Folder", [] {}}});
    settle();
    const auto& label = *bar.findChild<QLabel*>("noticeText");
    const auto& button = *bar.findChildren<QPushButton*>().front();
    EXPECT_GE(button.x(), label.geometry().right());
    bar.resize(length * 2 / 3, 80);
    settle();
    EXPECT_GE(button.y(), label.geometry().bottom());
    EXPECT_GE(label.width(), bar.width() * 3 / 4);
    EXPECT_LE(label.heightForWidth(label.width()), 2 * label.fontMetrics().lineSpacing() + 4);
}
