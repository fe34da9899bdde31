// The whole desktop over copies of the samples, drawn into memory.
#include "Apps/workbench/editing/rest.h"
#include "Apps/workbench/window/commands.h"
#include "tests/workbench/desktop.h"
#include <QDockWidget>
#include <QLabel>
#include <QListWidget>
#include <QMenuBar>
#include <QMessageBox>
#include <QScreen>
#include <QSettings>
#include <QStatusBar>
#include <QTreeView>
#include <QWindow>
#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

using test::Desktop;

TEST_F(Desktop, StartsEmpty) {
    EXPECT_EQ(window().windowTitle(), "Fernwick Workbench");
    EXPECT_TRUE(explorerEntries().empty());
    EXPECT_TRUE(window().code().isAncestorOf(window().focusWidget()));
    EXPECT_TRUE(menuItem("&File", "&Open Project..."));
    EXPECT_EQ(menuItem("&File", "&Open Project...")->shortcut(), QKeySequence("Ctrl+O"));
}

TEST_F(Desktop, TheAddInSeesAllProjectsOfTheStart) {
    bench->begin({sample("HelloWorld"), sample("AddressBook")});
    settle();
    for (const auto& one : bench->host().VBProjects()->items()) {
        EXPECT_TRUE(bench->addIn().projects.FindQLProject(one)) << one->Name();
        bench->host().ActiveVBProject(one);
        EXPECT_EQ(bench->addIn().projects.gCurrentProject, one);
    }
}

TEST_F(Desktop, AnOldProjectIsRefusedAtTheDoorAndNotWritten) {
    const auto path = oldSample();
    const auto old = folder.read("HelloWorld/HelloWorld.vbp");
    answer([](QDialog& box) { box.reject(); });
    bench->begin({path});
    EXPECT_TRUE(QTest::qWaitFor([this] { return bench->host().VBProjects()->Count() == 0; }));
    QTest::qWait(100);
    answers_.stop();
    EXPECT_EQ(folder.read("HelloWorld/HelloWorld.vbp"), old);
}

TEST_F(Desktop, AnOldProjectIsConvertedIfTheUserAgrees) {
    const auto path = oldSample();
    const auto old = folder.read("HelloWorld/HelloWorld.vbp");
    answer([](QDialog& window) {
        auto& box = dynamic_cast<QMessageBox&>(window);
        auto* const yes = box.button(QMessageBox::Yes);
        (yes ? yes : box.button(QMessageBox::Ok))->click();
    });
    bench->begin({path});
    EXPECT_TRUE(QTest::qWaitFor([&] { return !window().statusBar()->currentMessage().isEmpty(); }));
    answers_.stop();
    settle();
    EXPECT_EQ(window().statusBar()->currentMessage().toStdString(), "The old project file is " + path + ".bak");
    EXPECT_EQ(folder.read("HelloWorld/HelloWorld.vbp.bak"), old);
    EXPECT_EQ(bench->addIn().projects.FindQLProject(project())->ProjectVersion(), "3.5");
}

TEST_F(Desktop, TheFirstWindowFitsTheScreen) {
    const auto free = window().screen()->availableSize(); // smaller than the usual size
    ASSERT_LT(free.width(), 1100);
    EXPECT_LE(window().frameGeometry().width(), free.width());
    EXPECT_LE(window().frameGeometry().height(), free.height());
}

TEST_F(Desktop, AStartWithAGroupOpensItsProjects) {
    sample("HelloWorld");
    sample("AddressBook");
    bench->begin({folder.write("both.vbg", "VBGROUP 5.0\r\nStartupProject=HelloWorld\\HelloWorld.vbp\r\n"
                                           "Project=AddressBook\\AddressBook.vbp\r\n")});
    settle();
    EXPECT_EQ(bench->host().VBProjects()->Count(), 2);
    for (const auto& one : bench->host().VBProjects()->items())
        EXPECT_TRUE(bench->addIn().projects.FindQLProject(one)) << one->Name();
}

TEST_F(Desktop, ShowsAProjectsComponentsInGroups) {
    openSample("AddressBook");
    EXPECT_THAT(explorerEntries(), ElementsAre("AddressBook", " Forms", "  frmList", "  frmPerson", " Modules",
                                               "  modAddressBook", " Class Modules", "  clsPerson"));
    EXPECT_EQ(window().windowTitle(), "AddressBook - Fernwick Workbench");
}

TEST_F(Desktop, TheTitleNamesTheActiveProject) {
    openSample("HelloWorld");
    project()->Name("Greeting");
    settle();
    EXPECT_EQ(window().windowTitle(), "Greeting - Fernwick Workbench");
    clean(project());
    bench->host().VBProjects()->Remove(project());
    settle();
    EXPECT_EQ(window().windowTitle(), "Fernwick Workbench");
}

TEST_F(Desktop, OpeningAProjectOpensNoCode) {
    openSample("AddressBook");
    EXPECT_EQ(window().code().count(), 0);
}

TEST_F(Desktop, TheCodeOfAFormOpensFromItsDesigner) {
    openSample("HelloWorld");
    doubleClick(entry("frmHello"));
    menuItem("&View", "&Code")->trigger();
    ASSERT_TRUE(window().code().current());
    const auto module = component("frmHello")->CodeModule();
    EXPECT_EQ(window().code().current()->scintilla().text().toStdString() + "\n", [&] {
        auto lines = module->Lines(1, module->CountOfLines());
        std::erase(lines, '\r');
        return lines + "\n";
    }());
    EXPECT_EQ(window().code().tabText(1), "frmHello");
    EXPECT_FALSE(component("frmHello")->IsDirty());
}

TEST_F(Desktop, TypingEditsTheModuleAndMarksIt) {
    openSample("HelloWorld");
    auto& code = editor("frmHello");
    QTest::keyClicks(&code.scintilla(), "' new");
    QTest::keyClick(&code.scintilla(), Qt::Key_Return);
    EXPECT_EQ(component("frmHello")->CodeModule()->Lines(1, 1), "' new");
    settle();
    EXPECT_EQ(window().code().tabText(0), "frmHello *");
    EXPECT_TRUE(entry("frmHello *"));
}

TEST_F(Desktop, SavingWritesTheFileAndClearsTheMark) {
    openSample("HelloWorld");
    QTest::keyClicks(&editor("frmHello").scintilla(), "' saved");
    menuItem("&File", "Sa&ve Project")->trigger();
    EXPECT_THAT(folder.read("HelloWorld/frmHello.frm"), HasSubstr("\r\n' saved"));
    settle();
    EXPECT_EQ(window().code().tabText(0), "frmHello");
    EXPECT_FALSE(entry("frmHello *"));
}

TEST_F(Desktop, KeysOfCommandsWork) {
    openSample("HelloWorld");
    component("frmHello")->CodeModule()->InsertLines(1, "' by key");
    window().activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window()));
    QTest::keyClick(&window(), Qt::Key_S, Qt::ControlModifier);
    EXPECT_THAT(folder.read("HelloWorld/frmHello.frm"), HasSubstr("' by key"));
}

TEST_F(Desktop, TypingLeavesTheExplorerAsTheUserArrangedIt) {
    openSample("AddressBook");
    window().explorer().topLevelItem(0)->child(1)->setExpanded(false);
    window().explorer().setCurrentItem(entry("frmPerson"));
    QTest::keyClicks(&editor("frmPerson").scintilla(), "x");
    settle();
    EXPECT_FALSE(window().explorer().topLevelItem(0)->child(1)->isExpanded());
    EXPECT_EQ(window().explorer().currentItem()->text(0), "frmPerson *");
}

TEST_F(Desktop, ComponentsAreAddedRemovedAndRenamed) {
    openSample("HelloWorld");
    menuItem("&Project", "Add &Module")->trigger();
    settle();
    EXPECT_TRUE(entry("Module1 *"));
    EXPECT_EQ(project()->VBComponents()->Count(), 2);
    EXPECT_EQ(window().code().tabText(0), "Module1 *");
    // that of the design target's template, in place of a blank module
    EXPECT_EQ(component("Module1")->CodeModule()->Lines(1, 1), "Option Explicit");
    component("Module1")->Name("modOther");
    settle();
    EXPECT_TRUE(entry("modOther *"));
    project()->VBComponents()->Remove(component("modOther"));
    settle();
    EXPECT_FALSE(entry("modOther"));
    EXPECT_EQ(window().code().count(), 0);
}

TEST_F(Desktop, ARemovedComponentIsNotReadWhenItsTextRests) {
    openSample("HelloWorld");
    menuItem("&Project", "Add &Module")->trigger();
    component("Module1")->CodeModule()->InsertLines(1, "' new");
    settle();
    QTest::qSleep(2 * workbench::kMillisecondsOfRest); // as when another program takes the processor
    project()->VBComponents()->Remove(component("Module1"));
    settle();
    EXPECT_EQ(window().code().count(), 0);
}

TEST_F(Desktop, AnErrorOfABuildOpensItsLine) {
    openSample("HelloWorld");
    auto& code = editor("frmHello");
    const int line = code.scintilla().lines();
    code.scintilla().append("\nSub Broken(");
    menuItem("&File", "Sa&ve Project")->trigger();
    EXPECT_THAT(compile(), ElementsAre(HasSubstr("One or more errors occurred during compilation.")));
    auto* dock = window().findChild<QDockWidget*>("Fernwick Messages");
    ASSERT_TRUE(dock && dock->isVisible());
    auto* grid = dock->findChild<QTreeView*>("msgGrid");
    ASSERT_GE(grid->model()->rowCount(), 1);
    EXPECT_EQ(grid->model()->index(0, 2).data(), "frmHello");
    EXPECT_EQ(code.scintilla().markersAtLine(line), 1u << 1);

    code.scintilla().setCursorPosition(0, 0);
    const auto row = grid->visualRect(grid->model()->index(0, 5)).center();
    QTest::mouseClick(grid->viewport(), Qt::LeftButton, {}, row);
    QTest::mouseDClick(grid->viewport(), Qt::LeftButton, {}, row);
    EXPECT_EQ(code.scintilla().selectedText(), "Sub Broken(");
}

TEST_F(Desktop, ASuccessfulBuildWritesTheImage) {
    openSample("HelloWorld");
    EXPECT_TRUE(compile().empty());
    EXPECT_THAT(window().findChild<QLabel*>("lblStatusText")->text().toStdString(), HasSubstr("SUCCESS"));
    EXPECT_TRUE(std::filesystem::exists(folder / "HelloWorld/HelloWorld.0000.qlx"));
}

TEST_F(Desktop, OpeningAProjectDoesNotShowTheStatusOfARun) {
    openSample("HelloWorld");
    bench->addIn().messages.ShowProjectCompileErrors(project(), false);
    settle(40);
    EXPECT_EQ(window().findChild<QLabel*>("lblStatusText")->text(), "");
}

/// A progress form makes room for the question that interrupts it.
TEST_F(Desktop, OneWindowAtATimeIsShownWhileCompiling) {
    openSample("HelloWorld");
    component("frmHello")->CodeModule()->InsertLines(1, "' unsaved");
    int mostShown = 0;
    answer([&](QDialog& window) {
        int shown = 0;
        for (const auto* one : QApplication::topLevelWidgets()) shown += one->isVisible() && one->isModal();
        mostShown = std::max(mostShown, shown);
        test::click(window, "btnYes");
    });
    menuItem("&Fernwick", "Compile and &Validate")->trigger();
    answers_.stop();
    EXPECT_EQ(mostShown, 1);
    EXPECT_TRUE(std::filesystem::exists(folder / "HelloWorld/HelloWorld.0000.qlx"));
}

TEST_F(Desktop, TheStatusOfARunIsShownDuringIt) {
    openSample("HelloWorld");
    component("frmHello")->CodeModule()->InsertLines(1, "' unsaved");
    std::string status;
    answer([&](QDialog& question) {
        bench->window().docks().drawMessagesSoon();
        settle();
        status = window().findChild<QLabel*>("lblStatusText")->text().toStdString();
        test::click(question, "btnYes");
    });
    menuItem("&Fernwick", "Compile and &Validate")->trigger();
    answers_.stop();
    EXPECT_NE(status, "");
}

TEST_F(Desktop, AProgressFormBlocksTheWindow) {
    openSample("HelloWorld");
    component("frmHello")->CodeModule()->InsertLines(1, "' unsaved");
    int asked = 0;
    answer([&](QDialog& question) {
        ++asked;
        QTest::keyClick(window().windowHandle(), Qt::Key_O, Qt::ControlModifier);
        QTest::keyClick(window().windowHandle(), Qt::Key_Q, Qt::ControlModifier);
        QCoreApplication::processEvents();
        EXPECT_EQ(QApplication::activeModalWidget(), &question);
        EXPECT_TRUE(window().isVisible());
        test::click(question, "btnYes");
    });
    menuItem("&Fernwick", "Compile and &Validate")->trigger();
    answers_.stop();
    EXPECT_EQ(asked, 1);
    EXPECT_EQ(bench->host().VBProjects()->Count(), 1);
}

TEST_F(Desktop, AProjectWithoutADeviceIsNotBuilt) {
    open(test::SampleProject("Plain").module("modMain").writeTo(folder));
    EXPECT_THAT(carryOut("&Run", "&Start on Device"), ElementsAre(HasSubstr("Plain is not a Fernwick project")));
}

TEST_F(Desktop, MenusFollowTheHostsModel) {
    const auto menuBar = bench->host().CommandBars()->ActiveMenuBar();
    const auto before = bench->host().CommandBars()->FindControl(host::kAddInsMenuId)->Index();
    const auto menu = menuBar->Controls()->Add(office::msoControlPopup, before);
    menu->Caption("&Fernwick");
    const auto item = menu->Controls()->Add();
    item->Caption("Compile and &Validate");
    item->ToolTipText("Both");
    const auto second = menu->Controls()->Add();
    second->Caption("&Zoom Window");
    second->BeginGroup(true);
    second->Enabled(false);
    settle();
    auto* action = menuItem("&Fernwick", "Compile and &Validate");
    ASSERT_TRUE(action);
    EXPECT_EQ(action->toolTip(), "Both");
    EXPECT_FALSE(menuItem("&Fernwick", "&Zoom Window")->isEnabled());
    int clicks = 0;
    const auto events = bench->host().Events()->CommandBarEvents(item);
    const auto sink = events->Click.connect([&](auto, bool&, bool&) { ++clicks; });
    action->trigger();
    EXPECT_EQ(clicks, 1);
    item->Visible(false);
    settle();
    EXPECT_FALSE(action->isVisible());
    menu->Delete();
    settle();
    EXPECT_FALSE(menuItem("&Fernwick", "&Zoom Window"));
}

TEST_F(Desktop, TheAddInsMenuHasItsFaces) {
    openSample("HelloWorld");
    auto* compile = menuItem("&Fernwick", "Compile and &Validate");
    ASSERT_TRUE(compile);
    EXPECT_TRUE(compile->isEnabled());
    const auto face = compile->icon().pixmap(16, 16).toImage();
    ASSERT_FALSE(face.isNull());
    EXPECT_EQ(face.pixelColor(0, 0).alpha(), 0);
}

TEST_F(Desktop, SeparatorsMarkGroups) {
    const auto edit = bench->host().CommandBars()->Item("Edit");
    int groups = 0, lines = 0;
    for (const auto& control : edit->Controls()->items()) groups += control->BeginGroup();
    for (auto* top : window().menuBar()->actions())
        if (top->text() == "&Edit")
            for (auto* action : top->menu()->actions()) lines += action->isSeparator();
    EXPECT_GE(groups, 2);
    EXPECT_EQ(lines, groups);
}

TEST_F(Desktop, AFailedCommandIsReportedInABox) {
    const auto file = bench->host().CommandBars()->Item("File");
    const auto item = file->Controls()->Add();
    item->Caption("Fail");
    basic::cast<host::BarControl>(item)->action = [] { throw basic::RuntimeError(75, "disk is away"); };
    settle();
    test::whenShown<QMessageBox>([](QMessageBox& box) {
        EXPECT_EQ(box.text(), "disk is away");
        box.button(QMessageBox::Ok)->click();
    });
    menuItem("&File", "Fail")->trigger();
}

TEST_F(Desktop, RemovingAnUnsavedProjectAsks) {
    openSample("HelloWorld");
    component("frmHello")->CodeModule()->InsertLines(1, "' lost");
    test::whenShown<QMessageBox>([](QMessageBox& box) { box.button(QMessageBox::Cancel)->click(); });
    menuItem("&File", "&Remove Project")->trigger();
    EXPECT_EQ(bench->host().VBProjects()->Count(), 1);
    test::whenShown<QMessageBox>([](QMessageBox& box) { box.button(QMessageBox::Save)->click(); });
    menuItem("&File", "&Remove Project")->trigger();
    EXPECT_EQ(bench->host().VBProjects()->Count(), 0);
    EXPECT_THAT(folder.read("HelloWorld/frmHello.frm"), HasSubstr("' lost"));
    settle();
    EXPECT_TRUE(explorerEntries().empty());
}

TEST_F(Desktop, DiscardedChangesAreNotSavedOnClosing) {
    openSample("HelloWorld");
    component("frmHello")->CodeModule()->InsertLines(1, "' lost");
    project()->WriteProperty("A", "key", "lost");
    test::whenShown<QMessageBox>([](QMessageBox& box) { box.button(QMessageBox::Discard)->click(); });
    menuItem("&File", "&Remove Project")->trigger();
    EXPECT_EQ(bench->host().VBProjects()->Count(), 0);
    EXPECT_THAT(folder.read("HelloWorld/frmHello.frm"), Not(HasSubstr("' lost")));
    EXPECT_THAT(folder.read("HelloWorld/HelloWorld.vbp"), Not(HasSubstr("key=lost")));
}

TEST_F(Desktop, ChangesAreDiscardedOnlyWhenTheWindowCloses) {
    openSample("HelloWorld");
    openSample("AddressBook");
    for (const auto& each : bench->host().VBProjects()->items()) each->WriteProperty("A", "key", "value");
    std::vector answers{QMessageBox::Cancel, QMessageBox::Discard};
    answer([&](QDialog& box) {
        const auto next = answers.back();
        answers.pop_back();
        dynamic_cast<QMessageBox&>(box).button(next)->click();
    });
    EXPECT_FALSE(window().close());
    for (const auto& each : bench->host().VBProjects()->items()) EXPECT_TRUE(each->IsDirty());
}

TEST_F(Desktop, AFormOfAHandheldProjectGetsTheDevicesShape) {
    openSample("HelloWorld");
    menuItem("&Project", "Add &Form")->trigger();
    settle();
    const auto form = component("Form1");
    EXPECT_EQ(fernwick::asDouble(form->Properties()->Item("ScaleWidth")->Value()), 160);
    EXPECT_EQ(form->CodeModule()->Lines(1, 1), "Option Explicit");
    EXPECT_TRUE(window().design().forms().viewOf(form));
    EXPECT_TRUE(window().design().forms().current());
}

TEST_F(Desktop, ANewProjectUsesTheTemplateOfTheChosenDevice) {
    bench->connect();
    test::whenShown([](QDialog& window) {
        window.findChild<QListWidget*>("lstQuickDesignTargets")->setCurrentRow(1);
        test::click(window, "btnOK");
    });
    bench->open(FERNWICK_SOURCE_DIR "/installation/Template/Projects/Fernwick Project.vbp");
    EXPECT_TRUE(QTest::qWaitFor([this] { return explorerEntries().size() == 3; }, 2000));
    EXPECT_THAT(explorerEntries(), ElementsAre("Project1 *", " Forms", "  Form1 *"));
    EXPECT_EQ(project()->ReadProperty("Quinloft Global", "TargetDevice"), "PocketPC-SH3");
    EXPECT_EQ(fernwick::asDouble(component("Form1")->Properties()->Item("ScaleHeight")->Value()), 320);
    EXPECT_EQ(project()->VBComponents()->StartUpObject().component, component("Form1"));
    EXPECT_FALSE(workbench::RecentProjects::stored().join("").contains("Template"));
}

TEST_F(Desktop, WindowsOfARemovedProjectClose) {
    openSample("HelloWorld");
    editor("frmHello");
    bench->host().VBProjects()->Remove(project());
    settle();
    EXPECT_EQ(window().code().count(), 0);
}

TEST_F(Desktop, ClosingTheWindowAsksForUnsavedChanges) {
    openSample("HelloWorld");
    component("frmHello")->CodeModule()->InsertLines(1, "' new");
    test::whenShown<QMessageBox>([](QMessageBox& box) { box.button(QMessageBox::Cancel)->click(); });
    EXPECT_FALSE(window().close());
    test::whenShown<QMessageBox>([](QMessageBox& box) { box.button(QMessageBox::Discard)->click(); });
    EXPECT_TRUE(window().close());
}

TEST_F(Desktop, RecentProjectsOpenAgain) {
    openSample("HelloWorld");
    const auto path = project()->FileName();
    bench->host().VBProjects()->Remove(project());
    settle();
    auto* recent = menuItem("&File", "Recent &Projects");
    ASSERT_TRUE(recent && recent->menu());
    EXPECT_EQ(recent->menu()->actions().front()->text().toStdString(), "&1 " + path);
    recent->menu()->actions().front()->trigger();
    EXPECT_EQ(project()->FileName(), path);
}

TEST_F(Desktop, AProjectThatGotANewNameIsRecentUnderIt) {
    openSample("HelloWorld");
    const auto path = folder / "HelloWorld/Hello2.vbp";
    project()->SaveAs(path);
    bench->host().VBProjects()->Remove(project());
    EXPECT_EQ(workbench::RecentProjects::stored().value(0).toStdString(), path);
}

TEST_F(Desktop, TheRecentListHasAGroupInsteadOfItsProjects) {
    QSettings().clear();
    sample("HelloWorld");
    sample("AddressBook");
    const auto group = folder.write("both.vbg", "VBGROUP 5.0\r\nStartupProject=HelloWorld\\HelloWorld.vbp\r\n"
                                                "Project=AddressBook\\AddressBook.vbp\r\n");
    bench->begin({group});
    settle();
    EXPECT_EQ(workbench::RecentProjects::stored(), QStringList{QString::fromStdString(group)});
    bench->host().close();
    EXPECT_EQ(workbench::RecentProjects::stored(), QStringList{QString::fromStdString(group)});
}

TEST_F(Desktop, TheProjectOfTheWindowInFrontIsActive) {
    bench->connect();
    bench->open(sample("HelloWorld"));
    bench->open(sample("AddressBook"));
    window().activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window()));
    settle();
    EXPECT_EQ(project()->Name(), "AddressBook");
    doubleClick(entry("frmHello"));
    settle();
    EXPECT_EQ(project()->Name(), "HelloWorld");
    EXPECT_TRUE(entry("HelloWorld")->font(0).bold());
    doubleClick(entry("modAddressBook"));
    settle();
    EXPECT_EQ(project()->Name(), "AddressBook");
    window().code().setCurrentIndex(0);
    window().code().currentWidget()->setFocus();
    settle();
    EXPECT_EQ(project()->Name(), "HelloWorld");
}

TEST_F(Desktop, UndoingAllChangesClearsTheDirtyMark) {
    openSample("HelloWorld");
    auto& text = editor("frmHello").scintilla();
    QTest::keyClicks(&text, "x");
    settle();
    EXPECT_EQ(window().code().tabText(0), "frmHello *");
    text.undo();
    settle(400); // the file is compared when the user pauses
    EXPECT_EQ(window().code().tabText(0), "frmHello");
    EXPECT_FALSE(component("frmHello")->IsDirty());
    EXPECT_TRUE(window().close()); // without a question
}

TEST_F(Desktop, OpeningASecondProjectLeavesTheFirstUnchanged) {
    bench->connect();
    bench->open(sample("HelloWorld"));
    settle();
    const auto first = project();
    bench->open(sample("AddressBook"));
    settle();
    EXPECT_FALSE(first->IsDirty());
    EXPECT_FALSE(project()->IsDirty());
    EXPECT_FALSE(entry("HelloWorld *"));
}

TEST_F(Desktop, AMissingProjectIsReportedInABox) {
    test::whenShown<QMessageBox>([](QMessageBox& box) {
        EXPECT_THAT(box.text().toStdString(), HasSubstr("none.vbp"));
        box.button(QMessageBox::Ok)->click();
    });
    bench->open(folder / "none.vbp");
}

TEST_F(Desktop, LoadProblemsAreReported) {
    test::whenShown<QMessageBox>([](QMessageBox& box) {
        EXPECT_THAT(box.text().toStdString(), HasSubstr("gone.bas"));
        box.button(QMessageBox::Ok)->click();
    });
    open(test::SampleProject("Half").member("Module=modGone; gone.bas").writeTo(folder));
    settle();
}

TEST_F(Desktop, LayoutAndThemeAreRestored) {
    window().resize(900, 500);
    window().explorerDock().setFloating(true);
    window().setTheme(workbench::Theme::Dark);
    window().saveLayout();
    workbench::apply(workbench::Theme::Light);
    workbench::Workbench next;
    EXPECT_EQ(next.window().size(), QSize(900, 500));
    EXPECT_TRUE(next.window().explorerDock().isFloating());
    EXPECT_EQ(workbench::currentTheme(), workbench::Theme::Dark);
    QSettings().clear();
}

TEST_F(Desktop, TheMessagesDockIsRestored) {
    openSample("HelloWorld");
    auto* dock = window().findChild<QDockWidget*>("Fernwick Messages");
    dock->show();
    window().addDockWidget(Qt::LeftDockWidgetArea, dock);
    settle();
    window().close();
    bench = std::make_unique<workbench::Workbench>();
    window().show();
    bench->connect();
    settle();
    dock = window().findChild<QDockWidget*>("Fernwick Messages");
    EXPECT_EQ(window().dockWidgetArea(dock), Qt::LeftDockWidgetArea);
    QSettings().clear();
}

TEST_F(Desktop, FollowsTheDesktopsThemeUntilTheUserChooses) {
    QSettings().clear();
    window().saveLayout();
    workbench::apply(workbench::Theme::Dark); // as the desktop's palette is
    {
        workbench::Workbench next;
        EXPECT_EQ(workbench::currentTheme(), workbench::Theme::Dark);
    }
    menuItem("&View", "Dar&k Theme")->trigger();
    EXPECT_EQ(workbench::currentTheme(), workbench::Theme::Light);
    workbench::apply(workbench::Theme::Dark);
    workbench::Workbench chosen;
    EXPECT_EQ(workbench::currentTheme(), workbench::Theme::Light);
    QSettings().clear();
}

/// Pictures of the forms, for review.
TEST_F(Desktop, FormsLookLikeTheirPictures) {
    openSample("HelloWorld");
    auto& form = bench->addIn().compileWarning;
    form.Load();
    form.Caption("Compiled project is not current");
    form.lblWarning.Caption("The project has changed since it was compiled last. Compile it before it is sent?");
    test::whenShown([](QDialog& window) {
        EXPECT_TRUE(window.grab().save(FERNWICK_BINARY_DIR "/workbench-question.png"));
        test::click(window, "btnNo");
    });
    form.ShowModal();
    EXPECT_EQ(form.Result, fernwick::vbNo);
    form.Unload();
}

/// One picture of the whole window for each theme, for review.
TEST_F(Desktop, LooksLikeItsPictures) {
    openSample("AddressBook");
    auto& code = editor("frmList");
    code.scintilla().append("\nPrivate Sub Broken(");
    menuItem("&File", "Sa&ve Project")->trigger();
    compile();
    for (const auto& [theme, name] :
         {std::pair(workbench::Theme::Light, "light"), std::pair(workbench::Theme::Dark, "dark")}) {
        window().setTheme(theme);
        settle();
        const auto picture = window().grab().toImage();
        EXPECT_TRUE(picture.save(QString(FERNWICK_BINARY_DIR "/workbench-%1.png").arg(name)));
        EXPECT_EQ(picture.pixelColor(2, picture.height() - 2).lightness() < 128, theme == workbench::Theme::Dark);
    }
}
