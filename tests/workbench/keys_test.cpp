// The keys of commands: shown everywhere, and changed in the options.
#include "Apps/workbench/editing/scintilla.h"
#include "Apps/workbench/messages/messages_view.h"
#include "Apps/workbench/options/key_field.h"
#include "Apps/workbench/window/command_keys.h"
#include "tests/workbench/options_world.h"
#include <QLabel>
#include <QPushButton>
#include <QToolBar>
#include <QTreeWidget>

using testing::HasSubstr;
using workbench::canBeKey;

namespace {

struct Keys : test::OptionsDesktop {
    /// Looks in submenus too.
    static QAction* actionOf(const workbench::KeyOption& option, const QList<QAction*>& menus) {
        for (const auto* top : menus) {
            if (!top->menu()) continue;
            for (auto* action : top->menu()->actions())
                if (action->text().remove('&').remove("...") == option.command &&
                    top->text().remove('&') == option.menu)
                    return action;
            if (auto* const inner = actionOf(option, top->menu()->actions())) return inner;
        }
        return nullptr;
    }
    QAction* actionOf(const workbench::KeyOption& option) { return actionOf(option, window().menuBar()->actions()); }
    static void select(Dialog& dialog, const QString& command) {
        turnTo(dialog, kKeys);
        auto& list = field<QTreeWidget>(dialog, "keys");
        const auto found = list.findItems(command, Qt::MatchExactly, 1);
        ASSERT_EQ(found.size(), 1) << command.toStdString();
        list.setCurrentItem(found.front());
    }
    static void press(Dialog& dialog, const QString& command, Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        select(dialog, command);
        auto& keyField = field<QLineEdit>(dialog, "key");
        keyField.setFocus();
        QTest::keyClick(&keyField, key, modifiers);
    }
    static QTreeWidgetItem& rowOf(Dialog& dialog, const QString& command) {
        return *field<QTreeWidget>(dialog, "keys").findItems(command, Qt::MatchExactly, 1).front();
    }
    static QString keyOf(Dialog& dialog, const QString& command) { return rowOf(dialog, command).text(2); }
    QKeySequence shortcut(const QString& menu, const QString& item) { return menuItem(menu, item)->shortcut(); }
    /// The texts of the next menu that pops up, with their keys.
    static QStringList textsOfPopup(const std::function<void()>& act) {
        QStringList texts;
        QTimer::singleShot(50, qApp, [&texts] {
            auto* const menu = dynamic_cast<QMenu*>(QApplication::activePopupWidget());
            ASSERT_TRUE(menu);
            for (const auto* action : menu->actions())
                if (!action->isSeparator())
                    texts << action->text().remove('&') + (action->isShortcutVisibleInContextMenu() ? " | " : " - ") +
                                 action->shortcut().toString();
            menu->close();
        });
        act();
        return texts;
    }
};

} // namespace

TEST_F(Keys, AreShownInTheMenuOfEachCommand) {
    openSample("AddressBook");
    bench->connect();
    settle();
    int shown = 0;
    for (const auto& option : workbench::keyOptions(bench->host())) {
        const auto* action = actionOf(option);
        ASSERT_TRUE(action) << option.menu.toStdString() << " " << option.command.toStdString();
        EXPECT_EQ(action->shortcut(), option.usual) << option.command.toStdString();
        shown += !action->shortcut().isEmpty();
    }
    EXPECT_GT(shown, 30);
}

TEST_F(Keys, AreShownInTheTipsOfToolbarButtons) {
    std::vector<std::string> tips;
    for (auto* action : window().findChild<QToolBar*>("Standard")->actions()) {
        EXPECT_TRUE(action->shortcut().isEmpty()) << "a key of two actions works for neither";
        if (!action->isSeparator()) tips.push_back(action->toolTip().toStdString());
    }
    EXPECT_THAT(tips, testing::ElementsAre("New Project (Ctrl+N)", "Open Project (Ctrl+O)", "Save Project",
                                           "Start on Device (F5)"));
}

TEST_F(Keys, AreShownInContextMenus) {
    openModule();
    auto& text = code();
    const auto ofEditor = textsOfPopup([&] { Q_EMIT text.customContextMenuRequested({5, 5}); });
    EXPECT_TRUE(ofEditor.contains("Cut | Ctrl+X")) << ofEditor.join(", ").toStdString();
    EXPECT_TRUE(ofEditor.contains("Definition | Shift+F2"));
    auto& tree = window().explorer();
    auto* const entry = tree.findItems("modA", Qt::MatchStartsWith | Qt::MatchRecursive).front();
    tree.setCurrentItem(entry);
    const auto ofExplorer =
        textsOfPopup([&] { Q_EMIT tree.customContextMenuRequested(tree.visualItemRect(entry).center()); });
    EXPECT_TRUE(ofExplorer.contains("Save File | Ctrl+S")) << ofExplorer.join(", ").toStdString();
    EXPECT_TRUE(ofExplorer.contains("Code | F7"));
}

// ---- changing them --------------------------------------------------------------------------------------------------

TEST_F(Keys, AreChangedInTheOptions) {
    openModule();
    auto& text = code();
    change([](Dialog& dialog) {
        press(dialog, "Comment Block", Qt::Key_B, Qt::ControlModifier);
        EXPECT_EQ(keyOf(dialog, "Comment Block"), "Ctrl+B");
    });
    EXPECT_EQ(shortcut("&Edit", "Co&mment Block"), QKeySequence("Ctrl+B"));
    window().activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window()));
    text.setFocus();
    settle();
    QTest::keyClick(&text, Qt::Key_B, Qt::ControlModifier);
    EXPECT_TRUE(text.text().startsWith("'Sub Main"));
}

/// The editing component has a meaning for this key.
TEST_F(Keys, OfCommandsGoBeforeThoseOfTheEditor) {
    change([](Dialog& dialog) { press(dialog, "Comment Block", Qt::Key_BracketLeft, Qt::ControlModifier); });
    openModule();
    auto& text = code();
    EXPECT_FALSE(text.standardCommands()->boundTo(int(Qt::CTRL) | Qt::Key_BracketLeft));
    change([](Dialog& dialog) { press(dialog, "Comment Block", Qt::Key_BracketRight, Qt::ControlModifier); });
    EXPECT_FALSE(text.standardCommands()->boundTo(int(Qt::CTRL) | Qt::Key_BracketRight));
}

TEST_F(Keys, AreKeptAndResetOneByOne) {
    change([](Dialog& dialog) { press(dialog, "New Project", Qt::Key_F12); });
    EXPECT_EQ(window().findChild<QToolBar*>("Standard")->actions().front()->toolTip(), "New Project (F12)");
    end();
    start();
    EXPECT_EQ(shortcut("&File", "&New Project..."), QKeySequence("F12"));
    change([](Dialog& dialog) {
        select(dialog, "New Project");
        test::click(dialog, "resetKey");
        EXPECT_EQ(keyOf(dialog, "New Project"), "Ctrl+N");
    });
    EXPECT_EQ(shortcut("&File", "&New Project..."), QKeySequence("Ctrl+N"));
    EXPECT_TRUE(QSettings().allKeys().filter("keys/").isEmpty());
}

TEST_F(Keys, AreRemovedByBackspace) {
    change([](Dialog& dialog) { press(dialog, "Zoom In", Qt::Key_Backspace); });
    EXPECT_TRUE(menuItem("&View", "Zoom &In")->shortcuts().isEmpty());
    change([](Dialog& dialog) {
        select(dialog, "Zoom In");
        test::click(dialog, "resetKey");
    });
    EXPECT_EQ(menuItem("&View", "Zoom &In")->shortcuts().size(), 2);
}

TEST_F(Keys, OfTwoCommandsAreNotStored) {
    change([](Dialog& dialog) {
        press(dialog, "Indent", Qt::Key_S, Qt::ControlModifier);
        EXPECT_THAT(field<QLabel>(dialog, "problem").text().toStdString(),
                    HasSubstr("Ctrl+S is the key of Save File and Indent."));
        for (const char* command : {"Save File", "Indent"})
            EXPECT_FALSE(rowOf(dialog, command).icon(2).isNull()) << command;
        EXPECT_TRUE(rowOf(dialog, "Cut").icon(2).isNull());
        EXPECT_FALSE(field<QPushButton>(dialog, "ok").isEnabled());
        EXPECT_FALSE(field<QPushButton>(dialog, "apply").isEnabled());
        press(dialog, "Save File", Qt::Key_Backspace);
        EXPECT_TRUE(field<QLabel>(dialog, "problem").text().isEmpty());
    });
    EXPECT_EQ(shortcut("&Edit", "&Indent"), QKeySequence("Ctrl+S"));
    EXPECT_TRUE(shortcut("&File", "&Save File").isEmpty());
}

/// Zoom In has it beside its first key.
TEST_F(Keys, ThatAreSecondKeysAreTakenToo) {
    edit([](Dialog& dialog) {
        press(dialog, "Indent", Qt::Key_Equal, Qt::ControlModifier);
        EXPECT_THAT(field<QLabel>(dialog, "problem").text().toStdString(),
                    HasSubstr("Ctrl+= is the key of Indent and Zoom In."));
        dialog.reject();
    });
}

TEST_F(Keys, ThatTypeOrOpenMenusAreNotTaken) {
    for (const char* key :
         {"A", "Shift+A", "Space", "Tab", "Del", "Left", "Alt+F", "Return", "Ctrl+K, Ctrl+C", "?", ""})
        EXPECT_FALSE(canBeKey(QKeySequence(key))) << key;
    for (const char* key : {"Ctrl+A", "F1", "Shift+F35", "Alt+F8", "Ctrl+Shift+Del", "Meta+K"})
        EXPECT_TRUE(canBeKey(QKeySequence(key))) << key;
    edit([](Dialog& dialog) {
        press(dialog, "Indent", Qt::Key_A);
        EXPECT_EQ(keyOf(dialog, "Indent"), "");
        press(dialog, "Indent", Qt::Key_Escape); // closes the dialog
        EXPECT_FALSE(dialog.isVisible());
    });
}

TEST_F(Keys, AreFoundByMenuCommandAndKey) {
    edit([](Dialog& dialog) {
        turnTo(dialog, kKeys);
        auto& list = field<QTreeWidget>(dialog, "keys");
        const auto shown = [&list](const QString& text) {
            QStringList names;
            for (auto* item : list.findItems("", Qt::MatchContains, 1))
                if (!item->isHidden()) names << item->text(1);
            return text.isEmpty() ? QString() : names.join(", ");
        };
        field<QLineEdit>(dialog, "keyFilter").setText("ctrl+sh");
        EXPECT_EQ(shown("x"),
                  "Redo, Find in All Projects, Toggle Bookmark, Next Bookmark, Previous Bookmark, List Names, "
                  "Parameter Info, Last "
                  "Position, Fold or Unfold, "
                  "Clear All Breakpoints, Split, Other Pane, Previous Window");
        EXPECT_EQ(list.currentItem()->text(1), "Redo");
        field<QLineEdit>(dialog, "keyFilter").setText("options");
        EXPECT_EQ(shown("x"), "Options");
        dialog.reject();
    });
}

TEST_F(Keys, StoredBadlyAreTheUsualOnes) {
    for (const char* bad : {"nonsense", "A", "Alt+F", "Ctrl+K, Ctrl+C"}) {
        const workbench::KeyOption option{"keys/1", "Menu", "Command", QKeySequence("F5")};
        QSettings().setValue(option.setting, bad);
        EXPECT_EQ(option.stored(), option.usual) << bad;
    }
}

TEST_F(Keys, OfTheMessagesAreChangedAtOnce) {
    openModule();
    bench->connect();
    bench->addIn().messages.ShowProjectCompileErrors(project(), true);
    settle();
    change([](Dialog& dialog) { press(dialog, "Next Message", Qt::Key_F8, Qt::ControlModifier); });
    for (auto* action : window().findChildren<QAction*>("nextMessage"))
        EXPECT_EQ(action->shortcut(), QKeySequence("Ctrl+F8"));
    EXPECT_FALSE(window().findChildren<QAction*>("nextMessage").isEmpty());
}
