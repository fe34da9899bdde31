#include "core_world.h"
#include <sstream>

using namespace fernwick;

namespace {
using Preferences = test::CoreTest;
using Texts = std::vector<std::string>;
} // namespace

TEST_F(Preferences, DefaultsWhereNothingIsStored) {
    EXPECT_TRUE(prefs.GetStartTutorial());
    EXPECT_TRUE(addIn.GetQuinloftSaveWarning());
    EXPECT_FALSE(prefs.GetQuinloftCompileWarning());
    EXPECT_EQ(prefs.GetRecentProjColWidth(), -1);
    EXPECT_EQ(prefs.GetProjectManagerState(), 0);
    EXPECT_EQ(prefs.GetZoomWinState(), 1);
    prefs.loadMyDevices();
    EXPECT_TRUE(prefs.gMyDevices.empty());
    EXPECT_TRUE(errors.seen.empty());
}

TEST_F(Preferences, WhatIsSetIsRead) {
    prefs.SetZoomWinState(1);
    prefs.GetZoomWinState(); // creates the key
    prefs.SetZoomWinState(0);
    EXPECT_EQ(prefs.GetZoomWinState(), 0);
    prefs.SetQuinloftCompileWarning(true);
    EXPECT_TRUE(prefs.GetQuinloftCompileWarning());
    EXPECT_EQ(stored(kUser, kAddIn, "CompileWarning"), "4:1");
    prefs.SetQuinloftCompileWarning(false);
    EXPECT_FALSE(prefs.GetQuinloftCompileWarning());
    prefs.SetRecentProjColWidth(120);
    EXPECT_EQ(prefs.GetRecentProjColWidth(), 120);
    prefs.SetProjectManagerState(3);
    EXPECT_EQ(prefs.GetProjectManagerState(), 3);
}

TEST_F(Preferences, TheSaveWarningStoresTrueAsMinusOne) {
    addIn.SetQuinloftSaveWarning(true);
    EXPECT_EQ(stored(kUser, kAddIn, "SaveWarning"), "4:-1");
    EXPECT_TRUE(addIn.GetQuinloftSaveWarning());
    addIn.SetQuinloftSaveWarning(false);
    EXPECT_EQ(stored(kUser, kAddIn, "SaveWarning"), "4:0");
    EXPECT_FALSE(addIn.GetQuinloftSaveWarning());
}

TEST_F(Preferences, ASaveWarningStoredAsTextIsTrue) {
    setText(kUser, kAddIn, "SaveWarning", "0");
    EXPECT_TRUE(addIn.GetQuinloftSaveWarning());
}

TEST_F(Preferences, ReadingTheSaveWarningCreatesItsKey) {
    addIn.GetQuinloftSaveWarning();
    EXPECT_TRUE(RegistryKey(registry, registry.OpenKey(kUser, kAddIn, KEY_READ)));
}

TEST_F(Preferences, AReadOnlyStoreGivesDefaults) {
    store.readOnlyRoots.insert(kUser);
    EXPECT_TRUE(addIn.GetQuinloftSaveWarning());
    addIn.SetQuinloftSaveWarning(false);
    prefs.SetQuinloftCompileWarning(true);
    EXPECT_FALSE(prefs.GetQuinloftCompileWarning());
    EXPECT_EQ(prefs.GetZoomWinState(), 1);
    prefs.gMyDevices = {"PalmOS"};
    EXPECT_TRUE(prefs.saveMyDevices());
    EXPECT_TRUE(errors.seen.empty());
}

TEST_F(Preferences, ACompileWarningStoredAsTextIsFalse) {
    setText(kUser, kAddIn, "CompileWarning", "1");
    EXPECT_FALSE(prefs.GetQuinloftCompileWarning());
}

TEST_F(Preferences, AnUnknownZoomStateIsCorrectedWhenRead) {
    setText(kUser, kPrefs, "ZoomWinState", "2");
    EXPECT_EQ(prefs.GetZoomWinState(), 1);
    EXPECT_EQ(stored(kUser, kPrefs, "ZoomWinState"), "1:1");
}

TEST_F(Preferences, AColumnWidthOfZeroIsRewritten) {
    setNumber(kUser, kAddIn, "RecProjColW", 0);
    EXPECT_EQ(prefs.GetRecentProjColWidth(), -1);
    EXPECT_EQ(stored(kUser, kAddIn, "RecProjColW"), "4:-1");
}

TEST_F(Preferences, AnInvalidNumberIsReportedAndTheDefault) {
    setText(kUser, kAddIn, "RecProjColW", "wide");
    setText(kUser, kAddIn, "ProjMgrState", "open");
    EXPECT_EQ(prefs.GetRecentProjColWidth(), -1);
    EXPECT_EQ(prefs.GetProjectManagerState(), 0);
    EXPECT_EQ(errors.seen, (Texts{"modAddinPrefsManagement.GetRecentProjColWidth [13]",
                                  "modAddinPrefsManagement.GetProjectManagerState [13]"}));
}

TEST_F(Preferences, TheTutorialBelongsToTheMachine) {
    setText(kMachine, kPrefs, "other", "");
    EXPECT_TRUE(prefs.GetStartTutorial());
    EXPECT_EQ(stored(kMachine, kPrefs, "StartTutorial"), "1:True");
    prefs.SetStartTutorial(false);
    EXPECT_EQ(stored(kMachine, kPrefs, "StartTutorial"), "1:False");
    EXPECT_FALSE(prefs.GetStartTutorial());
}

TEST_F(Preferences, WithoutAccessToTheMachineShowsTheTutorialEachTime) {
    setText(kMachine, kPrefs, "other", "");
    store.readOnlyRoots.insert(kMachine);
    EXPECT_TRUE(prefs.GetStartTutorial());
    prefs.SetStartTutorial(false);
    EXPECT_TRUE(prefs.GetStartTutorial());
    EXPECT_EQ(stored(kMachine, kPrefs, "StartTutorial"), "");
}

TEST_F(Preferences, AListOfDevicesThatCouldNotBeReadAgainIsNotSaved) {
    prefs.gMyDevices = {"PalmOS"};
    EXPECT_TRUE(prefs.saveMyDevices());
    prefs.gMyDevices.assign(65537, "PocketPC");
    EXPECT_FALSE(prefs.saveMyDevices());
    EXPECT_EQ(stored(kUser, kMyDevices, "MyDeviceCount"), "4:1");
    EXPECT_EQ(stored(kUser, kMyDevices, "MyDevice0"), "1:PalmOS");
    EXPECT_EQ(errors.seen, Texts{"modAddinPrefsManagement.saveMyDevices [6]"});
}

TEST_F(Preferences, AMissingDeviceLeavesNoGapAndSavingRenumbers) {
    setNumber(kUser, kMyDevices, "MyDeviceCount", 3);
    setText(kUser, kMyDevices, "MyDevice0", "PalmOS");
    setText(kUser, kMyDevices, "MyDevice2", "PocketPC");
    prefs.loadMyDevices();
    EXPECT_EQ(prefs.gMyDevices, (Texts{"PalmOS", "PocketPC"}));
    EXPECT_TRUE(prefs.saveMyDevices());
    EXPECT_EQ(stored(kUser, kMyDevices, "MyDeviceCount"), "4:2");
    EXPECT_EQ(stored(kUser, kMyDevices, "MyDevice1"), "1:PocketPC");
    EXPECT_EQ(stored(kUser, kMyDevices, "MyDevice2"), "1:PocketPC"); // beyond the count
}

TEST_F(Preferences, LoadingTwiceReplacesTheList) {
    prefs.gMyDevices = {"left over"};
    prefs.loadMyDevices();
    EXPECT_TRUE(prefs.gMyDevices.empty());
}

TEST_F(Preferences, ReportsAnInvalidDeviceCount) {
    setText(kUser, kMyDevices, "MyDeviceCount", "many");
    prefs.loadMyDevices();
    EXPECT_TRUE(prefs.gMyDevices.empty());
    EXPECT_EQ(errors.seen, Texts{"modAddinPrefsManagement.loadMyDevices [13]"});
}

TEST_F(Preferences, ADamagedDeviceCountIsAnEmptyList) {
    setText(kUser, kMyDevices, "MyDevice4", "PalmOS");
    setNumber(kUser, kMyDevices, "MyDeviceCount", 65536);
    prefs.loadMyDevices();
    EXPECT_EQ(prefs.gMyDevices, Texts{"PalmOS"});
    setNumber(kUser, kMyDevices, "MyDeviceCount", 65537);
    prefs.loadMyDevices();
    EXPECT_EQ(prefs.gMyDevices, Texts{});
}

TEST_F(Preferences, GroupsAreFoundByNameAndByPosition) {
    basic::Collection<std::string> names, positions;
    names.Add("left over");
    EXPECT_FALSE(prefs.CreateTavletCategoryList(names, positions));
    EXPECT_EQ(names.Count(), 0);

    setText(kMachine, kGroups, "Standard", "1");
    setText(kMachine, kGroups, "Lists", "2");
    setText(kMachine, kGroups, "Twice", "2");
    EXPECT_TRUE(prefs.CreateTavletCategoryList(names, positions));
    EXPECT_EQ(names.Item("1"), "Standard");
    EXPECT_EQ(names.Count(), 2); // the second one at a position is ignored
    EXPECT_EQ(positions.Item("twice"), "2");
    EXPECT_EQ(positions.Count(), 3);
}

TEST_F(Preferences, TheHostsAddressIsPublishedInCapitals) {
    std::vector<basic::Ref<test::TracedVbe>> hosts; // several: an address may have no letters
    for (int i = 0; i < 20; ++i) {
        hosts.push_back(basic::make<test::TracedVbe>(trace));
        addIn.SaveVBinstPointer(hosts.back());
        std::ostringstream address;
        address << std::uppercase << std::hex
                << reinterpret_cast<std::uintptr_t>(static_cast<vbide::VBE*>(hosts.back().shared().get()));
        EXPECT_EQ(environment.values["VBInstance-3AD1D370-2E73-417D-B685-0E1756D55411"], address.str());
    }
    addIn.SaveVBinstPointer(nullptr);
    EXPECT_EQ(environment.values["VBInstance-3AD1D370-2E73-417D-B685-0E1756D55411"], "0");
}

TEST_F(Preferences, EachOperationRequestsOnlyTheAccessThatItIsDescribedWith) {
    for (const auto* path : {kPrefs, kMyDevices, kAddIn}) setText(kUser, path, "other", "");
    for (const auto* path : {kPrefs, kGroups, "Software\\Quinloft", "SOFTWARE\\Quinloft\\Classes\\One"})
        setText(kMachine, path, "other", "");
    setText(kUser, kPrefs, "ZoomWinState", "1");
    setText(kMachine, kPrefs, "StartTutorial", "True");
    basic::Collection<std::string> names, positions;
    const auto bar = bars->named("File");
    constexpr auto kBoth = KEY_QUERY_VALUE | KEY_SET_VALUE;
    const std::vector<std::pair<std::vector<std::uint32_t>, std::function<void()>>> operations{
        {{KEY_QUERY_VALUE}, [&] { prefs.loadMyDevices(); }},
        {{KEY_ALL_ACCESS}, [&] { prefs.saveMyDevices(); }},
        {{KEY_READ}, [&] { prefs.GetZoomWinState(); }},
        {{kBoth}, [&] { prefs.SetZoomWinState(1); }},
        {{KEY_QUERY_VALUE}, [&] { prefs.GetStartTutorial(); }},
        {{KEY_SET_VALUE}, [&] { prefs.SetStartTutorial(true); }},
        {{KEY_QUERY_VALUE}, [&] { addIn.GetQuinloftSaveWarning(); }},
        {{KEY_ALL_ACCESS}, [&] { addIn.SetQuinloftSaveWarning(true); }},
        {{KEY_ALL_ACCESS}, [&] { prefs.GetQuinloftCompileWarning(); }},
        {{KEY_ALL_ACCESS}, [&] { prefs.SetQuinloftCompileWarning(true); }},
        {{KEY_QUERY_VALUE}, [&] { prefs.GetRecentProjColWidth(); }},
        {{KEY_SET_VALUE}, [&] { prefs.SetRecentProjColWidth(1); }},
        {{KEY_QUERY_VALUE}, [&] { prefs.GetProjectManagerState(); }},
        {{KEY_SET_VALUE}, [&] { prefs.SetProjectManagerState(1); }},
        {{KEY_QUERY_VALUE}, [&] { prefs.CreateTavletCategoryList(names, positions); }},
        {{KEY_ALL_ACCESS}, [&] { prefs.SaveToolbarState(bar); }},
        {{KEY_ALL_ACCESS}, [&] { prefs.ReadToolbarState(bar); }},
        {{KEY_QUERY_VALUE}, [&] { install.GetQuinloftRootDir(); }},
        {{KEY_READ, KEY_READ}, [&] { references.SaveQuinloftClasses(); }},
    };
    for (std::size_t i = 0; i < operations.size(); ++i) {
        store.requested.clear();
        operations[i].second();
        EXPECT_EQ(store.requested, operations[i].first) << i;
    }
    EXPECT_TRUE(errors.seen.empty());
}

TEST_F(Preferences, ANegativeCompileWarningIsFalse) {
    for (const auto& [number, expected] : std::map<std::int32_t, bool>{{-1, false}, {0, false}, {1, true}, {7, true}}) {
        setNumber(kUser, kAddIn, "CompileWarning", number);
        EXPECT_EQ(prefs.GetQuinloftCompileWarning(), expected) << number;
    }
}

TEST_F(Preferences, ATutorialStoredAsANumberIsRewritten) {
    setNumber(kMachine, kPrefs, "StartTutorial", 0);
    EXPECT_TRUE(prefs.GetStartTutorial());
    EXPECT_EQ(stored(kMachine, kPrefs, "StartTutorial"), "1:True");
}

TEST_F(Preferences, WithoutAnyGroupTheListsStayEmpty) {
    setText(kMachine, (std::string(kGroups) + "\\Below").c_str(), "Standard", "1"); // the key itself has no values
    basic::Collection<std::string> names, positions;
    EXPECT_FALSE(prefs.CreateTavletCategoryList(names, positions));
}
