#include "Components/QLPipe/base/pipe_messages.h"
#include "tests/pipes/pipe_world.h"
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class SendProject : public testing::Test {
protected:
    test::PipeWorld world;
    test::RecordingSink& sink = world.sink;
    test::ProjectFolder project{world.folder};
};

TEST_F(SendProject, InstallsTheApplication) {
    project.image().add("Data/prices.pdb", "prices").add("notes.txt", "notes");
    project.icon = world.folder.write("icon.tmp", "icon");
    EXPECT_TRUE(world.send(project));
    EXPECT_EQ(world.onDevice("applications/Hello/files/Hello.0000.qlx"), test::imageOf("Hello"));
    EXPECT_EQ(world.onDevice("applications/Hello/files/Data/prices.pdb"), "prices");
    EXPECT_EQ(world.onDevice("applications/Hello/files/notes.txt"), "notes");
    EXPECT_EQ(world.onDevice("applications/Hello/icon.ico"), "icon");
    EXPECT_THAT(world.onDevice("applications/Hello/manifest.json"), HasSubstr("\"displayName\": \"Hello, World\""));
    EXPECT_FALSE(world.isOnDevice(".incoming"));
}

TEST_F(SendProject, InstallsFontsForAllApplications) {
    const auto font = world.folder.write("Fonts/Small.cmf", "font");
    project.image().list(font, "Small.cmf");
    EXPECT_TRUE(world.send(project));
    EXPECT_EQ(world.onDevice("fonts/Small.cmf"), "font");
    EXPECT_FALSE(world.isOnDevice("applications/Hello/files/Small.cmf"));
    EXPECT_FALSE(world.isOnDevice("applications/Hello/fonts"));
}

TEST_F(SendProject, ReplacesTheWholeApplication) {
    project.image().add("old.txt", "old");
    EXPECT_TRUE(world.send(project));
    test::ProjectFolder next{world.folder};
    EXPECT_TRUE(world.send(next.image().add("new.txt", "new")));
    EXPECT_TRUE(world.isOnDevice("applications/Hello/files/new.txt"));
    EXPECT_FALSE(world.isOnDevice("applications/Hello/files/old.txt"));
}

TEST_F(SendProject, DoesNotAffectOtherApplications) {
    test::ProjectFolder other{world.folder, "Other"};
    EXPECT_TRUE(world.send(other.image()));
    EXPECT_TRUE(world.send(project.image()));
    EXPECT_TRUE(world.isOnDevice("applications/Other/files/Other.0000.qlx"));
}

TEST_F(SendProject, ReportsProgressInBytesAndCompletion) {
    project.image().add("half.txt", std::string(4 * test::imageOf("Hello").size(), 'x'));
    EXPECT_TRUE(world.send(project));
    EXPECT_THAT(sink.statuses,
                ElementsAre("Connecting to PocketPC-ARM...", "Sending Hello.0000.qlx...", "Sending Hello.0000.qlx...",
                            "Sending half.txt...", "Sending half.txt...", "Finishing..."));
    EXPECT_THAT(sink.percents, ElementsAre(0, 0, 20, 20, 100, 100));
    EXPECT_EQ(sink.completed, 1);
    EXPECT_THAT(sink.errors, IsEmpty());
}

TEST_F(SendProject, RecordsTheLocation) {
    EXPECT_TRUE(world.send(project.image().add("Small.CMF", "font")));
    EXPECT_THAT(world.services.record->installed,
                ElementsAre(world.folder / "devices/PocketPC-ARM/applications/Hello/files/Hello.0000.qlx",
                            world.folder / "devices/PocketPC-ARM/fonts/Small.CMF"));
    EXPECT_TRUE(world.services.record->succeeded);
}

TEST_F(SendProject, WarnsIfTheRuntimeIsMissing) {
    EXPECT_TRUE(world.send(project.image()));
    EXPECT_THAT(sink.warningNumbers(), ElementsAre(qlpipe::kRuntimeNotInstalled));
    EXPECT_THAT(sink.warnings[0].second, HasSubstr("install-runtime --device PocketPC-ARM"));
    EXPECT_THAT(sink.lines, ElementsAre(0));
    world.pipe()->SendRuntime("PocketPC-ARM");
    EXPECT_TRUE(world.send(project));
    EXPECT_EQ(sink.warnings.size(), 1u);
}

TEST_F(SendProject, ListsTheRequiredComponents) {
    project.list("{CA647498-D486-4FC0-841B-DA55C9A0F114}", "REF").image();
    EXPECT_TRUE(world.send(project));
    EXPECT_THAT(world.onDevice("applications/Hello/manifest.json"),
                HasSubstr("{CA647498-D486-4FC0-841B-DA55C9A0F114}"));
}

TEST_F(SendProject, ContinuesWithoutAMissingIcon) {
    project.icon = world.folder / "gone.ico";
    EXPECT_TRUE(world.send(project.image()));
    EXPECT_THAT(sink.warningNumbers(), testing::Contains(qlpipe::kIconMissing));
    EXPECT_THAT(sink.sources, testing::Contains(project.icon));
}

TEST_F(SendProject, RefusesADeviceOfAnotherFamily) {
    for (const char* device : {"", "PalmOS-DragonBall", "PocketPC", "PocketPC-../../outside", "PocketPC-a/b"}) {
        sink.errors.clear();
        EXPECT_FALSE(world.send(project.image(), device)) << device;
        EXPECT_THAT(sink.errorNumbers(), ElementsAre(qlpipe::kDeviceNotServed)) << device;
    }
    EXPECT_FALSE(std::filesystem::exists(world.folder / "devices"));
    EXPECT_EQ(sink.completed, 0);
}

TEST_F(SendProject, ChecksTheFilesForTheGivenDevice) {
    project.image().add("film.mid", std::string(100'000, 'x'));
    EXPECT_TRUE(world.send(project));
    EXPECT_FALSE(
        world.pipe("QLPipePalmOS")->SendProject("PalmOS-DragonBall", {}, project.files(), project.application()));
    EXPECT_THAT(sink.errorNumbers(), ElementsAre(qlpipe::kFileTooLarge));
    EXPECT_FALSE(world.services.record->succeeded);
}

TEST_F(SendProject, ReportsAllErrorsOfTheFiles) {
    project.add("a.exe", "x").add("b.exe", "x");
    EXPECT_FALSE(world.send(project));
    EXPECT_THAT(sink.errorNumbers(), ElementsAre(qlpipe::kNoImage, qlpipe::kKindNotTaken, qlpipe::kKindNotTaken));
}

TEST_F(SendProject, RefusesAProjectNameThatIsNotAFolderName) {
    auto application = project.image().application();
    for (const char* name : {"", "..", "a/b", ".hidden"}) {
        sink.errors.clear();
        application.ProjectName = name;
        EXPECT_FALSE(world.pipe()->SendProject("PocketPC-ARM", {}, project.files(), application));
        EXPECT_THAT(sink.errorNumbers(), ElementsAre(qlpipe::kUnsafeName)) << name;
    }
}

/// The driver releases the pipe within its events.
TEST_F(SendProject, MayBeReleasedDuringItsEvents) {
    auto pipe = world.pipe();
    sink.onEnd = [&] { pipe = {}; };
    EXPECT_TRUE(pipe->SendProject("PocketPC-ARM", {}, project.image().files(), project.application()));
    EXPECT_FALSE(pipe);
    pipe = world.pipe();
    EXPECT_FALSE(pipe->SendProject("nonsense", {}, project.files(), project.application()));
    EXPECT_FALSE(pipe);
}

TEST_F(SendProject, WorksWithoutASink) {
    const auto pipe = world.create<qlpipe::IQLPipe>("QLPipePocketPC.Pipe");
    EXPECT_TRUE(pipe->SendProject("PocketPC-ARM", {}, project.image().files(), project.application()));
}

TEST_F(SendProject, KeepsTheOldApplicationIfTheSinkFails) {
    EXPECT_TRUE(world.send(project.image().add("old.txt", "old")));
    sink.onProgress = [] { throw basic::RuntimeError(5); };
    test::ProjectFolder next{world.folder};
    EXPECT_THROW(world.send(next.image()), basic::RuntimeError);
    sink.onProgress = {};
    EXPECT_EQ(world.onDevice("applications/Hello/files/old.txt"), "old");
    EXPECT_FALSE(world.isOnDevice(".incoming"));
}

TEST_F(SendProject, UsesTheDevicesFolderOfTheEnvironment) {
    world.environment.values = {{"XDG_DATA_HOME", world.folder / "data"}};
    EXPECT_TRUE(world.send(project.image()));
    EXPECT_EQ(world.folder.read("data/fernwick/devices/PocketPC-ARM/applications/Hello/files/Hello.0000.qlx"),
              test::imageOf("Hello"));
}

} // namespace
