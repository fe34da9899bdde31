#include "Components/Language/tables/tables.h"

namespace language {

const std::string_view kPictureTable = R"(
Library stdole ' Fonts and pictures

Enum OLE_COLOR ' &HBBGGRR, or a system colour
Enum OLE_HANDLE
Enum OLE_CANCELBOOL
Enum OLE_TRISTATE
  Unchecked = 0
  Checked = 1
  Gray = 2
Enum OLE_ENABLEDEFAULTBOOL

Enum LoadPictureConstants
  Default = 0
  Monochrome = 1
  VgaColor = 2
  Color = 4

Class IUnknown open
Class IDispatch open
Class IEnumVARIANT open

Shared Font
  Property Name As String default
  Property Size As Currency
  Property Bold As Boolean
  Property Italic As Boolean
  Property Underline As Boolean
  Property Strikethrough As Boolean
  Property Weight As Integer
  Property Charset As Integer

Class StdFont creatable
  Include Font
  Event FontChanged(ByVal PropertyName As String)
Class IFontDisp
  Include Font
Class IFont
  Include Font
  Property hFont As OLE_HANDLE readonly absent "Devices have no handles; use the font's name and size"
  Sub Clone(ppfont As IFont) absent "Devices have one kind of font; create a StdFont and set its properties"
  Sub IsEqual(pfontOther As IFont) absent "Devices have one kind of font; compare the properties"
  Sub SetRatio(cyLogical As Long, cyHimetric As Long) absent "Devices have no device contexts; set Size"
  Sub AddRefHfont(hFont As OLE_HANDLE) absent "Devices have no handles; remove it"
  Sub ReleaseHfont(hFont As OLE_HANDLE) absent "Devices have no handles; remove it"
Class Font
  Include Font

Shared Picture
  Property Handle As OLE_HANDLE readonly default absent "Devices have no handles; compare the object with Nothing"
  Property Height As Long readonly ' In hundredths of a millimetre
  Property Width As Long readonly ' In hundredths of a millimetre
  Property hPal As OLE_HANDLE absent "Devices have no handles; remove it"
  Property Type As Integer readonly
  Sub Render(hDC As Long, X As Long, Y As Long, CX As Long, CY As Long, XSrc As Long, YSrc As Long, CXSrc As Long, CYSrc As Long, WBounds As Any) absent "Devices have no device contexts; use PaintPicture"

Class StdPicture creatable
  Include Picture
Class IPictureDisp
  Include Picture
Class IPicture
  Include Picture
  Property CurDC As Long readonly absent "Devices have no device contexts; use PaintPicture"
  Property KeepOriginalFormat As Boolean absent "Devices keep one format; remove it"
  Property Attributes As Long readonly absent "Devices have no metafiles; remove it"
  Sub SelectPicture(hDCIn As Long, phDCOut As Long, phbmpOut As OLE_HANDLE) absent "Devices have no device contexts; use PaintPicture"
  Sub PictureChanged() absent "Devices draw pictures again; call Refresh"
  Sub SaveAsFile(pstm As Object, fSaveMemCopy As Boolean, pcbSize As Long) absent "Devices have no streams; use SavePicture"
  Sub SetHdc(hDC As OLE_HANDLE) absent "Devices have no device contexts; use PaintPicture"
Class Picture
  Include Picture
)";

} // namespace language
