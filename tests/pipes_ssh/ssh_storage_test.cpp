// The storage of a Linux handheld.
#include "tests/pipes_ssh/ssh_device.h"
#include "tests/support/deep_folder.h"

namespace {

using qlpipe::SshMessage;
using test::deploy;
using test::expectError;
using test::put;
using test::transferErrorOf;
using testing::ElementsAre;
using testing::IsEmpty;

using SshStorageTest = test::SshDevice;

TEST_F(SshStorageTest, DeploysAnApplication) {
    const auto device = connect();
    deploy(*device, "one");
    EXPECT_EQ(onDevice("applications/Game/Game.qlx"), "one");
    EXPECT_EQ(onDevice("applications/Game/data/levels.txt"), "one levels");
    EXPECT_THAT(device->list(""), ElementsAre("applications"));
    EXPECT_THAT(device->list("applications/Game"), ElementsAre("Game.qlx", "data"));
}

TEST_F(SshStorageTest, ReplacesAnApplicationCompletely) {
    const auto device = connect();
    deploy(*device, "one");
    put(*device, "applications/Game/old.txt", "old");
    deploy(*device, "two");
    EXPECT_EQ(onDevice("applications/Game/Game.qlx"), "two");
    EXPECT_THAT(device->list("applications/Game"), ElementsAre("Game.qlx", "data"));
    EXPECT_THAT(device->list(""), ElementsAre("applications"));
    EXPECT_TRUE(std::filesystem::is_empty(server.folder / "device/.fernwick-replaced"));
}

TEST_F(SshStorageTest, ReportsItsLocation) {
    EXPECT_EQ(connect()->location(),
              qlpipe::userName() + "@127.0.0.1:" + std::to_string(server.port) + ":" + (server.folder / "device"));
}

TEST_F(SshStorageTest, ResolvesARelativeFolderInTheHomeFolder) {
    auto to = target();
    to.folder = "fernwick-test-that-is-never-made";
    const auto location = qlpipe::SshStorage{to, patient()}.location();
    EXPECT_THAT(location, testing::EndsWith("/fernwick-test-that-is-never-made"));
    EXPECT_THAT(location, testing::HasSubstr(std::to_string(server.port) + ":/"));
}

TEST_F(SshStorageTest, CreatesNothingWhenReading) {
    const auto device = connect();
    EXPECT_THAT(device->list("applications"), IsEmpty());
    EXPECT_FALSE(device->exists("applications/Game"));
    device->remove("applications/Game");
    EXPECT_GT(device->freeSpaceFor("applications/Game"), 0);
    EXPECT_FALSE(isOnDevice(""));
}

TEST_F(SshStorageTest, RemovesFoldersOfAnyDepth) {
    const auto device = connect();
    device->makeFolder(".incoming");
    test::nestFolders(server.folder / "device/.incoming", 200);
    EXPECT_EQ(transferErrorOf([&] { device->remove(".incoming"); }).text, "no error");
    EXPECT_FALSE(isOnDevice(".incoming"));
}

TEST_F(SshStorageTest, ChangesNothingWhenOpenedToRead) {
    deploy(*connect(), "one");
    std::filesystem::create_directories(server.folder / "device/.fernwick-replaced");
    std::filesystem::rename(server.folder / "device/applications/Game",
                            server.folder / "device/.fernwick-replaced/applications%2FGame");
    {
        qlpipe::SshStorage device{target(), patient(), qlpipe::FileDescriptor{}, qlpipe::SshUse::Read};
        EXPECT_FALSE(device.exists("applications/Game"));
    }
    EXPECT_TRUE(isOnDevice(".fernwick-replaced/applications%2FGame"));
    EXPECT_TRUE(connect()->exists("applications/Game"));
}

TEST_F(SshStorageTest, ReadsBackWhatItWrote) {
    const auto device = connect();
    device->makeFolder("runtime");
    const std::string bytes("a\0b\r\n\xFF", 6);
    put(*device, "runtime/manifest", bytes);
    EXPECT_EQ(device->read("runtime/manifest"), bytes);
    EXPECT_TRUE(device->exists("runtime/manifest"));
}

TEST_F(SshStorageTest, WritesLargeFilesInManyPieces) {
    std::string bytes;
    for (int i = 0; bytes.size() < 5'000'000; ++i) bytes += std::to_string(i);
    const auto device = connect();
    device->makeFolder("runtime");
    const auto file = device->create("runtime/large");
    for (std::string_view rest = bytes; !rest.empty(); rest.remove_prefix(std::min<std::size_t>(rest.size(), 77'777)))
        file->write(rest.substr(0, 77'777));
    file->close();
    EXPECT_TRUE(onDevice("runtime/large") == bytes);
}

TEST_F(SshStorageTest, WritesAnEmptyFile) {
    const auto device = connect();
    device->makeFolder("a");
    put(*device, "a/empty", "");
    EXPECT_TRUE(isOnDevice("a/empty"));
    EXPECT_EQ(device->read("a/empty"), "");
}

TEST_F(SshStorageTest, DiscardsAFileThatWasNotClosed) {
    const auto device = connect();
    device->makeFolder("a");
    {
        const auto file = device->create("a/file");
        file->write(std::string(100'000, 'x'));
        EXPECT_FALSE(device->exists("a/file"));
        EXPECT_THAT(device->list("a"), IsEmpty());
    }
    EXPECT_TRUE(std::filesystem::is_empty(server.folder / "device/a"));
}

TEST_F(SshStorageTest, ReplacesAFile) {
    const auto device = connect();
    device->makeFolder("a");
    put(*device, "a/new", "two");
    device->replaceFile("a/new", "a/list");
    EXPECT_EQ(onDevice("a/list"), "two");
    put(*device, "a/new", "three");
    device->replaceFile("a/new", "a/list");
    EXPECT_EQ(onDevice("a/list"), "three");
    EXPECT_THAT(device->list("a"), ElementsAre("list"));
}

TEST_F(SshStorageTest, RemovesAFolderWithItsContent) {
    const auto device = connect();
    device->makeFolder("a/b/c");
    for (int i = 0; i < 150; ++i) server.folder.write("device/a/b/file" + std::to_string(i), "x");
    put(*device, "a/b/c/file", "x");
    device->remove("a");
    EXPECT_FALSE(isOnDevice("a"));
}

TEST_F(SshStorageTest, RefusesAnExistingName) {
    const auto device = connect();
    deploy(*device, "one");
    expectError(transferErrorOf([&] { device->create("applications/Game"); }), SshMessage::NameTaken,
                {"device/applications/Game"});
}

TEST_F(SshStorageTest, RefusesAFileInPlaceOfAFolder) {
    server.folder.write("device/applications", "a file");
    const auto device = connect();
    for (const auto& step : std::vector<std::function<void()>>{
             [&] { device->makeFolder("applications/Game"); },
             [&] { device->exists("applications/Game"); },
             [&] { device->list("applications"); },
         })
        expectError(transferErrorOf(step), SshMessage::NotFolder, {"device/applications"});
}

TEST_F(SshStorageTest, RefusesToReadALargeFile) {
    server.folder.write("device/large", std::string(1024 * 1024 + 1, 'x'));
    server.folder.write("device/small", std::string(1024 * 1024, 'x'));
    const auto device = connect();
    expectError(transferErrorOf([&] { device->read("large"); }), SshMessage::FileTooLarge, {"device/large"});
    EXPECT_EQ(device->read("small").size(), 1024u * 1024u);
}

TEST_F(SshStorageTest, ReportsAMissingFile) {
    const auto device = connect();
    device->makeFolder("a");
    expectError(transferErrorOf([&] { device->read("none"); }), SshMessage::NotThere, {"read", "device/none"});
    expectError(transferErrorOf([&] { device->create("none/file"); }), SshMessage::NotThere, {"device/none/file"});
}

TEST_F(SshStorageTest, ReadsOnlyFiles) {
    const auto device = connect();
    device->makeFolder("a");
    ::mkfifo((server.folder / "device/a/pipe").c_str(), 0600);
    for (const char* name : {"a", "a/pipe"})
        expectError(transferErrorOf([&] { device->read(name); }), SshMessage::OperationFailed, {"not a file"});
}

TEST_F(SshStorageTest, DoesNotWriteThroughLinks) {
    server.folder.write("outside", "mine");
    const auto device = connect();
    device->makeFolder("a");
    {
        const auto file = device->create("a/file");
        for (const auto& part : std::filesystem::directory_iterator(server.folder / "device/a")) {
            const auto name = part.path();
            std::filesystem::remove(name);
            std::filesystem::create_symlink(server.folder / "outside", name);
            put(*device, "a/file", "new");
        }
    }
    EXPECT_EQ(server.folder.read("outside"), "mine");
    EXPECT_EQ(onDevice("a/file"), "new");
}

TEST_F(SshStorageTest, DoesNotFollowLinksOutOfTheFolder) {
    deploy(*connect(), "one");
    server.folder.write("outside/Game/file", "mine");
    std::filesystem::create_symlink(server.folder / "outside", server.folder / "device/linked");
    const auto device = connect();
    for (const auto& step : std::vector<std::function<void()>>{
             [&] { device->create("linked/file"); },
             [&] { device->makeFolder("linked/Game"); },
             [&] { device->remove("linked/Game"); },
             [&] { device->list("linked"); },
             [&] { device->read("linked/Game/file"); },
             [&] { device->replaceFolder("applications/Game", "linked"); },
             [&] { device->replaceFile("applications/Game/Game.qlx", "linked"); },
         })
        expectError(transferErrorOf(step), SshMessage::LinkRefused, {"device/linked"});
    EXPECT_EQ(server.folder.read("outside/Game/file"), "mine");
}

TEST_F(SshStorageTest, RemovesALinkNotItsTarget) {
    server.folder.write("outside/file", "mine");
    server.folder.write("device/Game/file", "x");
    std::filesystem::create_symlink(server.folder / "outside", server.folder / "device/Game/linked");
    connect()->remove("Game");
    EXPECT_FALSE(isOnDevice("Game"));
    EXPECT_EQ(server.folder.read("outside/file"), "mine");
}

TEST_F(SshStorageTest, AcceptsALinkAsItsFolder) {
    std::filesystem::create_directory(server.folder / "card");
    std::filesystem::create_symlink(server.folder / "card", server.folder / "device");
    const auto device = connect();
    EXPECT_THAT(device->location(), testing::EndsWith("/card"));
    deploy(*device, "one");
    EXPECT_EQ(server.folder.read("card/applications/Game/Game.qlx"), "one");
}

} // namespace
