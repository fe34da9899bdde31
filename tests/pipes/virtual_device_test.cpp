#include "Components/QLPipe/base/pipe_messages.h"
#include "Components/QLPipe/package/installer.h"
#include "Components/QLPipe/virtual_device/virtual_device.h"
#include "tests/pipes/other_process.h"
#include "tests/support/temp_folder.h"
#include <cstddef>
#include <filesystem>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <linux/filter.h>
#include <linux/seccomp.h>
#include <sys/prctl.h>
#include <sys/syscall.h>
#include <thread>

namespace {

namespace fs = std::filesystem;
using namespace std::chrono_literals;
using qlpipe::TransferError;
using qlpipe::VirtualDevice;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

template <class Operation>
std::int32_t numberOf(Operation&& operation) {
    try {
        operation();
        return 0;
    } catch (const TransferError& error) { return error.number; }
}

class VirtualDevices : public testing::Test {
protected:
    VirtualDevice open(std::optional<std::int64_t> memory = {}) { return VirtualDevice{path, memory, 0ms}; }
    static void put(VirtualDevice& device, const std::string& name, const std::string& bytes) {
        device.makeFolder(fs::path(name).parent_path().string());
        const auto file = device.create(name);
        file->write(bytes);
        file->close();
    }
    std::string read(const std::string& name) const { return folder.read("device/" + name); }
    bool isThere(const std::string& name) const { return fs::exists(fs::symlink_status(path + "/" + name)); }

    test::TempFolder folder;
    std::string path = folder / "device";
};

TEST_F(VirtualDevices, StoreFilesInFolders) {
    auto device = open();
    put(device, "applications/Hello/files/b.txt", "bee");
    put(device, "applications/Hello/files/a.txt", "");
    EXPECT_THAT(device.list("applications/Hello/files"), ElementsAre("a.txt", "b.txt"));
    EXPECT_THAT(device.list("applications/Other"), IsEmpty());
    EXPECT_EQ(device.read("applications/Hello/files/b.txt"), "bee");
    EXPECT_TRUE(device.exists("applications/Hello"));
    EXPECT_FALSE(device.exists("applications/Other/files"));
    device.remove("applications/Hello");
    device.remove("applications/Hello");
    EXPECT_THAT(device.list("applications"), IsEmpty());
}

TEST_F(VirtualDevices, DiscardAFileThatWasNotClosed) {
    auto device = open();
    device.create("a.txt")->write("half");
    EXPECT_FALSE(isThere("a.txt"));
}

TEST_F(VirtualDevices, RefuseToCreateExistingFilesAndFilesInMissingFolders) {
    auto device = open();
    put(device, "a.txt", "old");
    EXPECT_EQ(numberOf([&] { device.create("a.txt"); }), qlpipe::kStorageFailed);
    EXPECT_EQ(numberOf([&] { device.create("none/a.txt"); }), qlpipe::kStorageFailed);
    EXPECT_EQ(read("a.txt"), "old");
}

TEST_F(VirtualDevices, ReplaceFilesAndFolders) {
    auto device = open();
    put(device, "new.txt", "new");
    put(device, "old.txt", "old");
    device.replaceFile("new.txt", "old.txt");
    EXPECT_EQ(read("old.txt"), "new");
    put(device, "one/a.txt", "1");
    put(device, "two/b.txt", "2");
    device.replaceFolder("one", "two");
    EXPECT_EQ(read("two/a.txt"), "1");
    EXPECT_FALSE(isThere("two/b.txt"));
    EXPECT_FALSE(isThere("one"));
}

TEST_F(VirtualDevices, RefuseAManifestOfMoreThanAMegabyte) {
    auto device = open();
    put(device, "large", std::string(1024 * 1024 + 1, 'x'));
    EXPECT_EQ(numberOf([&] { device.read("large"); }), qlpipe::kStorageFileTooLarge);
    EXPECT_EQ(numberOf([&] { device.read("none"); }), qlpipe::kStorageFailed);
}

TEST_F(VirtualDevices, ReportTheirFreeMemory) {
    auto device = open(1000);
    EXPECT_EQ(device.freeSpaceFor("applications/Hello"), 1000);
    put(device, "applications/Hello/a", std::string(300, 'x'));
    put(device, "fonts/Small.cmf", std::string(200, 'x'));
    put(device, "runtime/files/r", std::string(100, 'x'));
    EXPECT_EQ(device.freeSpaceFor("applications/Other"), 400);
    EXPECT_EQ(device.freeSpaceFor("applications/Hello"), 700) << "the replaced folder frees its space";
    put(device, "fonts/Large.cmf", std::string(800, 'x'));
    EXPECT_EQ(device.freeSpaceFor("applications/Other"), 0);
}

// ---- nothing leads out of the device's folder ---------------------------------------------------------------------

TEST_F(VirtualDevices, DoNotFollowLinksInTheirFolder) {
    fs::create_directories(folder / "outside");
    folder.write("outside/secret", "secret");
    auto device = open();
    fs::create_symlink(folder / "outside", path + "/applications");
    fs::create_symlink(folder / "outside/secret", path + "/manifest.json");
    for (const auto number :
         {numberOf([&] { device.makeFolder("applications/Hello"); }),
          numberOf([&] { device.makeFolder("applications"); }), numberOf([&] { device.create("applications/a"); }),
          numberOf([&] { device.list("applications"); }), numberOf([&] { device.exists("applications/secret"); }),
          numberOf([&] { device.remove("applications/secret"); }),
          numberOf([&] { device.read("applications/secret"); }), numberOf([&] { device.read("manifest.json"); })})
        EXPECT_EQ(number, qlpipe::kStorageLink);
    EXPECT_EQ(folder.read("outside/secret"), "secret");
    EXPECT_EQ(std::distance(fs::directory_iterator(folder / "outside"), fs::directory_iterator()), 1);
}

TEST_F(VirtualDevices, ReplaceAndRemoveLinksNotTheirTargets) {
    folder.write("outside/secret", "secret");
    auto device = open(1000);
    put(device, "new/a.txt", "new");
    fs::create_directories(path + "/applications/Other");
    fs::create_symlink(folder / "outside", path + "/applications/Hello");
    fs::create_symlink(folder / "outside", path + "/applications/Other/link");
    EXPECT_EQ(device.freeSpaceFor("applications/Hello"), 1000);
    device.replaceFolder("new", "applications/Hello");
    EXPECT_EQ(read("applications/Hello/a.txt"), "new");
    device.remove("applications/Other");
    EXPECT_EQ(folder.read("outside/secret"), "secret");
}

TEST_F(VirtualDevices, MustNotBeLinks) {
    fs::create_directories(folder / "outside");
    fs::create_symlink(folder / "outside", path);
    EXPECT_EQ(numberOf([&] { open(); }), qlpipe::kStorageLink);
}

TEST_F(VirtualDevices, ReportAFolderThatCannotBeCreated) {
    folder.write("device", "a file");
    EXPECT_NE(numberOf([&] { open(); }), 0);
    EXPECT_EQ(folder.read("device"), "a file");
}

TEST_F(VirtualDevices, ReportAFullDisk) {
    const qlpipe::FolderHandle root{qlpipe::FileDescriptor{}, "/devices/Palm"};
    EXPECT_EQ(numberOf([&] { root.fail(ENOSPC, "a"); }), qlpipe::kDeviceDiskFull);
    EXPECT_EQ(numberOf([&] { root.fail(EDQUOT, "a"); }), qlpipe::kDeviceDiskFull);
    EXPECT_EQ(numberOf([&] { root.fail(EIO, "a"); }), qlpipe::kStorageFailed);
}

// ---- interruptions ------------------------------------------------------------------------------------------------

TEST_F(VirtualDevices, UndoAnInterruptedReplacement) {
    folder.write("device/applications/.Hello.old/a.txt", "old");
    folder.write("device/.runtime.old/r", "old");
    open();
    EXPECT_EQ(read("applications/Hello/a.txt"), "old");
    EXPECT_EQ(read("runtime/r"), "old");
}

TEST_F(VirtualDevices, CompleteAReplacementThatLacksOnlyTheRemoval) {
    folder.write("device/applications/.Hello.old/a.txt", "old");
    folder.write("device/applications/Hello/a.txt", "new");
    folder.write("device/.incoming/bundle/b.txt", "half");
    open();
    EXPECT_EQ(read("applications/Hello/a.txt"), "new");
    EXPECT_FALSE(isThere("applications/.Hello.old"));
    EXPECT_FALSE(isThere(".incoming"));
}

/// Disables the atomic exchange of names for this process, as on file systems without it.
void refuseExchange() {
    const sock_filter kRules[] = {BPF_STMT(BPF_LD | BPF_W | BPF_ABS, offsetof(seccomp_data, nr)),
                                  BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, SYS_renameat2, 0, 1),
                                  BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ERRNO | EINVAL),
                                  BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ALLOW)};
    const sock_fprog kProgram{std::size(kRules), const_cast<sock_filter*>(kRules)};
    if (::prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) != 0 || ::prctl(PR_SET_SECCOMP, SECCOMP_MODE_FILTER, &kProgram) != 0)
        ::_exit(2);
}

TEST_F(VirtualDevices, ReplaceAFolderInTwoStepsWithoutAtomicExchange) {
    test::OtherProcess other{[&] {
        auto device = open();
        put(device, "one/a.txt", "1");
        put(device, "two/b.txt", "2");
        refuseExchange();
        device.replaceFolder("one", "two");
        return 0;
    }};
    EXPECT_TRUE(other.succeeds());
    EXPECT_EQ(read("two/a.txt"), "1");
    EXPECT_FALSE(isThere("two/b.txt"));
    EXPECT_FALSE(isThere(".two.old"));
    EXPECT_FALSE(isThere("one"));
}

// ---- one transfer at a time ---------------------------------------------------------------------------------------

TEST_F(VirtualDevices, ServeOneTransferAtATime) {
    {
        const auto device = open();
        EXPECT_EQ(numberOf([&] { open(); }), qlpipe::kDeviceBusy);
    }
    EXPECT_EQ(numberOf([&] { open(); }), 0);
}

TEST_F(VirtualDevices, WaitForTheOtherTransfer) {
    test::OtherProcess other{[&] {
        auto device = open();
        put(device, "begun", "");
        std::this_thread::sleep_for(100ms);
        put(device, "ended", "");
        return 0;
    }};
    while (!isThere("begun")) std::this_thread::sleep_for(1ms);
    EXPECT_EQ(numberOf([&] { VirtualDevice{path, {}, 20s}; }), 0);
    EXPECT_TRUE(isThere("ended"));
}

TEST_F(VirtualDevices, AreFreeAfterAKilledTransfer) {
    test::OtherProcess other{[&] {
        const auto device = open();
        ::raise(SIGKILL);
        return 0;
    }};
    EXPECT_TRUE(other.wasKilled());
    EXPECT_EQ(numberOf([&] { open(); }), 0);
}

} // namespace
