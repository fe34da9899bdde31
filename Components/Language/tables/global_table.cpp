#include "Components/Language/tables/tables.h"

namespace language {

const std::string_view kGlobalTable = R"(
Class Global global
  Property App As App readonly ' The program
  Property Clipboard As Clipboard readonly ' What was copied
  Property Forms As Forms readonly ' All loaded forms
  Property Licenses As Licenses readonly absent "Devices make no licensed controls at run time; place them on the form"
  Property Printer As Printer absent "Devices have no printer; send the data with a QLSerial, QLInfrared or QLNetwork"
  Property Printers As Printers readonly absent "Devices have no printer; send the data with a QLSerial, QLInfrared or QLNetwork"
  Property Screen As Screen readonly ' The screen
  Sub Load(Object As Object) ' Loads a form or a control of an array
  Function LoadPicture(Optional FileName, Optional Size, Optional ColorDepth, Optional X, Optional Y) As IPictureDisp ' Reads a picture from a file
  Function LoadResData(ID, Type) ' Data of the resource file
  Function LoadResPicture(ID, ResType As Integer) As IPictureDisp ' A picture of the resource file
  Function LoadResString(ID As Long) As String ' A text of the resource file
  Sub SavePicture(Picture As IPictureDisp, FileName As String) ' Writes a picture to a file
  Sub Unload(Object As Object) ' Closes a form or removes a control of an array

Class App
  Property Comments As String readonly
  Property CompanyName As String readonly
  Property EXEName As String readonly ' The name of the program's file, without its extension
  Property FileDescription As String readonly
  Property HelpFile As String absent "Devices have no help files; show a form with the text"
  Property hInstance As Long readonly absent "Devices have no handles; remove it"
  Property LegalCopyright As String readonly
  Property LegalTrademarks As String readonly
  Property LogMode As LogModeConstants readonly absent "Errors are logged in the application's folder; remove it"
  Property LogPath As String readonly absent "Errors are logged in the application's folder; remove it"
  Property Major As Integer readonly ' The first number of the version
  Property Minor As Integer readonly ' The second number of the version
  Property NonModalAllowed As Boolean readonly
  Property OLERequestPendingMsgText As String absent "Devices start no other programs; remove it"
  Property OLERequestPendingMsgTitle As String absent "Devices start no other programs; remove it"
  Property OLERequestPendingTimeout As Long absent "Devices start no other programs; remove it"
  Property OLEServerBusyMsgText As String absent "Devices start no other programs; remove it"
  Property OLEServerBusyMsgTitle As String absent "Devices start no other programs; remove it"
  Property OLEServerBusyRaiseError As Boolean absent "Devices start no other programs; remove it"
  Property OLEServerBusyTimeout As Long absent "Devices start no other programs; remove it"
  Property Path As String readonly ' The folder of the program
  Property PrevInstance As Boolean readonly ' Whether the program was already running
  Property ProductName As String readonly
  Property RetainedProject As Boolean readonly
  Property Revision As Integer readonly ' The third number of the version
  Property StartMode As ApplicationStartConstants readonly
  Property TaskVisible As Boolean absent "Devices have no task list; remove it"
  Property ThreadID As Long readonly absent "Devices run programs in one thread; remove it"
  Property Title As String
  Property UnattendedApp As Boolean readonly
  Sub LogEvent(LogBuffer As String, Optional EventType) absent "Write to a file with Print #"
  Sub StartLogging(LogTarget As String, LogModes As Long) absent "Write to a file with Print #"

Class Screen
  Property ActiveControl As Control readonly ' The control with the focus
  Property ActiveForm As Object readonly ' The form in front
  Property FontCount As Integer readonly
  Property Fonts(Index As Integer) As String readonly
  Property Height As Single readonly ' The height in twips
  Property MouseIcon As IPictureDisp absent "Devices have no mouse pointer; remove it"
  Property MousePointer As MousePointerConstants absent "Devices have no mouse pointer; remove it"
  Property TwipsPerPixelX As Single readonly
  Property TwipsPerPixelY As Single readonly
  Property Width As Single readonly ' The width in twips

Class Clipboard
  Sub Clear()
  Function GetData(Optional Format) As IPictureDisp
  Function GetFormat(Format As Integer) As Boolean
  Function GetText(Optional Format) As String
  Sub SetData(Picture As IPictureDisp, Optional Format)
  Sub SetText(Str As String, Optional Format)

Class Forms
  Property Count As Integer readonly
  Function Add(FormName As String) As Object
  Function Item(Index) As Form default
  Function [_NewEnum]() As IUnknown enumerates hidden

Class Controls
  Property Count As Integer readonly
  Function Add(ProgID As String, Name As String, Optional Container) As Control absent "Load a control of an array instead"
  Function Item(Index) As Control default
  Sub Remove(Name) absent "Unload a control of an array instead"
  Function [_NewEnum]() As IUnknown enumerates hidden

Class ControlArray ' The controls of a form that share a name
  Property Count As Integer readonly
  Property LBound As Integer readonly ' The lowest index
  Property UBound As Integer readonly ' The highest index
  Function Item(Index As Integer) As Control default
  Function [_NewEnum]() As IUnknown enumerates hidden

Class Printers absent "Devices have no printer; send the data with a QLSerial, QLInfrared or QLNetwork"
  Property Count As Integer readonly
  Function Item(Index As Long) As Printer default
  Function [_NewEnum]() As IUnknown enumerates hidden

Class Printer absent "Devices have no printer; send the data with a QLSerial, QLInfrared or QLNetwork"
  Include Drawing Font
  Property ColorMode As Integer
  Property Copies As Integer
  Property DeviceName As String readonly
  Property DriverName As String readonly
  Property Duplex As Integer
  Property FontCount As Integer readonly
  Property Fonts(Index As Integer) As String readonly
  Property ForeColor As OLE_COLOR
  Property hDC As Long readonly
  Property Height As Long
  Property Orientation As Integer
  Property Page As Integer readonly
  Property PaperBin As Integer
  Property PaperSize As Integer
  Property Port As String readonly
  Property PrintQuality As Integer
  Property RightToLeft As Boolean
  Property TrackDefault As Boolean
  Property TwipsPerPixelX As Single readonly
  Property TwipsPerPixelY As Single readonly
  Property Width As Long
  Property Zoom As Long
  Sub EndDoc()
  Sub KillDoc()
  Sub NewPage()
)";

} // namespace language
