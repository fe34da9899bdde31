#include "Components/Language/tables/tables.h"

namespace language {

const std::string_view kControlsTable = R"(
Shared StyledButton
  Property DisabledPicture As IPictureDisp
  Property DownPicture As IPictureDisp
  Property MaskColor As OLE_COLOR
  Property Picture As IPictureDisp
  Property Style As Integer readonly
  Property UseMaskColor As Boolean

Class Control open ' Any control
  Property TabIndex As Integer
  Property TabStop As Boolean

Class CommandButton control absent "Use QLButton"
  Event Click
  Include InputEvents MouseEvents Placed Control Seen Enabled Tab Window Colours Font Appearance StyledButton OleDrop
  Property Cancel As Boolean
  Property Caption As String
  Property Default As Boolean
  Property Value As Boolean default

Class Label control absent "Use QLLabel"
  Event Click
  Event Change
  Event DblClick
  Include DragEvents LinkedControlEvents MouseEvents OleEvents
  Include Placed Control Seen Enabled Order Colours Font Appearance Data Link OleDrop
  Property Alignment As AlignmentConstants
  Property AutoSize As Boolean
  Property BackStyle As Integer
  Property BorderStyle As Integer
  Property Caption As String default
  Property UseMnemonic As Boolean
  Property WordWrap As Boolean
  Sub Refresh()

Class TextBox control absent "Use QLTextBox"
  Event Change
  Event Click
  Event DblClick
  Include InputEvents LinkedControlEvents MouseEvents ValidateEvent
  Include Placed Control Seen Enabled Tab Window Colours Font Appearance Data Link OleDrag
  Property Alignment As AlignmentConstants
  Property BorderStyle As Integer
  Property HideSelection As Boolean readonly
  Property Locked As Boolean
  Property MaxLength As Long
  Property MultiLine As Boolean readonly
  Property PasswordChar As String
  Property ScrollBars As Integer readonly
  Property SelLength As Long
  Property SelStart As Long
  Property SelText As String
  Property Text As String default

Class Frame control absent "Use QLFrame"
  Event DragDrop(Source As Control, X As Single, Y As Single)
  Event DragOver(Source As Control, X As Single, Y As Single, State As Integer)
  Event Click
  Event DblClick
  Include MouseEvents OleEvents Placed Control Seen Enabled Order Window Colours Font Appearance OleDrop
  Property BorderStyle As Integer
  Property Caption As String default
  Property ClipControls As Boolean readonly
  Property HelpContextID As Long

Class CheckBox control absent "Use QLCheckBox"
  Event Click
  Include InputEvents MouseEvents ValidateEvent
  Include Placed Control Seen Enabled Tab Window Colours Font Appearance StyledButton Data OleDrop
  Property Alignment As Integer
  Property Caption As String
  Property Value As Integer default

Class OptionButton control absent "Use QLRadioButton"
  Event Click
  Event DblClick
  Include InputEvents MouseEvents ValidateEvent
  Include Placed Control Seen Enabled Tab Window Colours Font Appearance StyledButton OleDrop
  Property Alignment As Integer
  Property Caption As String
  Property Value As Boolean default

Shared Items
  Property ItemData(Index As Integer) As Long
  Property List(Index As Integer) As String
  Property ListCount As Integer readonly
  Property ListIndex As Integer
  Property NewIndex As Integer readonly
  Property Sorted As Boolean readonly
  Property TopIndex As Integer
  Sub AddItem(Item As String, Optional Index)
  Sub Clear()
  Sub RemoveItem(Index As Integer)

Class ComboBox control absent "Use QLComboBox"
  Event Change
  Event Click
  Event DblClick
  Event DropDown
  Event Scroll
  Include InputEvents ValidateEvent
  Include Placed Control Seen Enabled Tab Window Colours Font Appearance Data OleDrag Items
  Property IntegralHeight As Boolean readonly
  Property Locked As Boolean
  Property SelLength As Long
  Property SelStart As Long
  Property SelText As String
  Property Style As Integer readonly
  Property Text As String default

Class ListBox control absent "Use QLListBox"
  Event Click
  Event DblClick
  Event ItemCheck(Item As Integer)
  Event Scroll
  Include InputEvents MouseEvents ValidateEvent
  Include Placed Control Seen Enabled Tab Window Colours Font Appearance Data OleDrag Items
  Property Columns As Integer
  Property IntegralHeight As Boolean readonly
  Property MultiSelect As Integer readonly
  Property SelCount As Integer readonly
  Property Selected(Index As Integer) As Boolean
  Property Style As Integer readonly
  Property Text As String default

Shared Bar
  Event Change
  Event Scroll
  Include DragEvents FocusEvents KeyEvents ValidateEvent Placed Control Shown Dragged Pointer Enabled Tab Window
  Property LargeChange As Integer
  Property Max As Integer
  Property Min As Integer
  Property RightToLeft As Boolean
  Property SmallChange As Integer
  Property ToolTipText As String hidden
  Property Value As Integer default
  Property WhatsThisHelpID As Long
  Sub ShowWhatsThis()

Class HScrollBar control absent "Use QLHScrollBar"
  Include Bar

Class VScrollBar control absent "Use QLVScrollBar"
  Include Bar

Class Timer control absent "Use QLTimer"
  Event Timer
  Property Name As String readonly
  Property Index As Integer readonly
  Property Tag As String
  Property Parent As Object readonly
  Property Left As Single hidden
  Property Top As Single hidden
  Property Enabled As Boolean default
  Property Interval As Long

Class PictureBox control absent "Use QLPicture, or QLInk to draw with the pen"
  Event Click
  Event Change
  Event DblClick
  Event Paint
  Event Resize
  Include InputEvents LinkedControlEvents MouseEvents ValidateEvent
  Include Placed Control Seen Enabled Tab Window Colours Font Appearance Data Link OleDrag Canvas
  Property Align As Integer
  Property AutoSize As Boolean
  Property BorderStyle As Integer
  Property Negotiate As Boolean readonly
  Property Picture As IPictureDisp default

Class Image control absent "Use QLPicture"
  Event Click
  Event DblClick
  Include DragEvents MouseEvents OleEvents Placed Control Seen Enabled Data OleDrag
  Property Appearance As Integer
  Property BorderStyle As Integer
  Property Picture As IPictureDisp default
  Property Stretch As Boolean
  Sub Refresh()

Class Shape control absent "Use QLShape"
  Include Placed Control Shown
  Property BackColor As OLE_COLOR
  Property BackStyle As Integer
  Property BorderColor As OLE_COLOR
  Property BorderStyle As BorderStyleConstants
  Property BorderWidth As Integer
  Property DrawMode As DrawModeConstants
  Property FillColor As OLE_COLOR
  Property FillStyle As FillStyleConstants
  Property Shape As ShapeConstants default
  Sub Refresh()

Class Line control absent "Use QLLine"
  Include Control
  Property BorderColor As OLE_COLOR
  Property BorderStyle As BorderStyleConstants
  Property BorderWidth As Integer
  Property DrawMode As DrawModeConstants
  Property Visible As Boolean default
  Property X1 As Single
  Property X2 As Single
  Property Y1 As Single
  Property Y2 As Single
  Sub Refresh()
  Sub ZOrder(Optional Position)

Class Menu control absent "Use QLMenu"
  Event Click
  Property Name As String readonly
  Property Index As Integer readonly
  Property Tag As String
  Property Parent As Object readonly
  Property Caption As String
  Property Checked As Boolean
  Property Enabled As Boolean default
  Property HelpContextID As Long
  Property NegotiatePosition As Integer readonly
  Property Shortcut As Integer readonly hidden
  Property Visible As Boolean
  Property WindowList As Boolean readonly
)";

} // namespace language
