#include "Basic/runtime_error.h"
#include "Host/system/file_system.h"
#include "tests/host_system/temp_folder.h"
#include <cerrno>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

using namespace std::string_literals;

namespace {

class LocalFiles : public testing::Test {
protected:
    std::string path(const std::string& name) const { return (folder / name).string(); }
    template <class F>
    int errorOf(F&& statement) {
        err = basic::attempt(statement);
        return err.Number;
    }
    void setMode(const std::string& name, unsigned mode) {
        std::filesystem::permissions(folder / name, std::filesystem::perms(mode));
    }

    TempFolder folder;
    host::FileSystem files;
    basic::ErrObject err;
};

} // namespace

TEST_F(LocalFiles, AreFoundInAnyLetterCaseAndWithEitherSeparator) {
    folder.write("VB Toolkit/doc/Guide.chm", "x");
    const auto asked = path("vb toolkit\\DOC\\guide.CHM");
    EXPECT_TRUE(files.FileExists(asked));
    EXPECT_FALSE(files.FolderExists(asked));
    EXPECT_TRUE(files.FolderExists(path("VB TOOLKIT")));
    EXPECT_FALSE(files.FileExists(path("VB TOOLKIT")));
    EXPECT_FALSE(files.FileExists(""));
    EXPECT_FALSE(files.FolderExists(""));
    EXPECT_EQ(files.Canonical(asked), path("VB Toolkit/doc/Guide.chm"));
    EXPECT_EQ(files.Canonical(path("vb toolkit\\New.txt")), path("VB Toolkit/New.txt"));
    EXPECT_EQ(files.ReadBytes(asked), "x");
    EXPECT_TRUE(files.SamePath(asked, path("VB Toolkit/./doc//Guide.chm")));
    EXPECT_FALSE(files.SamePath(asked, path("VB Toolkit")));
}

TEST_F(LocalFiles, ReadTheirFirstBytes) {
    folder.write("a.bin", std::string("1\0002345", 6));
    EXPECT_EQ(files.ReadPart(path("A.BIN"), 0, 3), std::string("1\0002", 3));
    EXPECT_EQ(files.ReadPart(path("a.bin"), 0, 100), std::string("1\0002345", 6));
    EXPECT_EQ(files.ReadPart(path("a.bin"), 0, 0), "");
    EXPECT_EQ(errorOf([&] { files.ReadPart(path("gone.bin"), 0, 3); }), basic::kFileNotFound);
    EXPECT_NE(errorOf([&] { files.ReadPart(folder.path(), 0, 3); }), 0);
}

TEST_F(LocalFiles, AnExactNameComesFirst) {
    folder.write("a.txt", "small"), folder.write("A.txt", "big");
    EXPECT_EQ(files.ReadBytes(path("a.txt")), "small");
    EXPECT_EQ(files.ReadBytes(path("A.txt")), "big");
    EXPECT_FALSE(files.SamePath(path("a.txt"), path("A.txt")));
}

TEST_F(LocalFiles, SplitPaths) {
    EXPECT_EQ(files.GetParentFolderName("/a/b.txt"), "/a");
    EXPECT_EQ(files.GetParentFolderName("\\a\\b\\"), "/a");
    EXPECT_EQ(files.GetParentFolderName("/a"), "/");
    EXPECT_EQ(files.GetParentFolderName("/"), "");
    EXPECT_EQ(files.GetParentFolderName("b.txt"), "");
    EXPECT_EQ(files.GetParentFolderName("sub\\b.txt"), "sub");
    EXPECT_EQ(files.GetFileName("/a\\b.txt"), "b.txt");
    EXPECT_EQ(files.GetFileName("/a/b/"), "b");
    EXPECT_EQ(files.GetFileName("/"), "");
    EXPECT_EQ(files.GetBaseName("/a.d/b.c.txt"), "b.c");
    EXPECT_EQ(files.GetBaseName("/a.d/b"), "b");
    EXPECT_EQ(files.GetExtensionName("/a.d/b.c.txt"), "txt");
    EXPECT_EQ(files.GetExtensionName("/a.d/b"), "");
    EXPECT_EQ(files.GetExtensionName("b."), "");
}

TEST_F(LocalFiles, JoinPaths) {
    EXPECT_EQ(files.BuildPath("/root", "\\VB TOOLKIT\\BIN\\QLDEFAULT.ico"), "/root/VB TOOLKIT/BIN/QLDEFAULT.ico");
    EXPECT_EQ(files.BuildPath("/root/", "a"), "/root/a");
    EXPECT_EQ(files.BuildPath("/", "a"), "/a");
    EXPECT_EQ(files.BuildPath("", "a\\b"), "a/b");
    EXPECT_EQ(files.WithSeparator("/a"), "/a/");
    EXPECT_EQ(files.WithSeparator("/a\\"), "/a/");
    EXPECT_EQ(files.WithSeparator("/"), "/");
    EXPECT_EQ(files.WithSeparator(""), "");
    EXPECT_TRUE(files.IsAbsolute("/a"));
    EXPECT_TRUE(files.IsAbsolute("\\a"));
    EXPECT_FALSE(files.IsAbsolute("a/b"));
    EXPECT_FALSE(files.IsAbsolute(""));
    EXPECT_EQ(files.GetAbsolutePathName("/a/./b\\..//c/"), "/a/c");
    EXPECT_EQ(files.GetAbsolutePathName("/../.."), "/");
    EXPECT_EQ(files.GetAbsolutePathName("x"), (std::filesystem::current_path() / "x").string());
    EXPECT_EQ(files.GetAbsolutePathName(""), std::filesystem::current_path().string());
}

TEST_F(LocalFiles, ReadOnlyMeansNoWriteBitForTheSuperuserToo) {
    folder.write("a.txt", "x"), folder.write(".hidden", "x");
    EXPECT_EQ(files.GetAttributes(path("a.txt")), 0);
    EXPECT_EQ(files.GetAttributes(path(".hidden")), fernwick::HiddenAttribute);
    setMode("a.txt", 0444);
    EXPECT_EQ(files.GetAttributes(path("a.txt")), fernwick::ReadOnlyAttribute);
}

TEST_F(LocalFiles, HaveTheirSizeAndTime) {
    folder.write("a.txt", "12345");
    EXPECT_EQ(files.GetSize(path("A.TXT")), 5);
    files.SetDateLastModified(path("a.txt"), 1'234'567'890'123'456'789);
    EXPECT_EQ(files.GetDateLastModified(path("a.txt")), 1'234'567'890'123'456'789);
    files.SetDateLastModified(path("a.txt"), -1);
    EXPECT_EQ(files.GetDateLastModified(path("a.txt")), -1);
}

TEST_F(LocalFiles, AMissingFileIsError53) {
    for (const auto& absent : {path("absent"), folder.path().string()}) {
        EXPECT_EQ(errorOf([&] { files.GetAttributes(absent); }), 53) << absent;
        EXPECT_EQ(errorOf([&] { files.GetSize(absent); }), 53) << absent;
        EXPECT_EQ(errorOf([&] { files.GetDateLastModified(absent); }), 53) << absent;
        EXPECT_EQ(errorOf([&] { files.DeleteFile(absent, true); }), 53) << absent;
        EXPECT_EQ(errorOf([&] { files.CopyFile(absent, path("to"), true); }), 53) << absent;
    }
    EXPECT_EQ(errorOf([&] { files.OpenTextFile(path("absent")); }), 53);
    EXPECT_EQ(err.LastDllError, ENOENT);
    EXPECT_EQ(err.Source, "VBIDE");
    EXPECT_THAT(err.Description, testing::HasSubstr(path("absent")));
    EXPECT_EQ(errorOf([&] { files.Files(path("absent")); }), 76);
}

TEST_F(LocalFiles, ReadLinesWithAnyLineEnd) {
    folder.write("a.txt", "one\r\ntwo\nthree\rfour\r\n\r\nlast \x80\x81");
    const auto stream = files.OpenTextFile(path("a.txt"));
    std::vector<std::string> lines;
    while (!stream->AtEndOfStream()) lines.push_back(stream->ReadLine());
    EXPECT_EQ(lines, (std::vector<std::string>{"one", "two", "three", "four", "", "last \xE2\x82\xAC\xC2\x81"}));
    EXPECT_EQ(errorOf([&] { stream->ReadLine(); }), 62);
    EXPECT_EQ(errorOf([&] { stream->WriteLine("x"); }), 54);
    stream->Close();
}

TEST_F(LocalFiles, WriteLinesWithCrLfAndPreserveBytes) {
    std::string bytes;
    for (int b = 0; b < 256; ++b)
        if (b != '\r' && b != '\n') bytes += static_cast<char>(b);
    folder.write("in.txt", bytes + "\n");
    const auto from = files.OpenTextFile(path("in.txt"));
    const auto to = files.CreateTextFile(path("out.txt"), false);
    to->WriteLine(from->ReadLine());
    EXPECT_EQ(errorOf([&] { to->WriteLine("\xD0\x96"); }), 5); // a character that the code page lacks
    EXPECT_EQ(errorOf([&] { to->ReadLine(); }), 54);
    EXPECT_EQ(errorOf([&] { to->AtEndOfStream(); }), 54);
    to->Close();
    EXPECT_EQ(folder.read("out.txt"), bytes + "\r\n");
    EXPECT_EQ(errorOf([&] { to->WriteLine("late"); }), 54);
}

TEST_F(LocalFiles, AReleasedStreamIsWritten) {
    files.CreateTextFile(path("out.txt"), false)->WriteLine("x");
    EXPECT_EQ(folder.read("out.txt"), "x\r\n");
}

TEST_F(LocalFiles, CreatingAFileHasTheErrorsOfScripts) {
    folder.write("a.txt", "x");
    setMode("a.txt", 0444);
    std::filesystem::create_directory(folder / "sub");
    EXPECT_EQ(errorOf([&] { files.CreateTextFile(path("A.txt"), false); }), 58);
    EXPECT_EQ(errorOf([&] { files.CreateTextFile(path("a.txt"), true); }), 70);
    EXPECT_EQ(err.LastDllError, EACCES);
    EXPECT_EQ(errorOf([&] { files.CreateTextFile(path("sub"), true); }), 70);
    EXPECT_EQ(errorOf([&] { files.CreateTextFile(path("none/a.txt"), true); }), 76);
    EXPECT_EQ(errorOf([&] { files.WriteBytes(path("a.txt"), "y"); }), 70);
    EXPECT_EQ(errorOf([&] { files.WriteBytes(path("none/a.txt"), "y"); }), 76);
    EXPECT_EQ(folder.read("a.txt"), "x");
}

TEST_F(LocalFiles, CloseReportsAFailedWrite) {
    std::filesystem::create_directory(folder / "sub");
    const auto stream = files.CreateTextFile(path("sub/a.txt"), true);
    stream->WriteLine("x");
    std::filesystem::remove(folder / "sub");
    EXPECT_NE(errorOf([&] { stream->Close(); }), 0);
}

TEST_F(LocalFiles, CopiesReplaceTheWholeFileAndKeepItsTime) {
    folder.write("from.txt", "new bytes"), folder.write("To.txt", "old");
    files.SetDateLastModified(path("from.txt"), 1'000'000'000'000'000'001);
    setMode("from.txt", 0755);
    files.CopyFile(path("FROM.txt"), path("to.TXT"), true);
    EXPECT_EQ(folder.read("To.txt"), "new bytes");
    EXPECT_EQ(files.GetDateLastModified(path("To.txt")), 1'000'000'000'000'000'001);
    files.CopyFile(path("from.txt"), path("fresh"), false);
    struct stat state {};
    ASSERT_EQ(::stat(path("fresh").c_str(), &state), 0);
    EXPECT_EQ(state.st_mode & 0777u, 0755u);
    std::filesystem::create_directory(folder / "sub");
    files.CopyFile(path("from.txt"), path("sub\\"), false);
    EXPECT_EQ(folder.read("sub/from.txt"), "new bytes");
    files.CopyFile(path("from.txt"), path("from.txt"), true);
    EXPECT_EQ(folder.read("from.txt"), "new bytes");
    EXPECT_THAT(files.Files(folder.path().string()), testing::ElementsAre("fresh", "from.txt", "To.txt"));
}

TEST_F(LocalFiles, FoldersAreCreatedOneAtATime) {
    files.CreateFolder(path("a"));
    files.CreateFolder(path("A\\b"));
    EXPECT_TRUE(std::filesystem::is_directory(folder / "a/b"));
    EXPECT_EQ(errorOf([&] { files.CreateFolder(path("A")); }), 58);
    EXPECT_EQ(errorOf([&] { files.CreateFolder(path("none/b")); }), 76);
    EXPECT_EQ(err.Description, path("none/b") + ": its parent folder does not exist");
}

TEST_F(LocalFiles, AMovedFileReplacesAnotherOne) {
    folder.write("new.txt", "new"), folder.write("Old.txt", "old");
    setMode("Old.txt", 0640);
    files.MoveFile(path("NEW.txt"), path("old.TXT"));
    EXPECT_EQ(folder.read("Old.txt"), "new");
    EXPECT_THAT(files.Files(folder.path().string()), testing::ElementsAre("Old.txt"));
    EXPECT_EQ(errorOf([&] { files.MoveFile(path("gone"), path("Old.txt")); }), 53);
    folder.write("new.txt", "newer");
    setMode("Old.txt", 0444);
    EXPECT_EQ(errorOf([&] { files.MoveFile(path("new.txt"), path("Old.txt")); }), 70);
    EXPECT_EQ(folder.read("Old.txt"), "new");
}

TEST_F(LocalFiles, AReadOnlyFileIsMadeWritableForItsOwner) {
    folder.write("a.txt", "x");
    setMode("a.txt", 0450);
    files.MakeWritable(path("A.txt"));
    struct stat state {};
    ASSERT_EQ(::stat(path("a.txt").c_str(), &state), 0);
    EXPECT_EQ(state.st_mode & 07777u, 0650u);
    EXPECT_EQ(errorOf([&] { files.MakeWritable(path("gone")); }), 53);
}

TEST_F(LocalFiles, AreTheSameByWhateverLink) {
    folder.write("real/a.txt", "x"), folder.write("real/b.txt", "x");
    std::filesystem::create_directory_symlink("real", folder / "link");
    EXPECT_TRUE(files.SameFile(path("real"), path("link")));
    EXPECT_TRUE(files.SameFile(path("real/A.txt"), path("link\\a.txt")));
    EXPECT_FALSE(files.SameFile(path("real/a.txt"), path("real/b.txt")));
    EXPECT_FALSE(files.SameFile(path("gone"), path("gone")));
}

TEST_F(LocalFiles, ARefusedCopyLeavesTheDestination) {
    folder.write("from.txt", "new"), folder.write("to.txt", "old");
    EXPECT_EQ(errorOf([&] { files.CopyFile(path("from.txt"), path("to.txt"), false); }), 58);
    setMode("to.txt", 0444);
    EXPECT_EQ(errorOf([&] { files.CopyFile(path("from.txt"), path("to.txt"), true); }), 70);
    EXPECT_EQ(errorOf([&] { files.CopyFile(path("from.txt"), path("none/to.txt"), true); }), 76);
    std::filesystem::create_directory(folder / "sub");
    EXPECT_EQ(errorOf([&] { files.CopyFile(path("from.txt"), path("sub"), true); }), 70);
    EXPECT_EQ(folder.read("to.txt"), "old");
}

TEST_F(LocalFiles, DeletingKeepsReadOnlyFilesUnlessForced) {
    folder.write("a.txt", "x");
    setMode("a.txt", 0444);
    EXPECT_EQ(errorOf([&] { files.DeleteFile(path("a.txt"), false); }), 70);
    EXPECT_TRUE(files.FileExists(path("a.txt")));
    files.DeleteFile(path("A.TXT"), true);
    EXPECT_FALSE(files.FileExists(path("a.txt")));
}

TEST_F(LocalFiles, ListsAreSortedIgnoringCase) {
    for (const auto* name : {"b", "A", "c", "B", "\xC3\xA4"}) folder.write(name, "");
    std::filesystem::create_directory(folder / "folder");
    EXPECT_THAT(files.Files(folder.path().string()), testing::ElementsAre("A", "B", "b", "c", "\xC3\xA4"));
}

TEST_F(LocalFiles, TheTemporaryFolderIsPrivateAndDeletedAtTheEnd) {
    std::string temporary;
    {
        host::FileSystem ours;
        temporary = ours.GetSpecialFolder(fernwick::TemporaryFolder);
        EXPECT_EQ(ours.GetSpecialFolder(fernwick::TemporaryFolder), temporary);
        struct stat state {};
        ASSERT_EQ(::stat(temporary.c_str(), &state), 0);
        EXPECT_EQ(state.st_mode & 0777u, 0700u);
        ours.CreateTextFile(temporary + "/a", true)->WriteLine("x");
        EXPECT_NE(files.GetSpecialFolder(fernwick::TemporaryFolder), temporary);
        EXPECT_EQ(errorOf([&] { ours.GetSpecialFolder(fernwick::SpecialFolder(1)); }), 5);
    }
    EXPECT_FALSE(std::filesystem::exists(temporary));
}
