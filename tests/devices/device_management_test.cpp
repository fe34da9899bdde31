#include "devices_world.h"

using namespace fernwick;

namespace {
using DeviceManagement = test::DevicesTest;
using Texts = std::vector<std::string>;
} // namespace

TEST_F(DeviceManagement, NoTargetsInstalled) {
    EXPECT_EQ(devices.GetNumDesignTargets(), 0);
    EXPECT_EQ(devices.CreateValidDesignTargetList(true), Texts{});
    EXPECT_EQ(targets->initialized, 1); // one manager, kept
    EXPECT_TRUE(reports().empty());
}

TEST_F(DeviceManagement, TheNumberIsThatOfTheKnownTargetsWhenOneIsUsable) {
    addTarget("A")->pipe = "Missing";
    addTarget("B");
    addTarget("C")->pipe = "Missing";
    EXPECT_EQ(devices.GetNumDesignTargets(), 3);
    EXPECT_EQ(devices.GetDesignTargets(false), Texts{"B"});
}

TEST_F(DeviceManagement, UnusableTargetsCountAsNone) {
    addTarget("A")->pipe = "Missing";
    EXPECT_EQ(devices.GetNumDesignTargets(), 0);
}

TEST_F(DeviceManagement, SilentlySkipsATargetWithoutValidation) {
    addTarget("A")->pipe = "Missing";
    addTarget("B");
    addTarget("C");
    EXPECT_EQ(devices.CreateValidDesignTargetList(true), (Texts{"B", "C"}));
    EXPECT_TRUE(user.sawNothing());
    EXPECT_TRUE(reports().empty());
}

TEST_F(DeviceManagement, ATargetThatItsPipeRefusesIsLeftOut) {
    offerPipe("Refusing", false);
    addTarget("A")->pipe = "Refusing";
    EXPECT_EQ(devices.CreateValidDesignTargetList(false), Texts{});
    EXPECT_FALSE(devices.IsValidDevice("A"));
}

TEST_F(DeviceManagement, UnsetTargetsAndThoseWithoutAPipeAreSkipped) {
    targets->list.push_back(nullptr);
    addTarget("A")->pipe = "";
    addTarget("B");
    EXPECT_EQ(devices.CreateValidDesignTargetList(false), Texts{"B"});
}

TEST_F(DeviceManagement, ATargetThatIsNotOfferedMayStillBeValid) {
    addTarget("A")->platform = "";
    EXPECT_EQ(devices.CreateValidDesignTargetList(false), Texts{});
    EXPECT_TRUE(devices.IsValidDevice("A"));
}

TEST_F(DeviceManagement, EmptyAndUnknownKeysAreNotValid) {
    addTarget("A")->pipe = "";
    EXPECT_FALSE(devices.IsValidDevice(""));
    EXPECT_FALSE(devices.IsValidDevice("B"));
    EXPECT_FALSE(devices.IsValidDevice("A"));
    EXPECT_TRUE(reports().empty());
}

TEST_F(DeviceManagement, AValidationThatCantBeCreatedIsReported) {
    addTarget("A")->pipe = "Missing";
    EXPECT_FALSE(devices.IsValidDevice("A"));
    EXPECT_EQ(reports(), Texts{"modDeviceManagement.IsValidDevice [429]"});
}

TEST_F(DeviceManagement, AManagerThatCantBeCreatedIsReported) {
    withoutManager();
    EXPECT_EQ(devices.CreateValidDesignTargetList(false), Texts{});
    EXPECT_FALSE(devices.gDesignTargetMgr);
    EXPECT_EQ(reports(), Texts{"modDeviceManagement.initDesignTargetMgr [429]"});
    EXPECT_EQ(devices.GetNumDesignTargets(), 0);
    EXPECT_EQ(devices.GetDeviceName("A"), "");
    EXPECT_EQ(reports().size(), 3U); // each question tries again
}

TEST_F(DeviceManagement, NamesKeepTheirAccelerator) {
    addTarget("A")->name = "P&ocketPC";
    EXPECT_EQ(devices.GetDeviceName("A"), "P&ocketPC");
    EXPECT_EQ(devices.GetDeviceName("B"), "");
    EXPECT_EQ(devices.GetPipeNameForDevice("A"), "QLPipePalmOS");
    EXPECT_EQ(devices.GetPipeNameForDevice(""), "");
    EXPECT_EQ(devices.GetPipeNameForDevice("B"), "");
}

TEST_F(DeviceManagement, AcceleratorsAreStripped) {
    EXPECT_EQ(modDeviceManagement::StripAcceleratorInfo("P&ocketPC"), "PocketPC");
    EXPECT_EQ(modDeviceManagement::StripAcceleratorInfo("&&"), "");
}

TEST_F(DeviceManagement, AnErrorBeforeTheFirstValidationIsReported) {
    addTarget("A");
    addTarget("B");
    targets->failingIndex = 0;
    EXPECT_EQ(devices.CreateValidDesignTargetList(true), Texts{});
    EXPECT_EQ(reports(), Texts{"modDeviceManagement.CreateValidDesignTargetList [70]"});
}

TEST_F(DeviceManagement, AnErrorAfterTheFirstValidationIsNot) {
    addTarget("A");
    addTarget("B");
    addTarget("C");
    targets->failingIndex = 1;
    EXPECT_EQ(devices.CreateValidDesignTargetList(true), (Texts{"A", "C"}));
    EXPECT_EQ(reports(), Texts{});
}

TEST_F(DeviceManagement, ATargetThatIsFoundButCannotBeHadIsNotValid) {
    targets->found = {"A"};
    EXPECT_FALSE(devices.IsValidDevice("A"));
    EXPECT_EQ(reports(), Texts{});
}

TEST_F(DeviceManagement, EachQuestionReportsItsErrors) {
    addTarget("A");
    EXPECT_EQ(devices.GetNumDesignTargets(), 1);
    targets->countFails = targets->keysFail = true;
    EXPECT_EQ(devices.GetNumDesignTargets(), 0);
    EXPECT_EQ(devices.GetPipeNameForDevice("A"), "");
    EXPECT_EQ(devices.GetDeviceName("A"), "");
    EXPECT_EQ(reports(),
              (Texts{"modDeviceManagement.GetNumDesignTargets [70]", "modDeviceManagement.GetPipeNameForDevice [70]",
                     "modDeviceManagement.GetDeviceName [70]"}));
}

TEST_F(DeviceManagement, AFailureOfThePlatformIsReportedAtMostOnce) {
    addTarget("A");
    addTarget("B");
    int calls = 1;
    for (int failing = 1; failing <= calls; ++failing) {
        errors.seen.clear();
        trace.calls = 0;
        trace.failing = failing;
        devices.gDesignTargetMgr = nullptr;
        devices.IsValidDevice("A");
        devices.GetNumDesignTargets();
        calls = trace.calls;
        EXPECT_LE(reports().size(), 1U) << failing;
    }
}
