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

TEST_F(EventLists, ClassesHaveTwoEvents) {
    bench->open(test::SampleProject("Classes").writeTo(folder));
    const auto added = project()->VBComponents()->Add(vbide::vbext_ct_ClassModule);
    added->CodeModule()->CodePane()->Show();
    settle();
    choose(objects(), "Class");
    EXPECT_EQ(entries(events()), (QStringList{"Initialize", "Terminate"}));
}
