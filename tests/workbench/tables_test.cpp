// What the desktop knows of each class of controls, type of components, colour and command, one row each.
#include "Apps/workbench/base/component_icons.h"
#include "Apps/workbench/base/drawn_icons.h"
#include "Apps/workbench/base/icon_table.h"
#include "Apps/workbench/drawing/control_drawing.h"
#include "Apps/workbench/drawing/control_kinds.h"
#include "Apps/workbench/events/event_handler.h"
#include "Apps/workbench/properties/form_colours.h"
#include "tests/workbench/designer_desktop.h"
#include "tests/workbench/recorded_paint.h"
#include "tests/workbench/window_words.h"
#include <QMetaEnum>
#include <fmt/format.h>

namespace {

constexpr const char* kClasses[] = {"VB.Label",
                                    "VB.TextBox",
                                    "VB.CommandButton",
                                    "VB.CheckBox",
                                    "VB.OptionButton",
                                    "VB.Frame",
                                    "VB.ListBox",
                                    "VB.DirListBox",
                                    "VB.FileListBox",
                                    "VB.ComboBox",
                                    "VB.DriveListBox",
                                    "VB.PictureBox",
                                    "VB.Image",
                                    "VB.Shape",
                                    "VB.Line",
                                    "VB.HScrollBar",
                                    "VB.VScrollBar",
                                    "VB.Timer",
                                    "VB.Data",
                                    "ComctlLib.ListView",
                                    "ComctlLib.TreeView",
                                    "ComctlLib.Toolbar",
                                    "ComctlLib.StatusBar",
                                    "ComctlLib.ProgressBar",
                                    "ComctlLib.Slider",
                                    "ComctlLib.TabStrip",
                                    "ComctlLib.ImageList",
                                    "ComctlLib.ImageCombo",
                                    "MSComctlLib.ListView",
                                    "MSComctlLib.Toolbar",
                                    "ComCtl2.DTPicker",
                                    "ComCtl2.UpDown",
                                    "MSComCtl2.DTPicker",
                                    "MSComCtl2.MonthView",
                                    "MSComCtl2.FlatScrollBar",
                                    "MSComCtl2.Animation",
                                    "MSMask.MaskEdBox",
                                    "RichTextLib.RichTextBox",
                                    "TabDlg.SSTab",
                                    "MSFlexGridLib.MSFlexGrid",
                                    "MSHierarchicalFlexGridLib.MSHFlexGrid",
                                    "MSDataGridLib.DataGrid",
                                    "MSDBGrid.DBGrid",
                                    "MSDataListLib.DataList",
                                    "MSDataListLib.DataCombo",
                                    "MSDBCtls.DBList",
                                    "MSDBCtls.DBCombo",
                                    "MSAdodcLib.Adodc",
                                    "MSComDlg.CommonDialog",
                                    "MSWinsockLib.Winsock",
                                    "InetCtlsObjects.Inet",
                                    "MSCommLib.MSComm",
                                    "TavletsCtl.QLLabel",
                                    "TavletsCtl.QLTextBox",
                                    "TavletsCtl.QLButton",
                                    "TavletsCtl.QLCheckBox",
                                    "TavletsCtl.QLRadioButton",
                                    "TavletsCtl.QLFrame",
                                    "TavletsCtl.QLListBox",
                                    "TavletsCtl.QLComboBox",
                                    "TavletsCtl.QLGrid",
                                    "TavletsCtl.QLTabStrip",
                                    "TavletsCtl.QLPicture",
                                    "TavletsCtl.QLMovie",
                                    "TavletsCtl.QLInk",
                                    "TavletsCtl.QLShape",
                                    "TavletsCtl.QLLine",
                                    "TavletsCtl.QLHScrollBar",
                                    "TavletsCtl.QLVScrollBar",
                                    "TavletsCtl.QLTimer",
                                    "TavletsCtl.QLAlarm",
                                    "TavletsCtl.QLDatabase",
                                    "TavletsCtl.QLFileStore",
                                    "TavletsCtl.QLInfrared",
                                    "TavletsCtl.QLMenu",
                                    "TavletsCtl.QLNetwork",
                                    "TavletsCtl.QLSerial",
                                    "TavletsCtl.QLSound",
                                    "Unknown.Control"};

class Tables : public test::DesignerDesktop {
protected:
    Tables() { window().setTheme(workbench::Theme::Light); }

    /// The name of a drawn icon; "" for any other picture.
    static std::string nameOf(const QIcon& icon) {
        const auto image = icon.pixmap(16).toImage();
        for (const auto& drawing : workbench::kIconTable)
            if (!icon.isNull() && workbench::drawnIcon(drawing.name).pixmap(16).toImage() == image)
                return std::string(drawing.name);
        return {};
    }
    /// The handler that a double click on the control adds, without its "Private Sub".
    std::string handlerOf(const std::string& name) {
        const auto form = component("frmMain");
        const auto module = form->CodeModule();
        const int before = module->CountOfLines();
        workbench::openHandler(*form, form->Designer()->VBControls()->Item(name));
        if (module->CountOfLines() == before) return "none";
        const auto line = module->Lines(module->CountOfLines() - 2, 1);
        return line.substr(line.find('_') + 1);
    }
    static std::string roleOf(QAccessible::Role role) {
        return QMetaEnum::fromType<QAccessible::Role>().valueToKey(role);
    }
    void addMenus(const QMenu& menu, const std::string& indent) {
        for (const auto* const action : menu.actions()) {
            if (action->isSeparator()) continue;
            rows += fmt::format("{}{}{}{}{}\n", indent, action->text().toStdString(),
                                action->shortcut().isEmpty() ? "" : ", " + action->shortcut().toString().toStdString(),
                                action->isCheckable() ? ", checkable" : "",
                                action->icon().isNull() ? "" : ", icon " + nameOf(action->icon()));
            if (action->menu()) addMenus(*action->menu(), indent + "  ");
        }
    }

    std::string rows;
};

} // namespace

TEST_F(Tables, Controls) {
    std::string lines;
    int number = 0;
    for (const std::string name : kClasses)
        lines += fmt::format(
            "   Begin {} c{} \n      Height = 300\n      Left = 0\n      Top = 0\n      Width = 300\n   End\n", name,
            ++number);
    openForm(lines);
    auto& form = *QAccessible::queryAccessibleInterface(&canvas());
    std::map<std::string, QAccessible::Role> roles;
    for (int i = 0; i < form.childCount(); ++i)
        roles[form.child(i)->text(QAccessible::Name).toStdString()] = form.child(i)->role();
    number = 0;
    for (const std::string name : kClasses) {
        const auto kind = workbench::kindOfControl(name);
        const auto id = fmt::format("c{}", ++number);
        rows += fmt::format(
            "{}: kind {}, {}, icon {}, handler {}{}{}{}\n", name, int(kind),
            roles.contains(id) ? roleOf(roles[id]) : "not drawn", nameOf(workbench::iconOfControl(name)), handlerOf(id),
            workbench::isContainer(name) ? ", container" : "", workbench::isWindowless(kind) ? ", windowless" : "",
            workbench::isDeviceControl(name) ? ", of devices" : "");
    }
    test::expectGolden(rows, "controls");
}

TEST_F(Tables, Colours) {
    auto colours = workbench::systemColours();
    for (const auto value : workbench::paletteColours()) colours.push_back({"", value});
    for (const auto& [name, value] : colours)
        rows += fmt::format("{} {} {}\n", workbench::formColourText(value).toStdString(),
                            workbench::formColour(value).name().toStdString(), name.toStdString());
    test::expectGolden(rows, "colours");
    EXPECT_TRUE(workbench::formColourOf("&H80000018&"));
    EXPECT_FALSE(workbench::formColourOf("&H80000019&")); // after the last
    EXPECT_EQ(workbench::formColour(std::int32_t(0x80000019)), QColor(Qt::black));
}

TEST_F(Tables, Menus) {
    bench->connect();
    settle();
    for (const auto* const top : window().menuBar()->actions()) {
        rows += top->text().toStdString() + "\n";
        addMenus(*top->menu(), "  ");
    }
    test::expectGolden(rows, "menus");
}

TEST_F(Tables, TypesOfComponents) {
    using namespace vbide;
    bench->open(test::SampleProject("Types").writeTo(folder));
    for (const auto type : {vbext_ct_VBForm, vbext_ct_VBMDIForm, vbext_ct_StdModule, vbext_ct_ClassModule,
                            vbext_ct_UserControl, vbext_ct_PropPage, vbext_ct_DocObject}) {
        const auto added = project()->VBComponents()->Add(type);
        added->CodeModule()->CodePane()->Show();
        settle();
        const auto* const objects = window().findChild<QComboBox*>("propertyObjects");
        const auto module = added->CodeModule();
        workbench::openHandler(*added, nullptr);
        const auto line = module->CountOfLines() < 3 ? "" : module->Lines(module->CountOfLines() - 2, 1);
        rows += fmt::format("{}: {}, {}, icon {}\n", added->Name(), objects->currentText().toStdString(), line,
                            nameOf(workbench::componentIcon(type)));
    }
    settle();
    test::expectGolden(rows, "components");
    test::expectWords(window().explorer(), "explorer", {{folder.path(), "..."}});
}

/// One control of each class, and those whose look depends on values once more.
TEST_F(Tables, DrawnShapes) {
    const std::pair<const char*, const char*> kLooks[] = {
        {"VB.Label", "BorderStyle = 1\nBackStyle = 0"},
        {"VB.Label", "BorderStyle = 1\nAppearance = 0\nAlignment = 2\nCaption = \"text\""},
        {"VB.TextBox", "BorderStyle = 0\nText = \"text\""},
        {"VB.TextBox", "ScrollBars = 3\nMultiLine = -1"},
        {"VB.TextBox", "Appearance = 0\nScrollBars = 2\nMultiLine = -1"},
        {"VB.CommandButton", "Caption = \"text\"\nEnabled = 0"},
        {"VB.CommandButton", "Default = -1"},
        {"VB.CheckBox", "Value = 1"},
        {"VB.CheckBox", "Value = 2\nAppearance = 0\nAlignment = 1"},
        {"VB.OptionButton", "Value = -1\nAlignment = 1"},
        {"VB.Frame", "BorderStyle = 0"},
        {"VB.Frame", "Caption = \"\"\nAppearance = 0"},
        {"VB.ListBox", "Appearance = 0"},
        {"VB.ComboBox", "Style = 2\nAppearance = 0"},
        {"VB.PictureBox", "BorderStyle = 0"},
        {"VB.PictureBox", "Appearance = 0"},
        {"VB.Image", "BorderStyle = 1"},
        {"VB.Shape", "Shape = 1\nFillStyle = 0\nFillColor = 255"},
        {"VB.Shape", "Shape = 2\nBorderStyle = 3\nBorderColor = 255"},
        {"VB.Shape", "Shape = 3\nBorderWidth = 3"},
        {"VB.Shape", "Shape = 4\nFillStyle = 6"},
        {"VB.Shape", "Shape = 5\nBackStyle = 1\nBackColor = 255"},
        {"VB.Line", "X1 = 100\nX2 = 200\nY1 = 50\nY2 = 150\nBorderStyle = 2"},
        {"VB.HScrollBar", "Value = 50\nMax = 100"},
        {"VB.VScrollBar", "Value = 0\nMax = 0"},
        {"ComctlLib.ProgressBar", "Value = 50"},
        {"ComctlLib.ProgressBar", "Orientation = 1"},
        {"ComctlLib.Slider", "Orientation = 1\nMax = 10"},
        {"ComCtl2.UpDown", "Orientation = 1"},
        {"TabDlg.SSTab", "Tabs = 2\nTab = 1\nTabHeight = 300\nTabCaption(0) = \"a\"\nTabCaption(1) = \"b\""},
        {"ComctlLib.StatusBar", "Style = 1\nSimpleText = \"text\""}};
    std::string lines;
    int number = 0;
    const auto add = [&](const std::string& name, const std::string& values) {
        const int column = number % 8 * 700, row = number / 8 * 700;
        lines += fmt::format("   Begin {} c{} \n", name, ++number);
        if (name != "VB.Line")
            lines +=
                fmt::format("      Height = 600\n      Left = {}\n      Top = {}\n      Width = 600\n", column, row);
        lines += values + (values.empty() ? "" : "\n") + "   End\n";
    };
    for (const std::string name : kClasses)
        if (name != "VB.Line") add(name, "");
    for (const auto& [name, values] : kLooks) add(name, values);
    openForm(lines);
    test::RecordedPaint paint;
    QPainter painter(&paint);
    for (const auto& drawn : view().picture().controls) {
        paint.addTitle("== " + drawn.className.toStdString());
        drawControl(painter, drawn);
    }
    paint.addTitle("== the form");
    auto form = view().picture();
    form.controls.clear();
    paintForm(painter, form, {});
    painter.end();
    test::expectGolden(paint.lines(), "drawn_shapes");
}
