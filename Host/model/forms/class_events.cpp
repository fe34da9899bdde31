#include "Host/model/forms/class_events.h"
#include "Basic/case_folding.h"
#include "Host/files/text_parts.h"
#include <algorithm>
#include <array>

namespace host {
namespace {

struct Pair {
    std::string_view name, value;
};

/// Groups of events that many classes have.
constexpr std::array kGroups{
    Pair{"@mouse", "MouseDown MouseMove MouseUp"},
    Pair{"@key", "KeyDown KeyPress KeyUp"},
    Pair{"@drag", "DragDrop DragOver"},
    Pair{"@ole", "OLECompleteDrag OLEDragDrop OLEDragOver OLEGiveFeedback OLESetData OLEStartDrag"},
    Pair{"@focus", "GotFocus LostFocus"},
    Pair{"@link", "LinkClose LinkError LinkNotify LinkOpen"},
    Pair{"@input", "@drag @focus @key @ole"},
    Pair{"@bag", "InitProperties ReadProperties WriteProperties"},
    Pair{"@async", "AsyncReadComplete AsyncReadProgress"},
    Pair{"@edit", "AfterLabelEdit BeforeLabelEdit"},
};

/// The parameters of events, the same in most classes. "*" is the library of the class.
constexpr std::array kParameters{
    Pair{"AccessKeyPress", "KeyAscii As Integer"},
    Pair{"AfterLabelEdit", "Cancel As Integer, NewString As String"},
    Pair{"AmbientChanged", "PropertyName As String"},
    Pair{"AsyncReadComplete", "AsyncProp As AsyncProperty"},
    Pair{"AsyncReadProgress", "AsyncProp As AsyncProperty"},
    Pair{"BeforeClick", "Cancel As Integer"},
    Pair{"BeforeLabelEdit", "Cancel As Integer"},
    Pair{"ButtonClick", "ByVal Button As *.Button"},
    Pair{"ButtonDropDown", "ByVal Button As *.Button"},
    Pair{"ButtonMenuClick", "ByVal ButtonMenu As *.ButtonMenu"},
    Pair{"Collapse", "ByVal Node As *.Node"},
    Pair{"ColumnClick", "ByVal ColumnHeader As *.ColumnHeader"},
    Pair{"Compare", "ByVal Row1 As Long, ByVal Row2 As Long, Cmp As Integer"},
    Pair{"DragDrop", "Source As Control, X As Single, Y As Single"},
    Pair{"DragOver", "Source As Control, X As Single, Y As Single, State As Integer"},
    Pair{"EditProperty", "PropertyName As String"},
    Pair{"Error", "DataErr As Integer, Response As Integer"},
    Pair{"Expand", "ByVal Node As *.Node"},
    Pair{"GetDataMember", "DataMember As String, Data As Object"},
    Pair{"HitTest", "X As Single, Y As Single, HitResult As Integer"},
    Pair{"ItemCheck", "Item As Integer"},
    Pair{"ItemClick", "ByVal Item As *.ListItem"},
    Pair{"KeyDown", "KeyCode As Integer, Shift As Integer"},
    Pair{"KeyPress", "KeyAscii As Integer"},
    Pair{"KeyUp", "KeyCode As Integer, Shift As Integer"},
    Pair{"LinkError", "LinkErr As Integer"},
    Pair{"LinkExecute", "CmdStr As String, Cancel As Integer"},
    Pair{"LinkOpen", "Cancel As Integer"},
    Pair{"MouseDown", "Button As Integer, Shift As Integer, X As Single, Y As Single"},
    Pair{"MouseMove", "Button As Integer, Shift As Integer, X As Single, Y As Single"},
    Pair{"MouseUp", "Button As Integer, Shift As Integer, X As Single, Y As Single"},
    Pair{"NodeCheck", "ByVal Node As *.Node"},
    Pair{"NodeClick", "ByVal Node As *.Node"},
    Pair{"ObjectMove", "Left As Single, Top As Single, Width As Single, Height As Single"},
    Pair{"OLECompleteDrag", "Effect As Long"},
    Pair{"OLEDragDrop",
         "Data As *.DataObject, Effect As Long, Button As Integer, Shift As Integer, X As Single, Y As Single"},
    Pair{"OLEDragOver",
         "Data As *.DataObject, Effect As Long, Button As Integer, Shift As Integer, X As Single, Y As Single, "
         "State As Integer"},
    Pair{"OLEGiveFeedback", "Effect As Long, DefaultCursors As Boolean"},
    Pair{"OLESetData", "Data As *.DataObject, DataFormat As Integer"},
    Pair{"OLEStartDrag", "Data As *.DataObject, AllowedEffects As Long"},
    Pair{"PanelClick", "ByVal Panel As *.Panel"},
    Pair{"PanelDblClick", "ByVal Panel As *.Panel"},
    Pair{"QueryUnload", "Cancel As Integer, UnloadMode As Integer"},
    Pair{"ReadProperties", "PropBag As PropertyBag"},
    Pair{"Unload", "Cancel As Integer"},
    Pair{"Updated", "Code As Integer"},
    Pair{"Validate", "Cancel As Boolean"},
    Pair{"WriteProperties", "PropBag As PropertyBag"},
};

struct Exception {
    std::string_view className, event, parameters;
};

/// Events that have other parameters in one class.
constexpr std::array kExceptions{
    Exception{"MSComctlLib.ListView", "ItemCheck", "ByVal Item As *.ListItem"},
    Exception{"TabDlg.SSTab", "Click", "PreviousTab As Integer"},
    Exception{"VB.Data", "Validate", "Action As Integer, Save As Integer"},
    Exception{"VB.OLE", "Resize", "HeightNew As Single, WidthNew As Single"},
};

struct Class {
    std::string_view name;
    std::string_view byDefault;
    std::string_view others;
};

constexpr std::array kClasses{
    Class{"VB.Form", "Load",
          "Activate Click DblClick Deactivate Initialize LinkClose LinkError LinkExecute LinkOpen Paint QueryUnload "
          "Resize "
          "Terminate Unload @input @mouse"},
    Class{"VB.MDIForm", "Load",
          "Activate Click DblClick Deactivate Initialize LinkClose LinkError LinkExecute LinkOpen QueryUnload Resize "
          "Terminate Unload @drag @mouse @ole"},
    Class{"VB.UserControl", "Initialize",
          "AccessKeyPress AmbientChanged Click DblClick EnterFocus ExitFocus GetDataMember Hide HitTest Paint Resize "
          "Show "
          "Terminate @async @bag @input @mouse"},
    Class{"VB.PropertyPage", "Initialize",
          "ApplyChanges Click DblClick EditProperty Paint Resize SelectionChanged Terminate @input @mouse"},
    Class{"VB.UserDocument", "Initialize",
          "Click DblClick EnterFocus ExitFocus Hide Paint Resize Scroll Show Terminate @async @bag @input @mouse"},
    Class{"VB.Class", "Initialize", "Terminate"},
    Class{"VB.Label", "Click", "Change DblClick @drag @link @mouse @ole"},
    Class{"VB.TextBox", "Change", "Click DblClick Validate @input @link @mouse"},
    Class{"VB.CommandButton", "Click", "@input @mouse"},
    Class{"VB.CheckBox", "Click", "Validate @input @mouse"},
    Class{"VB.OptionButton", "Click", "DblClick Validate @input @mouse"},
    Class{"VB.Frame", "DragDrop", "Click DblClick DragOver @mouse @ole"},
    Class{"VB.ListBox", "Click", "DblClick ItemCheck Scroll Validate @input @mouse"},
    Class{"VB.ComboBox", "Change", "Click DblClick DropDown Scroll Validate @input"},
    Class{"VB.PictureBox", "Click", "Change DblClick Paint Resize Validate @input @link @mouse"},
    Class{"VB.Image", "Click", "DblClick @drag @mouse @ole"},
    Class{"VB.HScrollBar", "Change", "Scroll Validate @drag @focus @key"},
    Class{"VB.VScrollBar", "Change", "Scroll Validate @drag @focus @key"},
    Class{"VB.Timer", "Timer", ""},
    Class{"VB.DriveListBox", "Change", "Scroll Validate @input"},
    Class{"VB.DirListBox", "Change", "Click Scroll Validate @input @mouse"},
    Class{"VB.FileListBox", "Click", "DblClick PathChange PatternChange Scroll Validate @input @mouse"},
    Class{"VB.Data", "Validate", "Error Reposition Resize @drag @mouse @ole"},
    Class{"VB.OLE", "Updated", "Click DblClick ObjectMove Resize Validate @drag @focus @key @mouse"},
    Class{"VB.Menu", "Click", ""},
    Class{"MSComctlLib.TreeView", "NodeClick", "Click Collapse DblClick Expand NodeCheck Validate @edit @input @mouse"},
    Class{"MSComctlLib.ListView", "ItemClick", "Click ColumnClick DblClick ItemCheck Validate @edit @input @mouse"},
    Class{"MSComctlLib.Toolbar", "ButtonClick",
          "ButtonDropDown ButtonMenuClick Change Click DblClick @drag @mouse @ole"},
    Class{"MSComctlLib.StatusBar", "PanelClick", "Click DblClick PanelDblClick @drag @mouse @ole"},
    Class{"MSComctlLib.ProgressBar", "Click", "@drag @mouse @ole"},
    Class{"MSComctlLib.Slider", "Click", "Change Scroll Validate @input @mouse"},
    Class{"MSComctlLib.TabStrip", "Click", "BeforeClick Validate @input @mouse"},
    Class{"MSComCtl2.UpDown", "Change", "DownClick UpClick Validate @drag @focus @mouse @ole"},
    Class{"MSComCtl2.DTPicker", "Change", "Click CloseUp DblClick DropDown Validate @input @mouse"},
    Class{"MSFlexGridLib.MSFlexGrid", "Click",
          "Compare DblClick EnterCell LeaveCell RowColChange Scroll SelChange Validate @input @mouse"},
    Class{"TabDlg.SSTab", "Click", "DblClick Validate @input @mouse"},
    // device controls have their events in their description
    Class{"TavletsCtl.QLAlarm", "Alarm", ""},
    Class{"TavletsCtl.QLDatabase", "Reposition", ""},
    Class{"TavletsCtl.QLFileStore", "Failure", ""},
    Class{"TavletsCtl.QLHScrollBar", "Change", ""},
    Class{"TavletsCtl.QLInfrared", "BeamReceived", ""},
    Class{"TavletsCtl.QLInk", "Change", ""},
    Class{"TavletsCtl.QLMenu", "ItemClick", ""},
    Class{"TavletsCtl.QLNetwork", "DataArrival", ""},
    Class{"TavletsCtl.QLSerial", "DataArrival", ""},
    Class{"TavletsCtl.QLTabStrip", "Change", ""},
    Class{"TavletsCtl.QLTextBox", "Change", ""},
    Class{"TavletsCtl.QLTimer", "Timer", ""},
    Class{"TavletsCtl.QLVScrollBar", "Change", ""},
};

constexpr std::string_view kDeviceLibrary = "TavletsCtl.";

/// The libraries of version 5 have the events of those of version 6.
std::string nameOfVersion6(std::string_view className) {
    const bool isVersion5 =
        basic::startsWithNoCase(className, "ComctlLib.") || basic::startsWithNoCase(className, "ComCtl2.");
    return (isVersion5 ? "MS" : "") + std::string(className);
}

const Class* rowOf(std::string_view className) {
    const auto name = nameOfVersion6(className);
    const auto found = std::find_if(kClasses.begin(), kClasses.end(),
                                    [&](const auto& row) { return basic::equalNoCase(row.name, name); });
    return found == kClasses.end() ? nullptr : &*found;
}

std::string_view valueOf(const auto& table, std::string_view name) {
    const auto found = std::find_if(table.begin(), table.end(), [&](const auto& row) { return row.name == name; });
    return found == table.end() ? std::string_view() : found->value;
}

std::string_view parametersOf(std::string_view className, std::string_view event) {
    for (const auto& exception : kExceptions)
        if (exception.className == className && exception.event == event) return exception.parameters;
    return valueOf(kParameters, event);
}

/// The language's own classes need no library before a type.
std::string withLibrary(std::string_view className, std::string_view parameters) {
    const auto library = className.substr(0, className.find('.'));
    std::string text(parameters);
    for (auto at = text.find("*."); at != std::string::npos; at = text.find("*.", at))
        library == "VB" ? text.erase(at, 2) : text.replace(at, 1, library);
    return text;
}

void add(std::string_view names, const Class& row, std::string_view className, std::vector<ClassEvent>& events) {
    while (!names.empty()) {
        const auto name = takeField(names, ' ');
        if (name.starts_with('@'))
            add(valueOf(kGroups, name), row, className, events);
        else
            events.push_back({std::string(name), withLibrary(className, parametersOf(row.name, name))});
    }
}

} // namespace

std::vector<ClassEvent> languageEvents(std::string_view className) {
    std::vector<ClassEvent> events;
    const auto* row = rowOf(className);
    if (!row || row->name.starts_with(kDeviceLibrary)) return events;
    add(row->byDefault, *row, className, events);
    add(row->others, *row, className, events);
    std::sort(events.begin(), events.end(), [](const auto& a, const auto& b) { return a.name < b.name; });
    return events;
}

std::string defaultEventOf(std::string_view className) {
    if (const auto* row = rowOf(className)) return std::string(row->byDefault);
    return basic::startsWithNoCase(className, kDeviceLibrary) ? "Click" : "";
}

} // namespace host
