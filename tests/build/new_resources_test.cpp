// Files that the user adds to a project's dependencies.
#include "Basic/text_search.h"
#include "compile_world.h"

using fernwick::tResource;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

constexpr char kCopyQuestion[] = "box 36 Fernwick: All dependency files must exist in the project folder.\r\n\r\n"
                                 "Would you like to copy\r\n/media/b.wav\r\nto\r\n/p ?";

std::string partedByNul(const std::vector<std::string>& names) { return basic::Join(names, std::string(1, '\0')); }

class NewResources : public testing::Test, protected test::CompileWorld {
protected:
    NewResources() {
        files.files["/p/Media/a.bmp"] = {"12345"};
        files.files["/media/b.wav"] = {"123"};
        trace.effects.clear();
    }
    tResource create(const std::string& path, bool allowCopy = true) {
        return dependencies.CreateNewDependency(project, path, allowCopy);
    }
    std::vector<tResource> choose(const std::string& chosen) {
        user.chosen = chosen;
        return dependencies.GetNewDependency(project).entries;
    }
};

TEST_F(NewResources, AFileBelowTheProjectHasARelativeName) {
    EXPECT_EQ(create("/p/Media/a.bmp"), (tResource{"Media\\a.bmp", "BMP", 5}));
    EXPECT_EQ(create("/P/media/a.bmp").FileName, "media\\a.bmp");
    EXPECT_THAT(trace.effects, IsEmpty());
}

TEST_F(NewResources, AFileOutsideIsCopiedWhenTheUserAgrees) {
    user.answers = {fernwick::vbYes};
    EXPECT_EQ(create("/media/b.wav"), (tResource{"b.wav", "WAV", 3}));
    EXPECT_THAT(trace.effects, ElementsAre(kCopyQuestion));
    EXPECT_EQ(files.files["/p/b.wav"].bytes, "123");
}

TEST_F(NewResources, AFileOutsideIsNotAddedWithoutACopy) {
    user.answers = {fernwick::vbNo};
    EXPECT_EQ(create("/media/b.wav"), tResource{});
    EXPECT_THAT(trace.effects, ElementsAre(kCopyQuestion, "box 48 Fernwick: Error copying file!"));
    EXPECT_EQ(files.files.count("/p/b.wav"), 0U);
}

TEST_F(NewResources, AFileOutsideIsCopiedWithoutAQuestionIfNotAllowedToAsk) {
    EXPECT_EQ(create("/media/b.wav", false).FileName, "b.wav");
    EXPECT_EQ(files.files["/p/b.wav"].bytes, "123");
    EXPECT_THAT(trace.effects, IsEmpty());
}

TEST_F(NewResources, AFolderWhoseNameOnlyBeginsLikeTheProjectsIsOutside) {
    files.files["/p2/c.bmp"] = {"1"};
    EXPECT_EQ(dependencies.CreateRelativePath("/p", "/p2/c.bmp"), "");
    EXPECT_EQ(dependencies.CreateRelativePath("/p/", "/p/Media/a.bmp"), "Media\\a.bmp");
    EXPECT_EQ(dependencies.CreateRelativePath("", "/p/Media/a.bmp"), "");
}

TEST_F(NewResources, ACopyThatFailsIsReported) {
    files.files.erase("/media/b.wav");
    create("/media/b.wav", false);
    EXPECT_THAT(errors.seen, ElementsAre("modDependencyManagement.CreateNewDependency [53]",
                                         "modDependencyManagement.CreateNewDependency [53]"));
}

TEST_F(NewResources, OneFileIsTakenWithOrWithoutItsFolderApart) {
    const auto one = [](const tResource& entry) { return entry.FileName == "Media\\a.bmp"; };
    EXPECT_THAT(choose("/p/Media/a.bmp"), ElementsAre(testing::Truly(one)));
    EXPECT_THAT(choose(std::string("/p/Media\0a.bmp", 14)), ElementsAre(testing::Truly(one)));
}

TEST_F(NewResources, TheDialogStartsAtTheProjectAndTakesSeveralFiles) {
    EXPECT_THAT(choose(""), IsEmpty());
    EXPECT_EQ(user.opened.InitDir, "/p");
    EXPECT_EQ(user.opened.DialogTitle, "Select a dependency file.");
    EXPECT_EQ(user.opened.Flags, 530948);
    EXPECT_FALSE(user.opened.CancelError);
    EXPECT_EQ(user.opened.Filter,
              "All Files(*.*)|*.*|Quinloft Font(*.cmf)|*.cmf|True Type Font (*.ttf)|*.ttf|"
              "Symbian Bitmap Font (*.gdr)|*.gdr|Quinloft Graphic(*.rgx)|*.rgx|Bitmap (*.bmp)|*.bmp|PNG (*.png)|*.png|"
              "JPEG (*.jpg, *.jpe)|*.jpg;*.jpe|Quinloft Movie(*.rmv)|*.rmv|Palm Database(*.pdb)|*.pdb|"
              "Pocket Access Database (*.cdb)|*.cdb|Symbian Database (*.db)|*.dbWAV (*.wav)|*.wav|"
              "Midi (*.mid, *.miz)|*.mid;*.miz|Beatnik Rich Music Format (*.rmf)|*.rmf|"
              "Nokia Ringtone (*.rng)|*.rng|UIQ208 Ringtone (*.imy)|*.imy|Text File (*.txt)|*.txt|");
}

TEST_F(NewResources, OneChosenFileIsReturnedAsItsPath) {
    EXPECT_THAT(choose("/p/Media/a.bmp"), ElementsAre(tResource{"Media\\a.bmp", "BMP", 5}));
    EXPECT_THAT(choose("/p/Media/gone.bmp"), IsEmpty());
}

TEST_F(NewResources, SeveralChosenFilesAreReturnedAsFolderAndNames) {
    files.files["/p/Media/c.png"] = {"1"};
    EXPECT_THAT(choose(partedByNul({"/p/Media", "a.bmp", "gone.bmp", "c.png", "a.bmp"})),
                ElementsAre(tResource{"Media\\a.bmp", "BMP", 5}, tResource{"Media\\c.png", "PNG", 1}));
}

TEST_F(NewResources, AFileThatTheUserDoesNotCopyIsSkipped) {
    files.files["/media/a.bmp"] = {"1"};
    user.answers = {fernwick::vbNo, fernwick::vbYes};
    EXPECT_THAT(choose(partedByNul({"/media", "a.bmp", "b.wav"})), ElementsAre(tResource{"b.wav", "WAV", 3}));
}

TEST_F(NewResources, ADialogThatFailsIsReportedAndChoosesNothing) {
    user.chosen = "/p/Media/a.bmp";
    trace.failing = trace.calls + 2; // after the project's folder
    EXPECT_EQ(dependencies.GetNewDependency(project).Count(), 0);
    EXPECT_EQ(errors.injected, 1);
}

} // namespace
