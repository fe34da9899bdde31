// The button "Test Connection", against a real server.
#include "Components/QLPipe/linux_handheld/connection_test.h"
#include "Components/QLPipe/linux_handheld/known_hosts_file.h"
#include "tests/pipes_ssh/cutting_proxy.h"
#include "tests/pipes_ssh/handheld_page.h"
#include "tests/pipes_ssh/ssh_device.h"
#include "tests/support/full_disk.h"
#include <cerrno>
#include <chrono>
#include <fstream>
#include <system_error>
#include <thread>

namespace {

using namespace std::chrono_literals;
using testing::AllOf;
using testing::HasSubstr;

/// Answers boxes and keeps their texts.
class Boxes : public fernwick::Interaction {
public:
    void showModal(fernwick::Form&) override {}
    int MsgBox(const std::string& text, int style, const std::string& title) override {
        EXPECT_EQ(title, "Fernwick");
        texts.push_back(text);
        styles.push_back(style);
        if (whileShown) whileShown();
        return answer;
    }
    void ShowSave(fernwick::CommonDialog&) override {}
    void ShowOpen(fernwick::CommonDialog&) override {}
    void MessageBeep(int) override {}
    void SetCursor(fernwick::MousePointerShape) override {}

    std::vector<std::string> texts;
    std::vector<int> styles;
    int answer = fernwick::vbNo;
    std::function<void()> whileShown;
};

class ConnectionButton : public test::HandheldPageTest {
protected:
    ConnectionButton() {
        qlpipe::PipeServices services{boxes,
                                      world.loop,
                                      world.files,
                                      world.classes,
                                      world.registry,
                                      world.environment,
                                      test::kShippedInstallation};
        for (const auto& family : qlpipe::pipeFamilies())
            if (family.name == std::string("LinuxHandheld")) configuration = family.configure(services);
        open();
        connectTo(server.port);
        type("KeyFile", server.folder / "user_key");
        type("KnownHosts", server.folder / "known_hosts");
        type("Folder", server.folder / "device");
    }
    void connectTo(int port) {
        type("Host", "127.0.0.1");
        type("Port", std::to_string(port));
        type("User", qlpipe::userName());
    }
    bool isTesting() const { return label("lblTest").Caption() != ""; }
    /// Runs the loop as a window does until the test ends.
    void settle() {
        const auto end = std::chrono::steady_clock::now() + 30s;
        while (isTesting() && std::chrono::steady_clock::now() < end) {
            world.loop.DoEvents();
            std::this_thread::sleep_for(5ms);
        }
    }
    /// Returns the text of the box with the result.
    std::string outcome() {
        press();
        settle();
        return boxes.texts.empty() ? "no box" : boxes.texts.back();
    }
    bool isOnDevice(const std::string& name) const { return std::filesystem::exists(server.folder / name); }

    test::SshServer server;
    Boxes boxes;
};

TEST_F(ConnectionButton, TestsTheFieldsAndWritesNothing) {
    EXPECT_THAT(outcome(), AllOf(HasSubstr("can be used"), HasSubstr(server.folder / "device"),
                                 HasSubstr("which the first transfer makes"), HasSubstr("bytes free")));
    EXPECT_EQ(boxes.styles, std::vector<int>{fernwick::vbInformation});
    EXPECT_FALSE(isOnDevice("device"));
    EXPECT_EQ(qlpipe::readUserSettings(world.registry, "LinuxHandheld-ARM"), qlpipe::LinuxHandheldSettings{});
    EXPECT_FALSE(project->IsDirty());
}

TEST_F(ConnectionButton, AcceptsAnExistingFolderAndALinkToOne) {
    std::filesystem::create_directory(server.folder / "card");
    std::filesystem::create_directory_symlink(server.folder / "card", server.folder / "device");
    EXPECT_THAT(outcome(), AllOf(HasSubstr("can be used"), testing::Not(HasSubstr("makes"))));
    EXPECT_TRUE(std::filesystem::is_empty(server.folder / "card"));
}

TEST_F(ConnectionButton, UsesTheUsersFolderIfTheProjectHasNone) {
    qlpipe::writeUserSettings(world.registry, "LinuxHandheld-ARM", {"", "", "", "", "/tmp/of the user", ""});
    type("Folder", "");
    EXPECT_THAT(outcome(), HasSubstr("/tmp/of the user"));
}

TEST_F(ConnectionButton, IsCancelMeanwhileAndThenAsBefore) {
    EXPECT_EQ(button().Caption(), "&Test Connection");
    press();
    EXPECT_EQ(button().Caption(), "Cancel &Test");
    EXPECT_THAT(label("lblTest").Caption(), HasSubstr("127.0.0.1"));
    settle();
    EXPECT_EQ(button().Caption(), "&Test Connection");
    EXPECT_EQ(label("lblTest").Caption(), "");
}

/// Reads what a client sends until it closes the connection. Returns false if it does not within some seconds.
bool isClosedSoon(int client) {
    const timeval patience{5, 0};
    ::setsockopt(client, SOL_SOCKET, SO_RCVTIMEO, &patience, sizeof patience);
    char bytes[1024];
    ssize_t got = 0;
    while ((got = ::recv(client, bytes, sizeof bytes, 0)) > 0) continue;
    ::close(client);
    return got == 0 || errno == ECONNRESET;
}

TEST_F(ConnectionButton, CancelsWithoutABoxAndDisconnects) {
    const int silent = test::listenOnLoopback();
    connectTo(test::portOfSocket(silent));
    press();
    const int client = ::accept(silent, nullptr, nullptr);
    std::this_thread::sleep_for(100ms);
    world.loop.DoEvents();
    EXPECT_TRUE(isTesting());
    press();
    EXPECT_TRUE(isClosedSoon(client));
    EXPECT_FALSE(isTesting());
    std::this_thread::sleep_for(200ms);
    world.loop.DoEvents();
    EXPECT_TRUE(boxes.texts.empty());
    ::close(silent);
}

TEST_F(ConnectionButton, ClosingOrHidingThePageEndsTheTest) {
    const int silent = test::listenOnLoopback();
    connectTo(test::portOfSocket(silent));
    press();
    configuration->HidePage();
    EXPECT_FALSE(isTesting());
    configuration->ShowPage();
    press();
    configuration->ClosePage();
    page = nullptr;
    configuration = nullptr;
    std::this_thread::sleep_for(200ms);
    world.loop.DoEvents();
    EXPECT_TRUE(boxes.texts.empty());
    ::close(silent);
}

TEST_F(ConnectionButton, SurvivesThatABoxClosesTheDialog) {
    boxes.whileShown = [&] {
        configuration->ClosePage();
        page = nullptr;
        configuration = nullptr;
    };
    press();
    for (int i = 0; i < 2000 && boxes.texts.empty(); ++i) {
        world.loop.DoEvents();
        std::this_thread::sleep_for(5ms);
    }
    EXPECT_EQ(boxes.texts.size(), 1u);
}

TEST_F(ConnectionButton, ReportsANameThatIsNotFound) {
    type("Host", "no-such-host.invalid");
    EXPECT_THAT(outcome(), AllOf(HasSubstr("no-such-host.invalid was not found"), HasSubstr("setting Host")));
}

TEST_F(ConnectionButton, ReportsARefusedConnection) {
    connectTo(test::freePort());
    EXPECT_THAT(outcome(), AllOf(HasSubstr("Connection refused"), HasSubstr("settings Host and Port")));
}

TEST_F(ConnectionButton, AsksAboutAnUnknownKeyAndStoresItOnlyAfterYes) {
    server.folder.write("known_hosts", "other line");
    EXPECT_THAT(outcome(), AllOf(HasSubstr("ED25519 " + server.fingerprint("host_key")),
                                 HasSubstr(server.folder / "known_hosts")));
    EXPECT_EQ(boxes.styles.back(), fernwick::vbYesNo + fernwick::vbExclamation + fernwick::vbDefaultButton2);
    EXPECT_EQ(server.folder.read("known_hosts"), "other line");
    boxes.answer = fernwick::vbYes;
    EXPECT_THAT(outcome(), HasSubstr("can be used"));
    EXPECT_THAT(server.folder.read("known_hosts"),
                AllOf(testing::StartsWith("other line\n[127.0.0.1]:"), testing::EndsWith("\n")));
}

TEST_F(ConnectionButton, ReportsAFileOfKnownHostsThatCannotBeWritten) {
    std::filesystem::remove(server.folder / "known_hosts");
    type("KnownHosts", server.folder / "known_hosts");
    boxes.answer = fernwick::vbYes;
    boxes.whileShown = [&] { std::filesystem::create_directories(server.folder / "known_hosts"); };
    EXPECT_THAT(outcome(), AllOf(HasSubstr("was not stored"), HasSubstr("setting KnownHosts")));
}

TEST_F(ConnectionButton, ReportsAChangedKey) {
    server.makeKey("other_key");
    server.folder.write("known_hosts", server.knownHost(server.port, "other_key"));
    EXPECT_THAT(outcome(), AllOf(HasSubstr("has changed"), HasSubstr("settings Host and Port")));
    EXPECT_EQ(boxes.styles.back(), fernwick::vbExclamation);
}

TEST_F(ConnectionButton, ReportsARefusedKey) {
    server.makeKey("stranger");
    type("KeyFile", server.folder / "stranger");
    EXPECT_THAT(outcome(), HasSubstr("settings User and KeyFile"));
    type("KeyFile", server.folder / "none");
    EXPECT_THAT(outcome(), HasSubstr("setting KeyFile"));
}

TEST_F(ConnectionButton, ReportsAFileInPlaceOfTheFolder) {
    server.folder.write("device", "");
    EXPECT_THAT(outcome(), HasSubstr("different Folder"));
    type("Folder", server.folder / "device/below");
    EXPECT_THAT(outcome(), AllOf(HasSubstr("device on the handheld is not a folder"), HasSubstr("different Folder")));
}

/// Returns where a read-only file system is mounted, or "".
std::string readOnlyFolder() {
    std::ifstream mounts("/proc/self/mounts");
    for (std::string device, folder, kind, options; mounts >> device >> folder >> kind >> options;) {
        std::getline(mounts, device);
        if ((options + ",").starts_with("ro,") && std::filesystem::is_directory(folder)) return folder;
    }
    return {};
}

TEST_F(ConnectionButton, ReportsAReadOnlyFileSystem) {
    const auto folder = readOnlyFolder();
    if (folder.empty()) GTEST_SKIP() << "this computer has no read-only file system";
    type("Folder", folder + "/fernwick");
    EXPECT_THAT(outcome(), AllOf(HasSubstr(folder), HasSubstr("is read-only"), HasSubstr("different Folder")));
}

TEST_F(ConnectionButton, ReportsInvalidFieldsBeforeItConnects) {
    type("Port", "ssh");
    press();
    EXPECT_FALSE(isTesting());
    EXPECT_THAT(boxes.texts.at(0), HasSubstr("setting Port"));
    type("Port", "");
    type("Host", "");
    press();
    EXPECT_THAT(boxes.texts.at(1), HasSubstr("Host"));
}

TEST(ConnectionTest, GivesUpAfterItsPatience) {
    const int silent = test::listenOnLoopback();
    qlpipe::SshTarget target{"127.0.0.1", test::portOfSocket(silent), "joe", "", "fernwick", "/dev/null", false};
    qlpipe::ConnectionTest test{target, 300ms};
    const auto begin = std::chrono::steady_clock::now();
    std::optional<qlpipe::ConnectionResult> result;
    while (!(result = test.result())) std::this_thread::sleep_for(5ms);
    EXPECT_LT(std::chrono::steady_clock::now() - begin, 5s);
    EXPECT_THAT(result->text,
                AllOf(HasSubstr("did not answer within 0.3 seconds"), HasSubstr("settings Host and Port")));
    EXPECT_EQ(qlpipe::ConnectionTest::kPatience, 10s);
    ::close(silent);
}

/// Looking up a name cannot be interrupted, and each step of a connection has its own timeout.
TEST(ConnectionTest, DoesNotWaitForItsThread) {
    qlpipe::SshTarget target{"127.0.0.1", test::freePort(), "joe", "", "fernwick", "/dev/null", false};
    qlpipe::ConnectionTest test{target, 0ms};
    EXPECT_TRUE(test.result());
}

TEST(KeepsOut, FollowsThePermissionsWhereTheyAreKnown) {
    const auto folder = [](std::uint32_t mode, std::optional<std::uint32_t> owner) {
        return qlpipe::SftpAttributes{0, 0040000 | mode, owner};
    };
    EXPECT_TRUE(qlpipe::keepsOut(folder(0755, 0), 1000));
    EXPECT_TRUE(qlpipe::keepsOut(folder(0555, 1000), 1000));
    EXPECT_TRUE(qlpipe::keepsOut(folder(0602, 0), 1000)) << "it cannot be entered";
    EXPECT_FALSE(qlpipe::keepsOut(folder(0755, 1000), 1000));
    EXPECT_FALSE(qlpipe::keepsOut(folder(0777, 0), 1000));
    EXPECT_FALSE(qlpipe::keepsOut(folder(0775, 0), 1000)) << "the user may be in the group";
    EXPECT_FALSE(qlpipe::keepsOut(folder(0755, 0), 0));
    EXPECT_FALSE(qlpipe::keepsOut(folder(0755, 0), std::nullopt));
    EXPECT_FALSE(qlpipe::keepsOut(folder(0755, std::nullopt), 1000));
}

TEST(KnownHostsFile, IsMadeForItsUserOnly) {
    const test::TempFolder folder;
    qlpipe::appendKnownHost(folder / "new/known_hosts", "pda ssh-ed25519 AAAA");
    qlpipe::appendKnownHost(folder / "new/known_hosts", "pad ssh-ed25519 BBBB");
    EXPECT_EQ(folder.read("new/known_hosts"), "pda ssh-ed25519 AAAA\npad ssh-ed25519 BBBB\n");
    using std::filesystem::perms;
    EXPECT_EQ(std::filesystem::status(folder / "new").permissions(), perms::owner_all);
    EXPECT_EQ(std::filesystem::status(folder / "new/known_hosts").permissions(),
              perms::owner_read | perms::owner_write);
}

TEST(KnownHostsFile, BeginsALineAfterOneWithoutAnEnd) {
    const test::TempFolder folder;
    folder.write("known_hosts", "pda ssh-ed25519 AAAA");
    qlpipe::appendKnownHost(folder / "known_hosts", "pad ssh-ed25519 BBBB");
    EXPECT_EQ(folder.read("known_hosts"), "pda ssh-ed25519 AAAA\npad ssh-ed25519 BBBB\n");
}

TEST(KnownHostsFile, HasNoPartOfALineThatCouldNotBeWritten) {
    const test::TempFolder folder;
    const std::string path = folder / "known_hosts", line = "pda ssh-ed25519 AAAA\n";
    const auto failure = [&](rlim_t limit) {
        const test::FullDisk isFull{limit};
        return test::transferErrorOf([&] { qlpipe::appendKnownHost(path, "pad ssh-ed25519 BBBB"); });
    };
    folder.write("known_hosts", line);
    test::expectError(failure(line.size() + 5), qlpipe::SshMessage::KnownHostsNotWritten,
                      {path, std::generic_category().message(ENOSPC)});
    EXPECT_EQ(folder.read("known_hosts"), line);
    test::expectError(failure(line.size()), qlpipe::SshMessage::KnownHostsNotWritten,
                      {path, std::generic_category().message(EFBIG)});
    EXPECT_EQ(folder.read("known_hosts"), line);
}

} // namespace
