#include "Components/Language/tables/tables.h"

namespace language {

const std::string_view kSharedTable = R"(
Library VB ' Forms, the language's own controls, and its objects

Shared Placed
  Property Left As Single ' The distance from the left edge of the container
  Property Top As Single ' The distance from the upper edge of the container
  Property Width As Single
  Property Height As Single
  Sub Move(Left As Single, Optional Top, Optional Width, Optional Height) ' Sets the place and the size

Shared Control
  Property Name As String readonly
  Property Index As Integer readonly ' The number in an array of controls
  Property Tag As String ' A text for the program's own use
  Property Parent As Object readonly ' The form of the control
  Property Container As Object ' What the control is placed in

Shared Order
  Property TabIndex As Integer ' The place in the order of the Tab key

Shared Tab
  Include Order
  Property TabStop As Boolean ' Whether the Tab key stops at the control
  Property CausesValidation As Boolean ' Whether the control that loses the focus is validated
  Property HelpContextID As Long
  Sub SetFocus() ' Moves the focus to the control

Shared Pointer
  Property MouseIcon As IPictureDisp absent "Devices have no mouse pointer; remove it"
  Property MousePointer As MousePointerConstants absent "Devices have no mouse pointer; remove it"

Shared Shown
  Property Visible As Boolean
  Sub ZOrder(Optional Position) ' Moves the control in front of others, or with 1 to the back

Shared Dragged
  Property DragIcon As IPictureDisp
  Property DragMode As DragModeConstants
  Sub Drag(Optional Action)

Shared Seen
  Include Shown Dragged Pointer
  Property ToolTipText As String
  Property WhatsThisHelpID As Long
  Sub ShowWhatsThis()

Shared Enabled
  Property Enabled As Boolean

Shared Window
  Property hWnd As Long readonly absent "Devices have no window handles; use the properties and methods of the control"
  Sub Refresh() ' Draws at once

Shared Colours
  Property BackColor As OLE_COLOR
  Property ForeColor As OLE_COLOR

Shared Font
  Property Font As StdFont
  Property FontBold As Boolean
  Property FontItalic As Boolean
  Property FontName As String
  Property FontSize As Single
  Property FontStrikethru As Boolean
  Property FontUnderline As Boolean

Shared Appearance
  Property Appearance As Integer
  Property RightToLeft As Boolean

Shared Link
  Property LinkItem As String
  Property LinkMode As LinkModeConstants
  Property LinkTimeout As Integer
  Property LinkTopic As String
  Sub LinkExecute(Command As String)
  Sub LinkPoke()
  Sub LinkRequest()
  Sub LinkSend()

Shared Data
  Property DataChanged As Boolean
  Property DataField As String
  Property DataFormat As IUnknown
  Property DataMember As String
  Property DataSource As IUnknown

Shared OleDrop
  Property OLEDropMode As OLEDropConstants absent "Devices have no drag and drop; use the Clipboard"
  Sub OLEDrag() absent "Devices have no drag and drop; use the Clipboard"

Shared OleDrag
  Include OleDrop
  Property OLEDragMode As OLEDragConstants

Shared Scale
  Property CurrentX As Single ' Where the next text or line begins
  Property CurrentY As Single
  Property ScaleHeight As Single ' The inner height in units of the scale
  Property ScaleLeft As Single
  Property ScaleMode As ScaleModeConstants ' The unit of the scale
  Property ScaleTop As Single
  Property ScaleWidth As Single ' The inner width in units of the scale
  Sub Scale(Optional Flags As Integer, Optional X1, Optional Y1, Optional X2, Optional Y2)
  Function ScaleX(Width As Single, Optional FromScale, Optional ToScale) As Single
  Function ScaleY(Height As Single, Optional FromScale, Optional ToScale) As Single
  Function TextHeight(Str As String) As Single ' The height of a text in the current font
  Function TextWidth(Str As String) As Single ' The width of a text in the current font

Shared Drawing
  Include Scale
  Property DrawMode As DrawModeConstants
  Property DrawStyle As DrawStyleConstants
  Property DrawWidth As Integer
  Property FillColor As OLE_COLOR
  Property FillStyle As FillStyleConstants
  Property FontTransparent As Boolean
  Sub Circle(Step As Integer, X As Single, Y As Single, Radius As Single, Color As Long, Start As Single, End As Single, Aspect As Single) ' Draws a circle, an ellipse or a part of one
  Sub Line(Flags As Integer, X1 As Single, Y1 As Single, X2 As Single, Y2 As Single, Color As Long) ' Draws a line or a rectangle
  Sub PaintPicture(Picture As IPictureDisp, X1 As Single, Y1 As Single, Optional Width1, Optional Height1, Optional X2, Optional Y2, Optional Width2, Optional Height2, Optional Opcode) ' Draws a picture or a part of one
  Sub Print(ParamArray Items()) ' Writes texts
  Sub PSet(Step As Integer, X As Single, Y As Single, Color As Long) ' Sets a point

Shared Canvas
  Include Drawing
  Property AutoRedraw As Boolean ' Whether drawings are kept
  Property ClipControls As Boolean
  Property HasDC As Boolean
  Property hDC As Long readonly absent "Devices have no device contexts; use the drawing methods"
  Property Image As IPictureDisp readonly
  Sub Cls() ' Removes drawings and texts
  Function Point(X As Single, Y As Single) As Long ' The colour of a point

Shared OlePalette
  Property Palette As IPictureDisp absent "The palette of devices is fixed; remove it"
  Property PaletteMode As Integer absent "The palette of devices is fixed; remove it"
)";

} // namespace language
