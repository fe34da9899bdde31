#include "Components/QLPipe/base/pipe_messages.h"
#include "Components/QLPipe/package/installer.h"
#include "Components/QLPipe/virtual_device/virtual_device.h"
#include "tests/pipes/other_process.h"
#include "tests/support/deep_folder.h"
#include "tests/support/temp_folder.h"
#include <cstddef>
#include <filesystem>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <linux/filter.h>
#include <linux/seccomp.h>
#include <sys/prctl.h>
#include <sys/resource.h>
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

/// Lets every system call with this number fail in this process.
void failCalls(std::uint32_t call, std::uint32_t error) {
    const sock_filter kRules[] = {
        BPF_STMT(BPF_LD | BPF_W | BPF_ABS, offsetof(seccomp_data, nr)), BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, call, 0, 1),
        BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ERRNO | error), BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ALLOW)};
    const sock_fprog kProgram{std::size(kRules), const_cast<sock_filter*>(kRules)};
    if (::prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) != 0 || ::prctl(PR_SET_SECCOMP, SECCOMP_MODE_FILTER, &kProgram) != 0)
        ::_exit(2);
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
    if (test::kHasSanitizer) GTEST_SKIP() << "the sanitizer itself calls write()";
    for (const auto& [error, number] : {std::pair{ENOSPC, qlpipe::kDeviceDiskFull},
                                        {EDQUOT, qlpipe::kDeviceDiskFull},
                                        {EIO, qlpipe::kStorageFailed}}) {
        test::OtherProcess other{[&, error = error, number = number] {
            auto device = open();
            const auto file = device.create("a.txt");
            failCalls(SYS_write, std::uint32_t(error));
            return numberOf([&] { file->write("a"); }) == number ? 0 : 1;
        }};
        EXPECT_TRUE(other.succeeds()) << error;
        EXPECT_FALSE(isThere("a.txt"));
    }
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
void refuseExchange() { failCalls(SYS_renameat2, EINVAL); }

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

TEST_F(VirtualDevices, LeaveFoldersAloneThatNoReplacementMade) {
    for (const char* name : {".old", "..old", "..x.old", ".a\\b.old"})
        for (const char* parent : {"", "applications/"})
            folder.write("device/" + (parent + std::string(name)) + "/a.txt", "old");
    open();
    for (const char* name : {".old", "..old", "..x.old", ".a\\b.old"})
        for (const char* parent : {"", "applications/"}) EXPECT_EQ(read(parent + std::string(name) + "/a.txt"), "old");
}

TEST_F(VirtualDevices, RemoveFoldersOfAnyDepth) {
    folder.write("device/.incoming/moved0", "a name that is in use");
    test::nestFolders(path + "/.incoming", 300);
    test::OtherProcess other{[&] {
        const rlimit fewFiles{120, 120};
        ::setrlimit(RLIMIT_NOFILE, &fewFiles);
        return numberOf([&] { open(); });
    }};
    EXPECT_TRUE(other.succeeds());
    EXPECT_FALSE(isThere(".incoming"));
}

TEST_F(VirtualDevices, DoNotCountFoldersThatAreTooDeep) {
    fs::create_directories(path + "/applications/Hello");
    test::nestFolders(path + "/applications/Hello", 100);
    auto device = open(1000);
    EXPECT_EQ(numberOf([&] { device.freeSpaceFor("applications/Other"); }), qlpipe::kStorageFailed);
    device.remove("applications/Hello");
    EXPECT_EQ(device.freeSpaceFor("applications/Other"), 1000);
}

TEST_F(VirtualDevices, ReportFoldersThatCannotBeRead) {
    test::OtherProcess other{[&] {
        auto device = open(1000);
        put(device, "applications/Hello/a.txt", "a");
        failCalls(SYS_getdents64, EIO);
        const bool lists = numberOf([&] { device.list("applications"); }) == qlpipe::kStorageFailed;
        const bool counts = numberOf([&] { device.freeSpaceFor("fonts"); }) == qlpipe::kStorageFailed;
        const bool removes = numberOf([&] { device.remove("applications"); }) == qlpipe::kStorageFailed;
        return lists && counts && removes ? 0 : 1;
    }};
    EXPECT_TRUE(other.succeeds());
    EXPECT_TRUE(isThere("applications/Hello/a.txt"));
}

// ---- looking at a device --------------------------------------------------------------------------------------------

TEST_F(VirtualDevices, AreNotMadeByLooking) {
    const auto device = VirtualDevice::openToRead(path, 1000);
    EXPECT_EQ(device->location(), path);
    EXPECT_FALSE(device->exists("runtime/manifest.json"));
    EXPECT_THAT(device->list(""), IsEmpty());
    EXPECT_EQ(device->freeSpaceFor(".incoming"), 1000);
    EXPECT_GT(VirtualDevice::openToRead(path, {})->freeSpaceFor(".incoming"), 0);
    EXPECT_FALSE(fs::exists(path));
}

TEST_F(VirtualDevices, DoNotChangeByLookingEvenWhenInUse) {
    auto transfer = open();
    put(transfer, ".incoming/a.txt", "half");
    put(transfer, "runtime/manifest.json", "{}");
    folder.write("device/applications/.Hello.old/a.txt", "old");
    const auto device = VirtualDevice::openToRead(path, 1000);
    EXPECT_EQ(device->read("runtime/manifest.json"), "{}");
    EXPECT_EQ(device->freeSpaceFor(".incoming"), 995);
    EXPECT_TRUE(isThere(".incoming/a.txt"));
    EXPECT_TRUE(isThere("applications/.Hello.old/a.txt"));
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
