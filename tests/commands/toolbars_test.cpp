// The two toolbars and their stored positions.
#include "commands_world.h"

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

namespace {

constexpr char kPrefs[] = "SOFTWARE\\Quinloft\\AddinPrefs";

class Toolbars : public testing::Test, protected test::CommandsWorld {
protected:
    void store(const std::string& value, const std::string& text, std::uint32_t type = fernwick::REG_SZ) {
        registry.set(fernwick::HKEY_CURRENT_USER, kPrefs, value, text, type);
    }
    void storeAll(const std::string& name) {
        store("POS:" + name, "2");
        store("INDEX:" + name, "3");
        store("LEFT:" + name, "-40");
        store("TOP:" + name, "50");
        store("VISIBLE:" + name, "False");
    }
    std::string stored(const std::string& value) {
        const fernwick::RegistryKey key{registry2, registry2.OpenKey(fernwick::HKEY_CURRENT_USER, kPrefs, 1)};
        const auto text = registry2.GetStringValue(key.handle(), value);
        return text.ok() ? std::to_string(text.type) + ":" + text.text : "";
    }
    test::TracedBar& bar(const std::string& name) {
        for (const auto& one : bars->list)
            if (one->name == name) return *one;
        throw basic::RuntimeError(5);
    }
    static std::vector<std::string> tips(const test::TracedBar& bar) {
        std::vector<std::string> all;
        for (const auto& item : bar.items) all.push_back((item->group ? "--" : "") + item->toolTip);
        return all;
    }
};

TEST_F(Toolbars, TheMainToolbarHasItsButtons) {
    const auto effects = effectsOf([&] { EXPECT_TRUE(toolbars.SetupQuinloftToolbar()); });
    EXPECT_THAT(tips(bar("Fernwick")),
                ElementsAre("Compile and Validate", "Deploy to Device", "Fernwick Settings", "--Open Fernwick Project",
                            "--Zoom Level", "--Fernwick User's Guide"));
    EXPECT_THAT(pictures.loaded, ElementsAre(109, 110, 108, 122, 112, 111));
    EXPECT_THAT(std::vector(effects.begin(), effects.begin() + 5),
                ElementsAre("bar Fernwick at 1", "Fernwick: + button", "?: tip Compile and Validate", "?: face",
                            "Fernwick: + button"));
    EXPECT_THAT(std::vector(effects.end() - 2, effects.end()), ElementsAre("Fernwick: visible", "Fernwick: disabled"));
    EXPECT_EQ(items.gToolGuide->ToolTipText(), "Fernwick User's Guide");
}

TEST_F(Toolbars, TheSupportToolbarHasAButtonForEachUtility) {
    EXPECT_TRUE(toolbars.SetupSupportToolbar());
    EXPECT_THAT(tips(bar("Quinloft Utilities")),
                ElementsAre("&Database Converter", "&PDB Database Viewer", "&Font Converter", "F&ont Viewer",
                            "&Graphic Converter", "G&raphic Viewer", "&Movie Converter", "Mo&vie Viewer",
                            "&Weirgate Configuration"));
    EXPECT_THAT(pictures.loaded, ElementsAre(113, 121, 114, 115, 116, 117, 118, 119, 120));
    EXPECT_TRUE(bar("Quinloft Utilities").visible);
    EXPECT_FALSE(bar("Quinloft Utilities").enabled);
    EXPECT_EQ(items.gToolWGConfig->ToolTipText(), "&Weirgate Configuration");
}

TEST_F(Toolbars, EnablingReportsItsErrorsAndDisablingIgnoresThem) {
    toolbars.SetupQuinloftToolbar();
    toolbars.SetupSupportToolbar();
    const auto failing = [this](const std::function<void()>& act) {
        errors.seen.clear();
        trace.calls = 0;
        trace.failing = 1;
        act();
        trace.failing = 0;
        return errors.seen;
    };
    EXPECT_THAT(failing([&] { toolbars.EnableQuinloftToolbar(); }),
                ElementsAre("modToolbarManagement.EnableQuinloftToolbar [50000]"));
    EXPECT_THAT(failing([&] { toolbars.EnableSupportToolbar(); }),
                ElementsAre("modToolbarManagement.EnableSupportToolbar [50000]"));
    EXPECT_THAT(failing([&] { toolbars.DisableQuinloftToolbar(); }), IsEmpty());
    EXPECT_THAT(failing([&] { toolbars.DisableSupportToolbar(); }), IsEmpty());
}

TEST_F(Toolbars, ReplaceOnesLeftByACrash) {
    bars->addBar("Fernwick")->left = 99;
    const auto effects = effectsOf([&] { toolbars.SetupQuinloftToolbar(); });
    EXPECT_EQ(effects[0], "Fernwick: deleted");
    EXPECT_EQ(effects[1], "bar Fernwick at 1");
    EXPECT_EQ(bar("Fernwick").left, 0);
}

TEST_F(Toolbars, AFirstStartKeepsTheHostsPositions) {
    toolbars.SetupQuinloftToolbar();
    EXPECT_FALSE(prefs.ReadToolbarState(items.gMainToolbar));
    EXPECT_EQ(bar("Fernwick").position, 1);
    EXPECT_TRUE(bar("Fernwick").visible);
}

TEST_F(Toolbars, AreRestoredToTheirPositions) {
    storeAll("Fernwick");
    const auto effects = effectsOf([&] { toolbars.SetupQuinloftToolbar(); });
    EXPECT_THAT(std::vector(effects.end() - 6, effects.end()),
                ElementsAre("Fernwick: disabled", "Fernwick: position 2", "Fernwick: row 3", "Fernwick: left -40",
                            "Fernwick: top 50", "Fernwick: hidden"));
    EXPECT_TRUE(prefs.ReadToolbarState(items.gMainToolbar));
}

TEST_F(Toolbars, WithoutAStoredVisibilityOnlyThePositionIsRestored) {
    storeAll("Fernwick");
    std::uint32_t key = registry2.OpenKey(fernwick::HKEY_CURRENT_USER, kPrefs, fernwick::KEY_ALL_ACCESS);
    registry.RegDeleteValue(key, "VISIBLE:Fernwick");
    registry2.CloseKey(key);
    toolbars.SetupQuinloftToolbar();
    EXPECT_FALSE(prefs.ReadToolbarState(items.gMainToolbar));
    EXPECT_EQ(bar("Fernwick").top, 50);
    EXPECT_TRUE(bar("Fernwick").visible);
}

TEST_F(Toolbars, ValuesAfterAMissingOneAreSkipped) {
    storeAll("Fernwick");
    store("INDEX:Fernwick", std::string("\3\0\0\0", 4), fernwick::REG_DWORD); // not a text
    toolbars.SetupQuinloftToolbar();
    EXPECT_EQ(bar("Fernwick").position, 2);
    EXPECT_EQ(bar("Fernwick").left, 0);
}

TEST_F(Toolbars, ReportsATextThatIsNotANumberAndContinues) {
    storeAll("Fernwick");
    store("LEFT:Fernwick", "far");
    toolbars.SetupQuinloftToolbar();
    EXPECT_THAT(errors.seen, ElementsAre("modAddinPrefsManagement.ReadToolbarState [13]"));
    EXPECT_EQ(bar("Fernwick").top, 50);
}

TEST_F(Toolbars, AreStoredAsTexts) {
    toolbars.SetupQuinloftToolbar();
    toolbars.SetupSupportToolbar();
    bar("Fernwick").left = -7;
    bar("Quinloft Utilities").row = 4;
    toolbars.SaveAllToolbarState();
    EXPECT_EQ(stored("POS:Fernwick"), "1:1");
    EXPECT_EQ(stored("LEFT:Fernwick"), "1:-7");
    EXPECT_EQ(stored("TOP:Fernwick"), "1:0");
    EXPECT_EQ(stored("VISIBLE:Fernwick"), "1:True");
    EXPECT_EQ(stored("INDEX:Quinloft Utilities"), "1:4");
    bar("Fernwick").left = 0;
    toolbars.RestoreAllToolbarState();
    EXPECT_EQ(bar("Fernwick").left, -7);
}

TEST_F(Toolbars, AFailingValueLosesOnlyItself) {
    toolbars.SetupQuinloftToolbar();
    for (int failing = 1; failing <= 10; ++failing) { // the name and the value of five
        errors.seen.clear();
        trace.calls = 0;
        trace.failing = failing;
        prefs.SaveToolbarState(items.gMainToolbar);
        trace.failing = 0;
        EXPECT_EQ(trace.calls, failing % 2 == 0 ? 10 : 9);
        EXPECT_THAT(errors.seen, ElementsAre("modAddinPrefsManagement.SaveToolbarState [50000]"));
    }
}

TEST_F(Toolbars, AreEnabledAndDisabledAsAWhole) {
    toolbars.EnableQuinloftToolbar(); // no bar exists yet
    toolbars.DisableSupportToolbar();
    toolbars.SetupQuinloftToolbar();
    toolbars.SetupSupportToolbar();
    EXPECT_THAT(effectsOf([&] {
                    toolbars.EnableQuinloftToolbar();
                    toolbars.EnableSupportToolbar();
                    toolbars.DisableQuinloftToolbar();
                    toolbars.DisableSupportToolbar();
                }),
                ElementsAre("Fernwick: enabled", "Quinloft Utilities: enabled", "Fernwick: disabled",
                            "Quinloft Utilities: disabled"));
}

TEST_F(Toolbars, ADeletedBarIsReportedOnlyWhenEnabled) {
    toolbars.SetupQuinloftToolbar();
    items.gMainToolbar->Delete();
    toolbars.DisableQuinloftToolbar();
    EXPECT_THAT(errors.seen, IsEmpty());
    toolbars.EnableQuinloftToolbar();
    EXPECT_THAT(errors.seen, ElementsAre("modToolbarManagement.EnableQuinloftToolbar [440]"));
}

TEST_F(Toolbars, AreRemovedButtonByButton) {
    toolbars.SetupQuinloftToolbar();
    toolbars.SetupSupportToolbar();
    items.gToolZoom->Delete();
    const auto effects = effectsOf([&] {
        toolbars.RemoveQuinloftToolbar();
        toolbars.RemoveSupportToolbar();
    });
    EXPECT_EQ(std::count(effects.begin(), effects.end(), "?: deleted"), 6 + 9);
    EXPECT_EQ(effects[6], "Fernwick: deleted");
    EXPECT_EQ(effects.back(), "Quinloft Utilities: deleted");
    EXPECT_THAT(errors.seen, IsEmpty());
    toolbars.RemoveQuinloftToolbar(); // again, with nothing left
    EXPECT_THAT(errors.seen, IsEmpty());
}

TEST_F(Toolbars, AFailingCallEndsTheSetUpWithOneReport) {
    for (int failing = 1;; ++failing) {
        errors.seen.clear();
        trace.calls = 0;
        trace.failing = failing;
        const bool built = toolbars.SetupQuinloftToolbar();
        trace.failing = 0;
        if (trace.calls < failing) break;
        const std::vector<std::string> report{"modToolbarManagement.SetupQuinloftToolbar [50000]"};
        if (built)
            EXPECT_TRUE(errors.seen.empty() || errors.seen[0] == "modAddinPrefsManagement.ReadToolbarState [50000]");
        else
            EXPECT_EQ(errors.seen, report);
    }
    vbe->bars = nullptr;
    EXPECT_FALSE(toolbars.SetupSupportToolbar());
    EXPECT_EQ(errors.seen.back(), "modToolbarManagement.SetupSupportToolbar [91]");
}

/// A store of the user that cannot be opened.
struct ClosedStore : test::MemoryRegistry {
    std::int32_t RegOpenKeyEx(std::uint32_t, const std::string&, std::uint32_t, std::uint32_t&) override {
        return fernwick::ERROR_ACCESS_DENIED;
    }
    std::int32_t RegCreateKeyEx(std::uint32_t, const std::string&, std::uint32_t, std::uint32_t&,
                                std::uint32_t&) override {
        return fernwick::ERROR_ACCESS_DENIED;
    }
};

TEST_F(Toolbars, AStoreThatCannotBeOpenedIsIgnored) {
    toolbars.SetupQuinloftToolbar();
    ClosedStore closed;
    fernwick::modRegistry2 closedRegistry{closed};
    fernwick::modAddinPrefsManagement noPrefs{closedRegistry, errors};
    const auto effects = effectsOf([&] {
        trace.calls = 0;
        noPrefs.SaveToolbarState(items.gMainToolbar);
        EXPECT_EQ(trace.calls, 0); // nothing is asked of the bar
        EXPECT_FALSE(noPrefs.ReadToolbarState(items.gMainToolbar));
    });
    EXPECT_THAT(effects, IsEmpty());
    EXPECT_THAT(errors.seen, IsEmpty());
}

} // namespace
