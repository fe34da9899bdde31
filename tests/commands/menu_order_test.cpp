// The order of steps when the menu is built, and failures of the building.
#include "commands_world.h"

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

namespace {

class MenuOrder : public testing::Test, protected test::CommandsWorld {
protected:
    std::vector<std::string> built() {
        return effectsOf([&] { built_ = build(); });
    }
    /// The effects of a whole build on items whose captions begin with this.
    std::vector<std::string> builtItem(const std::string& beginning) {
        std::vector<std::string> some;
        const auto all = built();
        for (std::size_t i = 1; i < all.size(); ++i) {
            if (all[i].starts_with("?: caption " + beginning)) some.push_back(all[i - 1]);
            if (all[i].starts_with("?: caption " + beginning) || all[i].starts_with(test::plain(beginning) + ":"))
                some.push_back(all[i]);
        }
        return some;
    }
    bool built_ = false;
};

TEST_F(MenuOrder, TheMenuIsMadeBeforeItsItems) {
    auto effects = built();
    effects.resize(6);
    EXPECT_THAT(effects, ElementsAre("Menu Bar: + popup before 3", "?: caption &Fernwick", "Fernwick: tag &Fernwick",
                                     "Fernwick: + button", "?: caption Compile and &Validate",
                                     "Compile and Validate: no group"));
    EXPECT_TRUE(built_);
}

TEST_F(MenuOrder, AnItemGetsItsCaptionItsGroupAndItsFace) {
    EXPECT_THAT(builtItem("&Zoom Window"),
                ElementsAre("Fernwick: + button", "?: caption &Zoom Window", "Zoom Window: no group",
                            "Zoom Window: group", "Zoom Window: face"));
}

TEST_F(MenuOrder, AddsAndHidesTheDownload) {
    EXPECT_THAT(builtItem("Download Tamarik..."),
                ElementsAre("Fernwick: + button", "?: caption Download Tamarik...", "Download Tamarik...: no group",
                            "Download Tamarik...: group", "Download Tamarik...: disabled",
                            "Download Tamarik...: hidden"));
}

TEST_F(MenuOrder, APopupIsFilledBeforeTheNextItem) {
    targets.known = {"Palm-1"};
    const auto all = built();
    const std::vector<std::string> deploy(std::find(all.begin(), all.end(), "?: caption &Deploy To Device"),
                                          std::find(all.begin(), all.end(), "?: caption Save &Project Package..."));
    EXPECT_THAT(deploy, ElementsAre("?: caption &Deploy To Device", "Deploy To Device: + button", "?: caption &Palm-1",
                                    "Palm-1: no group", "Palm-1: tag Palm-1", "Palm-1: face",
                                    "Deploy To Device: + button", "?: caption &To My Devices",
                                    "To My Devices: no group", "To My Devices: group", "Fernwick: + popup"));
}

TEST_F(MenuOrder, TheOtherFamiliesHaveNoFaces) {
    targets.known = {"Palm-1"};
    built();
    EXPECT_EQ(std::count(pictures.loaded.begin(), pictures.loaded.end(), 110), 1);
}

TEST_F(MenuOrder, AnOldMenuIsDeletedFirst) {
    menuBar()->addControl(7, "&Fernwick");
    EXPECT_EQ(built()[0], "Fernwick: deleted");
    EXPECT_EQ(built()[0], "Fernwick: deleted");
    EXPECT_THAT(errors.seen, IsEmpty());
}

TEST_F(MenuOrder, WithoutItsViewMenuTheBarIsFoundByAddIns) {
    bars->list.front()->items.erase(bars->list.front()->items.begin() + 1);
    bars->menuBar = nullptr;
    EXPECT_EQ(built()[0], "Menu Bar: + popup before 2");
}

TEST_F(MenuOrder, TheBarOfTheViewMenuComesFirst) {
    bars->addBar("Other Bar")->addControl(30038, "&Add-Ins");
    std::erase_if(menuBar()->items, [](const auto& item) { return item->caption == "&Add-Ins"; });
    EXPECT_EQ(built()[0], "Menu Bar: + popup");
}

TEST_F(MenuOrder, WithoutEitherTheMenuGoesToTheEndOfTheActiveBar) {
    menuBar()->items.resize(1);
    EXPECT_EQ(built()[0], "Menu Bar: + popup");
    EXPECT_EQ(captions(menuBar()).back(), "&Fernwick");
}

TEST_F(MenuOrder, WithoutAMenuBarInformsTheUser) {
    menuBar()->items.clear();
    bars->menuBar = nullptr;
    EXPECT_THAT(built(), ElementsAre("box 16 ERROR: Could not Add Fernwick Tools Submenu: CRITICAL_ERROR: Could not "
                                     "find main menu named 'Menu Bar'\r\n\r\n (0)"));
    EXPECT_FALSE(built_);
    EXPECT_FALSE(items.gFileThirdItem);
}

TEST_F(MenuOrder, ShowsTheErrorOfTheSearch) {
    vbe->bars = nullptr;
    EXPECT_THAT(built(),
                ElementsAre(HasSubstr("'Menu Bar'\r\n\r\nObject variable or With block variable not set (91)")));
}

TEST_F(MenuOrder, ALaterFailureGoesToTheCaller) {
    std::erase_if(bars->list, [](const auto& bar) { return bar->name == "File"; });
    EXPECT_EQ(basic::attempt([&] { build(); }).Number, 5);
    EXPECT_TRUE(items.gMainMenu);
    EXPECT_FALSE(items.gCompileItem);
    EXPECT_THAT(errors.seen, IsEmpty());
}

TEST_F(MenuOrder, TheNextBuildReplacesAFailedOne) {
    targets.known = {"Palm-1"};
    addSample("\\A", "", "A");
    build();
    const auto whole = captions(shownMenu());
    for (int failing = 1;; ++failing) {
        trace.calls = 0;
        trace.failing = failing;
        const auto error = basic::attempt([&] { build(); });
        trace.failing = 0;
        if (trace.calls < failing) break;
        EXPECT_TRUE(error.Number == 0 || error.Number == test::kInjected) << failing;
        EXPECT_TRUE(build());
        EXPECT_EQ(captions(shownMenu()), whole) << failing;
        // remove what could not be deleted or has no caption yet
        std::erase_if(menuBar()->items, [](const auto& item) { return item->Id() == 1; });
    }
}

} // namespace
