// The menu with and without a project, its removal, the design target's item and the importer's.
#include "commands_world.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class MenuState : public testing::Test, protected test::CommandsWorld {
protected:
    MenuState() {
        targets.known = {"Palm-1", "Palm-2", "Pocket-1"}; // two families
        build();
        trace.effects.clear();
    }
    std::vector<std::string> enabled() {
        return effectsOf([&] { menu.EnableQuinloftMenu(); });
    }
    std::vector<std::string> disabled() {
        return effectsOf([&] { menu.DisableQuinloftMenu(); });
    }
    std::vector<std::string> removed() {
        return effectsOf([&] { menu.RemoveQuinloftMenu(); });
    }
    /// Each failing call of `act` loses its own effect only. Returns the number of calls.
    int sweep(const std::function<void()>& again, const std::function<std::vector<std::string>()>& act, int reports) {
        again();
        const auto before = act();
        for (int failing = 1;; ++failing) {
            again();
            errors.injected = 0;
            trace.calls = 0;
            trace.failing = failing;
            const auto now = act();
            trace.failing = 0;
            if (trace.calls < failing) return failing - 1;
            EXPECT_LE(test::lost(before, now).size(), 1U) << failing;
            EXPECT_LE(errors.injected, reports) << failing;
        }
    }
    void rebuild() {
        menu.RemoveQuinloftMenu();
        build();
    }
};

TEST_F(MenuState, EnablesInOrderExceptTheLastInstallItem) {
    EXPECT_THAT(
        enabled(),
        ElementsAre("Compile and Validate: enabled", "To My Devices: enabled", "Save Project Package...: enabled",
                    "To My Devices: enabled", "Deploy To Device: enabled", "Fernwick Settings...: enabled",
                    "To My Devices: enabled", "Install Tamarik To Device...: enabled", "Download Tamarik...: disabled",
                    "Zoom Window: enabled", "Fernwick Messages Window: enabled", "Movie Converter: enabled",
                    "Quinloft Utilities: enabled", "Database Converter: enabled", "PDB Database Viewer: enabled",
                    "Font Converter: enabled", "Font Viewer: enabled", "Graphic Converter: enabled",
                    "Graphic Viewer: enabled", "Movie Viewer: enabled", "Palm-1: enabled", "Pocket-1: enabled",
                    "Palm-1: enabled", "Pocket-1: enabled", "Palm-1: enabled"));
}

TEST_F(MenuState, DisablesOnlyWhatNeedsAProject) {
    EXPECT_THAT(disabled(),
                ElementsAre("Compile and Validate: disabled", "To My Devices: disabled",
                            "Save Project Package...: disabled", "To My Devices: disabled",
                            "Deploy To Device: disabled", "Fernwick Settings...: disabled", "Zoom Window: disabled",
                            "Fernwick Messages Window: disabled", "Palm-1: disabled", "Pocket-1: disabled",
                            "Palm-1: disabled", "Pocket-1: disabled"));
    EXPECT_THAT(errors.seen, IsEmpty()); // three targets, two items each
}

TEST_F(MenuState, WithoutUsableTargetsTheDeviceItemsStay) {
    targets.known.clear();
    EXPECT_EQ(disabled().back(), "Fernwick Messages Window: disabled");
}

TEST_F(MenuState, RemovesTheDevicesFirstAndTheMenuLast) {
    EXPECT_THAT(removed(),
                ElementsAre("Palm-1: deleted", "Pocket-1: deleted", "Palm-1: deleted", "Pocket-1: deleted",
                            "Palm-1: deleted", "Pocket-1: deleted", "Compile and Validate: deleted",
                            "To My Devices: deleted", "Save Project Package...: deleted", "To My Devices: deleted",
                            "Deploy To Device: deleted", "Open Fernwick Project...: deleted",
                            "Fernwick Settings...: deleted", "To My Devices: deleted", "Download Tamarik...: deleted",
                            "Install Tamarik To Device...: deleted", "Fernwick User's Guide...: deleted",
                            "Quinloft on the Web...: deleted", "About Fernwick...: deleted", "Fernwick: deleted"));
    EXPECT_FALSE(menuBar()->at("Fernwick"));
}

TEST_F(MenuState, IgnoresDeletedItems) {
    items.gSettingsItem->Delete();
    items.gDeployItems[0]->Delete();
    EXPECT_THAT(disabled(), testing::Contains("Zoom Window: disabled"));
    EXPECT_EQ(removed().back(), "Fernwick: deleted");
    EXPECT_THAT(errors.seen, IsEmpty());
}

TEST_F(MenuState, WithoutAMenuNothingHappens) {
    items = {};
    EXPECT_THAT(enabled(), IsEmpty());
    EXPECT_THAT(disabled(), IsEmpty());
    EXPECT_THAT(removed(), IsEmpty());
    menu.SetupDefaultTargetName("Palm-1");
    EXPECT_FALSE(menu.FindConverterMenuItem());
    EXPECT_THAT(errors.seen, IsEmpty());
}

TEST_F(MenuState, EachCallOfEnablingThatFailsIsReported) {
    EXPECT_GE(sweep([] {}, [&] { return enabled(); }, 1), 25);
    EXPECT_EQ(errors.seen.front(), "modMenuManagement.EnableQuinloftMenu [50000]");
}

TEST_F(MenuState, EachCallOfDisablingThatFailsIsIgnored) {
    sweep([] {}, [&] { return disabled(); }, 1);
    for (const auto& seen : errors.seen) EXPECT_THAT(seen, testing::StartsWith("modDeviceManagement."));
}

TEST_F(MenuState, EachCallOfRemovingThatFailsIsIgnored) {
    sweep([&] { rebuild(); }, [&] { return removed(); }, 1);
    for (const auto& seen : errors.seen) EXPECT_THAT(seen, testing::StartsWith("modDeviceManagement."));
}

TEST_F(MenuState, OnlyTheOwnTargetShowsItsFace) {
    toolbars.SetupQuinloftToolbar();
    EXPECT_THAT(effectsOf([&] { menu.SetupDefaultTargetName("Pocket-1"); }),
                ElementsAre("Palm-1: style 2", "Pocket-1: style 3", "?: tip Deploy to &Pocket-1"));
    EXPECT_THAT(effectsOf([&] { menu.SetupDefaultTargetName("gone"); }),
                ElementsAre("Palm-1: style 2", "Pocket-1: style 2", "?: tip Deploy to "));
}

TEST_F(MenuState, EachCallOfTheOwnTargetThatFailsIsReported) {
    toolbars.SetupQuinloftToolbar();
    sweep([] {}, [&] { return effectsOf([&] { menu.SetupDefaultTargetName("Pocket-1"); }); }, 1);
    EXPECT_EQ(errors.seen.back(), "modMenuManagement.SetupDefaultTargetName [50000]");
}

TEST_F(MenuState, TheImportersItemIsTheLastThatMatches) {
    const auto add = [&](const std::string& caption) {
        return fernwick::modMenuManagement::AddToAddInCommandBar(items.gUtilitiesPopup, caption);
    };
    EXPECT_FALSE(menu.FindConverterMenuItem());
    const auto first = add("Fernwick Project Converter");
    EXPECT_EQ(menu.FindConverterMenuItem(), first);
    const auto last = add("The Fernwick Project Converter..."); // contains the words
    add("fernwick project converter");
    add("Fernwick Project");
    EXPECT_EQ(menu.FindConverterMenuItem(), last);
    EXPECT_EQ(items.gConverterItem, last);
    last->Caption("other");
    shownMenu("Quinloft Utilities")->items.clear();
    EXPECT_EQ(menu.FindConverterMenuItem(), last); // unchanged
}

TEST_F(MenuState, AnImporterThatCantBeLookedUpIsReported) {
    items.gUtilitiesPopup->Delete();
    trace.calls = 0;
    trace.failing = 1;
    EXPECT_FALSE(menu.FindConverterMenuItem());
    EXPECT_THAT(errors.seen, ElementsAre("modMenuManagement.FindConverterMenuItem [50000]"));
}

} // namespace
