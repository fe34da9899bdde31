// The project explorer and its context menu.
#include "tests/workbench/desktop.h"
#include <QMenu>
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
    EXPECT_TRUE(entry("Class1"));
    EXPECT_EQ(entry("Class1")->parent()->parent(), entry("HelloWorld"));
}

TEST_F(DesktopExplorer, AGroupsMenuAddsComponents) {
    openSample("AddressBook");
    EXPECT_THAT(menuOf("Forms"), ElementsAre("Add &Form", "Add &Module", "Add &Class Module", "&Add File..."));
}

TEST_F(DesktopExplorer, ANewProjectHasNoFilesYet) {
    openSample("HelloWorld");
    menuOf("HelloWorld", "Add &Module");
    EXPECT_TRUE(entry("Module1 (Module1) *"));
}

TEST_F(DesktopExplorer, SortsWithoutRegardToLetterCaseAndShowsPathsInTips) {
    open(test::SampleProject().module("modB").module("MODA").module("ModC").writeTo(folder));
    EXPECT_THAT(explorerEntries(), ElementsAre("Hello (Hello.vbp)", " Modules", "  MODA (MODA.bas)",
                                               "  modB (modB.bas)", "  ModC (ModC.bas)"));
    EXPECT_EQ(entry("modB")->toolTip(0).toStdString(), "modB (modB.bas)\n" + (folder / "modB.bas"));
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
