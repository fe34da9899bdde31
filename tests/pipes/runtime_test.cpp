#include "Basic/error_numbers.h"
#include "Components/QLPipe/base/pipe_messages.h"
#include "tests/pipes/pipe_world.h"
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::Each;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::StartsWith;

/// A temporary installation with the runtime of one family.
class Runtime : public testing::Test {
protected:
    void list(const std::string& text) { write("PocketPC/runtime.toml", text); }
    void write(const std::string& name, const std::string& text) {
        installation.write("VB Toolkit/Runtime/" + name, text);
    }
    void fails(std::int32_t number, const std::string& words) {
        world.sink.errors.clear();
        world.pipe()->SendRuntime("PocketPC-ARM");
        ASSERT_THAT(world.sink.errorNumbers(), ElementsAre(number));
        EXPECT_THAT(world.sink.errors[0].second, HasSubstr(words));
    }

    test::TempFolder installation;
    test::PipeWorld world{installation.path()};
};

TEST_F(Runtime, IsInstalledCompletely) {
    write("PocketPC/bin/tamarik", "program");
    write("PocketPC/Small.cmf", "font");
    write("Common/errors.txt", "texts");
    list("version = \"1.0\"\nfiles = [\"bin/tamarik\", \"Small.cmf\"]\ncommon = [\"errors.txt\"]\n");
    world.pipe()->SendRuntime("PocketPC-ARM");
    EXPECT_EQ(world.sink.completed, 1);
    EXPECT_EQ(world.onDevice("runtime/files/bin/tamarik"), "program");
    EXPECT_EQ(world.onDevice("runtime/fonts/Small.cmf"), "font");
    EXPECT_EQ(world.onDevice("runtime/files/errors.txt"), "texts");
    EXPECT_THAT(world.onDevice("runtime/manifest.json"), HasSubstr("\"version\": \"1.0\""));
    EXPECT_THAT(world.services.record->installed, Each(StartsWith(world.folder / "devices/PocketPC-ARM/runtime/")));
}

TEST_F(Runtime, ReplacesAnOlderRuntime) {
    write("PocketPC/old", "old");
    list("version = \"1.0\"\nfiles = [\"old\"]\ncommon = []\n");
    world.pipe()->SendRuntime("PocketPC-ARM");
    write("PocketPC/new", "new");
    list("version = \"2.0\"\nfiles = [\"new\"]\ncommon = []\n");
    world.pipe()->SendRuntime("PocketPC-ARM");
    EXPECT_TRUE(world.isOnDevice("runtime/files/new"));
    EXPECT_FALSE(world.isOnDevice("runtime/files/old"));
}

TEST_F(Runtime, IsReportedIfMissingInTheInstallation) { fails(qlpipe::kRuntimeNotShipped, "PocketPC"); }

TEST_F(Runtime, IsNotLookedForInTheCurrentFolderWithoutAnInstallation) {
    write("PocketPC/planted", "program");
    list("version = \"1.0\"\nfiles = [\"planted\"]\ncommon = []\n");
    const auto before = std::filesystem::current_path();
    std::filesystem::current_path(installation.path());
    test::PipeWorld nothingInstalled{""};
    nothingInstalled.pipe()->SendRuntime("PocketPC-ARM");
    std::filesystem::current_path(before);
    EXPECT_THAT(nothingInstalled.sink.errorNumbers(), ElementsAre(qlpipe::kRuntimeNotShipped));
}

TEST_F(Runtime, IsRefusedWithADamagedList) {
    for (const char* text : {"version = ", "files = []\ncommon = []\n", "version = \"1\"\ncommon = []\n",
                             "version = \"1\"\nfiles = \"x\"\ncommon = []\n"}) {
        list(text);
        fails(qlpipe::kRuntimeUnusable, "runtime.toml");
    }
}

TEST_F(Runtime, IsRefusedWithAMissingFileOrOneOutsideItsFolder) {
    list("version = \"1.0\"\nfiles = [\"gone\"]\ncommon = []\n");
    fails(qlpipe::kRuntimeUnusable, "gone");
    list("version = \"1.0\"\nfiles = [\"../secret\"]\ncommon = []\n");
    fails(qlpipe::kRuntimeUnusable, "../secret");
    list("version = \"1.0\"\nfiles = [7]\ncommon = []\n");
    fails(qlpipe::kRuntimeUnusable, "is not a file name");
}

TEST_F(Runtime, IsRefusedWithADuplicateFile) {
    write("PocketPC/a", "1");
    write("Common/A", "2");
    list("version = \"1.0\"\nfiles = [\"a\"]\ncommon = [\"A\"]\n");
    fails(qlpipe::kRuntimeUnusable, "twice");
}

TEST(ShippedRuntime, IsAvailableForEachFamilyOfSimulatedDevices) {
    test::PipeWorld world;
    world.pipe("QLPipePalmOS")->SendRuntime("PalmOS-DragonBall");
    world.pipe()->SendRuntime("PocketPC-SH3");
    EXPECT_EQ(world.sink.completed, 2);
    EXPECT_THAT(world.onDevice("runtime/manifest.json", "PalmOS-DragonBall"), HasSubstr("3.5.0 (0624)"));
}

TEST(ShippedRuntime, HasTheErrorTextsOfTheLanguage) {
    std::ifstream lines{test::kShippedInstallation + "/VB Toolkit/Runtime/Common/errors.txt"};
    int count = 0;
    for (std::string line; std::getline(lines, line); ++count) {
        const auto tab = line.find('\t');
        ASSERT_NE(tab, std::string::npos) << line;
        EXPECT_EQ(line.substr(tab + 1), basic::standardDescription(std::stoi(line)));
    }
    EXPECT_GT(count, 100);
}

} // namespace
