#include "Components/QLPipe/base/pipe_messages.h"
#include "tests/pipes/pipe_world.h"
#include "tests/support/test_host.h"
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

/// Validates the files of a project.
class ValidateFiles : public testing::Test {
protected:
    bool validate(const std::string& pipe = "QLPipePalmOS", const basic::Ref<vbide::VBProject>& vbProject = {}) {
        const auto validation = world.create<qlpipe::IQLPipeValidation>(pipe + ".Validation");
        validation->SetEventSink(sink);
        return validation->ValidateFiles(vbProject ? vbProject : withoutDevice, project.files());
    }
    /// Expects exactly one error, whose text contains `words`.
    void refuses(std::int32_t number, const std::string& words) {
        EXPECT_FALSE(validate());
        ASSERT_THAT(sink.errorNumbers(), ElementsAre(number));
        EXPECT_THAT(sink.errors[0].second, HasSubstr(words));
    }

    test::PipeWorld world;
    test::TestHost ide;
    test::RecordingSink& sink = world.sink;
    test::ProjectFolder project{world.folder};
    basic::Ref<vbide::VBProject> withoutDevice = ide.open(test::SampleProject().handheld());
};

TEST_F(ValidateFiles, AcceptsSupportedFiles) {
    project.image().add("a.rpp", "r").add("Hello.rsp", "r").add("prices.pdb", "p").list("{COMPONENT}", "REF");
    EXPECT_TRUE(validate());
    EXPECT_THAT(sink.errors, IsEmpty());
    EXPECT_THAT(sink.warnings, IsEmpty());
}

TEST_F(ValidateFiles, RequiresAnImage) {
    project.add("prices.pdb", "p");
    refuses(qlpipe::kNoImage, "Compile the project first");
}

TEST_F(ValidateFiles, RequiresAnImageOfAnEmptyProject) { refuses(qlpipe::kNoImage, "Compile the project first"); }

TEST_F(ValidateFiles, RefusesADamagedImage) {
    auto image = test::imageOf("Hello");
    image[image.size() / 2] ^= 1;
    project.add("Hello.0000.qlx", image);
    refuses(qlpipe::kImageDamaged, "its checksum is wrong");
}

TEST_F(ValidateFiles, RefusesAnEmptyImage) {
    project.add("Hello.0000.qlx", "");
    refuses(qlpipe::kImageDamaged, "Hello.0000.qlx");
}

TEST_F(ValidateFiles, RefusesAnImageOfAnotherCompiler) {
    project.add("Hello.0000.qlx", test::imageOf("Hello", "3.4.9 (0001)"));
    refuses(qlpipe::kImageOfOtherCompiler, "3.4.9 (0001)");
}

TEST_F(ValidateFiles, RefusesAnImageThatIsTooLargeForThePlatform) {
    project.add("Hello.0000.qlx", test::imageOf("Hello", "3.5.0 (0624)", 1'100'000));
    refuses(qlpipe::kImageTooLarge, "Palm OS accepts applications of at most 1,048,576 bytes");
}

TEST_F(ValidateFiles, RefusesANameThatIsTooLongForThePlatform) {
    project.image().add(std::string(27, 'n') + ".pdb", "x");
    EXPECT_TRUE(validate());
    project.add(std::string(28, 'n') + ".pdb", "x");
    refuses(qlpipe::kNameTooLong, "has 32 characters; Palm OS allows at most 31");
}

TEST_F(ValidateFiles, CountsCharactersOfNamesNotBytes) {
    std::string name;
    for (int i = 0; i < 27; ++i) name += "ü";
    project.image().add(name + ".pdb", "x");
    EXPECT_TRUE(validate());
}

TEST_F(ValidateFiles, RefusesTwoFilesWithTheSameName) {
    project.image().add("Data/prices.pdb", "x").add("data/PRICES.pdb", "x");
    refuses(qlpipe::kNameTwice, "PRICES.pdb");
}

TEST_F(ValidateFiles, RefusesAFileWithTheNameOfAFolder) {
    project.image().add("data.txt/prices.pdb", "x").list(world.folder.write("other/data.txt", "x"), "Data.txt");
    refuses(qlpipe::kNameTwice, "data.txt/prices.pdb");
}

TEST_F(ValidateFiles, RefusesAnUnsupportedFileType) {
    project.image().add("face.ttf", "x");
    refuses(qlpipe::kKindNotTaken, "CMF, RGX, BMP");
}

TEST_F(ValidateFiles, RefusesAFileWithoutAnExtension) {
    project.image().add("README", "x");
    refuses(qlpipe::kKindNotTaken, "README");
}

TEST_F(ValidateFiles, RefusesAFileThatIsTooLargeForThePlatform) {
    project.image().add("prices.pdb", std::string(65'536, 'x'));
    EXPECT_TRUE(validate());
    project.add("more.pdb", std::string(65'537, 'x'));
    refuses(qlpipe::kFileTooLarge, "has 65,537 bytes; Palm OS accepts files of at most 65,536 bytes");
}

TEST_F(ValidateFiles, RefusesMoreThanTheDevicesMemory) {
    project.image();
    for (int i = 0; i < 129; ++i) project.add(std::to_string(i) + ".pdb", std::string(65'536, 'x'));
    refuses(qlpipe::kTooLargeTogether, "the memory of Palm OS is only 8,388,608 bytes");
}

TEST_F(ValidateFiles, RefusesNamesThatLeadOutOfTheApplication) {
    const auto file = world.folder.write("prices.pdb", "x");
    project.image();
    for (const char* name :
         {"", "..\\prices.pdb", "Data\\..\\..\\prices.pdb", "C:\\prices.pdb", "/etc/prices.pdb", "\\prices.pdb",
          ".\\prices.pdb", "Data\\\\prices.pdb", ".hidden.pdb", "a\nb.pdb", "\xFF.pdb"}) {
        project.list(file, name);
        sink.errors.clear();
        refuses(qlpipe::kUnsafeName, file);
        project.paths.pop_back();
        project.resources.pop_back();
    }
    project.list(file, std::string("a\0b.pdb", 7));
    sink.errors.clear();
    refuses(qlpipe::kUnsafeName, file);
}

TEST_F(ValidateFiles, RefusesANameWithATooLongPart) {
    project.image().list(world.folder.write("x.pdb", "x"), std::string(252, 'n') + ".pdb");
    refuses(qlpipe::kUnsafeName, "simple name");
}

TEST_F(ValidateFiles, RefusesListsOfDifferentLengths) {
    project.image().paths.push_back(world.folder.write("x.pdb", "x"));
    refuses(qlpipe::kUnsafeName, "x.pdb");
}

TEST_F(ValidateFiles, ReportsAMissingFile) {
    project.image().list(world.folder / "gone.pdb", "gone.pdb");
    refuses(qlpipe::kFileMissing, world.folder / "gone.pdb");
}

TEST_F(ValidateFiles, ReportsAPathThatIsNotAFile) {
    std::filesystem::create_directories(world.folder / "folder.pdb");
    project.image().list(world.folder / "folder.pdb", "folder.pdb");
    refuses(qlpipe::kFileUnreadable, "directory");
    project.list("/dev/zero", "zero.pdb");
    EXPECT_FALSE(validate());
}

TEST_F(ValidateFiles, WarnsAboutAnEmptyFile) {
    project.image().add("prices.pdb", "");
    EXPECT_TRUE(validate());
    EXPECT_THAT(sink.warningNumbers(), ElementsAre(qlpipe::kFileEmpty));
    EXPECT_THAT(sink.sources, ElementsAre(project.path("prices.pdb")));
}

TEST_F(ValidateFiles, WarnsAboutAFileLargerThanTheHeap) {
    project.image().add("film.wav", std::string(16'777'217, 'x'));
    EXPECT_TRUE(validate("QLPipePocketPC"));
    EXPECT_THAT(sink.warningNumbers(), ElementsAre(qlpipe::kFileLargerThanHeap));
}

TEST_F(ValidateFiles, ChecksForTheProjectsDevice) {
    project.image().add("film.wav", std::string(33'000'000, 'x'));
    const auto arm = ide.open(test::SampleProject("Arm").handheld("PocketPC-ARM"));
    EXPECT_TRUE(validate("QLPipePocketPC", arm)) << "an ARM device has 64 MB";
    project.add("second.wav", std::string(1'000'000, 'x'));
    EXPECT_TRUE(validate("QLPipePocketPC", arm));
    EXPECT_FALSE(validate("QLPipePocketPC")) << "the family's first target has 32 MB";
}

TEST_F(ValidateFiles, ChecksForTheFamilysFirstTargetIfTheProjectIsForAnotherFamily) {
    project.image().add("prices.pdb", std::string(70'000, 'x'));
    EXPECT_FALSE(validate("QLPipePalmOS", ide.open(test::SampleProject("Pocket").handheld("PocketPC-ARM"))));
    EXPECT_THAT(sink.errorNumbers(), ElementsAre(qlpipe::kFileTooLarge));
}

TEST_F(ValidateFiles, ChecksForTheDeviceOfTheRunWhateverTheProjectsIs) {
    project.image().add("film.wav", std::string(34'000'000, 'x'));
    const auto judge = [&](const std::string& device, const basic::Ref<vbide::VBProject>& vbProject) {
        const auto validation = world.create<qlpipe::IQLPipeValidation>("QLPipePocketPC.Validation");
        validation->SetDevice(device);
        return validation->ValidateFiles(vbProject, project.files());
    };
    const auto arm = ide.open(test::SampleProject("Arm").handheld("PocketPC-ARM"));
    const auto palm = ide.open(test::SampleProject("Palm").handheld("PalmOS-DragonBall"));
    EXPECT_TRUE(judge("PocketPC-ARM", palm)) << "an ARM device has 64 MB";
    EXPECT_FALSE(judge("PocketPC-SH3", arm)) << "an SH3 device has 32 MB";
}

TEST_F(ValidateFiles, ServesTheSshFamily) {
    project.image().add("manual.doc", "x");
    EXPECT_FALSE(validate("QLPipeLinux"));
    EXPECT_THAT(sink.errorNumbers(), Contains(qlpipe::kKindNotTaken));
}

TEST_F(ValidateFiles, WorksWithoutASink) {
    const auto validation = world.create<qlpipe::IQLPipeValidation>("QLPipePalmOS.Validation");
    EXPECT_FALSE(validation->ValidateFiles(withoutDevice, project.files()));
}

} // namespace
