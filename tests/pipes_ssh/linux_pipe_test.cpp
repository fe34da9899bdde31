// End-to-end tests of the Linux handheld pipe.
#include "Components/QLPipe/base/pipe_messages.h"
#include "tests/pipes/pipe_world.h"
#include "tests/pipes_ssh/ssh_device.h"
#include "tests/support/test_host.h"

namespace {

using qlpipe::LinuxHandheldSettings;
using qlpipe::SshMessage;
using testing::Each;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

constexpr char kDevice[] = "LinuxHandheld-ARM";

class LinuxPipe : public test::SshDevice {
protected:
    LinuxPipe() {
        world.environment.values["XDG_DATA_HOME"] = world.folder / "data";
        setUser(settings());
    }
    LinuxHandheldSettings settings() const {
        return {"127.0.0.1",
                std::to_string(server.port),
                "",
                server.folder / "user_key",
                server.folder / "device",
                server.folder / "known_hosts"};
    }
    void setUser(const LinuxHandheldSettings& user) { qlpipe::writeUserSettings(world.registry, kDevice, user); }
    bool send(const basic::Ref<vbide::VBProject>& vbProject = {}) {
        return world.pipe("QLPipeLinux")->SendProject(kDevice, vbProject, project.files(), project.application());
    }

    test::PipeWorld world;
    test::RecordingSink& sink = world.sink;
    test::ProjectFolder project{world.folder};
};

TEST_F(LinuxPipe, SendsAProject) {
    project.image().add("Data/prices.pdb", "prices");
    EXPECT_TRUE(send());
    EXPECT_THAT(sink.errors, IsEmpty());
    EXPECT_EQ(sink.completed, 1);
    EXPECT_EQ(onDevice("applications/Hello/files/Hello.0000.qlx"), test::imageOf("Hello"));
    EXPECT_EQ(onDevice("applications/Hello/files/Data/prices.pdb"), "prices");
    EXPECT_THAT(world.services.record->installed, Each(HasSubstr("@127.0.0.1:")));
    EXPECT_THAT(connect()->list(""), ElementsAre("applications"));
}

TEST_F(LinuxPipe, DoesNotWarnAboutTheRuntimeAfterSendingIt) {
    project.image();
    EXPECT_TRUE(send());
    EXPECT_THAT(sink.warningNumbers(), ElementsAre(qlpipe::kRuntimeNotInstalled));
    world.pipe("QLPipeLinux")->SendRuntime(kDevice);
    EXPECT_THAT(sink.errors, IsEmpty());
    EXPECT_TRUE(isOnDevice("runtime/manifest.json"));
    EXPECT_TRUE(send());
    EXPECT_EQ(sink.warnings.size(), 1u);
}

TEST_F(LinuxPipe, ExplainsHowToSetTheHost) {
    setUser({});
    world.pipe("QLPipeLinux")->SendRuntime(kDevice);
    ASSERT_THAT(sink.errorNumbers(), ElementsAre(int(SshMessage::HostNotSet)));
    EXPECT_THAT(sink.errors[0].second, HasSubstr("fernwick devices set LinuxHandheld-ARM Host="));
    EXPECT_EQ(sink.completed, 0);
}

TEST_F(LinuxPipe, PrefersTheProjectsFolder) {
    test::TestHost host;
    const auto vbProject = host.open(test::SampleProject{});
    auto user = settings();
    user.Folder = server.folder / "unused";
    setUser(user);
    vbProject->WriteProperty("Quinloft Linux Handheld", "Folder", server.folder / "own");
    project.image();
    EXPECT_TRUE(send(vbProject));
    EXPECT_TRUE(std::filesystem::exists(server.folder / "own/applications/Hello/manifest.json"));
    EXPECT_FALSE(std::filesystem::exists(server.folder / "unused"));
}

TEST_F(LinuxPipe, PassesTheApplicationsSettingsToTheHandheld) {
    test::TestHost host;
    const auto vbProject = host.open(test::SampleProject{});
    vbProject->WriteProperty("Quinloft Linux Handheld", "Arguments", "/level \"3\"");
    vbProject->WriteProperty("Quinloft Linux Handheld", "Orientation", "Portrait");
    project.image();
    EXPECT_TRUE(send(vbProject));
    EXPECT_THAT(onDevice("applications/Hello/manifest.json"), HasSubstr(R"("arguments": "/level \"3\"")"));
    EXPECT_THAT(onDevice("applications/Hello/manifest.json"), HasSubstr(R"("orientation": "Portrait")"));
}

TEST_F(LinuxPipe, ShowsWhichSettingsOfAProjectItIgnores) {
    test::TestHost host;
    const auto vbProject = host.open(test::SampleProject{});
    vbProject->WriteProperty("Quinloft Linux Handheld", "Host", "elsewhere.example");
    vbProject->WriteProperty("Quinloft Linux Handheld", "KnownHosts", "/dev/null");
    project.image();
    EXPECT_TRUE(send(vbProject));
    EXPECT_THAT(sink.warningNumbers(), testing::Contains(qlpipe::kProjectSettingsIgnored));
    EXPECT_THAT(sink.warnings.front().second, HasSubstr("Host, KnownHosts"));
    EXPECT_EQ(onDevice("applications/Hello/files/Hello.0000.qlx"), test::imageOf("Hello"));
}

TEST_F(LinuxPipe, ReportsAnErrorAndKeepsTheOldApplication) {
    project.image();
    EXPECT_TRUE(send());
    server.makeKey("stranger");
    auto user = settings();
    user.KeyFile = server.folder / "stranger";
    setUser(user);
    EXPECT_FALSE(send());
    EXPECT_THAT(sink.errorNumbers(), ElementsAre(int(SshMessage::KeysRefused)));
    EXPECT_EQ(onDevice("applications/Hello/files/Hello.0000.qlx"), test::imageOf("Hello"));
}

TEST_F(LinuxPipe, WaitsForAnotherTransferOfTheSameAccount) {
    project.image();
    std::atomic<bool> isOver = false;
    auto first = world.services;
    auto device = std::find_if(qlpipe::pipeFamilies().begin(), qlpipe::pipeFamilies().end(), [](const auto& family) {
                      return std::string{family.pipe} == "QLPipeLinux";
                  })->open(first, {kDevice, {}, {}});
    std::thread end([&] {
        std::this_thread::sleep_for(std::chrono::milliseconds(100));
        isOver = true;
        device.reset();
    });
    EXPECT_TRUE(send());
    EXPECT_TRUE(isOver);
    end.join();
}

} // namespace
