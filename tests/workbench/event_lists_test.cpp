// The lists of objects and events above the code.
#include "Apps/workbench/editing/scintilla.h"
#include "Apps/workbench/events/event_handler.h"
#include "tests/workbench/designer_desktop.h"
#include <QComboBox>

namespace {

constexpr auto kForm = R"(   Begin VB.TextBox txtName
      Height = 300
      Left = 0
      Top = 0
      Width = 1500
   End
   Begin VB.CommandButton cmdDo
      Height = 300
      Index = 0
      Left = 0
      Top = 600
      Width = 1500
   End
   Begin VB.CommandButton cmdDo
      Height = 300
      Index = 1
      Left = 0
      Top = 900
      Width = 1500
   End
)";

class EventLists : public test::DesignerDesktop {
protected:
    workbench::CodeEditor& codeOf(const std::string& name) {
        component(name)->CodeModule()->CodePane()->Show();
        settle();
        return *window().code().editorOf(component(name));
    }
    QComboBox& objects() { return *window().code().current()->findChild<QComboBox*>("objects"); }
    QComboBox& events() { return *window().code().current()->findChild<QComboBox*>("procedures"); }
    void choose(QComboBox& list, const QString& entry) {
        ASSERT_GE(list.findText(entry), 0) << entry.toStdString();
        list.setCurrentIndex(list.findText(entry));
        Q_EMIT list.activated(list.currentIndex());
        settle();
    }
    static QStringList entries(const QComboBox& list) {
        QStringList all;
        for (int i = 0; i < list.count(); ++i) all << list.itemText(i);
        return all;
    }
    /// The events that are bold, because the code handles them.
    QStringList handled() {
        QStringList all;
        for (int i = 0; i < events().count(); ++i)
            if (events().itemData(i, Qt::FontRole).value<QFont>().bold()) all << events().itemText(i);
        return all;
    }
    std::string codeText(const std::string& name) {
        const auto module = component(name)->CodeModule();
        return module->CountOfLines() == 0 ? "" : module->Lines(1, module->CountOfLines());
    }
    int caretLine() {
        int line = 0, column = 0;
        window().code().current()->scintilla().getCursorPosition(&line, &column);
        return line + 1;
    }
};

} // namespace

TEST_F(EventLists, AllObjectsAreOfferedAndArraysOnce) {
    openForm(kForm);
    codeOf("frmMain");
    EXPECT_EQ(entries(objects()), (QStringList{"(General)", "cmdDo", "Form", "txtName"}));
}

TEST_F(EventLists, AnEventWithoutAHandlerGetsOne) {
    openForm(kForm, "Private Sub txtName_Change()\r\n    Beep\r\nEnd Sub\r\n");
    codeOf("frmMain");
    choose(objects(), "txtName");
    EXPECT_EQ(handled(), QStringList{"Change"});
    EXPECT_EQ(events().currentText(), "Change");
    choose(events(), "KeyPress");
    EXPECT_EQ(codeText("frmMain"), "Private Sub txtName_Change()\r\n    Beep\r\nEnd Sub\r\n\r\n"
                                   "Private Sub txtName_KeyPress(KeyAscii As Integer)\r\n\r\nEnd Sub");
    EXPECT_EQ(caretLine(), 6);
    EXPECT_EQ(handled(), (QStringList{"Change", "KeyPress"}));
    EXPECT_EQ(events().currentText(), "KeyPress");
}

TEST_F(EventLists, AHandlerOfAControlArrayGetsTheIndex) {
    openForm(kForm);
    codeOf("frmMain");
    choose(objects(), "cmdDo");
    EXPECT_EQ(events().currentIndex(), -1) << "nothing is written before the user chooses an event";
    EXPECT_EQ(codeText("frmMain"), "");
    choose(events(), "MouseUp");
    EXPECT_THAT(codeText("frmMain"),
                testing::StartsWith("Private Sub cmdDo_MouseUp(Index As Integer, Button As Integer, Shift As Integer, "
                                    "X As Single, Y As Single)\r\n"));
}

TEST_F(EventLists, AnExistingHandlerIsShown) {
    openForm(kForm, "Private Sub Form_Load()\r\nEnd Sub\r\n\r\nPrivate Sub txtName_Change()\r\nEnd Sub\r\n");
    codeOf("frmMain");
    choose(objects(), "txtName");
    EXPECT_EQ(caretLine(), 4);
    choose(objects(), "Form");
    EXPECT_EQ(caretLine(), 1);
    EXPECT_THAT(codeText("frmMain"), testing::EndsWith("txtName_Change()\r\nEnd Sub"));
}

TEST_F(EventLists, DeviceControlsHaveTheEventsOfTheirDescription) {
    openSample("AddressBook");
    design("frmPerson");
    Q_EMIT desk().toolbox().itemActivated(desk().toolbox().findItems("QLTabStrip", Qt::MatchExactly).front());
    settle();
    codeOf("frmPerson");
    choose(objects(), "QLTabStrip1");
    choose(events(), "BeforeChange");
    EXPECT_THAT(codeText("frmPerson"),
                testing::HasSubstr("Private Sub QLTabStrip1_BeforeChange(Cancel As Boolean)\r\n"));
}

TEST_F(EventLists, UserControlsHaveTheEventsTheyDeclare) {
    const auto gauge =
        test::formText("Gauge", "Public Event Full(ByVal Level As Long, _\r\n    Cancel As Boolean)\r\n");
    bench->open(test::SampleProject("Own")
                    .member("UserControl=Gauge.ctl", "Gauge.ctl", gauge)
                    .form("frmMain", "")
                    .writeTo(folder));
    const auto form = component("frmMain");
    const auto control = form->Designer()->VBControls()->Add("Own.Gauge");
    const auto object = workbench::eventObjectOf(*form, control);
    std::map<std::string, std::string> events;
    for (const auto& event : workbench::eventsOf(*form, object)) events[event.name] = event.parameters;
    EXPECT_EQ(events["Full"], "ByVal Level As Long, Cancel As Boolean");
    EXPECT_TRUE(events.contains("GotFocus"));
}

TEST_F(EventLists, UserControlsHaveTheEventsOfTheirForm) {
    bench->open(test::SampleProject("Own")
                    .member("UserControl=Gauge.ctl", "Gauge.ctl", test::formText("Gauge", "Event Full()\r\n"))
                    .form("frmMain", "")
                    .writeTo(folder));
    const auto form = component("frmMain");
    const auto control = form->Designer()->VBControls()->Add("Own.Gauge");
    std::vector<std::string> events;
    for (const auto& event : workbench::eventsOf(*form, workbench::eventObjectOf(*form, control)))
        events.push_back(event.name + "(" + event.parameters + ")");
    EXPECT_THAT(events, testing::ElementsAre("DragDrop(Source As Control, X As Single, Y As Single)",
                                             "DragOver(Source As Control, X As Single, Y As Single, State As Integer)",
                                             "Full()", "GotFocus()", "LostFocus()", "Validate(Cancel As Boolean)"));
}

TEST_F(EventLists, VariablesWithEventsHaveThoseOfTheirClass) {
    bench->open(test::SampleProject("Sources")
                    .member("Object={831FDD16-0C5C-11D2-A9FC-0000F8754DA1}#2.0#0; MSCOMCTL.OCX")
                    .member("Object={1198F6AB-5766-4D4A-A1AF-CD9A25D2D2B4}#1.0#0; Tavlets.dll")
                    .classModule("clsTimer", "Public Event Tick(ByVal Count As Long, x())\r\nEvent Done()\r\n")
                    .classModule("clsUser", "Private WithEvents tmr As clsTimer, WithEvents own As Sources.clsTimer\r\n"
                                            "Dim WithEvents cmd As CommandButton\r\n"
                                            "Dim WithEvents tree As TreeView\r\n"
                                            "Dim WithEvents tabs As QLTabStrip\r\n"
                                            "Dim WithEvents what As NoSuchClass, WithEvents odd As Other.clsTimer\r\n")
                    .writeTo(folder));
    codeOf("clsUser");
    EXPECT_EQ(entries(objects()),
              (QStringList{"(General)", "Class", "cmd", "odd", "own", "tabs", "tmr", "tree", "what"}));
    const std::pair<const char*, const char*> kEvents[] = {
        {"tmr", "Tick"}, {"own", "Done"}, {"cmd", "Click"}, {"tree", "NodeClick"}, {"tabs", "BeforeChange"}};
    for (const auto& [object, event] : kEvents) {
        choose(objects(), object);
        EXPECT_GE(events().findText(event), 0) << object;
    }
    for (const auto* unknown : {"what", "odd"}) {
        choose(objects(), unknown);
        EXPECT_EQ(events().count(), 0) << unknown;
    }
    choose(objects(), "tmr");
    choose(events(), "Tick");
    EXPECT_THAT(codeText("clsUser"),
                testing::EndsWith("\r\n\r\nPrivate Sub tmr_Tick(ByVal Count As Long, x())\r\n\r\nEnd Sub"));
    EXPECT_EQ(handled(), QStringList{"Tick"});
}

TEST_F(EventLists, InterfacesHaveTheMembersThatTheirClassMustDeclare) {
    bench->open(test::SampleProject("Shapes")
                    .classModule("IShape",
                                 "Public Enum Way\r\n    Up\r\nEnd Enum\r\n"
                                 "Public Name As String, Kind As Way, Count%\r\nPublic Owner As New IShape\r\n"
                                 "Public Tag\r\nPrivate hidden As Long\r\nPublic Event Moved()\r\n"
                                 "Public Sub Draw(ByVal X As Long, _\r\n    Optional Y As String = \")\")\r\n"
                                 "End Sub\r\nFunction Area#()\r\nEnd Function\r\n"
                                 "Public Function Points(a() As Long) As Long()\r\nEnd Function\r\n"
                                 "Public Property Get Value(i As Integer) As Variant\r\nEnd Property\r\n"
                                 "Public Property Set Value(i As Integer, o As Variant)\r\nEnd Property\r\n"
                                 "Friend Sub Near()\r\nEnd Sub\r\nPrivate Sub Class_Initialize()\r\nEnd Sub\r\n")
                    .classModule("clsCircle", "Implements Shapes.IShape\r\nImplements INothing\r\n")
                    .writeTo(folder));
    codeOf("clsCircle");
    EXPECT_EQ(entries(objects()), (QStringList{"(General)", "Class", "INothing", "IShape"}));
    choose(objects(), "INothing");
    EXPECT_EQ(events().count(), 0);
    choose(objects(), "IShape");
    const auto offered = entries(events());
    EXPECT_EQ(offered.join(", "), "Name [PropertyGet], Name [PropertyLet], Kind [PropertyGet], Kind [PropertyLet], "
                                  "Count [PropertyGet], Count [PropertyLet], Owner [PropertyGet], Owner [PropertySet], "
                                  "Tag [PropertyGet], Tag [PropertyLet], Tag [PropertySet], Draw, Area, Points, "
                                  "Value [PropertyGet], Value [PropertySet]");
    for (const auto& member : offered) choose(events(), member);
    EXPECT_EQ(handled(), offered);
    std::string heads, lines = codeText("clsCircle") + "\r\n";
    for (std::size_t at = 0; at < lines.size(); at = lines.find("\r\n", at) + 2)
        if (lines.compare(at, 8, "Private ") == 0) heads += lines.substr(at + 8, lines.find("\r\n", at) - at - 6);
    EXPECT_EQ(heads, "Property Get IShape_Name() As String\r\nProperty Let IShape_Name(ByVal RHS As String)\r\n"
                     "Property Get IShape_Kind() As Way\r\nProperty Let IShape_Kind(ByVal RHS As Way)\r\n"
                     "Property Get IShape_Count() As Integer\r\nProperty Let IShape_Count(ByVal RHS As Integer)\r\n"
                     "Property Get IShape_Owner() As IShape\r\nProperty Set IShape_Owner(ByVal RHS As IShape)\r\n"
                     "Property Get IShape_Tag() As Variant\r\nProperty Let IShape_Tag(ByVal RHS As Variant)\r\n"
                     "Property Set IShape_Tag(ByVal RHS As Variant)\r\n"
                     "Sub IShape_Draw(ByVal X As Long, Optional Y As String = \")\")\r\n"
                     "Function IShape_Area() As Double\r\nFunction IShape_Points(a() As Long) As Long()\r\n"
                     "Property Get IShape_Value(i As Integer) As Variant\r\n"
                     "Property Set IShape_Value(i As Integer, o As Variant)\r\n");
}

TEST_F(EventLists, ADeclarationJustTypedIsListed) {
    bench->open(test::SampleProject("Typed")
                    .classModule("clsTimer", "Public Event Tick()\r\n")
                    .classModule("clsUser", "")
                    .writeTo(folder));
    auto& text = codeOf("clsUser").scintilla();
    QTest::keyClicks(&text, "Private WithEvents tmr As clsTimer");
    EXPECT_TRUE(QTest::qWaitFor([this] { return objects().findText("tmr") > 0; }));
    choose(objects(), "tmr");
    EXPECT_EQ(entries(events()), QStringList{"Tick"});
}

TEST_F(EventLists, ClassesHaveTwoEvents) {
    bench->open(test::SampleProject("Classes").writeTo(folder));
    const auto added = project()->VBComponents()->Add(vbide::vbext_ct_ClassModule);
    added->CodeModule()->CodePane()->Show();
    settle();
    choose(objects(), "Class");
    EXPECT_EQ(entries(events()), (QStringList{"Initialize", "Terminate"}));
}
