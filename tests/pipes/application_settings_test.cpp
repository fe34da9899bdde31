// What projects set for their applications, from the project file to the device.
#include "Components/QLPipe/base/pipe_messages.h"
#include "Components/QLPipe/package/package.h"
#include "Components/QLPipe/package/setting_checks.h"
#include "Components/QLPipe/settings/family_tables.h"
#include "tests/pipes/pipe_world.h"
#include "tests/support/test_host.h"
#include <fstream>
#include <gmock/gmock.h>
#include <iterator>
#include <set>

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

qlpipe::TargetLimits withMemory(std::int64_t bytes) {
    qlpipe::TargetLimits limits;
    limits.platform = "Palm OS";
    limits.heapBytes = bytes;
    return limits;
}

TEST(CreatorId, HasFourCharactersOfAsciiButNotOnlySmallLetters) {
    for (const char* good : {"Abcd", "ABCD", "a1b2", "ab!d", "~~~~"})
        EXPECT_EQ(qlpipe::creatorIdProblem(good, {}), "") << good;
    for (const char* bad : {"Abc", "Abcde", "abcd", "Ab d",
                            "\xC3\x84"
                            "bcd",
                            "\xC3\x84"
                            "bc",
                            "\xF0\x9F\x98\x80"})
        EXPECT_NE(qlpipe::creatorIdProblem(bad, {}), "") << bad;
}

TEST(MemoryLimit, IsAWholeNumberUpToTheMemoryOfTheDevice) {
    const auto problem = [](const char* value) { return qlpipe::memoryLimitProblem(value, withMemory(256 * 1024)); };
    for (const char* good : {"16", "200", "256"}) EXPECT_EQ(problem(good), "") << good;
    for (const char* bad : {"15", "0", "-1", "1.5", "64K", " 64", "0x40", "99999999999999999999", "many"})
        EXPECT_THAT(problem(bad), HasSubstr("whole number of KB, at least 16")) << bad;
    EXPECT_EQ(problem("257"), "a program on Palm OS has at most 256 KB");
    EXPECT_EQ(qlpipe::memoryLimitProblem("4194304", {}), "");
    EXPECT_NE(qlpipe::memoryLimitProblem("4194305", {}), "");
    EXPECT_EQ(qlpipe::memoryLimitBytes("64"), 65536);
    EXPECT_EQ(qlpipe::memoryLimitBytes(""), std::nullopt);
}

TEST(OrientationAndVersion, HaveTheirRanges) {
    for (const char* good : {"Portrait", "landscape"}) EXPECT_EQ(qlpipe::orientationProblem(good, {}), "");
    for (const char* bad : {"upside down", "Port", "Portrait "}) EXPECT_NE(qlpipe::orientationProblem(bad, {}), "");
    EXPECT_EQ(qlpipe::versionProblem(std::string(31, '1'), {}), "");
    EXPECT_NE(qlpipe::versionProblem(std::string(32, '1'), {}), "");
}

/// Values of a project come from anywhere.
TEST(PipeSettings, NeverTakeControlCharactersOrHugeTexts) {
    for (const auto& family : qlpipe::pipeFamilies())
        for (const auto& row : family.settings.rows) {
            for (const std::string& bad : {std::string("a\tb"), std::string("a\0b", 3), std::string("a\nb"),
                                           std::string("\x7F"), std::string(1025, '1')})
                EXPECT_NE(qlpipe::problemOf(row, bad, {}), "") << row.name;
            EXPECT_EQ(qlpipe::problemOf(row, "", {}), "") << row.name;
        }
}

TEST(PipeSettings, AreWhollyDeclaredUnderUniqueNames) {
    std::set<std::string> names;
    for (const auto& family : qlpipe::pipeFamilies()) {
        std::set<std::string> keys;
        for (const auto& row : family.settings.rows) {
            EXPECT_TRUE(names.insert(row.name).second && keys.insert(row.key).second) << row.name;
            for (const std::string text : {row.caption, row.meaning, row.range, row.usual, row.use})
                EXPECT_FALSE(text.empty() || text.ends_with('.')) << row.name;
            EXPECT_TRUE(row.application || row.connection) << row.name << " is used by nothing";
            EXPECT_TRUE(!row.isOfUser || !row.application) << row.name;
        }
    }
    EXPECT_EQ(qlpipe::tipOf(qlpipe::kPocketPCRows[2]),
              "Orientation of the screen while the application runs. Portrait or Landscape. Default: as the device is "
              "held. The manifest passes it to the runtime.");
}

/// The document has one line for each setting.
TEST(PipeSettings, AreDocumented) {
    std::ifstream file(FERNWICK_SOURCE_DIR "/docs/device-settings.md");
    const std::string text{std::istreambuf_iterator<char>(file), {}};
    for (const auto& family : qlpipe::pipeFamilies()) {
        EXPECT_THAT(text,
                    HasSubstr(std::string("## ") + family.settings.page + "\n\nSection `" + family.settings.section));
        for (const auto& row : family.settings.rows) {
            const auto line = std::string("| `") + row.name + "` | `" + row.key + "` | " + row.meaning + " | " +
                              row.range + " | " + row.usual + " | " + row.use + " |\n";
            EXPECT_THAT(text, HasSubstr(line));
        }
    }
}

class ApplicationSettings : public testing::Test {
protected:
    void set(const char* section, const char* key, const std::string& value) {
        project->WriteProperty(section, key, value);
    }
    bool send(const std::string& device, const std::string& progId) {
        return world.pipe(progId)->SendProject(device, project, files.files(), files.application());
    }
    bool sendToPalm() { return send(kPalm, "QLPipePalmOS"); }
    std::string manifest(const std::string& device) const {
        return world.onDevice("applications/Hello/manifest.json", device);
    }
    bool validate(const std::string& progId) {
        const auto validation = world.create<qlpipe::IQLPipeValidation>(progId + ".Validation");
        validation->SetEventSink(world.sink);
        return validation->ValidateFiles(project, files.files());
    }
    std::string package() {
        auto location = world.folder / "";
        EXPECT_TRUE(
            world.pipe("QLPipePalmOS")->MakePackage(kPalm, project, files.files(), files.application(), location));
        return location;
    }

    static constexpr char kPalm[] = "PalmOS-DragonBall", kPocket[] = "PocketPC-ARM";
    static constexpr char kPalmSection[] = "Quinloft Palm OS", kPocketSection[] = "Quinloft PocketPC";
    test::TestHost host;
    basic::Ref<vbide::VBProject> project = host.open(test::SampleProject{});
    test::PipeWorld world;
    test::ProjectFolder files{world.folder};
    ApplicationSettings() { files.image(); }
};

TEST_F(ApplicationSettings, ThatAreNotSetLeaveTheManifestAsItWas) {
    ASSERT_TRUE(sendToPalm());
    EXPECT_THAT(manifest(kPalm), HasSubstr("\"version\": \"1.2.3\""));
    for (const char* member : {"creatorId", "memoryLimit", "orientation", "arguments"})
        EXPECT_THAT(manifest(kPalm), Not(HasSubstr(member)));
}

TEST_F(ApplicationSettings, OfAPalmReachTheManifest) {
    set(kPalmSection, "CreatorID", "Abcd");
    set(kPalmSection, "Version", "2.0 beta");
    set(kPalmSection, "MemoryLimit", "64");
    set(kPalmSection, "Orientation", "Landscape"); // not one of its settings
    ASSERT_TRUE(sendToPalm());
    EXPECT_THAT(manifest(kPalm), HasSubstr("\"creatorId\": \"Abcd\",\n  \"memoryLimit\": 65536"));
    EXPECT_THAT(manifest(kPalm), HasSubstr("\"version\": \"2.0 beta\""));
    EXPECT_THAT(manifest(kPalm), Not(HasSubstr("orientation")));
}

TEST_F(ApplicationSettings, OfAPocketPCReachTheManifest) {
    set(kPocketSection, "Orientation", "landscape");
    set(kPocketSection, "MemoryLimit", "1024");
    set(kPalmSection, "CreatorID", "Abcd");
    ASSERT_TRUE(send(kPocket, "QLPipePocketPC"));
    EXPECT_THAT(manifest(kPocket), HasSubstr("\"memoryLimit\": 1048576,\n  \"orientation\": \"Landscape\""));
    EXPECT_THAT(manifest(kPocket), Not(HasSubstr("creatorId")));
}

TEST_F(ApplicationSettings, ThatTheDeviceCannotUseAreErrorsBeforeATransfer) {
    set(kPalmSection, "MemoryLimit", "257");
    set(kPalmSection, "CreatorID", std::string(100'000, 'x'));
    EXPECT_FALSE(validate("QLPipePalmOS"));
    EXPECT_FALSE(sendToPalm());
    ASSERT_THAT(world.sink.errorNumbers(), ElementsAre(20114, 20114, 20114, 20114));
    EXPECT_THAT(
        world.sink.errors[1].second,
        HasSubstr("Invalid value \"257\" for the setting PalmOSMemoryLimit: a program on Palm OS has at most 256 KB. "
                  "Correct it on the page Palm OS Settings"));
    EXPECT_LT(world.sink.errors[0].second.size(), 400u);
    EXPECT_FALSE(world.isOnDevice("", kPalm));
}

TEST_F(ApplicationSettings, OfOtherFamiliesDoNotDisturb) {
    set(kPalmSection, "CreatorID", "no creator");
    EXPECT_TRUE(validate("QLPipePocketPC"));
    EXPECT_TRUE(send(kPocket, "QLPipePocketPC"));
}

TEST_F(ApplicationSettings, AMemoryLimitWarnsOfLargerFiles) {
    set(kPalmSection, "MemoryLimit", "16");
    files.add("levels.pdb", std::string(20'000, 'x'));
    EXPECT_TRUE(validate("QLPipePalmOS"));
    EXPECT_THAT(world.sink.warningNumbers(), testing::Contains(qlpipe::kFileLargerThanHeap));
}

TEST_F(ApplicationSettings, SurviveInAPackage) {
    set(kPalmSection, "CreatorID", "Abcd");
    set(kPalmSection, "MemoryLimit", "64");
    const auto path = package();
    const auto bundle = qlpipe::Package{path}.bundle();
    EXPECT_EQ(bundle.creatorId, "Abcd");
    EXPECT_EQ(bundle.memoryLimit, 65536);
    EXPECT_TRUE(qlpipe::installPackage(world.services, path, "", world.sink));
    EXPECT_THAT(manifest(kPalm), HasSubstr("\"creatorId\": \"Abcd\""));
}

TEST_F(ApplicationSettings, SharingACreatorIdIsAWarning) {
    set(kPalmSection, "CreatorID", "Abcd");
    ASSERT_TRUE(sendToPalm());
    ASSERT_TRUE(sendToPalm());
    EXPECT_THAT(world.sink.warningNumbers(), Not(testing::Contains(qlpipe::kCreatorInUse))) << "it replaces itself";
    test::ProjectFolder other{world.folder, "Other"};
    other.image();
    ASSERT_TRUE(world.pipe("QLPipePalmOS")->SendProject(kPalm, project, other.files(), other.application()));
    EXPECT_THAT(world.sink.warnings,
                testing::Contains(testing::Pair(qlpipe::kCreatorInUse, HasSubstr("The application Hello on"))));
}

TEST_F(ApplicationSettings, ADamagedManifestOnTheDeviceDoesNotStopATransfer) {
    set(kPalmSection, "CreatorID", "Abcd");
    world.folder.write(std::string("devices/") + kPalm + "/applications/Broken/manifest.json", "{");
    world.folder.write(std::string("devices/") + kPalm + "/applications/stray", "");
    EXPECT_TRUE(sendToPalm());
    EXPECT_THAT(world.sink.errors, IsEmpty());
}

std::string refused(const std::string& member) {
    const std::string text = R"({"schemaVersion": 1, "kind": "application", "project": "Hello", "displayName": "Hello",
        "version": "1", "device": "PalmOS-DragonBall", "references": [], )" +
                             member + R"(, "files": []})";
    try {
        (void)qlpipe::readManifest(text);
        return {};
    } catch (const qlpipe::ManifestProblem& problem) { return problem.what; }
}

TEST(ManifestSettings, AreCheckedByReaders) {
    for (const char* good : {R"("creatorId": "Abcd")", R"("memoryLimit": 65536)", R"("orientation": "Portrait")",
                             R"("arguments": "/x")", R"("unknown": 1)"})
        EXPECT_EQ(refused(good), "") << good;
    for (const char* bad : {R"("creatorId": "abcd")", R"("creatorId": "")", R"("creatorId": 1)", R"("memoryLimit": -1)",
                            R"("memoryLimit": "64")", R"("orientation": "Sideways")", R"("orientation": "portrait")",
                            R"("arguments": [])"})
        EXPECT_NE(refused(bad), "") << bad;
}

TEST_F(ApplicationSettings, APackageWithMoreMemoryThanTheDeviceIsRefused) {
    qlpipe::FileListing listing;
    qlpipe::Bundle bundle;
    bundle.memoryLimit = 512 * 1024;
    auto limits = withMemory(256 * 1024);
    qlpipe::checkSettings(bundle, "a.qlpkg", limits, listing);
    ASSERT_EQ(listing.findings.size(), 1u);
    EXPECT_EQ(listing.findings[0].number, qlpipe::kPackageMemory);
    EXPECT_EQ(limits.heapBytes, 256 * 1024);
}

} // namespace
