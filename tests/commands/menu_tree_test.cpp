// The menu on the real host.
#include "Host/model/bars/bars.h"
#include "commands_world.h"
#include "tests/support/test_host.h"

using testing::ElementsAre;

namespace {

class MenuTree : public testing::Test, protected test::CommandsWorld {
protected:
    MenuTree() { addIn.gVBInstance = host.ide; }

    bool buildOnHost() { return menu.SetUpQuinloftMenu(host.ide); }
    /// One line for each item: "--" if it begins a group, caption, face; items of popups are indented.
    static std::string text(const test::Ref<office::CommandBarControls>& controls, const std::string& indent = "") {
        std::string all;
        for (const auto& control : controls->items()) {
            const auto own = basic::cast<host::BarControl>(control);
            all += indent + (control->BeginGroup() ? "--" : "") + control->Caption();
            if (!own->face().empty()) all += " " + std::to_string(own->face()[57]);
            all += "\n";
            if (control->Type() == office::msoControlPopup) all += text(control->Controls(), indent + "  ");
        }
        return all;
    }
    test::Ref<office::CommandBarControls> bar() { return host.ide->CommandBars()->ActiveMenuBar()->Controls(); }
    std::vector<std::string> barCaptions() {
        std::vector<std::string> all;
        for (const auto& control : bar()->items()) all.push_back(control->Caption());
        return all;
    }
    std::string popupText(const std::string& caption) {
        return text(bar()->Item("Fernwick")->Controls()->Item(caption)->Controls());
    }
    test::TestHost host{nullptr, &pasteboard};
};

TEST_F(MenuTree, IsBeforeAddInsWithAllItems) {
    targets.known = {"Palm-1"};
    EXPECT_TRUE(buildOnHost());
    EXPECT_THAT(barCaptions(), ElementsAre("&File", "&Edit", "&View", "&Project", "&Fernwick", "&Add-Ins", "&Help"));
    EXPECT_EQ(items.gMainMenu->Tag(), "&Fernwick");
    EXPECT_EQ(text(items.gMainMenu->Controls()), "Compile and &Validate 109\n"
                                                 "&Deploy To Device\n"
                                                 "  &Palm-1 110\n"
                                                 "  --&To My Devices\n"
                                                 "Save &Project Package...\n"
                                                 "  &Palm-1\n"
                                                 "  --&To My Devices\n"
                                                 "Fernwick &Settings... 108\n"
                                                 "--Download Tamarik...\n"
                                                 "--Install &Tamarik To Device...\n"
                                                 "  &Palm-1\n"
                                                 "  --&To My Devices\n"
                                                 "--&Open Fernwick Project... 122\n"
                                                 "--&Zoom Window 112\n"
                                                 "Fernwick &Messages Window\n"
                                                 "--Quinloft &Utilities\n"
                                                 "  &Database Converter 113\n"
                                                 "  &PDB Database Viewer 121\n"
                                                 "  &Font Converter 114\n"
                                                 "  F&ont Viewer 115\n"
                                                 "  &Graphic Converter 116\n"
                                                 "  G&raphic Viewer 117\n"
                                                 "  &Movie Converter 118\n"
                                                 "  Mo&vie Viewer 119\n"
                                                 "  --&Weirgate Configuration 120\n"
                                                 "--Fernwick User's &Guide... 111\n"
                                                 "Samples and Tutorials\n"
                                                 "  Introduction to Fernwick\n"
                                                 "  Hello World Tutorial\n"
                                                 "  --Open samples directory 124\n"
                                                 "Quinloft on the &Web...\n"
                                                 "--&About Fernwick...\n");
}

TEST_F(MenuTree, TheDownloadStaysDisabled) {
    buildOnHost();
    EXPECT_FALSE(items.gDownloadItem->Enabled());
    EXPECT_FALSE(items.gDownloadItem->Visible());
    EXPECT_TRUE(items.gInstallPopup->Visible());
    EXPECT_TRUE(items.gSettingsItem->Enabled());
}

TEST_F(MenuTree, KeepsTheHostsOwnFileCommands) {
    buildOnHost();
    EXPECT_EQ(items.gFileThirdItem->Caption(), "Sa&ve Project");
    EXPECT_EQ(items.gFileFourthItem->Caption(), "&Remove Project");
}

TEST_F(MenuTree, WithoutTargetsEachPopupSaysSo) {
    EXPECT_TRUE(buildOnHost());
    for (const auto* popup : {"Deploy To Device", "Save Project Package...", "Install Tamarik To Device..."})
        EXPECT_EQ(popupText(popup), "No Available Devices\n--&To My Devices\n");
    EXPECT_TRUE(items.gDeployItems[0]->Enabled());
    EXPECT_EQ(items.gDeployItems[0]->Tag(), "");
    EXPECT_EQ(items.gInstallItems.UBound(), 0);
}

TEST_F(MenuTree, ATargetThatIsNotUsableIsNotOffered) {
    targets.known = {"Palm-1", "Pocket-1"};
    targets.refused = {"Palm-1"};
    buildOnHost();
    EXPECT_EQ(popupText("Deploy To Device"), "&Pocket-1 110\n--&To My Devices\n");
}

TEST_F(MenuTree, EachFamilyHasOneItemSortedByItsKey) {
    targets.known = {"Pocket-9", "Palm-2", "Palm-1", "Pocket-1", "Linux"};
    buildOnHost();
    EXPECT_EQ(popupText("Save Project Package..."), "&Linux\n&Palm-2\n&Pocket-9\n--&To My Devices\n");
    for (const auto* family : {&items.gDeployItems, &items.gPackageItems, &items.gInstallItems}) {
        EXPECT_EQ((*family)[0]->Tag(), "Linux");
        EXPECT_EQ((*family)[2]->Tag(), "Pocket-9");
        EXPECT_EQ(family->UBound(), 2);
    }
}

TEST_F(MenuTree, HasItemsForTwelveFamilies) {
    for (int i = 10; i < 22; ++i) targets.known.push_back("F" + std::to_string(i) + "-1");
    buildOnHost();
    EXPECT_EQ(items.gDeployPopup->Controls()->Count(), 13);
    EXPECT_EQ(items.gInstallItems[11]->Tag(), "F21-1");
}

TEST_F(MenuTree, ReplacesAMenuFromAnEarlierRun) {
    buildOnHost();
    const auto old = items.gMainMenu;
    buildOnHost();
    EXPECT_EQ(barCaptions().size(), 7U);
    EXPECT_NE(old, items.gMainMenu);
    EXPECT_NE(basic::attempt([&] { old->Caption(); }).Number, 0);
}

TEST_F(MenuTree, TheToolbarsOfTheSameNamesLeaveItAlone) {
    buildOnHost();
    EXPECT_TRUE(toolbars.SetupQuinloftToolbar());
    EXPECT_TRUE(toolbars.SetupSupportToolbar());
    EXPECT_EQ(barCaptions().size(), 7U);
    EXPECT_EQ(popupText("Quinloft Utilities").substr(0, 19), "&Database Converter");
}

TEST_F(MenuTree, AMissingFaceLeavesTheItem) {
    fernwick::Platform bare{user,       loop,  registry, files,   processes, classes,   environment,
                            pasteboard, shell, screen,   windows, clock,     resources, platform.app};
    fernwick::modImageManagement noImages{bare};
    fernwick::modMenuManagement plainMenu{{user, errors, addIn, registry2, devices, noImages, items}};
    EXPECT_TRUE(plainMenu.SetUpQuinloftMenu(host.ide));
    EXPECT_EQ(popupText("Samples and Tutorials"),
              "Introduction to Fernwick\nHello World Tutorial\n--Open samples directory\n");
}

TEST_F(MenuTree, TheAcceleratorsOfAPopupAreItsOwn) {
    targets.known = {"Palm-1"};
    buildOnHost();
    const auto accelerators = [](const test::Ref<office::CommandBarControl>& popup) {
        std::string all;
        for (const auto& item : popup->Controls()->items())
            if (const auto mark = item->Caption().find('&'); mark != std::string::npos)
                all += char(std::toupper(item->Caption()[mark + 1]));
        return all;
    };
    EXPECT_EQ(accelerators(items.gMainMenu), "VDPSTOZMUGWA");
    EXPECT_EQ(accelerators(items.gUtilitiesPopup), "DPFOGRMVW");
}

using Keys = std::vector<std::string>;

Keys topDevices(Keys keys) {
    fernwick::modMenuManagement::kludgeForTopDevices(keys);
    return keys;
}

TEST(TopDevices, AreTheFirstOfEachFamily) {
    EXPECT_THAT(topDevices({"Palm-2", "Palm-1", "Pocket-1", "Palm-3-x"}), ElementsAre("Palm-2", "Pocket-1"));
    EXPECT_THAT(topDevices({"Palm-1", "palm-1"}), ElementsAre("Palm-1", "palm-1"));
    EXPECT_TRUE(topDevices({}).empty());
}

TEST(TopDevices, KeepEachKeyWithoutAFamily) {
    EXPECT_THAT(topDevices({"Palm", "Palm", "Palm-1", "Palm-2"}), ElementsAre("Palm", "Palm", "Palm-1"));
    EXPECT_THAT(topDevices({"Palm-1", "Palm"}), ElementsAre("Palm-1", "Palm"));
}

TEST(TopDevices, AreSortedByteForByte) {
    Keys keys{"b", "a-2", "B", "a"};
    fernwick::modMenuManagement::SortDeviceList(keys);
    EXPECT_THAT(keys, ElementsAre("B", "a", "a-2", "b"));
}

} // namespace
