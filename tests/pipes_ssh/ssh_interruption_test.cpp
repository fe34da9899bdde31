// Lost and stalled connections, and devices that fail during a transfer.
#include "Components/QLPipe/base/pipe_messages.h"
#include "tests/pipes_ssh/cutting_proxy.h"
#include "tests/pipes_ssh/ssh_device.h"
#include <sys/mount.h>

namespace {

using qlpipe::SshMessage;
using qlpipe::SshStorage;
using test::CuttingProxy;
using test::deploy;
using test::expectError;
using test::put;
using test::transferErrorOf;
using testing::AnyOf;
using testing::ElementsAre;

class SshInterruption : public test::SshDevice {
protected:
    SshInterruption() {
        server.folder.write("known_hosts",
                            server.folder.read("known_hosts") + server.knownHost(proxy.port(), "host_key"));
    }

    std::unique_ptr<SshStorage> connectByProxy(const qlpipe::SshTimeouts& timeouts = patient()) const {
        return std::make_unique<SshStorage>(targetAt(proxy.port()), timeouts);
    }
    /// Returns the application as seen by the next connection.
    std::string wholeApplication() { return wholeApplication(*connect()); }
    static std::string wholeApplication(SshStorage& device) {
        const auto content = device.read("applications/Game/Game.qlx");
        EXPECT_EQ(device.read("applications/Game/data/levels.txt"), content + " levels");
        return content;
    }
    /// Short timeouts for tests that wait for them.
    static qlpipe::SshTimeouts impatient() {
        auto timeouts = patient();
        timeouts.operation = timeouts.flush = std::chrono::milliseconds(300);
        return timeouts;
    }

    CuttingProxy proxy{server.port};
};

TEST_F(SshInterruption, LeavesACompleteApplicationWhereverItHappens) {
    deploy(*connect(), "old");
    deploy(*connectByProxy(), "old");
    const auto all = proxy.sent();
    int broken = 0;
    // Begins at the end, where the old application is replaced.
    for (std::size_t left = 1; left < all; left += left < 2000 ? 110 : 1300) {
        proxy.cutAfter(all - left);
        const auto error = transferErrorOf([&] { deploy(*connectByProxy(), "new"); });
        broken += error.number != 0;
        const auto device = connect();
        EXPECT_THAT(wholeApplication(*device), AnyOf("old", "new")) << "cut " << left << " bytes before the end";
        deploy(*device, "old");
        EXPECT_THAT(device->list(""), ElementsAre("applications"));
        EXPECT_THAT(device->list("applications"), ElementsAre("Game"));
        EXPECT_TRUE(std::filesystem::is_empty(server.folder / "device/.fernwick-replaced"));
    }
    EXPECT_GT(broken, 10);
}

TEST_F(SshInterruption, IsUndoneIfTheNewFolderIsMissing) {
    server.folder.write("device/.fernwick-replaced/applications%2FGame/Game.qlx", "old");
    server.folder.write("device/.fernwick-replaced/applications%2FGame/data/levels.txt", "old levels");
    EXPECT_EQ(wholeApplication(), "old");
    EXPECT_TRUE(std::filesystem::is_empty(server.folder / "device/.fernwick-replaced"));
}

TEST_F(SshInterruption, IsCleanedUpIfTheNewFolderExists) {
    deploy(*connect(), "new");
    server.folder.write("device/.fernwick-replaced/applications%2FGame/Game.qlx", "old");
    EXPECT_EQ(wholeApplication(), "new");
    EXPECT_TRUE(std::filesystem::is_empty(server.folder / "device/.fernwick-replaced"));
}

TEST_F(SshInterruption, DoesNotRestoreUnknownNames) {
    for (const char* name : {"..%2F..%2Fescaped", "%2Fescaped", "50%off"})
        server.folder.write("device/.fernwick-replaced/" + std::string{name} + "/file", "x");
    connect();
    EXPECT_FALSE(std::filesystem::exists(server.folder / "escaped"));
    EXPECT_TRUE(isOnDevice(".fernwick-replaced/50%off/file"));
}

TEST_F(SshInterruption, ReportsALostConnection) {
    const auto device = connectByProxy();
    device->makeFolder("a");
    const auto file = device->create("a/file");
    proxy.cutAfter(proxy.sent() + 200'000);
    expectError(transferErrorOf([&] {
                    for (int i = 0; i < 100; ++i) file->write(std::string(100'000, 'x'));
                    file->close();
                }),
                SshMessage::ConnectionLost, {"127.0.0.1:", "try again"});
    EXPECT_FALSE(isOnDevice("a/file"));
}

TEST_F(SshInterruption, ReportsAKilledServer) {
    const auto device = connect();
    device->makeFolder("a");
    server.kill();
    expectError(transferErrorOf([&] { put(*device, "a/file", "x"); }), SshMessage::ConnectionLost);
}

TEST_F(SshInterruption, TimesOutWithoutAReply) {
    const auto device = connectByProxy(impatient());
    proxy.freeze(true);
    expectError(transferErrorOf([&] { device->exists("a"); }), SshMessage::Stalled, {"0.3 seconds"});
}

TEST_F(SshInterruption, TimesOutIfTheNetworkIsBlocked) {
    auto timeouts = impatient();
    const auto device = connectByProxy(timeouts);
    device->makeFolder("a");
    const auto file = device->create("a/file");
    proxy.freeze(true);
    expectError(transferErrorOf([&] {
                    for (int i = 0; i < 1000; ++i) file->write(std::string(100'000, 'x'));
                    file->close();
                }),
                SshMessage::Stalled, {"0.3 seconds"});
}

TEST_F(SshInterruption, WaitsForASlowServer) {
    auto timeouts = patient();
    const auto device = connectByProxy(timeouts);
    proxy.freeze(true);
    std::thread thaw([this] {
        std::this_thread::sleep_for(std::chrono::milliseconds(100));
        proxy.freeze(false);
    });
    EXPECT_FALSE(device->exists("a"));
    thaw.join();
}

TEST_F(SshInterruption, LeavesAnUnlistedPartThatIsOverwritten) {
    {
        const auto device = connectByProxy();
        device->makeFolder("a");
        const auto file = device->create("a/file");
        file->write(std::string(100'000, 'x'));
        server.kill();
    }
    ASSERT_FALSE(std::filesystem::is_empty(server.folder / "device/a"));
    server.start();
    const auto device = connect();
    EXPECT_THAT(device->list("a"), testing::IsEmpty());
    put(*device, "a/file", "new");
    EXPECT_THAT(device->list("a"), ElementsAre("file"));
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(server.folder / "device/a"),
                            std::filesystem::directory_iterator()),
              1);
    EXPECT_EQ(onDevice("a/file"), "new");
}

TEST_F(SshInterruption, StopsIfALaterTransferTakesTheDevice) {
    const auto first = connect(), second = connect();
    first->makeFolder("incoming");
    put(*first, "incoming/a", "first");
    second->remove("incoming");
    second->makeFolder("incoming");
    for (const auto& step : std::vector<std::function<void()>>{
             [&] { put(*first, "incoming/b", "first"); },
             [&] { first->replaceFolder("incoming", "applications"); },
             [&] { first->replaceFile("incoming/a", "list"); },
         })
        EXPECT_EQ(transferErrorOf(step).number, qlpipe::kDeviceBusy);
    put(*second, "incoming/a", "second");
    second->replaceFolder("incoming", "applications");
    EXPECT_THAT(second->list("applications"), ElementsAre("a"));
    EXPECT_EQ(onDevice("applications/a"), "second");
}

TEST_F(SshInterruption, DoesNotTakeTheDeviceForReading) {
    const auto first = connect();
    first->makeFolder("incoming");
    EXPECT_THAT(connect()->list(""), ElementsAre("incoming"));
    EXPECT_NO_THROW(put(*first, "incoming/a", "first"));
}

/// A device with a disk of a few kilobytes, if the test may mount one.
class SshFullDevice : public SshInterruption {
protected:
    void SetUp() override {
        std::filesystem::create_directory(server.folder / "device");
        mounted = ::mount("tmpfs", (server.folder / "device").c_str(), "tmpfs", 0, "size=64k") == 0;
        if (!mounted) GTEST_SKIP() << "only root can mount a small disk";
    }
    void TearDown() override {
        if (mounted) ::umount2((server.folder / "device").c_str(), MNT_DETACH);
    }
    bool mounted = false;
};

TEST_F(SshFullDevice, KeepsTheOldApplicationAndReportsTheFullDevice) {
    const auto device = connect();
    deploy(*device, "old");
    EXPECT_GT(device->freeSpaceFor("applications/Game"), 0);
    EXPECT_LE(device->freeSpaceFor("applications/Game"), 64 * 1024);
    expectError(transferErrorOf([&] { deploy(*device, std::string(200'000, 'x')); }), SshMessage::DeviceFull,
                {"not enough space", "device/incoming/Game.qlx"});
    EXPECT_EQ(wholeApplication(), "old");
    EXPECT_TRUE(connect()->list("incoming").size() < 2);
}

/// A server on which no user can write, not even root.
TEST(SshReadOnlyDevice, ReportsTheRefusedOperation) {
    const test::SshServer server{"Subsystem sftp internal-sftp -R\n"};
    server.folder.write("device/file", "x");
    SshStorage device{{"127.0.0.1", server.port, qlpipe::userName(), server.folder / "user_key",
                       server.folder / "device", server.folder / "known_hosts", false},
                      {}};
    for (const auto& step : std::vector<std::function<void()>>{
             [&] { device.makeFolder("a"); },
             [&] { device.create("new"); },
             [&] { device.remove("file"); },
         })
        expectError(
            transferErrorOf(step), SshMessage::AccessDenied,
            {qlpipe::userName() + " may not write to", "/device on the handheld (Permission denied)", "Folder"});
    EXPECT_EQ(device.read("file"), "x");
}

/// Key re-exchange during a transfer, as in very long ones.
TEST(SshServerThatChangesKeys, DoesNotDisturbATransfer) {
    const test::SshServer server{"Subsystem sftp internal-sftp\nRekeyLimit 512K\n"};
    SshStorage device{{"127.0.0.1", server.port, qlpipe::userName(), server.folder / "user_key",
                       server.folder / "device", server.folder / "known_hosts", false},
                      {}};
    std::string bytes;
    for (int i = 0; bytes.size() < 5'000'000; ++i) bytes += std::to_string(i);
    device.makeFolder("a");
    put(device, "a/file", bytes);
    EXPECT_TRUE(server.folder.read("device/a/file") == bytes);
}

/// A server without protocol extensions.
TEST(SshPlainServer, IsSupported) {
    const test::SshServer server{"Subsystem sftp internal-sftp -P posix-rename,fsync,statvfs\n"};
    SshStorage device{{"127.0.0.1", server.port, qlpipe::userName(), server.folder / "user_key",
                       server.folder / "device", server.folder / "known_hosts", false},
                      {}};
    EXPECT_EQ(device.freeSpaceFor(""), -1);
    deploy(device, "one");
    deploy(device, "two");
    for (const char* content : {"first", "second"}) {
        put(device, "new", content);
        device.replaceFile("new", "list");
        EXPECT_EQ(device.read("list"), content);
    }
    EXPECT_EQ(device.read("applications/Game/Game.qlx"), "two");
    EXPECT_THAT(device.list(""), ElementsAre("applications", "list"));
}

} // namespace
