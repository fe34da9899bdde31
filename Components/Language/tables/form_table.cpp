#include "Components/Language/tables/tables.h"

namespace language {

const std::string_view kFormTable = R"(
Shared FormCommon
  Property Name As String readonly
  Property Caption As String ' The text of the title bar
  Property Tag As String ' A text for the program's own use
  Property ActiveControl As Control readonly ' The control with the focus
  Property Controls As Object readonly default ' All controls of the form
  Property Count As Integer readonly hidden ' The number of controls
  Property Icon As IPictureDisp
  Property Visible As Boolean
  Property HelpContextID As Long
  Property LinkMode As LinkModeConstants absent "Devices have no dynamic data exchange; use a QLNetwork"
  Property LinkTopic As String absent "Devices have no dynamic data exchange; use a QLNetwork"
  Property Moveable As Boolean absent "Forms fill the screen of a device; remove it"
  Property WhatsThisHelp As Boolean absent "Devices have no help files; show a form with the text"
  Property WindowState As FormWindowStateConstants absent "Forms fill the screen of a device; remove it"
  Property StartUpPosition As StartUpPositionConstants
  Sub Hide() ' Takes the form off the screen and keeps it loaded
  Sub PopupMenu(Menu As Object, Optional Flags, Optional X, Optional Y, Optional DefaultMenu) absent "Use Popup of a QLMenu"
  Sub PrintForm() absent "Devices have no printer; send the data with a QLSerial, QLInfrared or QLNetwork"
  Sub SetFocus() ' Makes the form the active one
  Sub Show(Optional Modal, Optional OwnerForm) ' Shows the form and loads it if necessary
  Sub WhatsThisMode() absent "Devices have no help files; show a form with the text"
  Sub ValidateControls() absent "Check the values in LostFocus of the controls" ' Validates the control that has the focus
  Sub ZOrder(Optional Position)
  Include Pointer Appearance OleDrop

Shared FormEvents
  Event Load ' The form is loaded
  Event Activate ' The form becomes the active one
  Event Deactivate ' Another form becomes the active one
  Event Initialize
  Event QueryUnload(Cancel As Integer, UnloadMode As Integer) ' The form is asked whether it may close
  Event Resize
  Event Terminate
  Event Unload(Cancel As Integer) ' The form closes
  Event Click
  Event DblClick absent "Use Click and a QLTimer"
  Event LinkExecute(CmdStr As String, Cancel As Integer) absent "Devices have no dynamic data exchange; use a QLNetwork"
  Include LinkEvents DragEvents MouseEvents OleEvents

Class Form open ' A window of the program
  Include FormEvents FocusEvents KeyEvents
  Event Paint absent "Use Activate"
  Include FormCommon Placed Enabled Window Colours Font Canvas OlePalette
  Property BorderStyle As Integer
  Property ControlBox As Boolean readonly
  Property KeyPreview As Boolean ' Whether the form receives keys before its controls
  Property MaxButton As Boolean readonly
  Property MDIChild As Boolean readonly absent "Devices show one form at a time; use Show and Hide"
  Property MinButton As Boolean readonly
  Property NegotiateMenus As Boolean readonly absent "Use a QLMenu"
  Property Picture As IPictureDisp absent "Put a QLPicture on the form"
  Property ShowInTaskbar As Boolean readonly absent "Devices have no task bar; remove it"
  Property WhatsThisButton As Boolean readonly absent "Devices have no help files; show a form with the text"
  Property LockControls As Boolean readonly hidden

Class MDIForm open absent "Devices show one form at a time; use forms with Show and Hide"
  Include FormEvents FormCommon Placed Enabled
  Property hWnd As Long readonly
  Property ActiveForm As Object readonly
  Property AutoShowChildren As Boolean
  Property BackColor As OLE_COLOR
  Property NegotiateToolbars As Boolean readonly
  Property Picture As IPictureDisp
  Property ScaleHeight As Single readonly
  Property ScaleWidth As Single readonly
  Property ScrollBars As Boolean
  Sub Arrange(Arrangement As FormArrangeConstants)

Shared DesignerCommon
  Property Name As String readonly
  Property Tag As String
  Property ActiveControl As Control readonly
  Property Controls As Object readonly default
  Property Count As Integer readonly hidden
  Property HelpContextID As Long
  Property KeyPreview As Boolean
  Property Picture As IPictureDisp
  Property Width As Single
  Property Height As Single
  Sub PopupMenu(Menu As Object, Optional Flags, Optional X, Optional Y, Optional DefaultMenu)
  Sub SetFocus()
  Include Pointer Appearance OleDrop Window Colours Font Canvas OlePalette

Shared BagEvents
  Event InitProperties
  Event ReadProperties(PropBag As PropertyBag)
  Event WriteProperties(PropBag As PropertyBag)

Shared AsyncEvents
  Event AsyncReadComplete(AsyncProp As AsyncProperty)
  Event AsyncReadProgress(AsyncProp As AsyncProperty)

Shared AsyncMembers
  Property ContainedControls As ContainedControls readonly
  Property ContinuousScroll As Boolean
  Property Hyperlink As Hyperlink readonly
  Property Parent As Object readonly
  Sub AsyncRead(Target As String, AsyncType As Long, Optional PropertyName, Optional AsyncReadOptions)
  Sub CancelAsyncRead(Optional Property)
  Sub PropertyChanged(Optional PropertyName)

Class UserControl open absent "Devices run Tavlets only; place the controls on the form and move the code to a module"
  Event Initialize
  Event AccessKeyPress(KeyAscii As Integer)
  Event AmbientChanged(PropertyName As String)
  Event Click
  Event DblClick
  Event EnterFocus
  Event ExitFocus
  Event GetDataMember(DataMember As String, Data As Object)
  Event Hide
  Event HitTest(X As Single, Y As Single, HitResult As Integer)
  Event Paint
  Event Resize
  Event Show
  Event Terminate
  Include AsyncEvents BagEvents InputEvents MouseEvents DesignerCommon Enabled AsyncMembers
  Property AccessKeys As String
  Property Ambient As AmbientProperties readonly
  Property BackStyle As Integer
  Property BorderStyle As Integer
  Property CanGetFocus As Boolean readonly
  Property ClipBehavior As Integer
  Property DefaultCancel As Boolean readonly
  Property EditAtDesignTime As Boolean readonly
  Property EventsFrozen As Boolean readonly
  Property Extender As Object readonly
  Property ForwardFocus As Boolean readonly
  Property HitBehavior As Integer
  Property InvisibleAtRuntime As Boolean readonly
  Property MaskColor As OLE_COLOR
  Property MaskPicture As IPictureDisp
  Property ParentControls As ParentControls readonly
  Property Public As Boolean readonly
  Property ToolboxBitmap As IPictureDisp readonly
  Property Windowless As Boolean readonly
  Property Alignable As Boolean readonly
  Property ControlContainer As Boolean readonly
  Function CanPropertyChange(PropertyName As String) As Boolean
  Sub DataMemberChanged(DataMember As String)
  Sub Size(Width As Single, Height As Single)

Class PropertyPage open absent "Devices run Tavlets only; remove the page"
  Event Initialize
  Event ApplyChanges
  Event Click
  Event DblClick
  Event EditProperty(PropertyName As String)
  Event Paint
  Event Resize
  Event SelectionChanged
  Event Terminate
  Include InputEvents MouseEvents DesignerCommon
  Property Caption As String
  Property Left As Single readonly
  Property Top As Single readonly
  Property Changed As Boolean
  Property SelectedControls As SelectedControls readonly
  Property StandardSize As Integer readonly

Class UserDocument open absent "Devices have no browser to show the document; use a form"
  Event Initialize
  Event Click
  Event DblClick
  Event EnterFocus
  Event ExitFocus
  Event Hide
  Event Paint
  Event Resize
  Event Scroll
  Event Show
  Event Terminate
  Include AsyncEvents BagEvents InputEvents MouseEvents DesignerCommon AsyncMembers
  Property Left As Single readonly
  Property Top As Single readonly
  Property HScrollSmallChange As Single
  Property VScrollSmallChange As Single
  Property MinHeight As Single
  Property MinWidth As Single
  Property ScrollBars As Integer
  Property ViewportHeight As Single readonly
  Property ViewportLeft As Single readonly
  Property ViewportTop As Single readonly
  Property ViewportWidth As Single readonly
  Sub SetViewport(Left As Single, Top As Single)

Class Class ' What a class module handles
  Event Initialize
  Event Terminate
)";

} // namespace language
