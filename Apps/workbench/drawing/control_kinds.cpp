#include "Apps/workbench/drawing/control_kinds.h"
#include "Basic/case_folding.h"
#include <array>
#include <string_view>

namespace workbench {

namespace {

constexpr std::string_view kDeviceLibrary = "TavletsCtl.";

struct KindOfClass {
    std::string_view className;
    ControlKind kind;
};
constexpr std::array kKindsOfClasses{
    KindOfClass{"VB.Label", ControlKind::Label},
    KindOfClass{"VB.TextBox", ControlKind::TextBox},
    KindOfClass{"VB.CommandButton", ControlKind::Button},
    KindOfClass{"VB.CheckBox", ControlKind::CheckBox},
    KindOfClass{"VB.OptionButton", ControlKind::OptionButton},
    KindOfClass{"VB.Frame", ControlKind::Frame},
    KindOfClass{"VB.ListBox", ControlKind::ListBox},
    KindOfClass{"VB.DirListBox", ControlKind::ListBox},
    KindOfClass{"VB.FileListBox", ControlKind::ListBox},
    KindOfClass{"VB.ComboBox", ControlKind::ComboBox},
    KindOfClass{"VB.DriveListBox", ControlKind::ComboBox},
    KindOfClass{"VB.PictureBox", ControlKind::PictureBox},
    KindOfClass{"VB.Image", ControlKind::Image},
    KindOfClass{"VB.Shape", ControlKind::Shape},
    KindOfClass{"VB.Line", ControlKind::Line},
    KindOfClass{"VB.HScrollBar", ControlKind::HScrollBar},
    KindOfClass{"VB.VScrollBar", ControlKind::VScrollBar},
    KindOfClass{"VB.Timer", ControlKind::Hidden},
    KindOfClass{"VB.Menu", ControlKind::Menu},
    KindOfClass{"VB.Data", ControlKind::DataBar},
    KindOfClass{"ComctlLib.ListView", ControlKind::ColumnList},
    KindOfClass{"ComctlLib.TreeView", ControlKind::Tree},
    KindOfClass{"ComctlLib.Toolbar", ControlKind::ToolBar},
    KindOfClass{"ComctlLib.StatusBar", ControlKind::StatusBar},
    KindOfClass{"ComctlLib.ProgressBar", ControlKind::ProgressBar},
    KindOfClass{"ComctlLib.Slider", ControlKind::Slider},
    KindOfClass{"ComctlLib.TabStrip", ControlKind::TabStrip},
    KindOfClass{"ComctlLib.ImageList", ControlKind::Hidden},
    KindOfClass{"ComctlLib.ImageCombo", ControlKind::ComboBox},
    KindOfClass{"ComCtl2.DTPicker", ControlKind::DateBox},
    KindOfClass{"ComCtl2.UpDown", ControlKind::UpDown},
    KindOfClass{"MSMask.MaskEdBox", ControlKind::TextBox},
    KindOfClass{"RichTextLib.RichTextBox", ControlKind::TextBox},
    KindOfClass{"TabDlg.SSTab", ControlKind::TabbedBox},
    KindOfClass{"MSFlexGridLib.MSFlexGrid", ControlKind::Grid},
    KindOfClass{"MSHierarchicalFlexGridLib.MSHFlexGrid", ControlKind::Grid},
    KindOfClass{"MSDataGridLib.DataGrid", ControlKind::Grid},
    KindOfClass{"MSDBGrid.DBGrid", ControlKind::Grid},
    KindOfClass{"MSDataListLib.DataList", ControlKind::ListBox},
    KindOfClass{"MSDataListLib.DataCombo", ControlKind::ComboBox},
    KindOfClass{"MSDBCtls.DBList", ControlKind::ListBox},
    KindOfClass{"MSDBCtls.DBCombo", ControlKind::ComboBox},
    KindOfClass{"MSAdodcLib.Adodc", ControlKind::DataBar},
    KindOfClass{"MSComDlg.CommonDialog", ControlKind::Hidden},
    KindOfClass{"MSWinsockLib.Winsock", ControlKind::Hidden},
    KindOfClass{"InetCtlsObjects.Inet", ControlKind::Hidden},
    KindOfClass{"MSCommLib.MSComm", ControlKind::Hidden},
    KindOfClass{"TavletsCtl.QLLabel", ControlKind::Label},
    KindOfClass{"TavletsCtl.QLTextBox", ControlKind::TextBox},
    KindOfClass{"TavletsCtl.QLButton", ControlKind::Button},
    KindOfClass{"TavletsCtl.QLCheckBox", ControlKind::CheckBox},
    KindOfClass{"TavletsCtl.QLRadioButton", ControlKind::OptionButton},
    KindOfClass{"TavletsCtl.QLFrame", ControlKind::Frame},
    KindOfClass{"TavletsCtl.QLListBox", ControlKind::ListBox},
    KindOfClass{"TavletsCtl.QLComboBox", ControlKind::ComboBox},
    KindOfClass{"TavletsCtl.QLGrid", ControlKind::Grid},
    KindOfClass{"TavletsCtl.QLTabStrip", ControlKind::TabStrip},
    KindOfClass{"TavletsCtl.QLPicture", ControlKind::PictureBox},
    KindOfClass{"TavletsCtl.QLMovie", ControlKind::PictureBox},
    KindOfClass{"TavletsCtl.QLInk", ControlKind::PictureBox},
    KindOfClass{"TavletsCtl.QLShape", ControlKind::Shape},
    KindOfClass{"TavletsCtl.QLLine", ControlKind::Line},
    KindOfClass{"TavletsCtl.QLHScrollBar", ControlKind::HScrollBar},
    KindOfClass{"TavletsCtl.QLVScrollBar", ControlKind::VScrollBar},
    KindOfClass{"TavletsCtl.QLTimer", ControlKind::Hidden},
    KindOfClass{"TavletsCtl.QLAlarm", ControlKind::Hidden},
    KindOfClass{"TavletsCtl.QLDatabase", ControlKind::Hidden},
    KindOfClass{"TavletsCtl.QLFileStore", ControlKind::Hidden},
    KindOfClass{"TavletsCtl.QLInfrared", ControlKind::Hidden},
    KindOfClass{"TavletsCtl.QLMenu", ControlKind::Hidden},
    KindOfClass{"TavletsCtl.QLNetwork", ControlKind::Hidden},
    KindOfClass{"TavletsCtl.QLSerial", ControlKind::Hidden},
    KindOfClass{"TavletsCtl.QLSound", ControlKind::Hidden},
};

constexpr std::array<std::string_view, 4> kContainers{"VB.Frame", "VB.PictureBox", "TavletsCtl.QLFrame",
                                                      "TabDlg.SSTab"};

/// Version 6 of the common controls is named as version 5, after "MS".
std::string_view withoutVersion(std::string_view className) {
    constexpr std::string_view kMaker = "MS", kCommonControls = "ComCt";
    const bool isVersion6 = basic::startsWithNoCase(className, kMaker) &&
                            basic::startsWithNoCase(className.substr(kMaker.size()), kCommonControls);
    return isVersion6 ? className.substr(kMaker.size()) : className;
}

} // namespace

ControlKind kindOfControl(const std::string& className) {
    const auto known = withoutVersion(className);
    for (const auto& entry : kKindsOfClasses)
        if (basic::equalNoCase(entry.className, known)) return entry.kind;
    return ControlKind::Other;
}

bool isDeviceControl(const std::string& className) { return basic::startsWithNoCase(className, kDeviceLibrary); }

bool isWindowless(ControlKind kind) {
    return kind == ControlKind::Label || kind == ControlKind::Image || kind == ControlKind::Shape ||
           kind == ControlKind::Line;
}

bool isContainer(const std::string& className) {
    for (const auto container : kContainers)
        if (basic::equalNoCase(container, className)) return true;
    return false;
}

} // namespace workbench
