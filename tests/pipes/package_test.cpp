#include "Components/QLPipe/base/pipe_messages.h"
#include "Components/QLPipe/base/sha256.h"
#include "Components/QLPipe/package/package.h"
#include "Components/QLPipe/package/package_writer.h"
#include "tests/pipes/pipe_world.h"
#include "tests/pipes/zip_bytes.h"
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <limits>
#include <unistd.h>

namespace {

namespace fs = std::filesystem;
using qlpipe::Package;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class MakePackage : public testing::Test {
protected:
    static std::vector<std::string> placesIn(const Package& package) {
        std::vector<std::string> places;
        for (const auto& file : package.bundle().files) places.push_back(file.place);
        return places;
    }
    static std::string contentOf(const Package& package, std::size_t index) {
        std::string bytes(1'000'000, '\0');
        bytes.resize(package.bundle().files.at(index).open()->read(bytes));
        return bytes;
    }
    /// Number of files in the folder of packages.
    std::size_t files() const {
        return std::size_t(std::distance(fs::directory_iterator(world.folder / "packages"), fs::directory_iterator()));
    }
    std::string make() { return world.package(project, "packages"); }

    test::PipeWorld world;
    test::ProjectFolder project{world.folder};
    bool folder_ = fs::create_directory(world.folder / "packages");
};

TEST_F(MakePackage, ContainsTheWholeApplication) {
    project.image().add("Data/Größe.txt", "size").add("empty.txt", "").list("{LIBRARY}", "REF");
    project.list(world.folder.write("Fonts/Small.cmf", "font"), "Small.cmf").icon = world.folder.write("icon", "ico");
    const Package package{make()};
    package.verify();
    EXPECT_THAT(placesIn(package), ElementsAre("files/Data/Größe.txt", "files/Hello.0000.qlx", "files/empty.txt",
                                               "fonts/Small.cmf", "icon.ico"));
    EXPECT_EQ(contentOf(package, 0), "size");
    EXPECT_EQ(package.bundle().displayName, "Hello, World");
    EXPECT_EQ(package.bundle().version, "1.2.3");
    EXPECT_EQ(package.bundle().device, "PocketPC-ARM");
    EXPECT_THAT(package.bundle().references, ElementsAre("{LIBRARY}"));
}

TEST_F(MakePackage, IsNamedAfterProjectAndDevice) {
    EXPECT_EQ(world.package(project.image(), "packages"), world.folder / "packages/Hello.PocketPC-ARM.qlpkg");
    EXPECT_EQ(world.services.record->package, world.folder / "packages/Hello.PocketPC-ARM.qlpkg");
    EXPECT_TRUE(world.services.record->succeeded);
    EXPECT_EQ(world.sink.completed, 1);
    EXPECT_EQ(files(), 1u);
}

TEST_F(MakePackage, IsReproducible) {
    project.image().add("b.txt", "b").add("a.txt", "a").list("{B}", "REF").list("{A}", "REF");
    const auto first = world.folder.read("packages/" + fs::path(make()).filename().string());
    project.reverse();
    fs::last_write_time(project.path("a.txt"), fs::file_time_type::clock::now() - std::chrono::hours(1000));
    make();
    EXPECT_EQ(world.folder.read("packages/Hello.PocketPC-ARM.qlpkg"), first);
}

TEST_F(MakePackage, WritesNeitherTimesNorExtraFields) {
    project.image().add("Größe.txt", "x");
    make();
    const auto bytes = world.folder.read("packages/Hello.PocketPC-ARM.qlpkg");
    int headers = 0;
    for (auto at = bytes.find("PK\3\4"); at != std::string::npos; at = bytes.find("PK\3\4", at + 1), ++headers) {
        EXPECT_EQ(bytes.substr(at + 10, 4), std::string("\0\0\x21\0", 4)) << "time and date";
        EXPECT_EQ(bytes.substr(at + 28, 2), std::string(2, '\0')) << "length of extra fields";
    }
    EXPECT_EQ(headers, 3);
    EXPECT_EQ(bytes.find("manifest.json"), 30u) << "the first entry";
}

TEST_F(MakePackage, ReportsProgressInBytes) {
    project.image().add("half.txt", std::string(100'000, 'x'));
    EXPECT_NE(make(), "");
    auto words = world.sink.statuses;
    words.erase(std::unique(words.begin(), words.end()), words.end());
    EXPECT_THAT(words, ElementsAre("Reading Hello.0000.qlx...", "Reading half.txt...", "Packing manifest.json...",
                                   "Packing Hello.0000.qlx...", "Packing half.txt..."));
    EXPECT_TRUE(std::is_sorted(world.sink.percents.begin(), world.sink.percents.end()));
    EXPECT_EQ(world.sink.percents.back(), 100);
}

TEST_F(MakePackage, ReplacesAnOlderPackage) {
    make();
    project.image().add("a.txt", "a");
    make();
    EXPECT_EQ(placesIn(Package{make()}).size(), 2u);
    EXPECT_EQ(files(), 1u);
}

TEST_F(MakePackage, RemovesFilesOfKilledRuns) {
    const auto process = std::to_string(std::numeric_limits<pid_t>::max()); // no process has this number
    world.folder.write("packages/.Hello.PocketPC-ARM.qlpkg." + process + ".part.Xa1", "half");
    world.folder.write("packages/.Hello.PocketPC-ARM.qlpkg." + std::to_string(::getpid()) + ".part.Xa1", "running");
    world.folder.write("packages/.Hello.PocketPC-ARM.qlpkg.notes", "another file");
    project.image();
    EXPECT_NE(make(), "");
    EXPECT_EQ(files(), 3u) << "the package, the file of a running process and an unrelated file";
}

TEST_F(MakePackage, ReportsAPackageThatCannotBeWritten) {
    project.image();
    EXPECT_EQ(world.package(project, "nowhere"), "");
    EXPECT_THAT(world.sink.errorNumbers(), ElementsAre(qlpipe::kPackageNotWritten));
    fs::create_directories(world.folder / "packages/Hello.PocketPC-ARM.qlpkg");
    EXPECT_EQ(make(), "");
    EXPECT_EQ(files(), 1u) << "no temporary file is left";
}

TEST_F(MakePackage, ChecksTheFilesForItsDevice) {
    project.add("a.exe", "x");
    EXPECT_EQ(make(), "");
    EXPECT_THAT(world.sink.errorNumbers(), ElementsAre(qlpipe::kNoImage, qlpipe::kKindNotTaken));
    EXPECT_EQ(world.services.record->package, "");
}

/// Packing reads each file again, after the manifest was written.
TEST_F(MakePackage, RefusesAFileThatChangesWhileItIsPacked) {
    const auto old = world.package(project.image().add("z.txt", "one"), "packages");
    const auto bytes = world.folder.read("packages/Hello.PocketPC-ARM.qlpkg");
    world.sink.onProgress = [&] {
        if (world.sink.statuses.back().starts_with("Packing")) world.folder.write("project/z.txt", "two");
    };
    EXPECT_EQ(make(), "");
    EXPECT_THAT(world.sink.errorNumbers(), ElementsAre(qlpipe::kFileChanged));
    EXPECT_EQ(world.folder.read("packages/Hello.PocketPC-ARM.qlpkg"), bytes);
    EXPECT_EQ(files(), 1u);
}

TEST_F(MakePackage, RefusesAFileThatVanishesWhileItIsPacked) {
    project.image().add("z.txt", "one");
    world.sink.onProgress = [&] {
        if (world.sink.statuses.back().starts_with("Packing")) fs::remove(project.path("z.txt"));
    };
    EXPECT_EQ(make(), "");
    EXPECT_THAT(world.sink.errorNumbers(), ElementsAre(qlpipe::kFileMissing));
    EXPECT_EQ(files(), 0u);
}

/// Every reader would refuse it.
TEST_F(MakePackage, RefusesMoreFilesThanAManifestCanList) {
    project.image();
    const auto file = world.folder.write("x.txt", "x");
    for (int i = 0; i < 6000; ++i) project.list(file, std::string(60, 'n') + std::to_string(i) + ".txt");
    EXPECT_EQ(make(), "");
    EXPECT_FALSE(world.send(project));
    ASSERT_THAT(world.sink.errorNumbers(), ElementsAre(qlpipe::kListTooLong, qlpipe::kListTooLong));
    EXPECT_THAT(world.sink.errors[0].second, HasSubstr("at most 1,048,576 bytes"));
    EXPECT_EQ(files(), 0u);
    EXPECT_FALSE(world.isOnDevice(".incoming"));
}

/// A changed bit after the end of a compressed stream changes nothing; any other change before the directory is found.
TEST_F(MakePackage, IsRefusedIfAnyOtherByteBeforeItsDirectoryChanged) {
    project.image().add("a.txt", "aaaaaaaaaaaaaaaaaaaa");
    const auto path = make();
    const auto manifest = qlpipe::writeManifest(Package{path}.bundle());
    const auto whole = world.folder.read("packages/Hello.PocketPC-ARM.qlpkg");
    std::size_t header = 0;
    for (std::size_t at = 0; at < whole.find("PK\1\2"); ++at) {
        if (whole.compare(at, 4, "PK\3\4") == 0) header = at;
        const auto nameLength = static_cast<unsigned char>(whole[header + 26]);
        for (const char bit : {'\x01', '\x80'}) {
            auto changed = whole;
            changed[at] = char(changed[at] ^ bit);
            world.folder.write("packages/Hello.PocketPC-ARM.qlpkg", changed);
            try {
                const Package package{path};
                package.verify();
                EXPECT_EQ(qlpipe::writeManifest(package.bundle()), manifest) << at;
                EXPECT_GE(at, header + 30 + nameLength) << "a header";
            } catch (const qlpipe::TransferError&) {}
        }
    }
}

TEST_F(MakePackage, PassesOnExceptionsOfTheSink) {
    project.image();
    world.sink.onProgress = [&] {
        if (world.sink.statuses.back().starts_with("Packing")) throw basic::RuntimeError(51);
    };
    EXPECT_THROW(make(), basic::RuntimeError);
    EXPECT_EQ(files(), 0u);
}

// ---- installing ---------------------------------------------------------------------------------------------------

TEST_F(MakePackage, InstallsTheSameFilesAsSending) {
    project.image().add("Data/a.txt", "a").list(world.folder.write("Small.cmf", "font"), "Small.cmf");
    EXPECT_TRUE(world.send(project));
    const auto sent = world.onDevice("applications/Hello/manifest.json");
    const auto path = make();
    fs::remove_all(world.folder / "devices");
    EXPECT_TRUE(qlpipe::installPackage(world.services, path, "", world.sink));
    EXPECT_EQ(world.onDevice("applications/Hello/files/Data/a.txt"), "a");
    EXPECT_EQ(world.onDevice("fonts/Small.cmf"), "font");
    EXPECT_EQ(world.onDevice("applications/Hello/manifest.json"), sent);
    EXPECT_THAT(world.sink.errors, IsEmpty());
}

TEST_F(MakePackage, IsInstalledOnlyOnItsDevice) {
    const auto path = world.package(project.image());
    for (const char* device : {"PocketPC-SH3", "PalmOS-DragonBall", "nonsense"})
        EXPECT_FALSE(qlpipe::installPackage(world.services, path, device, world.sink));
    EXPECT_THAT(world.sink.errorNumbers(), testing::Each(qlpipe::kPackageOfOtherDevice));
    EXPECT_TRUE(qlpipe::installPackage(world.services, path, "PocketPC-ARM", world.sink));
}

/// The samples of the schema test are written unchanged.
TEST(Manifests, SurviveARoundTrip) {
    for (const char* name : {"application", "runtime"}) {
        std::ifstream file{FERNWICK_SOURCE_DIR "/fuzz/corpus/manifest/" + std::string(name) + ".json"};
        const std::string text{std::istreambuf_iterator<char>{file}, {}};
        EXPECT_EQ(qlpipe::writeManifest(qlpipe::readManifest(text)), text);
    }
}

// ---- untrusted packages ------------------------------------------------------------------------------------

/// Hand-made packages.
class ForeignPackage : public testing::Test {
protected:
    ForeignPackage() {
        bundle.project = "Hello";
        bundle.device = "PocketPC-ARM";
    }
    static std::string checksumOf(const std::string& bytes) {
        qlpipe::Sha256 checksum;
        checksum.add(bytes);
        return checksum.hex();
    }
    void name(const std::string& place, const std::string& bytes) {
        bundle.files.push_back({qlpipe::FileKind::File, place, std::int64_t(bytes.size()), checksumOf(bytes), {}});
    }
    void add(const std::string& place, const std::string& bytes) { entries.push_back({place, bytes, 0, {}}); }
    std::string bytes(const std::string& manifest) {
        auto all = entries;
        all.insert(all.begin(), {"manifest.json", manifest, 0, {}});
        return test::zipOf(all);
    }
    /// Reads the whole package and returns the error number, or 0.
    std::int32_t read(const std::string& packageBytes) {
        try {
            Package{world.folder.write("x.qlpkg", packageBytes)}.verify();
            return 0;
        } catch (const qlpipe::TransferError& error) {
            EXPECT_THAT(error.text, HasSubstr(world.folder / "x.qlpkg"));
            return error.number;
        }
    }
    std::int32_t read() { return read(bytes(qlpipe::writeManifest(bundle))); }
    std::int32_t readManifest(const std::string& from, const std::string& to) {
        auto manifest = qlpipe::writeManifest(bundle);
        const auto at = manifest.find(from);
        EXPECT_NE(at, std::string::npos) << manifest;
        return read(bytes(manifest.replace(at, from.size(), to)));
    }

    test::PipeWorld world;
    qlpipe::Bundle bundle;
    std::vector<test::ZipEntry> entries;
};

TEST_F(ForeignPackage, IsAcceptedIfComplete) {
    name("files/a.txt", "a");
    add("files/a.txt", "a");
    EXPECT_EQ(read(), 0);
}

TEST_F(ForeignPackage, IsRefusedIfNotAZip) {
    EXPECT_EQ(read(""), qlpipe::kPackageUnreadable);
    EXPECT_EQ(read("hello"), qlpipe::kPackageUnreadable);
    for (const auto& path : {world.folder / "none.qlpkg", world.folder.path(), std::string("/dev/zero")})
        EXPECT_THROW(Package{path}, qlpipe::TransferError) << path;
}

TEST_F(ForeignPackage, IsRefusedIfTruncated) {
    name("files/a.txt", "a");
    add("files/a.txt", "a");
    const auto whole = bytes(qlpipe::writeManifest(bundle));
    for (std::size_t length = 0; length < whole.size(); length += 7) EXPECT_NE(read(whole.substr(0, length)), 0);
}

TEST_F(ForeignPackage, IsRefusedIfAnyByteChanged) {
    name("files/a.txt", std::string(50, 'a'));
    add("files/a.txt", std::string(50, 'a'));
    const auto whole = bytes(qlpipe::writeManifest(bundle));
    for (auto at = whole.rfind(std::string(50, 'a'), whole.find("PK\1\2")), end = at + 50; at < end; ++at) {
        auto changed = whole;
        changed[at] ^= 1;
        EXPECT_NE(read(changed), 0) << at;
    }
}

TEST_F(ForeignPackage, IsRefusedIfAFileDoesNotMatchTheManifest) {
    name("files/a.txt", "old");
    add("files/a.txt", "new");
    EXPECT_EQ(read(), qlpipe::kPackageEntryChanged);
    entries = {{"files/a.txt", "longer", 0, {}}};
    EXPECT_EQ(read(), qlpipe::kPackageEntryChanged);
}

TEST_F(ForeignPackage, IsRefusedWithExtraOrMissingEntries) {
    name("files/a.txt", "a");
    EXPECT_EQ(read(), qlpipe::kPackageEntryMissing);
    add("files/a.txt", "a");
    add("files/b.txt", "b");
    EXPECT_EQ(read(), qlpipe::kPackageEntryExtra);
    entries.back().name = "files/a.txt";
    EXPECT_NE(read(), 0) << "a duplicate entry";
    entries.back().name = "manifest.json";
    EXPECT_NE(read(), 0) << "a second manifest";
}

TEST_F(ForeignPackage, IsRefusedWithUnsafeNames) {
    for (const char* place : {"files/../../x", "/etc/x", "../x", "files/", "files//x", "files/.x", "files/C:x", "x",
                              "files\\..\\x", "fonts/a/b.cmf", "icon.ico", "files/a\nb", ""}) {
        bundle.files.clear();
        name(place, "a");
        entries = {{place, "a", 0, {}}};
        EXPECT_EQ(read(), qlpipe::kPackageUnsafeName) << place;
    }
    bundle.files.clear();
    entries.clear();
    for (const char* project : {"..", "a/b", "", ".x"}) {
        bundle.project = project;
        EXPECT_EQ(read(), qlpipe::kPackageUnsafeName) << project;
    }
}

TEST_F(ForeignPackage, IsRefusedWithNamesThatDifferOnlyInCase) {
    for (const char* place : {"files/a.txt", "files/A.TXT"}) {
        name(place, "a");
        add(place, "a");
    }
    EXPECT_EQ(read(), qlpipe::kPackageManifest);
}

TEST_F(ForeignPackage, IsRefusedWithAnInvalidManifest) {
    EXPECT_EQ(read(test::zipOf({})), qlpipe::kPackageManifest);
    EXPECT_EQ(read(test::zipOf({{"files/a.txt", "a", 0, {}}})), qlpipe::kPackageManifest);
    for (const char* text :
         {"", "{", "[]", "7", "{}", "{\"schemaVersion\": 0}", "{\"schemaVersion\": \"1\"}", "{\"schemaVersion\": 1}",
          "{\"schemaVersion\": 1, \"kind\": \"runtime\", \"version\": "
          "\"1\", \"files\": []}"})
        EXPECT_EQ(read(bytes(text)), qlpipe::kPackageManifest) << text;
    EXPECT_EQ(read(bytes(std::string(100'000, '['))), qlpipe::kPackageManifest);
    EXPECT_EQ(read(bytes(std::string(1024 * 1024 + 1, ' '))), qlpipe::kPackageManifest);
}

TEST_F(ForeignPackage, IsRefusedWithAMemberOfTheWrongType) {
    name("files/a.txt", "a");
    add("files/a.txt", "a");
    for (const auto& [from, to] : {std::pair{"\"project\": \"Hello\"", "\"project\": 7"},
                                   {"\"references\": []", "\"references\": 7"},
                                   {"\"references\": []", "\"references\": [7]"},
                                   {"\"size\": 1", "\"size\": -1"},
                                   {"\"size\": 1", "\"size\": 1.5"},
                                   {"\"size\": 1", "\"size\": 18446744073709551615"},
                                   {"\"kind\": \"file\"", "\"kind\": \"virus\""},
                                   {"\"sha256\": \"", "\"sha256\": \"0"},
                                   {"\"displayName\"", "\"other\""}})
        EXPECT_EQ(readManifest(from, to), qlpipe::kPackageManifest) << to;
    EXPECT_EQ(readManifest("\"schemaVersion\": 1", "\"schemaVersion\": 2"), qlpipe::kPackageVersion);
}

TEST_F(ForeignPackage, UnpacksNoMoreThanTheSizeInTheManifest) {
    name("files/a.txt", "ten bytes!");
    // 256 MB of zeros packed into 1.5 MB
    entries.push_back({"files/a.txt", test::deflatedZeros(1'000'000), test::ZipEntry::kDeflated, 10});
    const Package package{world.folder.write("x.qlpkg", bytes(qlpipe::writeManifest(bundle)))};
    const auto reader = package.bundle().files.at(0).open();
    std::string buffer(8, '\0');
    std::size_t unpacked = 0;
    std::int32_t number = 0;
    try {
        while (const auto count = reader->read(buffer)) unpacked += count;
    } catch (const qlpipe::TransferError& error) { number = error.number; }
    EXPECT_EQ(number, qlpipe::kPackageEntryChanged);
    EXPECT_LE(unpacked, 10u);
}

TEST_F(ForeignPackage, IsRefusedIfItsSizesDoNotMatchTheManifest) {
    name("files/a.txt", "ten bytes!");
    entries.push_back({"files/a.txt", test::deflatedZeros(1'000), test::ZipEntry::kDeflated, {}});
    EXPECT_EQ(read(), qlpipe::kPackageEntryChanged);
}

TEST_F(ForeignPackage, IsRefusedIfAFileIsAlsoAFolder) {
    for (const char* place : {"files/a", "files/A/b"}) {
        name(place, "x");
        add(place, "x");
    }
    EXPECT_EQ(read(), qlpipe::kPackageManifest);
}

TEST_F(ForeignPackage, IsRefusedWithNamesThatAreTooLong) {
    const auto nested = [](std::size_t parts, const std::string& part) {
        std::string place = "files";
        for (std::size_t i = 0; i < parts; ++i) place += "/" + part;
        return place;
    };
    const auto readNamed = [&](const std::string& place) {
        bundle.files.clear();
        name(place, "x");
        entries = {{place, "x", 0, {}}};
        return read();
    };
    EXPECT_EQ(readNamed(nested(32, "a")), 0);
    EXPECT_EQ(readNamed(nested(33, "a")), qlpipe::kPackageUnsafeName);
    EXPECT_EQ(readNamed(nested(4, std::string(255, 'a'))), 0);
    EXPECT_EQ(readNamed(nested(4, std::string(255, 'a')) + "/b"), qlpipe::kPackageUnsafeName);
}

/// A terminal would obey control characters, and a line feed could imitate a line of the message.
TEST_F(ForeignPackage, HasItsNamesEscapedInMessages) {
    name("files/a\n\033[2Jb", "x");
    add("files/a\n\033[2Jb", "x");
    try {
        Package{world.folder.write("x.qlpkg", bytes(qlpipe::writeManifest(bundle)))};
        FAIL();
    } catch (const qlpipe::TransferError& error) { EXPECT_THAT(error.text, HasSubstr("a\\n\\u001B[2Jb,")); }
}

// ---- the checks before a package is installed ---------------------------------------------------------------

/// Packages whose device would not accept them as projects.
class UncheckedPackage : public ForeignPackage {
protected:
    void addFile(const std::string& place, const std::string& content) {
        name(place, content);
        add(place, content);
    }
    bool install() {
        const auto path = world.folder.write("x.qlpkg", bytes(qlpipe::writeManifest(bundle)));
        return qlpipe::installPackage(world.services, path, "", world.sink);
    }
};

TEST_F(UncheckedPackage, IsInstalledIfItsDeviceAcceptsIt) {
    addFile("files/Hello.0000.qlx", test::imageOf("Hello"));
    addFile("files/empty.txt", "");
    EXPECT_TRUE(install());
    EXPECT_THAT(world.sink.warningNumbers(), ElementsAre(qlpipe::kFileEmpty, qlpipe::kRuntimeNotInstalled));
}

TEST_F(UncheckedPackage, IsRefusedLikeAProject) {
    addFile("files/Hello.0000.qlx", test::imageOf("Hello", "9.9"));
    addFile("files/a.exe", "x");
    EXPECT_FALSE(install());
    EXPECT_THAT(world.sink.errorNumbers(), ElementsAre(qlpipe::kImageOfOtherCompiler, qlpipe::kKindNotTaken));
    EXPECT_FALSE(world.isOnDevice("applications"));
}

TEST_F(UncheckedPackage, NeedsAnImage) {
    addFile("files/a.txt", "x");
    EXPECT_FALSE(install());
    EXPECT_THAT(world.sink.errorNumbers(), ElementsAre(qlpipe::kNoImage));
}

TEST_F(UncheckedPackage, HasItsImageCheckedWhateverItsManifestCallsIt) {
    addFile("files/Hello.0000.qlx", "not an image");
    EXPECT_FALSE(install());
    EXPECT_THAT(world.sink.errorNumbers(), ElementsAre(qlpipe::kImageDamaged));
}

TEST_F(UncheckedPackage, IsRefusedIfItIsTooLargeForItsDevice) {
    bundle.device = "PalmOS-DragonBall";
    addFile("files/Hello.0000.qlx", test::imageOf("Hello"));
    addFile("files/a.pdb", std::string(65'537, 'x'));
    EXPECT_FALSE(install());
    EXPECT_THAT(world.sink.errorNumbers(), ElementsAre(qlpipe::kFileTooLarge));
}

TEST_F(ForeignPackage, KeepsTheOldApplicationIfRefused) {
    test::ProjectFolder project{world.folder};
    EXPECT_TRUE(world.send(project.image().add("a.txt", "old")));
    name("files/Hello.0000.qlx", test::imageOf("Hello"));
    add("files/Hello.0000.qlx", test::imageOf("Hello"));
    name("files/a.txt", "new");
    name("files/b.txt", "new");
    add("files/a.txt", "new");
    add("files/b.txt", "bad");
    const auto path = world.folder.write("x.qlpkg", bytes(qlpipe::writeManifest(bundle)));
    EXPECT_FALSE(qlpipe::installPackage(world.services, path, "", world.sink));
    EXPECT_THAT(world.sink.errorNumbers(), ElementsAre(qlpipe::kPackageEntryChanged));
    EXPECT_EQ(world.onDevice("applications/Hello/files/a.txt"), "old");
    EXPECT_FALSE(world.services.record->succeeded);
}

TEST_F(ForeignPackage, IsRefusedForADeviceWithoutAPipe) {
    bundle.device = "Phone-X";
    const auto path = world.folder.write("x.qlpkg", bytes(qlpipe::writeManifest(bundle)));
    EXPECT_FALSE(qlpipe::installPackage(world.services, path, "", world.sink));
    EXPECT_THAT(world.sink.errorNumbers(), ElementsAre(qlpipe::kPackageDeviceUnknown));
}

} // namespace
