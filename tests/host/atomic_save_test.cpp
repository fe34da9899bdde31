#include "Host/files/atomic_save.h"
#include "tests/support/errors.h"
#include "tests/support/full_disk.h"
#include "tests/support/temp_folder.h"
#include <sys/stat.h>

using host::atomicSave;
using host::readFile;
using test::errorOf;
using test::FullDisk;
using test::TempFolder;

namespace {

struct stat stateOfFile(const std::string& path) {
    struct stat state {};
    ::stat(path.c_str(), &state);
    return state;
}

} // namespace

TEST(AtomicSave, WritesANewFileAndReplacesAnOldOne) {
    const TempFolder folder;
    atomicSave(folder / "a.bas", "one");
    EXPECT_EQ(folder.read("a.bas"), "one");
    atomicSave(folder / "a.bas", "two");
    EXPECT_EQ(folder.read("a.bas"), "two");
    EXPECT_EQ(folder.count(), 1u);
}

TEST(AtomicSave, DoesNotTouchAFileWithTheSameBytes) {
    const TempFolder folder;
    const auto path = folder.write("a.bas", "same");
    const auto before = stateOfFile(path);
    atomicSave(path, "same");
    const auto after = stateOfFile(path);
    EXPECT_EQ(before.st_ino, after.st_ino);
    EXPECT_EQ(before.st_mtim.tv_nsec, after.st_mtim.tv_nsec);
}

TEST(AtomicSave, KeepsTheMode) {
    const TempFolder folder;
    const auto path = folder.write("a.bas", "one");
    ::chmod(path.c_str(), 0640);
    atomicSave(path, "two");
    EXPECT_EQ(stateOfFile(path).st_mode & 07777, 0640u);
}

TEST(AtomicSave, SavesThroughALinkAndKeepsIt) {
    const TempFolder folder;
    folder.write("real/a.bas", "one");
    std::filesystem::create_symlink("real/a.bas", folder / "link.bas");
    std::filesystem::create_symlink("real/new.bas", folder / "dangling.bas");
    atomicSave(folder / "link.bas", "two");
    atomicSave(folder / "dangling.bas", "new");
    EXPECT_EQ(folder.read("real/a.bas"), "two");
    EXPECT_EQ(folder.read("real/new.bas"), "new");
    EXPECT_TRUE(std::filesystem::is_symlink(folder / "link.bas"));
}

TEST(AtomicSave, RefusesCircularLinks) {
    const TempFolder folder;
    std::filesystem::create_symlink("b", folder / "a");
    std::filesystem::create_symlink("a", folder / "b");
    EXPECT_EQ(errorOf([&] { atomicSave(folder / "a", "x"); }), 75);
}

TEST(AtomicSave, RefusesAReadOnlyFileForTheSuperuserToo) {
    const TempFolder folder;
    const auto path = folder.write("a.bas", "one");
    ::chmod(path.c_str(), 0444);
    EXPECT_TRUE(host::isReadOnly(path));
    EXPECT_EQ(errorOf([&] { atomicSave(path, "two"); }), 75);
    EXPECT_EQ(folder.read("a.bas"), "one");
    EXPECT_EQ(folder.count(), 1u);
    ::chmod(path.c_str(), 0644);
    EXPECT_FALSE(host::isReadOnly(path));
    EXPECT_FALSE(host::isReadOnly(folder / "missing"));
}

TEST(AtomicSave, KeepsTheOldFileAndLeavesNoOtherWhenTheDiskIsFull) {
    const TempFolder folder;
    const auto path = folder.write("a.bas", "one");
    {
        const FullDisk full(10);
        EXPECT_EQ(errorOf([&] { atomicSave(path, std::string(100, 'x')); }), 61);
        EXPECT_EQ(errorOf([&] { atomicSave(folder / "new.bas", std::string(100, 'x')); }), 61);
    }
    EXPECT_EQ(folder.read("a.bas"), "one");
    EXPECT_EQ(folder.count(), 1u);
}

TEST(AtomicSave, RefusesAFolderAndAMissingFolder) {
    const TempFolder folder;
    EXPECT_EQ(errorOf([&] { atomicSave(folder.path(), "x"); }), 75);
    EXPECT_EQ(errorOf([&] { atomicSave(folder / "no/a.bas", "x"); }), 76);
}

TEST(AtomicSave, DoesNotOverwriteChangesOfAnotherProgram) {
    const TempFolder folder;
    const auto path = folder.write("a.bas", "one");
    const auto asRead = readFile(path).stamp;
    folder.write("a.bas", "other");
    const auto error = basic::attempt([&] { atomicSave(path, "mine", asRead); });
    EXPECT_EQ(error.Number, 75);
    EXPECT_NE(error.Description.find("changed by another program"), std::string::npos);
    EXPECT_EQ(folder.read("a.bas"), "other");
}

TEST(AtomicSave, TreatsATouchedFileAsUnchanged) {
    const TempFolder folder;
    const auto path = folder.write("a.bas", "one");
    const auto asRead = readFile(path).stamp;
    std::filesystem::last_write_time(path, std::filesystem::file_time_type::clock::now() + std::chrono::seconds(5));
    const auto saved = atomicSave(path, "mine", asRead);
    EXPECT_EQ(folder.read("a.bas"), "mine");
    atomicSave(path, "again", saved);
    EXPECT_EQ(folder.read("a.bas"), "again");
}

TEST(AtomicSave, SaysWhichFileCannotBeSaved) {
    const TempFolder folder;
    const auto path = folder.write("file", "x") + "/a.bas";
    const auto error = basic::attempt([&] { atomicSave(path, "x"); });
    EXPECT_EQ(error.Description, path + ": cannot be saved: Not a directory");
}

TEST(AtomicMove, ReplacesAFileAndLeavesItsMode) {
    const TempFolder folder;
    const auto from = folder.write("new", "new"), to = folder.write("old", "old");
    ::chmod(to.c_str(), 0640);
    host::atomicMove(from, to);
    EXPECT_EQ(folder.read("old"), "new");
    EXPECT_EQ(stateOfFile(to).st_mode & 07777, 0640u);
    EXPECT_EQ(folder.count(), 1u);
}

TEST(AtomicMove, ReplacesTheFileThatALinkLeadsTo) {
    const TempFolder folder;
    const auto from = folder.write("new", "new");
    folder.write("real/old", "old");
    std::filesystem::create_symlink("real/old", folder / "link");
    host::atomicMove(from, folder / "link");
    EXPECT_EQ(folder.read("real/old"), "new");
    EXPECT_TRUE(std::filesystem::is_symlink(folder / "link"));
}

TEST(AtomicMove, RefusesAReadOnlyTargetAndAMissingFile) {
    const TempFolder folder;
    const auto from = folder.write("new", "new"), to = folder.write("old", "old");
    ::chmod(to.c_str(), 0444);
    EXPECT_EQ(errorOf([&] { host::atomicMove(from, to); }), 75);
    EXPECT_EQ(folder.read("old"), "old");
    EXPECT_EQ(folder.read("new"), "new");
    EXPECT_EQ(errorOf([&] { host::atomicMove(folder / "gone", folder / "x"); }), 53);
}

TEST(AtomicMove, CopiesToAnotherFileSystem) {
    const TempFolder folder;
    const auto from = folder.write("new", "new");
    std::string pattern = "/dev/shm/fernwick-test-XXXXXX";
    if (!::mkdtemp(pattern.data())) GTEST_SKIP() << "no other file system";
    host::atomicMove(from, pattern + "/moved");
    EXPECT_EQ(readFile(pattern + "/moved").bytes, "new");
    EXPECT_EQ(folder.count(), 0u);
    std::filesystem::remove_all(pattern);
}
