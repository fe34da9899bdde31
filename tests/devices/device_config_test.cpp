#include "devices_world.h"

using namespace fernwick;

namespace {

using Texts = std::vector<std::string>;

struct DeviceConfig : test::DevicesTest {
    basic::Ref<test::ListedTarget> target = addTarget("Palm");

    /// Registers a control completely: identifier, class and library.
    void installControl(const std::string& clsid, const std::string& progId, const std::string& category) {
        registerServer(clsid);
        classes.progIds[clsid] = progId;
        classes.libraries["/q/Tavlets.dll"] = {"Tavlets", "/q/Tavlets.dll", "", 1, 0, ""};
        support(clsid, category);
    }
    void registerServer(const std::string& clsid, const std::string& path = "/q/Tavlets.dll") {
        registry.set(HKEY_CLASSES_ROOT, "CLSID\\" + clsid + "\\InprocServer32", "", path);
    }
    void support(const std::string& clsid, const std::string& category) {
        target->clsids.push_back(clsid);
        target->categories.push_back(category);
    }
    void storeGroup(const std::string& category, const std::string& position) {
        registry.set(HKEY_LOCAL_MACHINE, "SOFTWARE\\Quinloft\\AddinPrefs\\TavletGroups", category, position);
    }
    clsDeviceConfig read() {
        clsDeviceConfig config{deviceServices};
        config.ReadDeviceConfig("Palm");
        return config;
    }
    static Texts progIdsOf(const clsDeviceConfig& config) {
        Array<ValidTavlet> tavlets;
        config.GetDeviceTavlets(tavlets);
        Texts progIds;
        for (const auto& tavlet : tavlets) progIds.push_back(tavlet.progID);
        return progIds;
    }
    static std::int32_t tavletCount(const clsDeviceConfig& config) {
        Array<ValidTavlet> tavlets;
        return config.GetDeviceTavlets(tavlets);
    }
};

} // namespace

TEST_F(DeviceConfig, ReadsEveryFieldOfTheTarget) {
    const auto config = read();
    EXPECT_EQ(config.DeviceKey, "Palm");
    EXPECT_EQ(config.DeviceName, "&Palm OS");
    EXPECT_EQ(config.defaultFormHeight, 160);
    EXPECT_EQ(config.DefaultFormWidth, 160);
    EXPECT_EQ(config.DefaultFormColor, 16777215);
    EXPECT_EQ(config.RequiredPipeProgID, "QLPipePalmOS");
    EXPECT_EQ(config.TavletStyleID, 1);
    EXPECT_EQ(config.DefaultFontName, "QLPalm");
    EXPECT_EQ(config.DefaultFontSize, 12);
    EXPECT_TRUE(user.sawNothing());
    EXPECT_TRUE(reports().empty());
}

TEST_F(DeviceConfig, TheFontStyleIsTheOneFieldWithADefault) {
    EXPECT_EQ(read().DefaultFontStyle, 0);
    target->options["DefaultFontStyle"] = "bold";
    EXPECT_EQ(read().DefaultFontStyle, 0);
    target->options["DefaultFontStyle"] = "3";
    EXPECT_EQ(read().DefaultFontStyle, 3);
    EXPECT_TRUE(reports().empty());
}

TEST_F(DeviceConfig, ReportsAnInvalidNumberAndReadsTheRest) {
    target->height = "tall";
    const auto config = read();
    EXPECT_EQ(config.defaultFormHeight, 0);
    EXPECT_EQ(config.DefaultFormWidth, 160);
    EXPECT_EQ(reports(), Texts{"clsDeviceConfig.ReadDeviceConfig [13]"});
}

TEST_F(DeviceConfig, AnUnknownKeyLeavesAllButTheKey) {
    auto config = read();
    config.ReadDeviceConfig("Nobody");
    EXPECT_EQ(config.DeviceKey, "Nobody");
    EXPECT_EQ(config.DeviceName, "&Palm OS");
}

TEST_F(DeviceConfig, WithoutAManagerNothingIsRead) {
    withoutManager();
    const auto config = read();
    EXPECT_EQ(config.DeviceKey, "");
    EXPECT_EQ(reports().size(), 2U); // by the constructor and by the read
}

TEST_F(DeviceConfig, NoTavletsButReferences) {
    target->references = {"{A}", "{B}"};
    const auto config = read();
    EXPECT_EQ(tavletCount(config), 0);
    EXPECT_EQ(progIdsOf(config), Texts{});
    Array<tReference> references;
    EXPECT_EQ(config.GetDeviceReferences(references), 2);
    EXPECT_EQ(references.LBound(), 1);
    EXPECT_EQ(references[2].GUID, "{B}");
    EXPECT_EQ(references[2].Name, "");
    EXPECT_EQ(references[2].Value, 1);
}

TEST_F(DeviceConfig, ResolvesAControl) {
    installControl("{1}", "Tavlets.QLLabel.1", "");
    Array<ValidTavlet> tavlets;
    EXPECT_EQ(read().GetDeviceTavlets(tavlets), 1);
    const auto& label = tavlets[1];
    EXPECT_EQ(label.CLSID, "{1}");
    EXPECT_EQ(label.VBProgID, "TavletsCtl.QLLabel");
    EXPECT_EQ(label.progID, "Tavlets.QLLabel.1");
    EXPECT_EQ(label.TypeLibName, "TavletsCtl");
    EXPECT_EQ(label.FileName, "/q/Tavlets.dll");
    EXPECT_EQ(label.CategoryName, "Other");
}

TEST_F(DeviceConfig, WithoutGroupsKeepsTheTargetsOrder) {
    installControl("{1}", "T.Second", "Z");
    installControl("{2}", "T.First", "A");
    EXPECT_EQ(progIdsOf(read()), (Texts{"T.Second", "T.First"}));
}

TEST_F(DeviceConfig, GroupsOrderTheListWithoutTheLastOne) {
    installControl("{1}", "T.Last", "End");
    installControl("{2}", "T.B", "Second");
    installControl("{3}", "T.A", "First");
    installControl("{4}", "T.C", "Unknown");
    installControl("{5}", "T.D", "first"); // letter case counts
    storeGroup("First", "1");
    storeGroup("Second", "2");
    storeGroup("End", "3");
    EXPECT_EQ(progIdsOf(read()), (Texts{"T.A", "T.B", "", "", ""}));
}

TEST_F(DeviceConfig, ReportsAMissingPosition) {
    installControl("{1}", "T.A", "First");
    storeGroup("First", "2");
    storeGroup("End", "4");
    storeGroup("More", "5");
    EXPECT_EQ(progIdsOf(read()), Texts{"T.A"});
    EXPECT_EQ(reports(), Texts{"clsDeviceConfig.ReadSupportedTavlets [5]"});
}

TEST_F(DeviceConfig, AControlWithoutAServerKey) {
    classes.progIds["{1}"] = "T.A";
    support("{1}", "");
    user.expectBox("Could not get ProgID of T.A\r\ndefined in Palm");
    const auto config = read();
    EXPECT_EQ(tavletCount(config), 0);
    EXPECT_EQ(progIdsOf(config), Texts{"T.A"}); // the entry remains
}

TEST_F(DeviceConfig, AControlWithoutAProgId) {
    registerServer("{1}");
    support("{1}", "");
    installControl("{2}", "T.B", "");
    user.expectBox("Could not get ProgID of \r\ndefined in Palm");
    const auto config = read();
    EXPECT_EQ(tavletCount(config), 1);
    EXPECT_EQ(progIdsOf(config), (Texts{"", "T.B"}));
}

TEST_F(DeviceConfig, AControlWithAnInvalidClass) {
    registerServer("nonsense");
    support("nonsense", "");
    user.expectBox("Could not get ProgID of \r\ndefined in Palm");
    EXPECT_EQ(tavletCount(read()), 0);
}

TEST_F(DeviceConfig, AControlWithoutATypeLibrary) {
    classes.progIds["{1}"] = "T.A";
    registerServer("{1}", "/q/missing.dll");
    support("{1}", "");
    user.expectBox("Could not load Type Library \r\ndefined in Palm");
    EXPECT_EQ(tavletCount(read()), 0);
}

TEST_F(DeviceConfig, ShorterListsThanCountedAreReported) {
    installControl("{1}", "T.A", "");
    target->categories.clear();
    EXPECT_EQ(progIdsOf(read()), Texts{"T.A"});
    EXPECT_EQ(reports(), Texts{"clsDeviceConfig.ReadSupportedTavlets [9]"});
}

TEST_F(DeviceConfig, TheNameOfTheSystemInAnOldKey) {
    EXPECT_EQ(clsDeviceConfig::GetOSName("SOFTWARE\\Quinloft\\DesignTargets\\PalmOS\\3.5"), "PalmOS");
    EXPECT_EQ(clsDeviceConfig::GetOSName("SOFTWARE\\Quinloft\\DesignTargets\\PocketPC"), "PocketPC");
}
