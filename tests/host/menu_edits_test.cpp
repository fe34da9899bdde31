// The menus of a form, changed all at once.
#include "Host/model/code/menu_shortcuts.h"
#include "Host/model/forms/form_change.h"
#include "Host/model/menus/menu_edits.h"
#include "tests/host/designer_support.h"
#include <gmock/gmock.h>

using host::FormMenu;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

const std::string kMenus = crLf(R"(VERSION 5.00
Begin VB.Form frmMenus 
   Caption         =   "Menus"
   Begin VB.CommandButton cmdOK 
   End
   Begin VB.Menu mnuFile 
      Caption         =   "&File"
      Begin VB.Menu mnuOpen 
         Shortcut=^O
         Caption="&Open"
         Unknown         =   7
      End
      Begin VB.Menu mnuRecent 
         Caption         =   "One"
         Index           =   0
      End
      Begin VB.Menu mnuRecent 
         Caption         =   "Two"
         Checked         =   -1  'True
         Index           =   1
      End
   End
   Begin VB.Menu mnuHelp 
      Caption         =   "&Help"
   End
End
Attribute VB_Name = "frmMenus"
)");

} // namespace

class Menus : public DesignerTest {
protected:
    Menus() {
        host::DesignerHooks hooks;
        const auto nameOf = [](const auto& control) {
            return fernwick::asText(control->Properties()->Item("Name")->Value());
        };
        hooks.controlAdded = [this, nameOf](const auto& control) { events.push_back("+" + nameOf(control)); };
        hooks.controlRemoved = [this](const auto&) { events.push_back("-"); };
        hooks.controlRenamed = [this, nameOf](const auto& control, const std::string& old, int index) {
            events.push_back(old + "(" + std::to_string(index) + ") is " + nameOf(control));
        };
        open(kMenus, std::move(hooks));
        menus = host::menusOf(form());
    }
    basic::Ref<vbide::VBForm> form() const { return designer->Designer(); }
    void apply() { host::setMenus(form(), menus); }
    std::string problem() const {
        const auto found = host::problemOf(form(), menus);
        return found ? std::to_string(found->menu) + ": " + found->text : "";
    }
    /// The names of all menus, indented by level, as the form has them.
    std::vector<std::string> shape() const {
        std::vector<std::string> names;
        for (const auto& menu : host::menusOf(form()))
            names.push_back(std::string(std::size_t(menu.level), '.') + menu.name);
        return names;
    }

    std::vector<FormMenu> menus;
    std::vector<std::string> events;
};

TEST_F(Menus, AreListedWithTheirItems) {
    EXPECT_THAT(shape(), ElementsAre("mnuFile", ".mnuOpen", ".mnuRecent", ".mnuRecent", "mnuHelp"));
    EXPECT_EQ(menus[1].shortcut, "^O");
    EXPECT_EQ(menus[3].index, 1);
    EXPECT_TRUE(menus[3].checked);
    EXPECT_TRUE(menus[3].enabled);
}

TEST_F(Menus, ThatStayAsTheyAreChangeNothing) {
    apply();
    EXPECT_EQ(file->text(), kMenus);
    EXPECT_THAT(events, IsEmpty());
}

TEST_F(Menus, OnlyChangedValuesChangeTheirLines) {
    menus[0].caption = "&Datei";
    menus[3].checked = false;
    menus[4].enabled = false;
    menus[1].shortcut = "";
    apply();
    EXPECT_EQ(difference(), "-       Caption         =   \"&File\"\n"
                            "+       Caption         =   \"&Datei\"\n"
                            "-          Shortcut=^O\n"
                            "-          Checked         =   -1  'True\n"
                            "+          Checked         =   0   'False\n"
                            "+       Enabled         =   0   'False\n");
}

TEST_F(Menus, ANewMenuIsWrittenInTheDesignersLayout) {
    FormMenu added{{}, 1, "&About...", "mnuAbout"};
    added.shortcut = "{F1}";
    menus.push_back(added);
    apply();
    EXPECT_EQ(difference(), "+       Begin VB.Menu mnuAbout \n"
                            "+          Caption         =   \"&About...\"\n"
                            "+          Shortcut        =   {F1}\n"
                            "+       End\n");
    EXPECT_THAT(events, ElementsAre("+mnuAbout"));
}

TEST_F(Menus, OfAFormWithoutMenusFollowItsControls) {
    menus.clear();
    apply();
    EXPECT_THAT(events, ElementsAre("-", "-", "-", "-", "-"));
    menus = {{{}, 0, "A", "mnuA"}, {{}, 1, "B", "mnuB"}, {{}, 0, "C", "mnuC"}};
    apply();
    EXPECT_THAT(file->text(), testing::EndsWith(crLf(R"(   Begin VB.CommandButton cmdOK 
   End
   Begin VB.Menu mnuA 
      Caption         =   "A"
      Begin VB.Menu mnuB 
         Caption         =   "B"
      End
   End
   Begin VB.Menu mnuC 
      Caption         =   "C"
   End
End
Attribute VB_Name = "frmMenus"
)")));
}

TEST_F(Menus, StayBetweenOtherLines) {
    auto text = kMenus;
    text.insert(text.find("   Begin VB.Menu mnuHelp"), crLf("   Begin VB.Timer tmrLast \n   End\n"));
    open(text);
    menus = host::menusOf(form());
    apply();
    EXPECT_EQ(file->text(), text);
    const auto before = host::snapshotOf(form());
    menus.pop_back();
    apply();
    EXPECT_THAT(file->text(), testing::HasSubstr(crLf("   End\n   Begin VB.Timer tmrLast \n   End\nEnd\n")));
    host::FormChange(before, host::snapshotOf(form())).undo();
    EXPECT_EQ(file->text(), text);
}

TEST_F(Menus, AMovedMenuKeepsItsLines) {
    std::swap(menus[1], menus[2]); // Recent 0, Open, Recent 1 would divide the array
    std::swap(menus[2], menus[3]);
    apply();
    EXPECT_THAT(shape(), ElementsAre("mnuFile", ".mnuRecent", ".mnuRecent", ".mnuOpen", "mnuHelp"));
    EXPECT_EQ(difference(), "-       Begin VB.Menu mnuOpen \n-          Shortcut=^O\n-          Caption=\"&Open\"\n"
                            "-          Unknown         =   7\n-       End\n"
                            "+       Begin VB.Menu mnuOpen \n+          Shortcut=^O\n+          Caption=\"&Open\"\n"
                            "+          Unknown         =   7\n+       End\n");
    EXPECT_THAT(events, IsEmpty());
}

TEST_F(Menus, AMenuOfAnotherLevelIsIndentedWithItsItems) {
    menus[4].level = 2;
    menus.push_back({{}, 3, "Deep", "mnuDeep"});
    apply();
    EXPECT_THAT(file->text(), testing::HasSubstr(crLf(R"(         Index           =   1
         Begin VB.Menu mnuHelp 
            Caption         =   "&Help"
            Begin VB.Menu mnuDeep 
               Caption         =   "Deep"
            End
         End
      End
   End
End
)")));
    menus = host::menusOf(form());
    menus.pop_back();
    menus[4].level = 0;
    apply();
    EXPECT_EQ(file->text(), kMenus);
}

TEST_F(Menus, RenamedOnesRaiseAnEvent) {
    menus[0].name = "mnuHelp";
    menus[4].name = "mnuFile";
    menus[3].index = 5;
    apply();
    EXPECT_THAT(events, ElementsAre("mnuFile(-1) is mnuHelp", "mnuRecent(1) is mnuRecent", "mnuHelp(-1) is mnuFile"));
    EXPECT_THAT(shape(), ElementsAre("mnuHelp", ".mnuOpen", ".mnuRecent", ".mnuRecent", "mnuFile"));
}

TEST_F(Menus, ReturnExactlyAndWithoutAnAddition) {
    const auto before = host::snapshotOf(form());
    menus.erase(menus.begin() + 1);
    menus[0].name = "mnuOther";
    menus[1].level = 0;
    menus[1].index.reset();
    menus.push_back({{}, 1, "New", "mnuNew"});
    const auto file = control("mnuFile");
    apply();
    const host::FormChange change(before, host::snapshotOf(form()));
    const auto changed = this->file->text();
    events.clear();
    change.undo();
    EXPECT_EQ(this->file->text(), kMenus);
    EXPECT_EQ(control("mnuFile"), file);
    change.redo();
    EXPECT_EQ(this->file->text(), changed);
    change.undo();
    EXPECT_EQ(this->file->text(), kMenus);
    EXPECT_THAT(events, testing::Not(testing::Contains(testing::StartsWith("+"))));
}

TEST_F(Menus, ARemovedMenuReturnsWithTheItemsThatMoved) {
    const auto before = host::snapshotOf(form());
    menus.erase(menus.begin()); // its items move to the menu bar
    for (auto& menu : menus) {
        menu.level = 0;
        menu.shortcut.clear();
    }
    apply();
    EXPECT_THAT(shape(), ElementsAre("mnuOpen", "mnuRecent", "mnuRecent", "mnuHelp"));
    host::FormChange(before, host::snapshotOf(form())).undo();
    EXPECT_EQ(file->text(), kMenus);
}

TEST_F(Menus, AnErrorChangesNothing) {
    menus[0].caption = "Changed";
    menus[4].caption = "\xe6\x97\xa5";
    EXPECT_EQ(basic::attempt([&] { apply(); }).Number, 5);
    menus[4].caption = "Help";
    menus[4].name = "mnu\xe6\x97\xa5";
    EXPECT_EQ(basic::attempt([&] { apply(); }).Number, 5);
    EXPECT_EQ(file->text(), kMenus);
    EXPECT_THAT(events, IsEmpty());
}

TEST_F(Menus, KeepNamesThatTheirCodePageLacks) {
    auto text = kMenus;
    text.replace(text.find("mnuHelp"), 7, "mnu\xef\xbf\xbd");
    open(text);
    menus = host::menusOf(form());
    menus[0].caption = "Changed";
    apply();
    EXPECT_EQ(difference(), "-       Caption         =   \"&File\"\n+       Caption         =   \"Changed\"\n");
}

// ---- checks ---------------------------------------------------------------------------------------------------------

TEST_F(Menus, OfTheSampleHaveNoProblem) { EXPECT_EQ(problem(), ""); }

TEST_F(Menus, NeedNames) {
    menus[4].name = "";
    EXPECT_EQ(problem(), "4: Every menu needs a name, separators too.");
    menus[4].name = "1st";
    EXPECT_EQ(problem(), "4: '1st' is not a legal name.");
    menus[4].name = "CMDOK";
    EXPECT_EQ(problem(), "4: The name 'CMDOK' is already in use.");
    menus[4].name = "frmMenus";
    EXPECT_EQ(problem(), "4: The name 'frmMenus' is already in use.");
}

TEST_F(Menus, OfAControlArrayFollowEachOther) {
    menus[4].name = "MNUFILE";
    EXPECT_EQ(problem(), "4: The name 'MNUFILE' is used twice. In a control array, each menu must have an index.");
    menus[4].name = "mnuRecent";
    menus[4].index = 2;
    EXPECT_EQ(problem(), "4: The menus of the control array 'mnuRecent' must follow each other in one menu.");
    menus[4].level = 1;
    EXPECT_EQ(problem(), "");
    menus[4].index = 1;
    EXPECT_EQ(problem(), "4: The indexes of the control array 'mnuRecent' must be in ascending order.");
    menus[4].index = -1;
    EXPECT_EQ(problem(), "4: An index cannot be negative.");
}

TEST_F(Menus, BetweenThoseOfAControlArrayCanBeItemsOfOneOnly) {
    const auto add = [&](int level, const std::string& name, std::optional<int> index) {
        menus.push_back({{}, level, name, name, index});
    };
    add(0, "mnuNew", {});
    add(1, "mnuSize", 0);
    add(2, "mnuUnit", {});
    add(1, "mnuSize", 1);
    EXPECT_EQ(problem(), "");
    menus[menus.size() - 2].level = 1;
    EXPECT_EQ(problem(), "8: The menus of the control array 'mnuSize' must follow each other in one menu.");
}

TEST_F(Menus, HaveFourLevelsBelowTheBar) {
    for (int level = 1; level <= 4; ++level) menus.push_back({{}, level, "x", "mnu" + std::to_string(level)});
    EXPECT_EQ(problem(), "");
    menus.push_back({{}, 5, "x", "mnu5"});
    EXPECT_EQ(problem(), "9: A menu can have at most four levels below the menu bar.");
    menus[9].level = 0;
    menus.push_back({{}, 2, "x", "mnu6"});
    EXPECT_EQ(problem(), "10: An item can be only one level below the menu before it.");
}

TEST_F(Menus, SeparatorsArePlainItems) {
    menus[4].caption = "-";
    EXPECT_EQ(problem(), "4: A separator cannot be in the menu bar.");
    menus[4].level = 1;
    EXPECT_EQ(problem(), "");
    menus.push_back({{}, 2, "x", "mnuX"});
    EXPECT_EQ(problem(), "4: A separator cannot have items.");
    menus.pop_back();
    menus[4].enabled = false;
    EXPECT_EQ(problem(), "4: A separator cannot be checked or disabled, and cannot have a shortcut or a window list.");
}

TEST_F(Menus, OnlyItemsWithoutItemsAreCheckedAndHaveShortcuts) {
    menus[4].checked = true;
    EXPECT_EQ(problem(), "4: A menu of the menu bar cannot be checked.");
    menus[4].checked = false;
    menus[4].shortcut = "{F1}";
    EXPECT_EQ(problem(), "4: A menu of the menu bar cannot have a shortcut.");
    menus[4].shortcut = "";
    menus.push_back({{}, 2, "x", "mnuX"});
    menus[4].level = 1;
    menus[4].checked = true;
    EXPECT_EQ(problem(), "4: A menu with items cannot be checked.");
    menus[4].checked = false;
    menus[4].shortcut = "{F1}";
    EXPECT_EQ(problem(), "4: A menu with items cannot have a shortcut.");
    menus[4].shortcut = "";
    menus[5].shortcut = "^o";
    EXPECT_EQ(problem(), "5: The shortcut is already that of 'mnuOpen'.");
}

TEST_F(Menus, OnlyOneHasTheWindowList) {
    menus[0].windowList = menus[4].windowList = true;
    EXPECT_EQ(problem(), "4: Only one menu can have the window list, which 'mnuFile' has.");
}

TEST(MenuShortcuts, AreThoseOfTheLanguage) {
    EXPECT_EQ(host::menuShortcuts().size(), 26U + 4 * 11 + 5);
    EXPECT_EQ(host::shortcutText("+^{F5}"), "Shift+Ctrl+F5");
    EXPECT_EQ(host::shortcutLiteral("ctrl+s"), "^S");
    EXPECT_EQ(host::shortcutLiteral("{del}"), "{DEL}");
    EXPECT_EQ(host::shortcutLiteral("(None)"), "");
    EXPECT_EQ(host::shortcutLiteral("Ctrl+1"), std::nullopt);
    EXPECT_EQ(host::shortcutText("^1"), "^1");
}
