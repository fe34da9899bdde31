#include "Basic/code_page.h"
#include "Host/files/form_file.h"
#include "Host/files/form_line.h"
#include <gmock/gmock.h>
#include <gtest/gtest.h>

using host::FormFile;
using testing::ElementsAre;
using testing::HasSubstr;

namespace {

std::string withCrLf(std::string text) {
    std::string out;
    for (const char c : text) out += c == '\n' ? std::string("\r\n") : std::string(1, c);
    return out;
}

const std::string kForm = withCrLf(R"(VERSION 5.00
Object = "{831FDD16-0C5C-11D2-A9FC-0000F8754DA1}#2.0#0"; "THING.OCX"
Begin VB.Form frmTip 
   BorderStyle     =   1  'Fixed Single
   Caption         =   "Tip, it's due"
   ClientHeight    =   2400
   ClientLeft      =   45
   BeginProperty Font 
      Name            =   "Tahoma"
      Size            =   8.25
   EndProperty
   ScaleMode       =   3  'Pixel
   Begin VB.Frame fraAll 
      Height          =   600
      Begin VB.TextBox txtSum 
         Enabled         =   0   'False
         Height          =   300
      End
   End
   Begin VB.Menu mnuFile 
      Caption         =   "&File"
   End
End
Attribute VB_Name = "frmTip"
Attribute VB_Exposed = False
Option Explicit
)");

std::vector<std::string> linesOf(const std::string& text) {
    std::vector<std::string> lines;
    for (std::string_view rest = text; !rest.empty();) lines.emplace_back(host::takeWholeLine(rest));
    return lines;
}

/// The lines of both texts between their common beginning and end.
std::pair<std::string, std::string> difference(const std::string& original, const std::string& changed) {
    auto a = linesOf(original), b = linesOf(changed);
    while (!a.empty() && !b.empty() && a.back() == b.back()) a.pop_back(), b.pop_back();
    std::size_t same = 0;
    while (same < a.size() && same < b.size() && a[same] == b[same]) ++same;
    const auto joined = [same](const std::vector<std::string>& lines) {
        std::string out;
        for (auto i = same; i < lines.size(); ++i) out += lines[i];
        return out;
    };
    return {joined(a), joined(b)};
}

std::shared_ptr<host::FormBlock> child(const host::FormBlock& block, std::size_t index) {
    return block.objects().at(index);
}

} // namespace

TEST(FormFile, ReadsHeadTreeAndCode) {
    const auto form = FormFile::parse(kForm);
    EXPECT_EQ(form.text(), kForm);
    EXPECT_EQ(form.version(), "5.00");
    ASSERT_EQ(form.objects().size(), 1U);
    EXPECT_EQ(form.objects()[0].file, "THING.OCX");
    EXPECT_EQ(form.root()->type(), "VB.Form");
    EXPECT_EQ(form.root()->name(), "frmTip");
    EXPECT_EQ(form.root()->literal("caption"), "\"Tip, it's due\"");
    EXPECT_EQ(form.root()->properties("font")->literal("SIZE"), "8.25");
    EXPECT_EQ(child(*child(*form.root(), 0), 0)->name(), "txtSum");
    EXPECT_EQ(form.attribute("vb_name"), "\"frmTip\"");
    EXPECT_EQ(form.code(), "Option Explicit\r\n");
    EXPECT_EQ(form.firstCodeLine(), 26U);
    EXPECT_TRUE(form.problems().empty());
}

TEST(FormFile, AnAbsentPropertyHasNoLiteral) {
    const auto form = FormFile::parse(kForm);
    EXPECT_EQ(form.root()->literal("Tag"), std::nullopt);
    EXPECT_EQ(form.root()->literal("Font"), std::nullopt) << "a font is a block, not a literal";
    EXPECT_EQ(form.root()->properties("Caption"), nullptr);
}

TEST(FormFile, PropertiesMayBeNamedLikeKeywords) {
    for (const std::string word : {"Begin", "BeginProperty", "End", "EndProperty"}) {
        const auto form =
            FormFile::parse("VERSION 5.00\r\nBegin VB.Form A \r\n   " + word + " = 7\r\n   Tag = 8\r\nEnd\r\n");
        EXPECT_EQ(form.root()->literal(word), "7");
        EXPECT_EQ(form.root()->literal("Tag"), "8");
        EXPECT_TRUE(form.problems().empty()) << word;
    }
}

TEST(FormFile, SettingAPropertyEditsItsLine) {
    auto form = FormFile::parse(kForm);
    EXPECT_TRUE(form.root()->set("clientheight", "2505"));
    EXPECT_EQ(difference(kForm, form.text()),
              std::pair(withCrLf("   ClientHeight    =   2400\n"), withCrLf("   ClientHeight    =   2505\n")));
}

TEST(FormFile, SettingTheSameLiteralChangesNothing) {
    auto form = FormFile::parse(kForm);
    EXPECT_FALSE(form.root()->set("BorderStyle", "1", "other words"));
    EXPECT_EQ(form.text(), kForm);
}

TEST(FormFile, AChangedValueGetsItsOwnCommentOrNone) {
    auto form = FormFile::parse(kForm);
    form.root()->set("BorderStyle", "3", "Fixed Dialog");
    form.root()->set("ScaleMode", "2");
    const auto box = child(*child(*form.root(), 0), 0);
    box->set("Enabled", "-1", "True");
    EXPECT_THAT(form.text(), HasSubstr("   BorderStyle     =   3  'Fixed Dialog\r\n"));
    EXPECT_THAT(form.text(), HasSubstr("   ScaleMode       =   2\r\n"));
    EXPECT_THAT(form.text(), HasSubstr("         Enabled         =   -1  'True\r\n"));
}

TEST(FormFile, ANewPropertyIsInsertedAlphabetically) {
    auto form = FormFile::parse(kForm);
    form.root()->set("ClientTop", "330");
    form.root()->set("BackColor", "&H00C0C0C0&");
    form.root()->set("StartUpPosition", "2", "CenterScreen");
    form.root()->set("ShowInTaskbar", "0", "False");
    const auto& text = form.text();
    EXPECT_THAT(text, HasSubstr("frmTip \r\n   BackColor       =   &H00C0C0C0&\r\n   BorderStyle"));
    EXPECT_THAT(text, HasSubstr("ClientLeft      =   45\r\n   ClientTop       =   330\r\n   BeginProperty Font"));
    EXPECT_THAT(text, HasSubstr("'Pixel\r\n   ShowInTaskbar   =   0   'False\r\n   StartUpPosition =   2  "
                                "'CenterScreen\r\n   Begin VB.Frame"));
    EXPECT_EQ(FormFile::parse(text).text(), text);
    EXPECT_TRUE(form.root()->wasAdded("backcolor"));
    EXPECT_FALSE(form.root()->wasAdded("Caption"));
}

TEST(FormFile, ALongKeyHasNoBlankBeforeItsEqualsSign) {
    auto form = FormFile::parse(kForm);
    child(*child(*form.root(), 0), 0)->set("DataSourceMemberX", "7");
    EXPECT_THAT(form.text(), HasSubstr("\r\n         DataSourceMemberX=   7\r\n         Enabled "));
}

TEST(FormFile, RemovingRemovesOnlyTheseLines) {
    auto form = FormFile::parse(kForm);
    EXPECT_TRUE(form.root()->remove("FONT"));
    EXPECT_FALSE(form.root()->remove("FONT"));
    EXPECT_EQ(difference(kForm, form.text()).second, "");
    EXPECT_TRUE(form.root()->remove("Caption"));
    EXPECT_THAT(form.text(),
                HasSubstr("'Fixed Single\r\n   ClientHeight    =   2400\r\n   ClientLeft      =   45\r\n   "
                          "ScaleMode "));
}

TEST(FormFile, BlocksAreAddedInTheDesignersLayout) {
    auto form = FormFile::parse(kForm);
    const auto button = form.root()->addObject("VB.CommandButton", "cmdOK");
    button->addProperties("Font", "{0BE35203-8F91-11CE-9DE3-00AA004BB851}")->set("Name", "\"Arial\"");
    button->set("Caption", "\"OK\"");
    EXPECT_THAT(form.text(), HasSubstr(withCrLf(R"(   ScaleMode       =   3  'Pixel
   Begin VB.CommandButton cmdOK 
      Caption         =   "OK"
      BeginProperty Font {0BE35203-8F91-11CE-9DE3-00AA004BB851} 
         Name            =   "Arial"
      EndProperty
   End
   Begin VB.Frame fraAll )")));
    EXPECT_TRUE(form.root()->removeObject(*button));
    EXPECT_FALSE(form.root()->removeObject(*button));
    EXPECT_EQ(form.text(), kForm);
}

TEST(FormFile, RenamingABlockEditsItsBeginLine) {
    auto form = FormFile::parse(kForm);
    child(*form.root(), 0)->name("fraNew");
    EXPECT_EQ(difference(kForm, form.text()).second, "   Begin VB.Frame fraNew \r\n");
}

TEST(FormFile, AttributesAreEditedAndAdded) {
    auto form = FormFile::parse(kForm);
    EXPECT_TRUE(form.attribute("VB_Name", "\"frmOther\""));
    EXPECT_FALSE(form.attribute("VB_Name", "\"frmOther\""));
    EXPECT_TRUE(form.attribute("VB_Description", "\"Tips\""));
    EXPECT_THAT(form.text(), HasSubstr(withCrLf("Attribute VB_Name = \"frmOther\"\nAttribute VB_Exposed = False\n"
                                                "Attribute VB_Description = \"Tips\"\nOption Explicit\n")));
    EXPECT_EQ(form.firstCodeLine(), 27U);
}

TEST(FormFile, AnAttributeAfterATruncatedLineGetsItsOwnLine) {
    auto form = FormFile::parse("VERSION 5.00\nBegin VB.Form A \nEnd");
    form.attribute("VB_Name", "\"A\"");
    EXPECT_EQ(form.text(), "VERSION 5.00\nBegin VB.Form A \nEnd\nAttribute VB_Name = \"A\"\n");
}

TEST(FormFile, ClassesAndModulesHaveASmallerHead) {
    const std::string cls = "VERSION 1.0 CLASS\r\nBEGIN\r\n  MultiUse = -1  'True\r\nEND\r\n"
                            "Attribute VB_Name = \"Thing\"\r\nDim x\r\n";
    const auto file = FormFile::parse(cls);
    EXPECT_EQ(file.version(), "1.0 CLASS");
    EXPECT_EQ(file.root()->literal("MultiUse"), "-1");
    EXPECT_EQ(file.code(), "Dim x\r\n");
    EXPECT_EQ(file.text(), cls);
    const auto bas = FormFile::parse("Attribute VB_Name = \"M\"\r\nDim y");
    EXPECT_EQ(bas.root(), nullptr);
    EXPECT_EQ(bas.code(), "Dim y");
    EXPECT_EQ(FormFile::parse("Dim x\r\n").code(), "Dim x\r\n");
    EXPECT_EQ(FormFile::parse("").text(), "");
}

// Forms as found in real projects.

TEST(RealFormFile, AResourceNameWithABackslashByteIsNotAPath) {
    const std::string bytes =
        "VERSION 5.00\r\nBegin VB.Form A \r\n   Icon            =   \"\x95\x5C.frx\":0000\r\nEnd\r\n";
    const basic::CodePage japanese(932);
    const auto form = FormFile::parse(japanese.decode(bytes));
    EXPECT_EQ(form.root()->literal("Icon"), "\"表.frx\":0000");
    EXPECT_EQ(japanese.encode(form.text()), bytes);
}

TEST(RealFormFile, MergedByHandNestsByKeywords) {
    const std::string text = "VERSION 5.00\nBegin VB.Form A\nCaption = \"x\"\n      Begin VB.TextBox T\n_extentx = 5\n"
                             "BeginProperty Font\nName = \"Arial\"\nEndProperty\nEnd\n\tBegin VB.Label L\n   End\nEnd\n"
                             "Attribute VB_Name = \"A\"\n";
    auto form = FormFile::parse(text);
    EXPECT_EQ(form.text(), text);
    EXPECT_TRUE(form.problems().empty());
    ASSERT_EQ(form.root()->objects().size(), 2U);
    EXPECT_EQ(child(*form.root(), 0)->literal("_ExtentX"), "5");
    EXPECT_EQ(child(*form.root(), 0)->properties("Font")->literal("Name"), "\"Arial\"");
    form.root()->set("Caption", "\"y\"");
    EXPECT_THAT(form.text(), HasSubstr("\nCaption = \"y\"\n"));
}

TEST(RealFormFile, BothFormsOfObjectLines) {
    const auto form = FormFile::parse("VERSION 5.00\r\nObject = \"*\\ADropStack.vbp\"\r\n"
                                      "Object = \"{831FDD16-0C5C-11D2-A9FC-0000F8754DA1}#2.0#0\"; \"A.OCX\"\r\n"
                                      "Begin VB.Form A \r\nEnd\r\n");
    ASSERT_EQ(form.objects().size(), 2U);
    EXPECT_EQ(form.objects()[0].library, "*\\ADropStack.vbp");
    EXPECT_EQ(form.objects()[0].file, "");
    EXPECT_EQ(form.objects()[1].library, "{831FDD16-0C5C-11D2-A9FC-0000F8754DA1}#2.0#0");
    EXPECT_EQ(form.objects()[1].file, "A.OCX");
}

TEST(RealFormFile, AnUnknownLineInsideABlockIsKept) {
    const std::string text =
        "VERSION 5.00\r\nBegin {78E93846-85FD-11D0-8487-00A0C90DC8A9} Report \r\n"
        "   'Downloaded from somewhere\r\n   Caption         =   \"R\"\r\n   what is this\r\nEnd\r\n";
    auto form = FormFile::parse(text);
    EXPECT_EQ(form.text(), text);
    ASSERT_EQ(form.problems().size(), 1U) << "a comment is not a problem";
    EXPECT_EQ(form.problems()[0].line, 5U);
    form.root()->set("Tag", "\"t\"");
    EXPECT_THAT(form.text(),
                HasSubstr("Caption         =   \"R\"\r\n   Tag             =   \"t\"\r\n   what is this\r\n"));
}

TEST(RealFormFile, ExponentsAndDecimalCommasAreKept) {
    const std::string text =
        "VERSION 5.00\r\nBegin VB.Form A \r\n   BeginProperty Font \r\n      Size            =   8,25\r\n"
        "   EndProperty\r\n   Left            =   1.00110e5\r\nEnd\r\n";
    const auto form = FormFile::parse(text);
    EXPECT_EQ(form.text(), text);
    EXPECT_EQ(form.root()->properties("Font")->literal("Size"), "8,25");
    EXPECT_EQ(form.root()->literal("Left"), "1.00110e5");
}

TEST(RealFormFile, AMissingFinalLineEndStaysMissing) {
    for (const std::string text : {"VERSION 5.00\r\nBegin VB.Form A \r\nEnd", "Attribute VB_Name = \"A\"",
                                   "VERSION 5.00\r\nBegin VB.Form A \r\nEnd\r\nAttribute VB_Name = \"A\"\r\nEnd Sub"})
        EXPECT_EQ(FormFile::parse(text).text(), text);
}

TEST(RealFormFile, AByteOrderMarkIsKept) {
    const std::string text = "\xEF\xBB\xBFVERSION 5.00\r\nBegin VB.Form A \r\nEnd\r\n";
    const auto form = FormFile::parse(text);
    EXPECT_EQ(form.text(), text);
    EXPECT_EQ(form.version(), "5.00");
    EXPECT_TRUE(form.root());
}

TEST(RealFormFile, TheAttributeRunIsOpenEnded) {
    const auto form = FormFile::parse("VERSION 1.0 CLASS\r\nBEGIN\r\nEND\r\nAttribute VB_Name = \"A\"\r\n"
                                      "Attribute VB_Base = \"0{X}\"\r\nAttribute VB_Customizable = False\r\nDim a\r\n");
    EXPECT_EQ(form.code(), "Dim a\r\n");
    EXPECT_EQ(form.attribute("VB_Customizable"), "False");
}

// Damaged files, whose other parts remain usable.

TEST(BrokenForm, AMissingEndIsReportedAndTheAttributesAreFound) {
    const std::string text =
        "VERSION 5.00\r\nBegin VB.Form A \r\n   Begin VB.Label L \r\n   End\r\n   Begin VB.Label M \r\n"
        "      Caption         =   \"m\"\r\nEnd\r\nAttribute VB_Name = \"A\"\r\nDim x\r\n";
    const auto form = FormFile::parse(text);
    EXPECT_EQ(form.text(), text);
    ASSERT_EQ(form.problems().size(), 1U);
    EXPECT_EQ(form.problems()[0].line, 2U);
    EXPECT_EQ(form.problems()[0].text, "This block has no end.");
    EXPECT_EQ(form.attribute("VB_Name"), "\"A\"");
    EXPECT_EQ(form.code(), "Dim x\r\n");
}

TEST(BrokenForm, ATruncatedFormCanStillBeEdited) {
    for (std::size_t length = 0; length <= kForm.size(); ++length) {
        auto form = FormFile::parse(kForm.substr(0, length));
        ASSERT_EQ(form.text(), kForm.substr(0, length));
        if (!form.root()) continue;
        form.root()->set("Tag", "\"new\"");
        const auto again = FormFile::parse(form.text());
        ASSERT_EQ(again.root()->literal("Tag"), "\"new\"") << "cut at " << length;
    }
}

TEST(BrokenForm, ASuperfluousEndDoesNotHideTheAttributes) {
    const std::string text = "VERSION 5.00\r\nBegin VB.Form A \r\nEnd\r\n   Caption         =   \"a\"\r\nEnd\r\n"
                             "Attribute VB_Name = \"A\"\r\nDim x\r\n";
    const auto form = FormFile::parse(text);
    EXPECT_EQ(form.text(), text);
    ASSERT_EQ(form.problems().size(), 1U);
    EXPECT_EQ(form.problems()[0].line, 4U);
    EXPECT_EQ(form.attribute("VB_Name"), "\"A\"");
    EXPECT_EQ(form.firstCodeLine(), 7U);
}

TEST(BrokenForm, AWrongClosingWordIsReported) {
    const auto form = FormFile::parse("VERSION 5.00\r\nBegin VB.Form A \r\n   EndProperty\r\n   BeginProperty Font \r\n"
                                      "      Size            =   8\r\nEnd\r\nAttribute VB_Name = \"A\"\r\n");
    ASSERT_EQ(form.problems().size(), 2U);
    EXPECT_EQ(form.problems()[0].line, 3U);
    EXPECT_EQ(form.problems()[1].line, 4U);
    EXPECT_EQ(form.root()->properties("Font")->literal("Size"), "8");
    EXPECT_EQ(form.attribute("VB_Name"), "\"A\"");
}

TEST(BrokenForm, AVersionLineWithoutAFormIsReported) {
    EXPECT_EQ(FormFile::parse("VERSION 5.00\r\n").problems().size(), 1U);
    EXPECT_EQ(FormFile::parse("LOAD DATA\r\nINFILE x\r\n").root(), nullptr);
}

TEST(BrokenForm, NestingIsBounded) {
    std::string text = "VERSION 5.00\n";
    for (int i = 0; i < 100'000; ++i) text += "Begin VB.Frame F \n";
    for (int i = 0; i < 100'000; ++i) text += "End\n";
    text += "Attribute VB_Name = \"A\"\n";
    const auto form = FormFile::parse(text);
    EXPECT_EQ(form.text(), text);
    EXPECT_EQ(form.problems().size(), 1U);
    EXPECT_EQ(form.attribute("VB_Name"), "\"A\"");
}

TEST(BrokenForm, TheListOfProblemsIsBounded) {
    std::string text = "VERSION 5.00\nBegin VB.Form A \n";
    for (int i = 0; i < 5000; ++i) text += "rubbish here\n";
    EXPECT_EQ(FormFile::parse(text).problems().size(), FormFile::kMostProblems);
}

TEST(BrokenForm, AVeryLongLineIsRead) {
    const std::string text = "VERSION 5.00\r\nBegin VB.Form A \r\n   Caption         =   \"" +
                             std::string(10'000'000, '"') + "\"\r\n   Tag             =   \"" +
                             std::string(10'000'000, 'x') + "\r\nEnd\r\n";
    const auto form = FormFile::parse(text);
    EXPECT_EQ(form.text(), text);
    EXPECT_EQ(form.root()->literal("Tag")->size(), 10'000'001U);
}
