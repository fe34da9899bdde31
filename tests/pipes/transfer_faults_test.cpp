#include "Components/QLPipe/base/pipe_messages.h"
#include "Components/QLPipe/package/installer.h"
#include "Components/QLPipe/virtual_device/virtual_device.h"
#include "tests/pipes/other_process.h"
#include "tests/pipes/pipe_world.h"
#include "tests/support/full_disk.h"
#include <csignal>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/resource.h>

namespace {

namespace fs = std::filesystem;
using qlpipe::DeviceStorage;
using qlpipe::StorageFile;
using testing::ElementsAre;
using testing::HasSubstr;

/// A device whose n-th operation fails with a full disk.
class FailingDevice : public DeviceStorage {
public:
    FailingDevice(DeviceStorage& device, int failing) : device_(device), left_(failing) {}

    std::string location() const override { return device_.location(); }
    std::int64_t freeSpaceFor(const std::string& f) override { return count(), device_.freeSpaceFor(f); }
    bool exists(const std::string& name) override { return count(), device_.exists(name); }
    std::vector<std::string> list(const std::string& folder) override { return count(), device_.list(folder); }
    std::string read(const std::string& file) override { return count(), device_.read(file); }
    void makeFolder(const std::string& folder) override { return count(), device_.makeFolder(folder); }
    std::unique_ptr<StorageFile> create(const std::string& file) override {
        count();
        return std::make_unique<File>(*this, device_.create(file));
    }
    void replaceFile(const std::string& a, const std::string& b) override { return count(), device_.replaceFile(a, b); }
    void replaceFolder(const std::string& a, const std::string& b) override {
        return count(), device_.replaceFolder(a, b);
    }
    void remove(const std::string& name) override { return count(), device_.remove(name); }

    bool hasFailed() const { return left_ <= 0; }

private:
    class File : public StorageFile {
    public:
        File(FailingDevice& device, std::unique_ptr<StorageFile> file) : device_(device), file_(std::move(file)) {}
        void write(std::string_view bytes) override { return device_.count(), file_->write(bytes); }
        void close() override { return device_.count(), file_->close(); }

    private:
        FailingDevice& device_;
        std::unique_ptr<StorageFile> file_;
    };

    void count() {
        if (--left_ == 0) throw qlpipe::transferError(qlpipe::kDeviceDiskFull, {{"device", location()}});
    }

    DeviceStorage& device_;
    int left_;
};

qlpipe::BundleFile fileOf(qlpipe::FileKind kind, const std::string& place, const std::string& path) {
    const auto size = qlpipe::sizeOfLocalFile(path);
    return {kind, place, size, {}, [path, size] { return std::make_unique<qlpipe::LocalFile>(path, size); }};
}

class TransferFaults : public testing::Test {
protected:
    qlpipe::Bundle bundle(const std::string& version) {
        qlpipe::Bundle made;
        made.project = "Hello";
        made.version = version;
        made.files = {fileOf(qlpipe::FileKind::File, "files/a.txt", world.folder.write("a" + version, version)),
                      fileOf(qlpipe::FileKind::Font, "fonts/F.cmf", world.folder.write("f" + version, "font"))};
        return made;
    }
    std::string installed() const { return world.onDevice("applications/Hello/files/a.txt"); }
    void expectWhole() const {
        EXPECT_THAT(world.onDevice("applications/Hello/manifest.json"),
                    HasSubstr("\"version\": \"" + installed() + "\""));
    }

    test::PipeWorld world;
    test::ProjectFolder project{world.folder};
    qlpipe::Progress silent{nullptr, 0};
};

TEST_F(TransferFaults, LeaveACompleteApplication) {
    qlpipe::VirtualDevice device{world.folder / "devices/PocketPC-ARM", {}};
    int failures = 0;
    for (bool more = true; more; ++failures) {
        qlpipe::install(device, bundle("old"), silent);
        FailingDevice failing{device, failures + 1};
        bool replaced = true;
        try {
            qlpipe::install(failing, bundle("new"), silent);
        } catch (const qlpipe::TransferError& error) {
            EXPECT_EQ(error.number, qlpipe::kDeviceDiskFull);
            replaced = false;
        }
        more = failing.hasFailed();
        EXPECT_EQ(installed(), replaced ? "new" : "old") << failures;
        expectWhole();
    }
    EXPECT_GT(failures, 15);
}

TEST_F(TransferFaults, ReportAFullDeviceAndDoNotChangeIt) {
    project.image().add("a.pdb", std::string(5'000'000, 'x'));
    for (int i = 0; i < 6; ++i) project.add(std::to_string(i) + ".pdb", std::string(4'000'000, 'x'));
    EXPECT_TRUE(world.send(project, "PocketPC-SH3"));
    EXPECT_TRUE(world.send(project, "PocketPC-SH3")) << "replaces the old one";
    test::ProjectFolder other{world.folder, "Other"};
    EXPECT_FALSE(world.send(other.image().add("b.pdb", std::string(5'000'000, 'x')), "PocketPC-SH3"));
    EXPECT_THAT(world.sink.errorNumbers(), ElementsAre(qlpipe::kDeviceFull));
    EXPECT_THAT(world.sink.errors[0].second, HasSubstr("bytes needed"));
    EXPECT_TRUE(world.isOnDevice("applications/Hello/files/a.pdb", "PocketPC-SH3"));
    EXPECT_FALSE(world.isOnDevice("applications/Other", "PocketPC-SH3"));
}

// ---- files that change during a transfer ---------------------------------------------------------------------

/// Sends a project and changes a file after the transfer has begun.
class ChangingFiles : public TransferFaults {
protected:
    void expectRefusal(const std::function<void()>& happens, std::int32_t number) {
        EXPECT_TRUE(world.send(project.image().add("z.pdb", "old")));
        bool done = false;
        world.sink.onProgress = [&] {
            if (!std::exchange(done, true)) happens();
        };
        EXPECT_FALSE(world.send(project));
        ASSERT_THAT(world.sink.errorNumbers(), ElementsAre(number));
        EXPECT_THAT(world.sink.errors[0].second, HasSubstr(path()));
        EXPECT_EQ(world.onDevice("applications/Hello/files/z.pdb"), "old");
        EXPECT_FALSE(world.isOnDevice(".incoming"));
    }
    std::string path() const { return project.path("z.pdb"); }
};

TEST_F(ChangingFiles, AreRefusedWhenTheyGrow) {
    expectRefusal([&] { world.folder.write("project/z.pdb", "longer than before"); }, qlpipe::kFileChanged);
}

TEST_F(ChangingFiles, AreRefusedWhenTheyShrink) {
    expectRefusal([&] { world.folder.write("project/z.pdb", "o"); }, qlpipe::kFileChanged);
}

TEST_F(ChangingFiles, AreRefusedWhenTheyVanish) {
    expectRefusal([&] { fs::remove(path()); }, qlpipe::kFileMissing);
}

TEST_F(ChangingFiles, AreRefusedWhenTheyCannotBeRead) {
    expectRefusal(
        [&] {
            fs::remove(path());
            fs::create_directory(path());
        },
        qlpipe::kFileUnreadable);
}

TEST_F(ChangingFiles, AreRefusedWhenTheyShrinkWhileTheyAreRead) {
    const auto path = world.folder.write("large", std::string(2 * qlpipe::kChunkBytes, 'x'));
    qlpipe::LocalFile file{path, 2 * qlpipe::kChunkBytes};
    std::vector<char> buffer(qlpipe::kChunkBytes);
    EXPECT_EQ(file.read(buffer), buffer.size());
    fs::resize_file(path, qlpipe::kChunkBytes);
    EXPECT_THROW(file.read(buffer), qlpipe::TransferError);
}

// ---- processes ------------------------------------------------------------------------------------------------

TEST_F(TransferFaults, KeepTheOldApplicationIfTheProcessIsKilled) {
    EXPECT_TRUE(world.send(project.image().add("a.txt", "old")));
    world.folder.write("project/a.txt", "new");
    project.add("large.wav", std::string(1'000'000, 'x'));
    for (const std::size_t events : {1u, 2u, 3u, 4u, 5u}) {
        test::OtherProcess other{[&] {
            world.sink.onProgress = [&] {
                if (world.sink.statuses.size() == events) ::raise(SIGKILL);
            };
            world.sink.statuses.clear();
            return world.send(project) ? 0 : 1;
        }};
        EXPECT_TRUE(other.wasKilled()) << events;
        EXPECT_EQ(installed(), "old");
        EXPECT_FALSE(world.isOnDevice("applications/Hello/files/large.wav"));
    }
    EXPECT_TRUE(world.send(project));
    EXPECT_EQ(installed(), "new");
    EXPECT_FALSE(world.isOnDevice(".incoming"));
}

TEST_F(TransferFaults, SerializeTwoProcesses) {
    project.image().add("large.wav", std::string(5'000'000, 'x'));
    const auto sending = [&] { return world.send(project) ? 0 : 1; };
    test::OtherProcess first{sending}, second{sending};
    EXPECT_TRUE(first.succeeds());
    EXPECT_TRUE(second.succeeds());
    EXPECT_EQ(world.onDevice("applications/Hello/files/large.wav").size(), 5'000'000u);
    EXPECT_FALSE(world.isOnDevice(".incoming"));
}

TEST_F(TransferFaults, ReportAWriteError) {
    EXPECT_TRUE(world.send(project.image().add("a.txt", "old")));
    const auto package = world.folder.read(world.package(project).substr(world.folder.path().size() + 1));
    std::string noise(1'000'000, '\0'); // cannot be compressed
    std::uint32_t state = 1;
    for (auto& byte : noise) byte = char((state = state * 1664525 + 1013904223) >> 24);
    project.add("noise.wav", noise);
    test::OtherProcess other{[&] {
        const test::FullDisk isFull{500'000};
        const bool none = !world.send(project) && world.package(project).empty();
        const std::vector<int> numbers{qlpipe::kStorageFailed, qlpipe::kPackageNotWritten};
        return none && world.sink.errorNumbers() == numbers ? 0 : 1;
    }};
    EXPECT_TRUE(other.succeeds());
    EXPECT_TRUE(world.isOnDevice("applications/Hello/files/a.txt"));
    EXPECT_FALSE(world.isOnDevice("applications/Hello/files/noise.wav"));
    EXPECT_FALSE(world.isOnDevice(".incoming"));
    EXPECT_EQ(world.folder.read("Hello.PocketPC-ARM.qlpkg"), package);
}

// ---- memory ---------------------------------------------------------------------------------------------------

std::int64_t peakKilobytes() {
    rusage usage{};
    ::getrusage(RUSAGE_SELF, &usage);
    return usage.ru_maxrss;
}

TEST_F(TransferFaults, NeedConstantMemory) {
    if (test::kHasSanitizer) GTEST_SKIP() << "the sanitizer keeps what was freed";
    constexpr std::int64_t kMostKilobytes = 32 * 1024;
    project.image().add("film.wav", "");
    fs::resize_file(project.path("film.wav"), 200'000'000);
    test::OtherProcess other{[&] {
        const auto before = peakKilobytes();
        // A device without a design target has no limits.
        auto place = world.folder.path();
        const bool sent = world.send(project, "PocketPC-Large");
        const bool packed =
            world.pipe()->MakePackage("PocketPC-Large", {}, project.files(), project.application(), place);
        return sent && packed && peakKilobytes() - before < kMostKilobytes ? 0 : 1;
    }};
    EXPECT_TRUE(other.succeeds());
}

} // namespace
