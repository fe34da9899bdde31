#include "Components/Language/tables/tables.h"

namespace language {

const std::string_view kFilesControlsTable = R"(
Class DriveListBox control absent "Devices have no drives; use QLFileStore"
  Event Change
  Event Scroll
  Include InputEvents ValidateEvent
  Include Placed Control Seen Enabled Tab Window Colours Font Appearance OleDrop
  Property Drive As String default
  Property List(Index As Integer) As String readonly
  Property ListCount As Integer readonly
  Property ListIndex As Integer
  Property TopIndex As Integer

Class DirListBox control absent "Use QLListBox with the Files of a QLFileStore"
  Event Change
  Event Click
  Event Scroll
  Include InputEvents MouseEvents ValidateEvent
  Include Placed Control Seen Enabled Tab Window Colours Font Appearance OleDrag
  Property List(Index As Integer) As String readonly
  Property ListCount As Integer readonly
  Property ListIndex As Integer
  Property Path As String default
  Property TopIndex As Integer

Class FileListBox control absent "Use QLListBox with the Files of a QLFileStore"
  Event Click
  Event DblClick
  Event PathChange
  Event PatternChange
  Event Scroll
  Include InputEvents MouseEvents ValidateEvent
  Include Placed Control Seen Enabled Tab Window Colours Font Appearance OleDrag
  Property Archive As Boolean
  Property FileName As String default
  Property Hidden As Boolean
  Property List(Index As Integer) As String readonly
  Property ListCount As Integer readonly
  Property ListIndex As Integer
  Property MultiSelect As Integer readonly
  Property Normal As Boolean
  Property Path As String
  Property Pattern As String
  Property ReadOnly As Boolean
  Property Selected(Index As Integer) As Boolean
  Property System As Boolean
  Property TopIndex As Integer

Class Data control open absent "Use QLDatabase"
  Event Validate(Action As Integer, Save As Integer)
  Event Error(DataErr As Integer, Response As Integer)
  Event Reposition
  Event Resize
  Include DragEvents MouseEvents OleEvents
  Include Placed Control Seen Enabled Colours Font Appearance OleDrop
  Property Align As Integer
  Property BOFAction As Integer
  Property Caption As String default
  Property Connect As String
  Property Database As Object readonly
  Property DatabaseName As String
  Property DefaultCursorType As Integer
  Property DefaultType As Integer
  Property EditMode As Integer readonly
  Property EOFAction As Integer
  Property Exclusive As Boolean
  Property Options As Integer
  Property ReadOnly As Boolean
  Property Recordset As Object
  Property RecordsetType As Integer
  Property RecordSource As String
  Sub Refresh()
  Sub UpdateControls()
  Sub UpdateRecord()

Class OLE control open absent "Devices have no embedded objects; use QLPicture or QLMovie to show files"
  Event Updated(Code As Integer)
  Event Click
  Event DblClick
  Event ObjectMove(Left As Single, Top As Single, Width As Single, Height As Single)
  Event Resize(HeightNew As Single, WidthNew As Single)
  Include DragEvents FocusEvents KeyEvents MouseEvents ValidateEvent
  Include Placed Control Shown Dragged Pointer Enabled Tab Window
  Property Action As Integer default
  Property AppIsRunning As Boolean
  Property AutoActivate As Integer
  Property AutoVerbMenu As Boolean
  Property BackColor As OLE_COLOR
  Property BackStyle As Integer
  Property BorderStyle As Integer
  Property Class As String
  Property DisplayType As Integer
  Property HostName As String
  Property object As Object readonly
  Property OLEType As Integer readonly
  Property OLETypeAllowed As Integer
  Property Picture As IPictureDisp readonly
  Property SizeMode As Integer
  Property SourceDoc As String
  Property SourceItem As String
  Property UpdateOptions As Integer
  Property Verb As Integer
  Sub Close()
  Sub Copy()
  Sub CreateEmbed(SourceDoc As String, Optional Class)
  Sub CreateLink(SourceDoc As String, Optional SourceItem)
  Sub Delete()
  Sub DoVerb(Optional Verb)
  Sub FetchVerbs()
  Sub InsertObjDlg()
  Sub Paste()
  Sub PasteSpecialDlg()
  Sub ReadFromFile(FileNumber As Integer)
  Sub SaveToFile(FileNumber As Integer)
  Sub SaveToOle1File(FileNumber As Integer)
  Sub Update()
)";

} // namespace language
