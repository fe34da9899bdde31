#pragma once
// What a control is to the eye.
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
    Menu,
    Hidden, ///< not seen when the program runs: a timer, a data base
    Other,
};

/// The kind of a class as a form's text names it ("VB.Label", "TavletsCtl.QLLabel"), letter case ignored.
ControlKind kindOfControl(const std::string& className);
/// Controls of devices have borders, fonts and colours of their own.
bool isDeviceControl(const std::string& className);
/// Drawn by its container, and so behind all controls that are windows.
bool isWindowless(ControlKind kind);
/// Others can lie within it.
bool isContainer(const std::string& className);

} // namespace workbench
