#pragma once
// Kinds of controls by their appearance.
#include <string>

namespace workbench {

enum class ControlKind {
    Label,
    TextBox,
    Button,
    CheckBox,
    OptionButton,
    Frame,
    ListBox,
    ComboBox,
    PictureBox,
    Image,
    Shape,
    Line,
    HScrollBar,
    VScrollBar,
    Grid,
    TabStrip,
    TabbedBox, ///< tabs, each with its own controls
    ColumnList,
    Tree,
    ToolBar,
    StatusBar,
    ProgressBar,
    Slider,
    DateBox,
    UpDown,
    DataBar, ///< moves through the records of a database
    UserControl,
    Menu,
    Hidden, ///< invisible at run time, such as a timer or a database
    Other,
};

/// Returns the kind of a class as named in a form's text ("VB.Label", "TavletsCtl.QLLabel", "MSComctlLib.ListView"),
/// ignoring case.
ControlKind kindOfControl(const std::string& className);
/// Whether it is a control of devices, which has its own properties for borders, fonts and colours.
bool isDeviceControl(const std::string& className);
/// Whether its container draws it, below all controls that are windows.
bool isWindowless(ControlKind kind);
/// Whether it can contain other controls.
bool isContainer(const std::string& className);

} // namespace workbench
