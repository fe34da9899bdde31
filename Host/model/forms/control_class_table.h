#pragma once
// The properties of the built-in classes, with their defaults.
#include <array>
#include <string_view>

namespace host {

// Groups of rows: "Name kind fallback words".
inline constexpr std::string_view kPlaceRows = R"(
Left S 0
Top S 0
Width S 0
Height S 0
)";

inline constexpr std::string_view kControlRows = R"(
Index I -1
Tag T ""
)";

inline constexpr std::string_view kVisibleRows = R"(
DragIcon P
DragMode E 0 Manual|Automatic
MouseIcon P
MousePointer E 0 Default|Arrow|Cross|I-Beam|Icon|Size|Size NE SW|Size N S|Size NW SE|Size W E|Up Arrow|Hourglass|No Drop|Arrow and Hourglass|Arrow and Question|Size All|Custom
ToolTipText T ""
Visible B -1
WhatsThisHelpID I 0
)";

inline constexpr std::string_view kEnabledRows = R"(
Enabled B -1
)";

inline constexpr std::string_view kTabRows = R"(
CausesValidation B -1
HelpContextID I 0
TabIndex I 0
TabStop B -1
)";

inline constexpr std::string_view kOrderRows = R"(
TabIndex I 0
)";

inline constexpr std::string_view kButtonColourRows = R"(
BackColor C &H8000000F&
Font F
ForeColor C &H80000012&
)";

inline constexpr std::string_view kFieldColourRows = R"(
BackColor C &H80000005&
Font F
ForeColor C &H80000008&
)";

inline constexpr std::string_view kCaptionRows = R"(
Appearance E 1 Flat|3D
Caption T ""
RightToLeft B 0
)";

inline constexpr std::string_view kStyledButtonRows = R"(
DisabledPicture P
DownPicture P
MaskColor C &H00C0C0C0&
Picture P
Style E 0 Standard|Graphical
UseMaskColor B 0
)";

inline constexpr std::string_view kAlignedRows = R"(
Alignment E 0 Left Justify|Right Justify|Center
)";

inline constexpr std::string_view kDrawingRows = R"(
AutoRedraw B 0
ClipControls B -1
DrawMode E 13 |Blackness|Not Merge Pen|Mask Not Pen|Not Copy Pen|Mask Pen Not|Invert|Xor Pen|Not Mask Pen|Mask Pen|Not Xor Pen|Nop|Merge Not Pen|Copy Pen|Merge Pen Not|Merge Pen|Whiteness
DrawStyle E 0 Solid|Dash|Dot|Dash-Dot|Dash-Dot-Dot|Transparent|Inside Solid
DrawWidth I 1
FillColor C &H00000000&
FillStyle E 1 Solid|Transparent|Horizontal Line|Vertical Line|Upward Diagonal|Downward Diagonal|Cross|Diagonal Cross
FontTransparent B -1
HasDC B -1
Picture P
)";

inline constexpr std::string_view kScaleRows = R"(
ScaleMode E 1 User|Twip|Point|Pixel|Character|Inch|Millimeter|Centimeter
ScaleLeft S 0
ScaleTop S 0
ScaleWidth S 0
ScaleHeight S 0
)";

inline constexpr std::string_view kFormRows = R"(
Appearance E 1 Flat|3D
BorderStyle E 2 None|Fixed Single|Sizable|Fixed Dialog|Fixed ToolWindow|Sizable ToolWindow
Caption T ""
ControlBox B -1
Enabled B -1
HelpContextID I 0
Icon P
KeyPreview B 0
LinkMode E 0 None|Source
LinkTopic T ""
LockControls B 0
MaxButton B -1
MDIChild B 0
MinButton B -1
MouseIcon P
MousePointer E 0 Default|Arrow|Cross|I-Beam|Icon|Size|Size NE SW|Size N S|Size NW SE|Size W E|Up Arrow|Hourglass|No Drop|Arrow and Hourglass|Arrow and Question|Size All|Custom
Moveable B -1
NegotiateMenus B -1
OLEDropMode E 0 None|Manual
Palette P
PaletteMode E 0 Halftone|UseZOrder|Custom
RightToLeft B 0
ShowInTaskbar B -1
StartUpPosition E 0 Manual|CenterOwner|CenterScreen|Windows Default
Tag T ""
Visible B -1
WhatsThisButton B 0
WhatsThisHelp B 0
WindowState E 0 Normal|Minimized|Maximized
)";

inline constexpr std::string_view kMdiFormRows = R"(
Appearance E 1 Flat|3D
AutoShowChildren B -1
BackColor C &H8000000C&
Caption T ""
Enabled B -1
HelpContextID I 0
Icon P
LinkTopic T ""
MouseIcon P
MousePointer E 0 Default|Arrow|Cross|I-Beam|Icon|Size
Moveable B -1
OLEDropMode E 0 None|Manual
Picture P
RightToLeft B 0
ScrollBars B -1
StartUpPosition E 0 Manual|CenterOwner|CenterScreen|Windows Default
Tag T ""
Visible B -1
WhatsThisHelp B 0
WindowState E 0 Normal|Minimized|Maximized
)";

inline constexpr std::string_view kUserControlRows = R"(
AccessKeys T ""
Alignable B 0
Appearance E 1 Flat|3D
BackStyle E 1 Transparent|Opaque
BorderStyle E 0 None|Fixed Single
CanGetFocus B -1
ControlContainer B 0
DefaultCancel B 0
EditAtDesignTime B 0
Enabled B -1
ForwardFocus B 0
InvisibleAtRuntime B 0
KeyPreview B 0
MaskColor C &H8000000F&
MouseIcon P
MousePointer E 0 Default|Arrow|Cross|I-Beam|Icon|Size
Public B -1
RightToLeft B 0
Tag T ""
ToolboxBitmap P
Windowless B 0
)";

inline constexpr std::string_view kCommandRows = R"(
Cancel B 0
Default B 0
)";

inline constexpr std::string_view kValueRows = R"(
Value E 0 Unchecked|Checked|Grayed
)";

inline constexpr std::string_view kCheckedRows = R"(
Value B 0
)";

inline constexpr std::string_view kTextBoxRows = R"(
Alignment E 0 Left Justify|Right Justify|Center
Appearance E 1 Flat|3D
BorderStyle E 1 None|Fixed Single
HideSelection B -1
Locked B 0
MaxLength I 0
MultiLine B 0
PasswordChar T ""
RightToLeft B 0
ScrollBars E 0 None|Horizontal|Vertical|Both
Text L ""
)";

inline constexpr std::string_view kLabelRows = R"(
Alignment E 0 Left Justify|Right Justify|Center
AutoSize B 0
BackStyle E 1 Transparent|Opaque
BorderStyle E 0 None|Fixed Single
UseMnemonic B -1
WordWrap B 0
)";

inline constexpr std::string_view kFrameRows = R"(
BorderStyle E 1 None|Fixed Single
ClipControls B -1
)";

inline constexpr std::string_view kComboBoxRows = R"(
Appearance E 1 Flat|3D
IntegralHeight B -1
ItemData ?
List ?
Locked B 0
RightToLeft B 0
Sorted B 0
Style E 0 Dropdown Combo|Simple Combo|Dropdown List
Text L ""
)";

inline constexpr std::string_view kListBoxRows = R"(
Appearance E 1 Flat|3D
Columns I 0
IntegralHeight B -1
ItemData ?
List ?
MultiSelect E 0 None|Simple|Extended
RightToLeft B 0
Sorted B 0
Style E 0 Standard|Checkbox
)";

inline constexpr std::string_view kPictureBoxRows = R"(
Align E 0 None|Align Top|Align Bottom|Align Left|Align Right
Appearance E 1 Flat|3D
AutoSize B 0
BorderStyle E 1 None|Fixed Single
)";

inline constexpr std::string_view kImageRows = R"(
Appearance E 1 Flat|3D
BorderStyle E 0 None|Fixed Single
Picture P
Stretch B 0
)";

inline constexpr std::string_view kTimerRows = R"(
Interval I 0
Left S 0
Top S 0
)";

inline constexpr std::string_view kScrollBarRows = R"(
LargeChange I 1
Max I 32767
Min I 0
SmallChange I 1
Value I 0
)";

inline constexpr std::string_view kShapeRows = R"(
BackColor C &H80000005&
BackStyle E 0 Transparent|Opaque
BorderColor C &H80000008&
BorderStyle E 1 Transparent|Solid|Dash|Dot|Dash-Dot|Dash-Dot-Dot|Inside Solid
BorderWidth I 1
DrawMode E 13
FillColor C &H00000000&
FillStyle E 1 Solid|Transparent|Horizontal Line|Vertical Line|Upward Diagonal|Downward Diagonal|Cross|Diagonal Cross
Shape E 0 Rectangle|Square|Oval|Circle|Rounded Rectangle|Rounded Square
Visible B -1
)";

inline constexpr std::string_view kLineRows = R"(
BorderColor C &H80000008&
BorderStyle E 1 Transparent|Solid|Dash|Dot|Dash-Dot|Dash-Dot-Dot|Inside Solid
BorderWidth I 1
DrawMode E 13
Visible B -1
X1 S 0
X2 S 0
Y1 S 0
Y2 S 0
)";

inline constexpr std::string_view kMenuRows = R"(
Caption T ""
Checked B 0
Enabled B -1
HelpContextID I 0
NegotiatePosition E 0 None|Left|Middle|Right
Shortcut K
Visible B -1
WindowList B 0
)";

using ClassRows = std::array<std::string_view, 10>;
struct ClassRowsEntry {
    std::string_view className;
    ClassRows rows;
};

/// Properties that the host provides for every control.
inline constexpr ClassRows kOtherClassRows{kPlaceRows, kControlRows, kVisibleRows, kTabRows};

inline constexpr ClassRowsEntry kClassRows[] = {
    {"VB.Form", {kPlaceRows, kScaleRows, kFormRows, kDrawingRows, kButtonColourRows}},
    {"VB.MDIForm", {kPlaceRows, kMdiFormRows}},
    {"VB.UserControl", {kPlaceRows, kScaleRows, kUserControlRows, kDrawingRows, kButtonColourRows}},
    {"VB.UserDocument", {kPlaceRows, kScaleRows, kDrawingRows, kButtonColourRows}},
    {"VB.PropertyPage", {kPlaceRows, kScaleRows, kCaptionRows, kDrawingRows, kButtonColourRows}},
    {"VB.CommandButton",
     {kPlaceRows, kControlRows, kVisibleRows, kEnabledRows, kTabRows, kCaptionRows, kStyledButtonRows, kCommandRows,
      kButtonColourRows}},
    {"VB.CheckBox",
     {kPlaceRows, kControlRows, kVisibleRows, kEnabledRows, kTabRows, kCaptionRows, kStyledButtonRows, kValueRows,
      kButtonColourRows, kAlignedRows}},
    {"VB.OptionButton",
     {kPlaceRows, kControlRows, kVisibleRows, kEnabledRows, kTabRows, kCaptionRows, kStyledButtonRows, kCheckedRows,
      kButtonColourRows, kAlignedRows}},
    {"VB.TextBox", {kPlaceRows, kControlRows, kVisibleRows, kEnabledRows, kTabRows, kTextBoxRows, kFieldColourRows}},
    {"VB.Label",
     {kPlaceRows, kControlRows, kVisibleRows, kEnabledRows, kOrderRows, kCaptionRows, kLabelRows, kButtonColourRows}},
    {"VB.Frame",
     {kPlaceRows, kControlRows, kVisibleRows, kEnabledRows, kOrderRows, kCaptionRows, kFrameRows, kButtonColourRows}},
    {"VB.ComboBox", {kPlaceRows, kControlRows, kVisibleRows, kEnabledRows, kTabRows, kComboBoxRows, kFieldColourRows}},
    {"VB.ListBox", {kPlaceRows, kControlRows, kVisibleRows, kEnabledRows, kTabRows, kListBoxRows, kFieldColourRows}},
    {"VB.PictureBox",
     {kPlaceRows, kScaleRows, kControlRows, kVisibleRows, kEnabledRows, kTabRows, kPictureBoxRows, kDrawingRows,
      kButtonColourRows}},
    {"VB.Image", {kPlaceRows, kControlRows, kVisibleRows, kEnabledRows, kImageRows}},
    {"VB.Timer", {kControlRows, kEnabledRows, kTimerRows}},
    {"VB.HScrollBar", {kPlaceRows, kControlRows, kVisibleRows, kEnabledRows, kTabRows, kScrollBarRows}},
    {"VB.VScrollBar", {kPlaceRows, kControlRows, kVisibleRows, kEnabledRows, kTabRows, kScrollBarRows}},
    {"VB.DriveListBox", {kPlaceRows, kControlRows, kVisibleRows, kEnabledRows, kTabRows, kFieldColourRows}},
    {"VB.DirListBox", {kPlaceRows, kControlRows, kVisibleRows, kEnabledRows, kTabRows, kFieldColourRows}},
    {"VB.FileListBox", {kPlaceRows, kControlRows, kVisibleRows, kEnabledRows, kTabRows, kFieldColourRows}},
    {"VB.Shape", {kPlaceRows, kControlRows, kShapeRows}},
    {"VB.Line", {kControlRows, kLineRows}},
    {"VB.Menu", {kControlRows, kMenuRows}},
};

} // namespace host
