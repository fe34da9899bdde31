#include "Components/Image/code/code_names.h"
#include "Components/Image/verify/verify.h"
#include "Components/QLToolkit/compiler.h"
#include "Host/system/file_system.h"
#include "tests/support/temp_folder.h"
#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace qltoolkit;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::StartsWith;

namespace {

const char* const kForm = "VERSION 5.00\r\n"
                          "Object = \"{11111111-2222-3333-4444-555555555555}#1.0#0\"; \"Tavlets.dll\"\r\n"
                          "Begin VB.Form frmTip \r\n"
                          "   Caption         =   \"Tip's \"\"best\"\"\"\r\n"
                          "   BeginProperty Font \r\n"
                          "      Size            =   12\r\n"
                          "   EndProperty\r\n"
                          "   Begin TavletsCtl.QLPicture picLogo \r\n"
                          "      Index           =   3\r\n"
                          "      PictureName     =   \"logo.rgx\"   'the picture\r\n"
                          "   End\r\n"
                          "End\r\n"
                          "Attribute VB_Name = \"frmTip\"\r\n"
                          "Option Explicit\r\n"
                          "Private Sub Form_Load()\r\n"
                          "    Caption = \"Tip\"\r\n"
                          "End Sub\r\n";

const char* const kModule = "Attribute VB_Name = \"modMain\"\r\n"
                            "Public Sub Main()\r\n"
                            "    MsgBox \"Hello \" & Name(\"x\") & \"Hello \"\r\n"
                            "End Sub\r\n"
                            "Private Function Name(ByVal a As String, Optional b) As String\r\n"
                            "End Function\r\n";

/// Knows one library.
class OneLibrary : public fernwick::Classes {
public:
    std::shared_ptr<void> RegisterClass(const std::string&, Factory) override { return nullptr; }
    basic::Ref<fernwick::Object> CreateObject(const std::string&) override { throw basic::RuntimeError(429); }
    bool CLSIDFromString(const std::string&, std::string&) const override { return false; }
    std::string ProgIDFromCLSID(const std::string&) const override { return {}; }
    basic::Ref<fernwick::TypeLibInfo> TypeLibInfoFromFile(const std::string& path) const override {
        if (!path.ends_with("/Tavlets.dll")) return nullptr;
        auto info = basic::make<fernwick::TypeLibInfo>();
        info->Name = "Tavlets";
        info->Guid = "{11111111-2222-3333-4444-555555555555}";
        return info;
    }
};

class CompilerComponent : public testing::Test {
protected:
    CompilerComponent() {
        const CompilerServices services{files_, classes_, record_, [this](const std::string&) { return page_; }};
        compiler_ = basic::make<ProjectCompilerFactory>(services)->CreateCompiler();
        subscriptions_.push_back(compiler_->BuildStarted.connect([this] { events_.push_back("started"); }));
        subscriptions_.push_back(
            compiler_->BuildStatus.connect([this](const std::string& text) { events_.push_back(text); }));
        subscriptions_.push_back(compiler_->BuildError.connect(
            [this](const std::string& text, const std::string& file, int line, int number) {
                errors_.push_back(files_.GetFileName(file) + ":" + std::to_string(line) + " " + std::to_string(number));
                events_.push_back(text);
            }));
        subscriptions_.push_back(compiler_->BuildWarning.connect(
            [this](const std::string&, const std::string&, int, int number) { warnings_.push_back(number); }));
        subscriptions_.push_back(compiler_->AddDependency.connect(
            [this](const std::string& name, int type) { dependencies_.push_back(std::to_string(type) + " " + name); }));
        subscriptions_.push_back(
            compiler_->BuildFinished.connect([this](bool good) { events_.push_back(good ? "good" : "bad"); }));
        compiler_->SetOutputPath(folder_ / "Tips");
    }

    void add(const std::string& name, std::string_view text) {
        compiler_->AddBuildFile(folder_.write(name, text), qltoolkit::SourceFile);
    }
    bool imageExists() { return files_.FileExists(folder_ / "Tips.0000.qlx"); }

    test::TempFolder folder_;
    host::FileSystem files_;
    OneLibrary classes_;
    basic::CodePage page_ = basic::CodePage::windows1252();
    std::shared_ptr<BuildRecord> record_ = std::make_shared<BuildRecord>();
    basic::Ref<qltoolkit::Compiler> compiler_;
    std::vector<std::string> events_, errors_, dependencies_;
    std::vector<int> warnings_;
    std::vector<fernwick::Subscription> subscriptions_;
};

} // namespace

TEST_F(CompilerComponent, ReadsSourcesInTheirCodePage) {
    page_ = basic::CodePage(950);
    add("modMain.bas", page_.encode("Attribute VB_Name = \"modMain\"\r\nSub 計算()\r\nEnd Sub\r\n"));
    EXPECT_TRUE(compiler_->Build());
    EXPECT_EQ(image::decode(folder_.read("Tips.0000.qlx")).modules[0].members[0].name, "計算");
}

TEST_F(CompilerComponent, WritesTheCodeOfModulesAndClasses) {
    page_ = basic::CodePage(1251);
    add("modMain.bas", "Attribute VB_Name = \"modMain\"\r\nSub Other()\r\nEnd Sub\r\n"
                       "Sub Main()\r\n  Debug.Print 1\r\nEnd Sub\r\n");
    compiler_->SetStartupObject("Sub Main");
    EXPECT_TRUE(compiler_->Build());
    const auto code = image::decode(folder_.read("Tips.0000.qlx")).code;
    EXPECT_FALSE(image::verify(code));
    ASSERT_LT(code.start, code.procedures.size());
    EXPECT_EQ(image::procedureName(code, code.start), "modMain.Main");
    EXPECT_EQ(code.codePage, 1251u);
}

TEST_F(CompilerComponent, WritesNoCodeOfModulesBesideForms) {
    add("frmTip.frm", kForm);
    add("modMain.bas", kModule);
    compiler_->SetStartupObject("frmTip");
    EXPECT_TRUE(compiler_->Build());
    EXPECT_EQ(image::decode(folder_.read("Tips.0000.qlx")).code, image::CodeImage{});
}

TEST_F(CompilerComponent, TakesTheCodePageFromASourceThatIsNotUtf8) {
    page_ = basic::CodePage(1250);
    add("modAccents.bas", "Attribute VB_Name = \"modAccents\"\r\nConst A = \"\xC3\xA9\xE2\x82\xAC\"\r\n");
    add("modMain.bas", "Attribute VB_Name = \"modMain\"\r\nSub Main()\r\nEnd Sub\r\n");
    EXPECT_TRUE(compiler_->Build());
    EXPECT_EQ(image::decode(folder_.read("Tips.0000.qlx")).code.codePage, 1250u);
}

TEST_F(CompilerComponent, ChecksTheNamesBesideAFaultyFile) {
    add("modBad.bas", "Attribute VB_Name = \"modBad\"\r\nFunction Half(n)\r\n  n = n +\r\nEnd Function\r\n");
    add("modMain.bas", "Attribute VB_Name = \"modMain\"\r\nOption Explicit\r\nSub Main()\r\n"
                       "  Debug.Print Half(2)\r\n  GoTo Nowhere\r\nEnd Sub\r\n");
    EXPECT_FALSE(compiler_->Build());
    ASSERT_EQ(errors_.size(), 2u);
    EXPECT_TRUE(errors_[0].starts_with("modBad.bas:")) << errors_[0];
    EXPECT_EQ(errors_[1], "modMain.bas:5 2006");
}

TEST_F(CompilerComponent, WritesAnImageAndReportsProgress) {
    add("frmTip.frm", kForm);
    add("modMain.bas", kModule);
    compiler_->SetStartupObject("frmTip");
    compiler_->SetVersionInfo("Title", "Tips");
    compiler_->AddConditionalConstant("Trace", -1);
    EXPECT_TRUE(compiler_->Build());
    EXPECT_THAT(events_, ElementsAre("started", "Compiling frmTip.frm", "45% completed", "Compiling modMain.bas",
                                     "90% completed", "95% completed", "100% completed", "good"));
    const auto image = image::decode(folder_.read("Tips.0000.qlx"));
    EXPECT_EQ(image.projectName, "Tips");
    EXPECT_EQ(image.startup, "frmTip");
    EXPECT_THAT(image.info, ElementsAre(std::pair<std::string, std::string>("Title", "Tips")));
    EXPECT_THAT(image.constants, ElementsAre(std::pair<std::string, std::int32_t>("Trace", -1)));
    EXPECT_EQ(record_->image, folder_ / "Tips.0000.qlx");
    EXPECT_EQ(record_->inputs.size(), 2U);
}

TEST_F(CompilerComponent, StoresFormsWithControlsAndProperties) {
    add("frmTip.frm", kForm);
    ASSERT_TRUE(compiler_->Build());
    const auto image = image::decode(folder_.read("Tips.0000.qlx"));
    ASSERT_EQ(image.forms.size(), 1U);
    const auto& form = image.forms[0];
    EXPECT_EQ(form.name, "frmTip");
    EXPECT_EQ(form.index, -1); // not in a control array
    EXPECT_THAT(form.properties,
                ElementsAre(image::Property{"Caption", "\"Tip's \"\"best\"\"\""}, image::Property{"Font.Size", "12"}));
    ASSERT_EQ(form.children.size(), 1U);
    EXPECT_EQ(form.children[0].className, "TavletsCtl.QLPicture");
    EXPECT_EQ(form.children[0].index, 3);
    EXPECT_EQ(form.children[0].properties[1], (image::Property{"PictureName", "\"logo.rgx\""}));
}

TEST_F(CompilerComponent, StoresModulesWithMembersAndStrings) {
    add("modMain.bas", kModule);
    compiler_->SetStartupObject("Sub Main");
    ASSERT_TRUE(compiler_->Build());
    const auto image = image::decode(folder_.read("Tips.0000.qlx"));
    ASSERT_EQ(image.modules.size(), 1U);
    EXPECT_EQ(image.modules[0].name, "modMain");
    EXPECT_EQ(image.modules[0].file, "modMain.bas");
    EXPECT_THAT(image.modules[0].members, ElementsAre(image::Member{image::MemberKind::Sub, true, "Main", 2, 0},
                                                      image::Member{image::MemberKind::Function, false, "Name", 5, 2}));
    EXPECT_THAT(image.modules[0].strings, ElementsAre("Hello ", "x"));
}

TEST_F(CompilerComponent, StoresStringsInTheOrderOfTheText) {
    add("modMain.bas",
        "Sub Main()\r\n  Do\r\n    Debug.Print \"1\" & \"2\", \"3\"\r\n  Loop While \"4\" = \"5\"\r\nEnd Sub\r\n");
    compiler_->SetStartupObject("Sub Main");
    ASSERT_TRUE(compiler_->Build());
    EXPECT_THAT(image::decode(folder_.read("Tips.0000.qlx")).modules[0].strings, ElementsAre("1", "2", "3", "4", "5"));
}

TEST_F(CompilerComponent, ReportsPhysicalLinesAndKeepsTheOldImageAfterAnError) {
    folder_.write("Tips.0000.qlx", "old");
    add("frmTip.frm", std::string(kForm) + "Sub Broken()\r\n  x = (1 +\r\nEnd Sub\r\n");
    EXPECT_FALSE(compiler_->Build());
    ASSERT_EQ(errors_.size(), 1U);
    EXPECT_THAT(errors_[0], StartsWith("frmTip.frm:19 18"));
    EXPECT_EQ(events_.back(), "bad");
    EXPECT_EQ(folder_.read("Tips.0000.qlx"), "old");
    EXPECT_EQ(record_->image, "");
    ASSERT_EQ(record_->diagnostics.size(), 1U);
    EXPECT_GT(record_->diagnostics[0].column, 0U);
}

TEST_F(CompilerComponent, ReportsUsedLibrariesAndFilesNamedByControls) {
    add("frmTip.frm", kForm);
    folder_.write("logo.rgx", "x");
    compiler_->AddBuildFile(folder_ / "Tavlets.DLL",
                            qltoolkit::ControlLibrary); // differs only in the case of the extension
    ASSERT_TRUE(compiler_->Build());
    EXPECT_THAT(dependencies_, ElementsAre("0 {11111111-2222-3333-4444-555555555555}", "1 logo.rgx"));
    EXPECT_THAT(warnings_, IsEmpty());
}

TEST_F(CompilerComponent, AnUnusedControlLibraryIsNotADependency) {
    add("modMain.bas", kModule);
    compiler_->AddBuildFile(folder_ / "Tavlets.dll", qltoolkit::ControlLibrary);
    ASSERT_TRUE(compiler_->Build());
    EXPECT_THAT(dependencies_, IsEmpty());
}

TEST_F(CompilerComponent, AMissingLibraryIsAWarning) {
    add("modMain.bas", kModule);
    compiler_->AddBuildFile(folder_ / "Gone.dll", qltoolkit::ReferencedLibrary);
    EXPECT_TRUE(compiler_->Build());
    EXPECT_THAT(warnings_, ElementsAre(int(Message::LibraryMissing)));
}

TEST_F(CompilerComponent, MissingSourcesMissingStartupAndDuplicateNamesAreErrors) {
    compiler_->AddBuildFile(folder_ / "gone.bas", qltoolkit::SourceFile);
    EXPECT_FALSE(compiler_->Build());
    EXPECT_THAT(errors_, ElementsAre("gone.bas:0 1000"));

    errors_.clear();
    compiler_->Reset();
    compiler_->SetOutputPath(folder_ / "Tips");
    compiler_->SetStartupObject("frmNone");
    add("modMain.bas", kModule);
    EXPECT_FALSE(compiler_->Build());
    EXPECT_THAT(errors_, ElementsAre(":0 " + std::to_string(int(Message::StartupMissing))));

    errors_.clear();
    add("again.bas", kModule);
    compiler_->SetStartupObject("");
    EXPECT_FALSE(compiler_->Build());
    EXPECT_THAT(errors_, ElementsAre("again.bas:0 " + std::to_string(int(Message::ModuleNameTwice))));
}

TEST_F(CompilerComponent, ReportsEachFileInItsTurn) {
    add("modFirst.bas", "Sub First()\r\n  Loop\r\nEnd Sub\r\n");
    compiler_->AddBuildFile(folder_ / "gone.bas", qltoolkit::SourceFile);
    add("modLast.bas", "Sub Last()\r\n  Next\r\nEnd Sub\r\n");
    EXPECT_FALSE(compiler_->Build());
    ASSERT_EQ(errors_.size(), 3U);
    EXPECT_THAT(errors_, ElementsAre(StartsWith("modFirst.bas:2 "), "gone.bas:0 1000", StartsWith("modLast.bas:2 ")));
    ASSERT_EQ(events_.size(), 11U);
    EXPECT_THAT(std::vector(events_.begin() + 4, events_.begin() + 7),
                ElementsAre("Compiling gone.bas", testing::_, "60% completed"));
    EXPECT_EQ(record_->inputs.size(), 2U);
}

TEST_F(CompilerComponent, AnImageThatCannotBeWrittenIsAnError) {
    add("modMain.bas", kModule);
    compiler_->SetOutputPath(folder_ / "none/Tips");
    EXPECT_FALSE(compiler_->Build());
    EXPECT_THAT(errors_, ElementsAre("Tips.0000.qlx:0 " + std::to_string(int(Message::ImageNotWritten))));
}

TEST_F(CompilerComponent, AnExceptionFromAHandlerAbortsTheBuild) {
    add("modMain.bas", kModule);
    struct Stop {};
    for (const auto* const when : {"90% completed", "95% completed"}) {
        const auto stop = compiler_->BuildStatus.connect([when](const std::string& text) {
            if (text == when) throw Stop();
        });
        EXPECT_THROW(compiler_->Build(), Stop);
        EXPECT_FALSE(imageExists());
        EXPECT_EQ(folder_.count(), 1U);
    }
}

TEST_F(CompilerComponent, ResetForgetsAllInput) {
    add("modMain.bas", "Sub (\r\n");
    compiler_->SetVersionInfo("Title", "x");
    compiler_->Reset();
    compiler_->SetOutputPath(folder_ / "Tips");
    EXPECT_TRUE(compiler_->Build());
    const auto image = image::decode(folder_.read("Tips.0000.qlx"));
    EXPECT_THAT(image.modules, IsEmpty());
    EXPECT_THAT(image.info, IsEmpty());
}
