#include "Components/Language/tables/tables.h"

namespace language {

const std::string_view kForeignControlsTable = R"(
Shared MouseOleDrag
  Include DragEvents MouseEvents OleEvents

Shared ValidatedInput
  Include InputEvents MouseEvents ValidateEvent

Shared EditEvents
  Event AfterLabelEdit(Cancel As Integer, NewString As String)
  Event BeforeLabelEdit(Cancel As Integer)

Shared TreeView
  Event NodeClick(ByVal Node As Node)
  Event Click
  Event Collapse(ByVal Node As Node)
  Event DblClick
  Event Expand(ByVal Node As Node)
  Event NodeCheck(ByVal Node As Node)
  Include EditEvents ValidatedInput

Shared ListView
  Event ItemClick(ByVal Item As ListItem)
  Event Click
  Event ColumnClick(ByVal ColumnHeader As ColumnHeader)
  Event DblClick
  Event ItemCheck(ByVal Item As ListItem)
  Include EditEvents ValidatedInput

Shared Toolbar
  Event ButtonClick(ByVal Button As Button)
  Event ButtonDropDown(ByVal Button As Button)
  Event ButtonMenuClick(ByVal ButtonMenu As ButtonMenu)
  Event Change
  Event Click
  Event DblClick
  Include MouseOleDrag

Shared StatusBar
  Event PanelClick(ByVal Panel As Panel)
  Event Click
  Event DblClick
  Event PanelDblClick(ByVal Panel As Panel)
  Include MouseOleDrag

Shared ProgressBar
  Event Click
  Include MouseOleDrag

Shared Slider
  Event Click
  Event Change
  Event Scroll
  Include ValidatedInput

Shared TabStrip
  Event Click
  Event BeforeClick(Cancel As Integer)
  Include ValidatedInput

Shared UpDown
  Event Change
  Event DownClick
  Event UpClick
  Include DragEvents FocusEvents MouseEvents OleEvents ValidateEvent

Shared DTPicker
  Event Change
  Event Click
  Event CloseUp
  Event DblClick
  Event DropDown
  Include ValidatedInput

Library MSComctlLib guid "{831FDD16-0C5C-11D2-A9FC-0000F8754DA1}" absent "Use the Tavlets that its controls name: devices have no other controls" ' Common controls, version 6
Class TabStrip control open absent "Use QLTabStrip: it has Change instead of Click"
  Include TabStrip
Class Toolbar control open absent "Use QLButton with a Picture: devices have no tool bars"
  Include Toolbar
Class StatusBar control open absent "Use QLLabel: devices have no status bars"
  Include StatusBar
Class ProgressBar control open absent "Use QLShape: set its Width as work proceeds"
  Include ProgressBar
Class TreeView control open absent "Use QLListBox: indent its items by their level"
  Include TreeView
Class ListView control open absent "Use QLGrid: it has columns with headers"
  Include ListView
Class ImageList control open absent "Use the Picture of each QLButton or QLPicture: devices have no lists of images"
Class Slider control open absent "Use QLHScrollBar: it has a value between two ends too"
  Include Slider
Class ImageCombo control open absent "Use QLComboBox: its items are texts"
Class Button open
Class ButtonMenu open
Class ColumnHeader open
Class DataObject open
Class ListItem open
Class Node open
Class Panel open

Library ComctlLib guid "{6B7E6392-850A-101B-AFC0-4210102A8DA7}" absent "Use the Tavlets that its controls name: devices have no other controls" ' Common controls, version 5
Class TabStrip control open absent "Use QLTabStrip: it has Change instead of Click"
  Include TabStrip
Class Toolbar control open absent "Use QLButton with a Picture: devices have no tool bars"
  Include Toolbar
Class StatusBar control open absent "Use QLLabel: devices have no status bars"
  Include StatusBar
Class ProgressBar control open absent "Use QLShape: set its Width as work proceeds"
  Include ProgressBar
Class TreeView control open absent "Use QLListBox: indent its items by their level"
  Include TreeView
Class ListView control open absent "Use QLGrid: it has columns with headers"
  Include ListView
Class ImageList control open absent "Use the Picture of each QLButton or QLPicture: devices have no lists of images"
Class Slider control open absent "Use QLHScrollBar: it has a value between two ends too"
  Include Slider
Class Button open
Class ButtonMenu open
Class ColumnHeader open
Class DataObject open
Class ListItem open
Class Node open
Class Panel open

Library MSComCtl2 guid "{86CF1D34-0C5F-11D2-A9FC-0000F8754DA1}" absent "Use the Tavlets that its controls name: devices have no other controls" ' Common controls, second library
Class Animation control open absent "Use QLMovie: it plays the animation formats of devices"
Class UpDown control open absent "Use QLVScrollBar: it changes a value by steps too"
  Include UpDown
Class MonthView control open absent "Use QLGrid: show a week in each row"
Class DTPicker control open absent "Use QLTextBox: check the text with IsDate"
  Include DTPicker
Class FlatScrollBar control open absent "Use QLHScrollBar or QLVScrollBar: devices have one look of scroll bars"
Class DataObject open

Library ComCtl2 guid "{FE0065C0-1B7B-11CF-9D53-00AA003C9CB6}" absent "Use the Tavlets that its controls name: devices have no other controls" ' Common controls, second library of version 5
Class Animation control open absent "Use QLMovie: it plays the animation formats of devices"
Class UpDown control open absent "Use QLVScrollBar: it changes a value by steps too"
  Include UpDown
Class MonthView control open absent "Use QLGrid: show a week in each row"
Class DTPicker control open absent "Use QLTextBox: check the text with IsDate"
  Include DTPicker
Class FlatScrollBar control open absent "Use QLHScrollBar or QLVScrollBar: devices have one look of scroll bars"
Class DataObject open

Library ComCtl3 guid "{38911DA0-E448-11D0-84A3-00DD01104159}" absent "Use the Tavlets that its controls name: devices have no other controls" ' Cool bar
Class CoolBar control open absent "Use QLFrame: devices have no movable bars"

Library MSMask guid "{C932BA88-4374-101B-A56C-00AA003668DC}" absent "Use QLTextBox: check the text in KeyPress and LostFocus" ' Masked edit
Class MaskEdBox control open absent "Use QLTextBox: check the text in KeyPress and LostFocus"

Library TabDlg guid "{BDC217C8-ED16-11CD-956C-0000C04E4C0A}" absent "Use QLTabStrip: show one QLFrame for each tab" ' Tabbed dialog
Class SSTab control open absent "Use QLTabStrip: show one QLFrame for each tab"
  Event Click(PreviousTab As Integer)
  Event DblClick
  Include ValidatedInput
Class DataObject open

Library MSFlexGridLib guid "{5E9E78A0-531B-11CF-91F6-C2863C385E30}" absent "Use QLGrid: most properties have the same names" ' Flex grid
Class MSFlexGrid control open absent "Use QLGrid: most properties have the same names"
  Event Click
  Event Compare(ByVal Row1 As Long, ByVal Row2 As Long, Cmp As Integer)
  Event DblClick
  Event EnterCell
  Event LeaveCell
  Event RowColChange
  Event Scroll
  Event SelChange
  Include ValidatedInput
Class DataObject open

Library MSHierarchicalFlexGridLib guid "{0ECD9B60-23AA-11D0-B351-00A0C9055D8E}" absent "Use QLGrid: fill it from a QLDatabase" ' Hierarchical flex grid
Class MSHFlexGrid control open absent "Use QLGrid: fill it from a QLDatabase"

Library MSDataGridLib guid "{CDE57A40-8B86-11D0-B3C6-00A0C90AEA82}" absent "Use QLGrid: fill it from a QLDatabase" ' Data grid
Class DataGrid control open absent "Use QLGrid: fill it from a QLDatabase"

Library MSDBGrid guid "{00028C01-0000-0000-0000-000000000046}" absent "Use QLGrid: fill it from a QLDatabase" ' Data bound grid
Class DBGrid control open absent "Use QLGrid: fill it from a QLDatabase"

Library MSDataListLib guid "{F0D2F211-CCB0-11D0-A316-00AA00688B10}" absent "Use QLListBox or QLComboBox: fill them from a QLDatabase" ' Data bound lists
Class DataList control open absent "Use QLListBox: fill it from a QLDatabase"
Class DataCombo control open absent "Use QLComboBox: fill it from a QLDatabase"

Library MSDBCtls guid "{FAEEE763-117E-101B-8933-08002B2F4F5A}" absent "Use QLListBox or QLComboBox: fill them from a QLDatabase" ' Data bound lists of version 5
Class DBList control open absent "Use QLListBox: fill it from a QLDatabase"
Class DBCombo control open absent "Use QLComboBox: fill it from a QLDatabase"

Library RichTextLib guid "{3B7C8863-D78F-101B-B9B5-04021C009402}" absent "Use QLTextBox: devices show plain text" ' Rich text box
Class RichTextBox control open absent "Use QLTextBox: devices show plain text"

Library MSComDlg guid "{F9043C88-F6F2-101A-A3C9-08002B2F49FB}" absent "Use a form of the project: devices have no common dialogs" ' Common dialogs
Class CommonDialog control open creatable absent "Use a form with a QLListBox of the Files of a QLFileStore: devices have no common dialogs"

Library MSWinsockLib guid "{248DD890-BB45-11CF-9ABC-0080C7E7B78D}" absent "Use QLNetwork: it connects to a host and a port too" ' Network connections
Class Winsock control open creatable absent "Use QLNetwork: it connects to a host and a port too"

Library InetCtlsObjects guid "{48E59290-9880-11CF-9754-00AA00C00908}" absent "Use QLNetwork: send the request as text" ' Internet transfer
Class Inet control open creatable absent "Use QLNetwork: send the request as text"

Library MSCommLib guid "{648A5603-2C6E-101B-82B6-000000000014}" absent "Use QLSerial: it has the same Settings" ' Serial lines
Class MSComm control open creatable absent "Use QLSerial: it has the same Settings"

Library MCI guid "{C1A8AF28-1257-101B-8FB0-0020AF039CA3}" absent "Use QLSound or QLMovie: devices have no device drivers for media" ' Multimedia
Class MMControl control open absent "Use QLSound or QLMovie: devices have no device drivers for media"

Library PicClip guid "{27395F88-0C0C-101B-A3C9-08002B2F49FB}" absent "Use QLPicture: store each picture in a file of its own" ' Parts of pictures
Class PictureClip control open absent "Use QLPicture: store each picture in a file of its own"

Library MSChart20Lib guid "{65E121D4-0C60-11D2-A9FC-0000F8754DA1}" absent "Use QLPicture: draw the chart with DrawLine and DrawText" ' Charts
Class MSChart control open absent "Use QLPicture: draw the chart with DrawLine and DrawText"

Library MSAdodcLib guid "{67397AA1-7FB1-11D0-B148-00A0C922E820}" absent "Use QLDatabase: devices have no database servers" ' ADO data control
Class Adodc control open absent "Use QLDatabase: devices have no database servers"

Library SysInfoLib guid "{6FBA474E-43AC-11CE-9A0E-00AA0062BB4C}" absent "Use the functions of QLDevice: BatteryPercent, OSVersion and others" ' System information
Class SysInfo control open absent "Use the functions of QLDevice: BatteryPercent, OSVersion and others"

Library MSMAPI guid "{20C62CAE-15DA-101B-B9A8-444553540000}" absent "Remove it: devices have no mail program" ' Mail
Class MAPISession control open absent "Remove it: devices have no mail program"
Class MAPIMessages control open absent "Remove it: devices have no mail program"

Library MSForms guid "{0D452EE1-E08F-101A-852E-02608C4D0BB4}" absent "Use the Tavlets: they replace each of its controls" ' Forms of Office
Class TextBox control open absent "Use QLTextBox: it shows and edits text too"
Class Label control open absent "Use QLLabel: it shows text too"
Class ListBox control open absent "Use QLListBox: it has a list of texts too"
Class ComboBox control open absent "Use QLComboBox: it has a list of texts too"
Class CommandButton control open absent "Use QLButton: it raises Click too"
Class CheckBox control open absent "Use QLCheckBox: its Value is a number"
Class OptionButton control open absent "Use QLRadioButton: its Value is True or False"
Class SpinButton control open absent "Use QLVScrollBar: it changes a value by steps too"
Class ScrollBar control open absent "Use QLHScrollBar or QLVScrollBar: devices have one for each direction"
Class Image control open absent "Use QLPicture: it shows a picture too"
Class Frame control open absent "Use QLFrame: it contains controls too"

Library SHDocVwCtl guid "{EAB22AC0-30C1-11CF-A7EB-0000C05BAE0B}" absent "Remove it: devices have no browser to embed" ' Web browser
Class WebBrowser control open absent "Remove it: devices have no browser to embed"

Library MSACAL guid "{8E27C92E-1264-101C-8A2F-040224009C02}" absent "Use QLGrid: show a week in each row" ' Calendar
Class Calendar control open absent "Use QLGrid: show a week in each row"
)";

} // namespace language
