#include "tests/pipes/pipe_world.h"
#include <gtest/gtest.h>

namespace {

using qlpipe::IQLPipeValidation;

TEST(FamilyValidation, ServesTheTargetsOfItsFamily) {
    test::PipeWorld world;
    const auto palm = world.create<IQLPipeValidation>("QLPipePalmOS.Validation");
    EXPECT_TRUE(palm->IsDeviceSupported("PalmOS-DragonBall"));
    EXPECT_TRUE(palm->IsDeviceSupported("PalmOS-"));
}

TEST(FamilyValidation, RefusesEverythingElse) {
    test::PipeWorld world;
    const auto palm = world.create<IQLPipeValidation>("QLPipePalmOS.Validation");
    for (const char* key : {"", "PalmOS", "PalmOS 3.1 or later", "palmos-DragonBall", "PocketPC-SH3", "PalmOSX-1"})
        EXPECT_FALSE(palm->IsDeviceSupported(key)) << key;
}

TEST(PipeFamilies, AreRegisteredWithTheirProgIds) {
    test::PipeWorld world;
    for (const auto& [progId, key] : {std::pair{"QLPipePalmOS.Validation", "PalmOS-DragonBall"},
                                      {"QLPipePocketPC.Validation", "PocketPC-SH3"},
                                      {"QLPipeLinux.Validation", "LinuxHandheld-ARM"}})
        EXPECT_TRUE(world.create<IQLPipeValidation>(progId)->IsDeviceSupported(key)) << progId;
    EXPECT_FALSE(world.create<IQLPipeValidation>("QLPipeLinux.Validation") ==
                 world.create<IQLPipeValidation>("QLPipeLinux.Validation"));
}

TEST(PipeFamilies, ServeTheShippedTargets) {
    test::PipeWorld world;
    const auto manager = world.create<designtargetaccess::IQLDesignTargetMgr>("DesignTargetAccess.QLDesignTargetMgr");
    manager->Initialize();
    ASSERT_GE(manager->Count(), 4);
    for (std::int16_t i = 0; i < manager->Count(); ++i) {
        const auto target = manager->GetDesignTargetByIndex(i);
        const auto validation = world.create<IQLPipeValidation>(target->RequiredPipeProgID() + ".Validation");
        EXPECT_TRUE(validation->IsDeviceSupported(target->Key())) << target->Key();
    }
}

} // namespace
