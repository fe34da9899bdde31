#include "Components/QLPipe/family_validation.h"
#include <gtest/gtest.h>
#include <map>

namespace {

TEST(FamilyValidation, ServesTheTargetsOfItsFamily) {
    qlpipe::FamilyValidation palm{"PalmOS"};
    EXPECT_TRUE(palm.IsDeviceSupported("PalmOS-DragonBall"));
    EXPECT_TRUE(palm.IsDeviceSupported("PalmOS-"));
}

TEST(FamilyValidation, RefusesEverythingElse) {
    qlpipe::FamilyValidation palm{"PalmOS"};
    for (const char* key : {"", "PalmOS", "PalmOS 3.1 or later", "palmos-DragonBall", "PocketPC-SH3", "PalmOSX-1"})
        EXPECT_FALSE(palm.IsDeviceSupported(key)) << key;
}

TEST(FamilyValidation, IsRegisteredForEachShippedPipe) {
    std::map<std::string, qlpipe::ObjectFactory> classes;
    qlpipe::registerPipes([&](const std::string& progId, qlpipe::ObjectFactory make) { classes[progId] = make; });
    ASSERT_EQ(classes.size(), 3u);
    for (const auto& [progId, key] : {std::pair{"QLPipePalmOS.Validation", "PalmOS-DragonBall"},
                                      {"QLPipePocketPC.Validation", "PocketPC-SH3"},
                                      {"QLPipeLinux.Validation", "LinuxHandheld-ARM"}}) {
        ASSERT_TRUE(classes.contains(progId)) << progId;
        const auto validation = basic::cast<qlpipe::IQLPipeValidation>(classes[progId]());
        EXPECT_TRUE(validation->IsDeviceSupported(key)) << progId;
    }
    EXPECT_FALSE(classes["QLPipeLinux.Validation"]() == classes["QLPipeLinux.Validation"]());
}

} // namespace
