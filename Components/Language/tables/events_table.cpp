#include "Components/Language/tables/tables.h"

namespace language {

const std::string_view kEventsTable = R"(
Shared DragEvents
  Event DragDrop(Source As Control, X As Single, Y As Single) absent "Devices have no drag and drop; use Click"
  Event DragOver(Source As Control, X As Single, Y As Single, State As Integer) absent "Devices have no drag and drop; use Click"

Shared FocusEvents
  Event GotFocus absent "Use Activate"
  Event LostFocus absent "Use Deactivate"

Shared KeyEvents
  Event KeyDown(KeyCode As Integer, Shift As Integer)
  Event KeyPress(KeyAscii As Integer)
  Event KeyUp(KeyCode As Integer, Shift As Integer)

Shared MouseEvents
  Event MouseDown(Button As Integer, Shift As Integer, X As Single, Y As Single) absent "Use Click, or MouseDown of a QLPicture"
  Event MouseMove(Button As Integer, Shift As Integer, X As Single, Y As Single) absent "Use MouseMove of a QLPicture"
  Event MouseUp(Button As Integer, Shift As Integer, X As Single, Y As Single) absent "Use Click"

Shared OleEvents
  Event OLECompleteDrag(Effect As Long) absent "Devices have no drag and drop; use the Clipboard"
  Event OLEDragDrop(Data As DataObject, Effect As Long, Button As Integer, Shift As Integer, X As Single, Y As Single) absent "Devices have no drag and drop; use the Clipboard"
  Event OLEDragOver(Data As DataObject, Effect As Long, Button As Integer, Shift As Integer, X As Single, Y As Single, State As Integer) absent "Devices have no drag and drop; use the Clipboard"
  Event OLEGiveFeedback(Effect As Long, DefaultCursors As Boolean) absent "Devices have no drag and drop; use the Clipboard"
  Event OLESetData(Data As DataObject, DataFormat As Integer) absent "Devices have no drag and drop; use the Clipboard"
  Event OLEStartDrag(Data As DataObject, AllowedEffects As Long) absent "Devices have no drag and drop; use the Clipboard"

Shared LinkEvents
  Event LinkClose absent "Devices have no dynamic data exchange; use a QLNetwork"
  Event LinkError(LinkErr As Integer) absent "Devices have no dynamic data exchange; use a QLNetwork"
  Event LinkOpen(Cancel As Integer) absent "Devices have no dynamic data exchange; use a QLNetwork"

Shared LinkedControlEvents
  Include LinkEvents
  Event LinkNotify

Shared InputEvents
  Include DragEvents FocusEvents KeyEvents OleEvents

Shared ValidateEvent
  Event Validate(Cancel As Boolean)
)";

} // namespace language
