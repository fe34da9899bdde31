#include "Apps/workbench/designer/event_handlers.h"
#include "Basic/case_folding.h"
#include <array>
#include <fmt/format.h>
#include <string_view>

namespace workbench {

namespace {

struct DefaultEvent {
    std::string_view className, event, parameters;
};
constexpr std::array kDefaultEvents{
    DefaultEvent{"VB.Label", "Click", ""},
    DefaultEvent{"VB.TextBox", "Change", ""},
    DefaultEvent{"VB.CommandButton", "Click", ""},
    DefaultEvent{"VB.CheckBox", "Click", ""},
    DefaultEvent{"VB.OptionButton", "Click", ""},
    DefaultEvent{"VB.Frame", "DragDrop", "Source As Control, X As Single, Y As Single"},
    DefaultEvent{"VB.ListBox", "Click", ""},
    DefaultEvent{"VB.ComboBox", "Change", ""},
    DefaultEvent{"VB.PictureBox", "Click", ""},
    DefaultEvent{"VB.Image", "Click", ""},
    DefaultEvent{"VB.HScrollBar", "Change", ""},
    DefaultEvent{"VB.VScrollBar", "Change", ""},
    DefaultEvent{"VB.Timer", "Timer", ""},
    DefaultEvent{"VB.DriveListBox", "Change", ""},
    DefaultEvent{"VB.DirListBox", "Change", ""},
    DefaultEvent{"VB.FileListBox", "Click", ""},
    DefaultEvent{"VB.Menu", "Click", ""},
    DefaultEvent{"TavletsCtl.QLAlarm", "Alarm", "ByVal When As Date"},
    DefaultEvent{"TavletsCtl.QLButton", "Click", ""},
    DefaultEvent{"TavletsCtl.QLCheckBox", "Click", ""},
    DefaultEvent{"TavletsCtl.QLComboBox", "Click", ""},
    DefaultEvent{"TavletsCtl.QLDatabase", "Reposition", ""},
    DefaultEvent{"TavletsCtl.QLFileStore", "Failure", "ByVal Number As Long, ByVal Description As String"},
    DefaultEvent{"TavletsCtl.QLFrame", "Click", ""},
    DefaultEvent{"TavletsCtl.QLGrid", "Click", ""},
    DefaultEvent{"TavletsCtl.QLHScrollBar", "Change", ""},
    DefaultEvent{"TavletsCtl.QLInfrared", "BeamReceived", "ByVal Name As String, ByVal Data As String"},
    DefaultEvent{"TavletsCtl.QLInk", "Change", ""},
    DefaultEvent{"TavletsCtl.QLLabel", "Click", ""},
    DefaultEvent{"TavletsCtl.QLListBox", "Click", ""},
    DefaultEvent{"TavletsCtl.QLMenu", "ItemClick", "ByVal Index As Integer, ByVal Caption As String"},
    DefaultEvent{"TavletsCtl.QLMovie", "Click", ""},
    DefaultEvent{"TavletsCtl.QLNetwork", "DataArrival", "ByVal Bytes As Long"},
    DefaultEvent{"TavletsCtl.QLPicture", "Click", ""},
    DefaultEvent{"TavletsCtl.QLRadioButton", "Click", ""},
    DefaultEvent{"TavletsCtl.QLSerial", "DataArrival", "ByVal Bytes As Long"},
    DefaultEvent{"TavletsCtl.QLTabStrip", "Change", ""},
    DefaultEvent{"TavletsCtl.QLTextBox", "Change", ""},
    DefaultEvent{"TavletsCtl.QLTimer", "Timer", ""},
    DefaultEvent{"TavletsCtl.QLVScrollBar", "Change", ""},
};

struct Handler {
    std::string name, parameters;
};

Handler handlerOfForm(vbide::vbext_ComponentType type) {
    switch (type) {
    case vbide::vbext_ct_VBForm: return {"Form_Load", ""};
    case vbide::vbext_ct_VBMDIForm: return {"MDIForm_Load", ""};
    case vbide::vbext_ct_UserControl: return {"UserControl_Initialize", ""};
    case vbide::vbext_ct_PropPage: return {"PropertyPage_Initialize", ""};
    case vbide::vbext_ct_DocObject: return {"UserDocument_Initialize", ""};
    default: return {};
    }
}

/// The handler of a control array has the index as its first parameter.
Handler handlerOfControl(const vbide::VBControl& control) {
    const auto className = control.ProgId();
    const auto properties = control.Properties();
    for (const auto& entry : kDefaultEvents) {
        if (!basic::equalNoCase(entry.className, className)) continue;
        std::string parameters(entry.parameters);
        const bool isMember = fernwick::asLong(properties->Item("Index")->Value()) >= 0;
        if (isMember) parameters.insert(0, parameters.empty() ? "Index As Integer" : "Index As Integer, ");
        return {fmt::format("{}_{}", fernwick::asText(properties->Item("Name")->Value()), entry.event), parameters};
    }
    return {};
}

/// Returns the first line of a procedure's body; 0 if there is no such procedure.
int bodyOf(const vbide::CodeModule& module, const std::string& name) {
    for (const auto& member : module.Members())
        if (member.type == vbide::Member::Method && basic::equalNoCase(member.Name, name))
            return member.CodeLocation + 1;
    return 0;
}

/// Adds the handler after all other code, with a blank line before it. Returns the first line of its body.
int addHandler(vbide::CodeModule& module, const Handler& handler) {
    const int last = module.CountOfLines();
    const bool apart = last > 0 && module.Lines(last, 1).find_first_not_of(" \t") != std::string::npos;
    module.InsertLines(last + 1, fmt::format("{}Private Sub {}({})\r\n\r\nEnd Sub\r\n", apart ? "\r\n" : "",
                                             handler.name, handler.parameters));
    return last + (apart ? 3 : 2);
}

} // namespace

void openHandler(vbide::VBComponent& component, const vbide::Ref<vbide::VBControl>& control) {
    const auto module = component.CodeModule();
    const auto pane = module->CodePane();
    const auto handler = control ? handlerOfControl(*control) : handlerOfForm(component.Type());
    if (handler.name.empty()) return pane->Show();
    int body = bodyOf(*module, handler.name);
    if (body == 0) body = addHandler(*module, handler);
    pane->Show();
    pane->SetSelection(body, 1, body, 1);
}

} // namespace workbench
