// Features of a form that devices do not support, over the host's own forms.
#include "tests/support/form_text.h"
#include "tests/support/test_host.h"
#include "validate_world.h"

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

namespace {

class ValidateForm : public testing::Test, protected test::ValidateWorld {
protected:
    /// Scans a form with this text; its messages are then in `rows()`.
    bool scanText(const std::string& name, const std::string& text, bool events = true) {
        const auto path = test::SampleProject("Demo")
                              .member("Form=" + name + ".frm", name + ".frm", text)
                              .handheld()
                              .writeTo(host.folder);
        if (opened) host.ide->VBProjects()->Remove(opened);
        opened = host.openFile(path);
        const auto qlProject = basic::make<fernwick::clsQLProject>(projectServices);
        qlProject->VBProject(opened);
        return validate.ScanForm(qlProject, opened->VBComponents()->Item(1), events);
    }
    bool scan(const std::string& code, const std::vector<test::FormControl>& controls = {}, bool events = true) {
        return scanText("frmMain", test::deviceForm("frmMain", controls, code), events);
    }
    bool scanChanged(const std::string& line) {
        return scanText("frmMain", test::deviceForm("frmMain", {}, "", {line}));
    }
    std::string error1() const { return opened->ReadProperty(test::kMessagesSection, "Error1"); }

    test::TestHost host;
    basic::Ref<vbide::VBProject> opened;
};

TEST_F(ValidateForm, ASupportedFormGivesNoMessage) {
    EXPECT_TRUE(scan("Private Sub Form_Load()\r\nEnd Sub\r\nPrivate Sub lbl_Click()\r\nEnd Sub\r\n",
                     {{"QLLabel", "lbl", "Arial"}}));
    EXPECT_THAT(rows(), IsEmpty());
    EXPECT_FALSE(messages.isToolWindowShowing());
    EXPECT_THAT(errors.seen, IsEmpty());
}

TEST_F(ValidateForm, ItsNameMustNotBeAReservedWord) {
    EXPECT_FALSE(scanText("Select", test::deviceForm("Select", {})));
    EXPECT_THAT(rows(), ElementsAre("Select||4097|\"Select\" is illegal as a form name. It is a reserved word."));
    EXPECT_EQ(error1(), "ERROR|" + (host.folder / "Select.frm") +
                            "|0|'Select' is illegal as a form name. It is a reserved word.|4097");
}

TEST_F(ValidateForm, EachWordOfAPairIsReserved) {
    for (const char* name : {"Option", "Base", "Explicit", "property", "GET", "Xor", "WithEvents"})
        EXPECT_FALSE(scanText(name, test::deviceForm(name, {}))) << name;
    for (const char* name : {"Options", "frmEnd", "Print"})
        EXPECT_TRUE(scanText(name, test::deviceForm(name, {}))) << name;
}

TEST_F(ValidateForm, NamesOfControlsMustNotBeReservedWords) {
    EXPECT_FALSE(scan("", {{"QLLabel", "Next", "A"}, {"QLLabel", "lbl", "A"}, {"QLLabel", "loop", "A"}}));
    EXPECT_THAT(rows(), ElementsAre("frmMain||4097|\"loop\" is illegal as a control name. It is a reserved word.",
                                    "frmMain||4097|\"Next\" is illegal as a control name. It is a reserved word."));
    EXPECT_THAT(error1(), HasSubstr(host.folder / "frmMain.frm|0|'Next'"));
}

TEST_F(ValidateForm, ItsScaleModeMustBePixels) {
    EXPECT_FALSE(scanChanged("ScaleMode = 1"));
    EXPECT_THAT(rows(), ElementsAre("frmMain||8200|Form ScaleMode must be set to Pixels"));
    EXPECT_EQ(messages.errorCount(), 1);
}

TEST_F(ValidateForm, ItsPositionMustNotBeManual) {
    EXPECT_TRUE(scanChanged("StartUpPosition = 0"));
    EXPECT_THAT(rows(), ElementsAre("frmMain||8201|Using a StartUpPosition of Manual could cause the application to "
                                    "not be visible on the device."));
    EXPECT_EQ(messages.warningCount(), 1);
}

TEST_F(ValidateForm, ItsPictureIsNotSupported) {
    host.folder.write("frmMain.frx", std::string("\x0C\0\0\0lt\0\0\x04\0\0\0GIF8", 16));
    const auto text = test::deviceForm("frmMain", {});
    const auto at = text.find("   BorderStyle");
    EXPECT_TRUE(
        scanText("frmMain", text.substr(0, at) + "   Picture         =   \"frmMain.frx\":0000\r\n" + text.substr(at)));
    EXPECT_THAT(rows(), ElementsAre("frmMain||8202|The Picture property of Forms is not supported."));
    EXPECT_EQ(messages.warningCount(), 1);
}

TEST_F(ValidateForm, ItsBorderMustBeNoneFixedOrADialogs) {
    const std::string row = "frmMain||8206|The only valid selections for the BorderStyle property of Forms are "
                            "\"0 - None\", \"1 - Fixed Single\", or \"3 - Fixed Dialog\".";
    for (const char* good : {"BorderStyle = 0", "BorderStyle = 1", "BorderStyle = 3"})
        EXPECT_TRUE(scanChanged(good)) << good;
    EXPECT_THAT(rows(), IsEmpty());
    for (const char* bad : {"BorderStyle = 2", "BorderStyle = 4", "BorderStyle = 5"})
        EXPECT_TRUE(scanChanged(bad)) << bad;
    EXPECT_THAT(rows(), ElementsAre(row, row, row));
}

TEST_F(ValidateForm, EveryCheckReportsAndContinues) {
    EXPECT_FALSE(scanText("Sub", "VERSION 5.00\r\nBegin VB.Form Sub \r\n   StartUpPosition = 0\r\n"
                                 "   Begin TavletsCtl.QLLabel To \r\n   End\r\nEnd\r\nAttribute VB_Name = \"Sub\"\r\n"
                                 "Private Sub Form_Paint()\r\nEnd Sub\r\n"));
    EXPECT_THAT(rows(), ElementsAre(HasSubstr("|4097|\"To\""), HasSubstr("|8200|"), HasSubstr("|4097|\"Sub\""),
                                    HasSubstr("|1|8199|"), HasSubstr("|8201|"), HasSubstr("|8206|")));
    EXPECT_EQ(messages.errorCount(), 3);
    EXPECT_EQ(messages.warningCount(), 1); // only the warning before the first error is counted
}

TEST_F(ValidateForm, WarningsAfterAnErrorAreNotCounted) {
    EXPECT_FALSE(scanText("Sub", test::deviceForm("Sub", {}, "", {"StartUpPosition = 0", "BorderStyle = 2"})));
    EXPECT_EQ(messages.errorCount(), 1);
    EXPECT_EQ(messages.warningCount(), 0);
    EXPECT_EQ(rows().size(), 3U);
}

// Events

TEST_F(ValidateForm, AnEventOfAControlThatDevicesLackIsAWarningAtItsLine) {
    EXPECT_TRUE(scan("Option Explicit\r\n\r\nPrivate Sub pic_DRAGDROP()\r\nEnd Sub\r\n"
                     "Private Sub pic_DRAGOVER()\r\nEnd Sub\r\n",
                     {{"QLPicture", "pic", "A"}}));
    EXPECT_THAT(rows(),
                ElementsAre("frmMain|3|8198|pic_DRAGDROP is not supported by Quinloft Fernwick for QLPicture{pic}",
                            "frmMain|5|8198|pic_DRAGOVER is not supported by Quinloft Fernwick for QLPicture{pic}"));
    EXPECT_THAT(error1(), HasSubstr("WARNING|" + (host.folder / "frmMain.frm") + "|3|"));
}

TEST_F(ValidateForm, UnsupportedControlEventsMatchInCapitalsOnly) {
    EXPECT_TRUE(scan("Private Sub pic_DragDrop()\r\nEnd Sub\r\nPrivate Sub pic_Anything()\r\nEnd Sub\r\n",
                     {{"QLPicture", "pic", "A"}}));
    EXPECT_THAT(rows(), IsEmpty());
}

TEST_F(ValidateForm, TheFirstControlWhoseNameFitsClaimsTheProcedure) {
    EXPECT_TRUE(scan(
        "Private Sub Pic_2_DRAGDROP()\r\nEnd Sub\r\nPrivate Sub Box_2_DRAGDROP()\r\nEnd Sub\r\n",
        {{"QLPicture", "Pic", "A"}, {"QLLabel", "Pic_2", "A"}, {"QLLabel", "Box_2", "A"}, {"QLPicture", "Box", "A"}}));
    // "2_DRAGDROP" is an event that the compiler knows about, DRAGDROP is not
    EXPECT_THAT(rows(),
                ElementsAre("frmMain|3|8198|Box_2_DRAGDROP is not supported by Quinloft Fernwick for QLLabel{Box_2}"));
}

TEST_F(ValidateForm, ControlsOfOneNameCountAsOne) {
    EXPECT_TRUE(
        scan("Private Sub opt_DRAGOVER()\r\nEnd Sub\r\n", {{"QLRadioButton", "opt", "A"}, {"QLCheckBox", "opt", "A"}}));
    EXPECT_THAT(rows(), ElementsAre(HasSubstr("for QLRadioButton{opt}")));
}

TEST_F(ValidateForm, AProcedureOfNoControlIsIgnored) {
    EXPECT_TRUE(scan("Private Sub DRAGDROP()\r\nEnd Sub\r\nPrivate Sub Pic_DRAGDROP()\r\nEnd Sub\r\n"
                     "Private Sub pi_DRAGDROP()\r\nEnd Sub\r\nPrivate Sub pic()\r\nEnd Sub\r\n",
                     {{"QLPicture", "pic", "A"}}));
    EXPECT_THAT(rows(), IsEmpty());
}

TEST_F(ValidateForm, OnlyProceduresAreEvents) {
    EXPECT_TRUE(scan("Private pic_DRAGDROP As Long\r\nPrivate Property Get pic_DRAGOVER() As Long\r\nEnd Property\r\n"
                     "Public Event Form_Paint()\r\n",
                     {{"QLPicture", "pic", "A"}}));
    EXPECT_THAT(rows(), IsEmpty());
}

TEST_F(ValidateForm, FormEventsThatDevicesLackGetASuggestion) {
    EXPECT_TRUE(scan("Private Sub Form_DblClick()\r\nEnd Sub\r\nPrivate Sub Form_GotFocus()\r\nEnd Sub\r\n"
                     "Private Sub Form_LOSTFOCUS()\r\nEnd Sub\r\nPrivate Sub Form_MouseUp()\r\nEnd Sub\r\n"
                     "Private Sub Form_Paint()\r\nEnd Sub\r\nPrivate Sub Form_MouseMove()\r\nEnd Sub\r\n"));
    const std::string is = " is not supported by Quinloft Fernwick for frmMain";
    EXPECT_THAT(rows(), ElementsAre("frmMain|1|8199|Form_DblClick" + is +
                                        ", consider using the Click Event and TimerMS function",
                                    "frmMain|3|8199|Form_GotFocus" + is + ", consider using the Activate Event",
                                    "frmMain|5|8199|Form_LOSTFOCUS" + is + ", consider using the Deactivate Event",
                                    "frmMain|7|8199|Form_MouseUp" + is + ", consider using the Click Event",
                                    "frmMain|9|8199|Form_Paint" + is + ", consider using the Activate Event",
                                    "frmMain|11|8199|Form_MouseMove" + is));
}

TEST_F(ValidateForm, TwelveFormEventsAreSupported) {
    std::string code;
    for (const char* event : {"Load", "Unload", "QueryUnload", "Click", "KeyDown", "KEYUP", "KeyPress", "Resize",
                              "Activate", "Initialize", "Terminate", "Deactivate"})
        code += std::string("Private Sub Form_") + event + "()\r\nEnd Sub\r\n";
    EXPECT_TRUE(scan(code));
    EXPECT_THAT(rows(), IsEmpty());
}

TEST_F(ValidateForm, FormEventsAreCaseSensitive) {
    EXPECT_TRUE(scan("Private Sub form_paint()\r\nEnd Sub\r\nPrivate Sub FORM_PAINT()\r\nEnd Sub\r\n"));
    EXPECT_THAT(rows(), IsEmpty());
}

TEST_F(ValidateForm, AControlNamedFormClaimsFormEventsToo) {
    EXPECT_TRUE(scan("Private Sub Form_DRAGDROP()\r\nEnd Sub\r\nPrivate Sub Form_Load()\r\nEnd Sub\r\n",
                     {{"QLLabel", "Form", "A"}}));
    EXPECT_THAT(rows(),
                ElementsAre("frmMain|1|8198|Form_DRAGDROP is not supported by Quinloft Fernwick for QLLabel{Form}",
                            "frmMain|1|8199|Form_DRAGDROP is not supported by Quinloft Fernwick for frmMain"));
}

TEST_F(ValidateForm, WithoutEventsTheRestIsScanned) {
    EXPECT_FALSE(scan("Private Sub Form_Paint()\r\nEnd Sub\r\n", {{"QLLabel", "Next", "A"}}, false));
    EXPECT_THAT(rows(), ElementsAre(HasSubstr("|4097|")));
}

// Failures

TEST_F(ValidateForm, AFailingCheckCountsAsAFinding) {
    const auto form = project->add("frmMain", "/p/frmMain.frm", vbide::vbext_ct_VBForm);
    form->designer = basic::make<test::TracedDesigner>(trace);
    EXPECT_FALSE(validate.ScanForm(projects.GetQLProject(project), form, true));
    EXPECT_THAT(rows(),
                ElementsAre(HasSubstr("|8200|"), HasSubstr("|8201|"), HasSubstr("|8202|"), HasSubstr("|8206|")));
    EXPECT_THAT(errors.seen, testing::Each("frmValidate.ScanForm [438]"));
    EXPECT_EQ(errors.seen.size(), 4U);
}

TEST_F(ValidateForm, AFailingCallSkipsOnlyItself) {
    const auto form = project->add("Sub", "/p/Sub.frm", vbide::vbext_ct_VBForm);
    const auto designer = basic::make<test::TracedDesigner>(trace);
    designer->add("QLLabel", "Arial", 0, 12)->properties->values["Name"] = "Next";
    form->designer = designer;
    form->properties = test::formProperties(trace);
    form->code->members = {{"Form_Paint", vbide::Member::Method, 3}, {"Next_DRAGDROP", vbide::Member::Method, 5}};
    const auto qlProject = projects.GetQLProject(project);
    for (int failing = 1;; ++failing) {
        messages.ClearProjectCompileErrors(project);
        errors.injected = trace.calls = 0;
        trace.failing = failing;
        const bool good = validate.ScanForm(qlProject, form, true);
        const bool swept = trace.calls < failing;
        trace.failing = 0;
        EXPECT_FALSE(good) << failing; // two names are wrong, and one failing call cannot hide both
        EXPECT_LE(errors.injected, 1) << failing;
        EXPECT_GE(rows().size(), 2U) << failing;
        if (swept) break;
    }
    EXPECT_EQ(rows().size(), 4U);
}

} // namespace
