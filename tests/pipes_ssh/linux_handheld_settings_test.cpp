// Connection settings of handhelds.
#include "Components/QLPipe/base/pipe_messages.h"
#include "Components/QLPipe/base/ssh_messages.h"
#include "Components/QLPipe/linux_handheld/linux_handheld_settings.h"
#include "Components/QLPipe/linux_handheld/user_account.h"
#include "tests/pipes_ssh/ssh_device.h"
#include "tests/support/test_host.h"

namespace {

using qlpipe::LinuxHandheldSettings;
using qlpipe::SshMessage;
using test::expectError;
using test::transferErrorOf;

constexpr char kKey[] = "LinuxHandheld-ARM";
const LinuxHandheldSettings kAll{"pda", "2222", "joe", "~/.ssh/pda", "/opt/apps", "/etc/hosts_known"};

class HandheldSettings : public testing::Test {
protected:
    test::TestHost host;
    basic::Ref<vbide::VBProject> project = host.open(test::SampleProject{});
};

TEST_F(HandheldSettings, OfTheUserAreStoredForEachTarget) {
    qlpipe::writeUserSettings(host.registry, kKey, kAll);
    EXPECT_EQ(qlpipe::readUserSettings(host.registry, kKey), kAll);
    EXPECT_EQ(qlpipe::readUserSettings(host.registry, "LinuxHandheld-MIPS"), LinuxHandheldSettings{});
}

TEST_F(HandheldSettings, AreDeletedWhenCleared) {
    qlpipe::writeUserSettings(host.registry, kKey, kAll);
    qlpipe::writeUserSettings(host.registry, kKey, {"other", "", "", "", "", ""});
    EXPECT_EQ(qlpipe::readUserSettings(host.registry, kKey), (LinuxHandheldSettings{"other", "", "", "", "", ""}));
    std::uint32_t key = 0;
    host.registry.RegOpenKeyEx(fernwick::HKEY_CURRENT_USER, "Software\\Quinloft\\Devices\\LinuxHandheld-ARM",
                               fernwick::KEY_READ, key);
    fernwick::RegistryKeyInfo info;
    host.registry.RegQueryInfoKey(key, info);
    host.registry.RegCloseKey(key);
    EXPECT_EQ(info.values, 1u);
}

TEST_F(HandheldSettings, OfAProjectAreStoredInItsFile) {
    project->WriteProperty("Quinloft Linux Handheld", "Folder", "/opt/apps");
    EXPECT_EQ(qlpipe::readProjectSettings(project), (LinuxHandheldSettings{"", "", "", "", "/opt/apps", ""}));
    EXPECT_EQ(qlpipe::ignoredProjectSettings(project), "");
}

/// A project from someone else must not choose the machine, the user or the keys.
TEST_F(HandheldSettings, OfAProjectDoNotRedirectAConnection) {
    for (const char* name : {"Host", "Port", "User", "KeyFile", "KnownHosts", "Folder"})
        project->WriteProperty("Quinloft Linux Handheld", name, "x");
    EXPECT_EQ(qlpipe::readProjectSettings(project), (LinuxHandheldSettings{"", "", "", "", "x", ""}));
    EXPECT_EQ(qlpipe::ignoredProjectSettings(project), "Host, Port, User, KeyFile, KnownHosts");
    EXPECT_EQ(qlpipe::ignoredProjectSettings({}), "");
}

TEST_F(HandheldSettings, OfAProjectOverrideTheUsersFolder) {
    const LinuxHandheldSettings ofProject{"", "", "", "", "games", ""};
    const auto both = qlpipe::layered(ofProject, kAll);
    EXPECT_EQ(both, (LinuxHandheldSettings{"pda", "2222", "joe", "~/.ssh/pda", "games", "/etc/hosts_known"}));
}

TEST_F(HandheldSettings, HaveDefaults) {
    const auto target = qlpipe::sshTarget({"pda", "", "", "", "", ""}, kKey);
    EXPECT_EQ(target.host, "pda");
    EXPECT_EQ(target.port, 22);
    EXPECT_EQ(target.user, qlpipe::userName());
    EXPECT_EQ(target.keyFile, "");
    EXPECT_EQ(target.folder, "fernwick");
    EXPECT_EQ(target.knownHosts, qlpipe::homeFolder() + "/.ssh/known_hosts");
    EXPECT_TRUE(target.usualKnownHosts);
    EXPECT_EQ(target.address(), "pda");
}

TEST_F(HandheldSettings, AreUsedIfSet) {
    const auto target = qlpipe::sshTarget(kAll, kKey);
    EXPECT_EQ(target.address(), "pda:2222");
    EXPECT_EQ(target.user, "joe");
    EXPECT_EQ(target.keyFile, qlpipe::homeFolder() + "/.ssh/pda");
    EXPECT_EQ(target.folder, "/opt/apps");
    EXPECT_EQ(target.knownHosts, "/etc/hosts_known");
    EXPECT_FALSE(target.usualKnownHosts);
}

TEST_F(HandheldSettings, ResolveTheFolderInTheHomeFolder) {
    for (const char* folder : {"games", "~/games", "games/", "~/games//"})
        EXPECT_EQ(qlpipe::sshTarget({"pda", "", "", "", folder, ""}, kKey).folder, "games");
}

TEST_F(HandheldSettings, ExplainHowToSetTheHost) {
    const auto error = transferErrorOf([] { (void)qlpipe::sshTarget({}, kKey); });
    expectError(error, SshMessage::HostNotSet, {"fernwick devices set LinuxHandheld-ARM Host="});
}

TEST_F(HandheldSettings, RefuseInvalidValues) {
    const auto refuse = [](const LinuxHandheldSettings& settings, const std::vector<std::string>& words) {
        expectError(transferErrorOf([&] { (void)qlpipe::sshTarget(settings, kKey); }), SshMessage::SettingInvalid,
                    words);
    };
    for (const char* port : {"0", "65536", "-1", "22x", "ssh", " 22", "99999999999"})
        refuse({"pda", port, "", "", "", ""}, {"Port", port, "1 to 65535"});
    for (const char* host : {"a b", "me@pda", "'; rm -rf ~", "a/b", "-oProxyCommand=x"})
        refuse({host, "", "", "", "", ""}, {"Host", host});
    refuse({"pda", "", "$(id)", "", "", ""}, {"User"});
    for (const char* folder : {"/", "~", ".", "~/"}) refuse({"pda", "", "", "", folder, ""}, {"Folder"});
    const std::string huge(100'000, 'h');
    const auto error = transferErrorOf([&] { (void)qlpipe::sshTarget({huge + "/", "", "", "", "", ""}, kKey); });
    EXPECT_LT(error.text.size(), 300u);
}

TEST(SshMessages, AreCompleteAndSorted) {
    std::int32_t last = 20299;
    for (const auto& message : qlpipe::sshMessages()) {
        EXPECT_GT(message.number, last);
        EXPECT_LT(message.number, 20400);
        EXPECT_TRUE(message.isError);
        EXPECT_FALSE(message.text.empty() || message.meaning.empty() || message.remedy.empty()) << message.number;
        EXPECT_EQ(qlpipe::messageText(message.number), message.text);
        last = message.number;
    }
}

TEST(SshMessages, ReplaceControlCharactersOfDevices) {
    EXPECT_EQ(qlpipe::fillIn("{said}", {{"said", qlpipe::saidByDevice("a\x1B[31mb\n")}}), "a\\u001B[31mb\\n");
    EXPECT_EQ(qlpipe::saidByDevice(std::string(1000, 'x')).size(), 200u);
}

} // namespace
