// The project explorer and its context menu.
#include "tests/workbench/desktop.h"
#include <QDockWidget>
#include <QMenu>
#include <QScrollBar>
#include <gmock/gmock.h>

using testing::Contains;
using testing::ElementsAre;
using testing::Not;

namespace {

struct DesktopExplorer : test::Desktop {
    /// Opens the menu of an entry, calls `act` with it, and returns its commands.
    std::vector<std::string> menuOf(const QString& text, const QString& chosen = {}) {
        auto& tree = window().explorer();
        tree.setCurrentItem(entry(text));
        std::vector<std::string> commands;
        QTimer look;
        QObject::connect(&look, &QTimer::timeout, [&] {
            auto* menu = dynamic_cast<QMenu*>(QApplication::activePopupWidget());
            if (!menu) return;
            look.stop();
            for (auto* action : menu->actions()) {
                if (!action->isSeparator()) commands.push_back(action->text().toStdString());
                if (action->text() == chosen) action->trigger();
            }
            menu->close();
        });
        look.start(5);
        Q_EMIT tree.customContextMenuRequested(tree.visualItemRect(entry(text)).center());
        settle();
        return commands;
    }
};

} // namespace

TEST_F(DesktopExplorer, ListsAllProjectsWithIcons) {
    openSample("HelloWorld");
    openSample("AddressBook");
    EXPECT_EQ(window().explorer().topLevelItemCount(), 2);
    EXPECT_FALSE(entry("frmHello")->icon(0).isNull());
    EXPECT_TRUE(entry("AddressBook")->font(0).bold());
    EXPECT_FALSE(entry("HelloWorld")->font(0).bold());
}

TEST_F(DesktopExplorer, AComponentHasItsCommands) {
    openSample("AddressBook");
    EXPECT_THAT(menuOf("frmList"),
                ElementsAre("&Code", "O&bject", "&Save File", "Save File &As...", "&Remove File", "Set as Start &Up"));
    EXPECT_THAT(menuOf("modAddressBook"), Not(Contains("O&bject")));
    menuOf("clsPerson", "&Code");
    EXPECT_EQ(window().code().tabText(0), "clsPerson");
}

TEST_F(DesktopExplorer, AProjectsMenuActsOnThatProject) {
    openSample("HelloWorld");
    openSample("AddressBook");
    menuOf("HelloWorld", "Add &Class Module");
    EXPECT_EQ(project()->Name(), "HelloWorld");
    ASSERT_TRUE(entry("Class1"));
    EXPECT_EQ(entry("Class1")->parent()->parent(), entry("HelloWorld"));
}

TEST_F(DesktopExplorer, NewComponentsAreNumberedFromOne) {
    openSample("HelloWorld");
    for (const auto* const command : {"Add &Class Module", "Add &Module", "Add &Class Module", "Add &Form"}) {
        menuOf("HelloWorld", command);
        settle();
    }
    EXPECT_THAT(explorerEntries(), ElementsAre("HelloWorld *", " Forms", "  Form1 *", "  frmHello", " Modules",
                                               "  Module1 *", " Class Modules", "  Class1 *", "  Class2 *"));
    EXPECT_EQ(component("Class2")->CodeModule()->Lines(1, 1), "Option Explicit");
}

TEST_F(DesktopExplorer, AGroupsMenuAddsComponents) {
    openSample("AddressBook");
    EXPECT_THAT(menuOf("Forms"), ElementsAre("Add &Form", "Add &Module", "Add &Class Module", "&Add File..."));
}

TEST_F(DesktopExplorer, ANewProjectHasNoFilesYet) {
    openSample("HelloWorld");
    menuOf("HelloWorld", "Add &Module");
    EXPECT_TRUE(entry("Module1 *"));
    EXPECT_EQ(entry("Module1 *")->toolTip(0), "Module1");
}

TEST_F(DesktopExplorer, SortsWithoutRegardToLetterCaseAndShowsPathsInTips) {
    open(test::SampleProject().module("modB").module("MODA").module("ModC").writeTo(folder));
    EXPECT_THAT(explorerEntries(), ElementsAre("Hello", " Modules", "  MODA", "  modB", "  ModC"));
    EXPECT_EQ(entry("modB")->toolTip(0).toStdString(), "modB\n" + (folder / "modB.bas"));
}

TEST_F(DesktopExplorer, AFileIsShownWhereItsNameDiffers) {
    open(test::SampleProject()
             .module("modA")
             .member("Module=modB; Other.bas", "Other.bas", test::moduleText("modB", ""))
             .member("Module=modC; MODC.bas", "MODC.bas", test::moduleText("modC", ""))
             .writeTo(folder));
    EXPECT_THAT(explorerEntries(), ElementsAre("Hello", " Modules", "  modA", "  modB [Other.bas]", "  modC"));
    EXPECT_EQ(entry("modB")->toolTip(1).toStdString(), "modB\n" + (folder / "Other.bas"));
    const auto& tree = window().explorer();
    for (const int width : {300, 200}) {
        window().resizeDocks({static_cast<QDockWidget*>(tree.parentWidget())}, {width}, Qt::Horizontal);
        settle();
        EXPECT_FALSE(tree.horizontalScrollBar()->isVisible()) << width;
    }
}

TEST_F(DesktopExplorer, AGroupsMenuActsOnItsProject) {
    openSample("HelloWorld");
    openSample("AddressBook");
    auto* const forms = entry("HelloWorld")->child(0);
    window().explorer().setCurrentItem(forms);
    QTimer::singleShot(50, [] {
        if (auto* const menu = QApplication::activePopupWidget()) menu->close();
    });
    Q_EMIT window().explorer().customContextMenuRequested(window().explorer().visualItemRect(forms).center());
    EXPECT_EQ(project()->Name(), "HelloWorld");
}
