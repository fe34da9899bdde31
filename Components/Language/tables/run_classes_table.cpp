#include "Components/Language/tables/tables.h"

namespace language {

const std::string_view kRunClassesTable = R"(
Library VBRUN ' Constants and objects of forms

Class PropertyBag creatable ' Values of properties, by name
  Property Contents
  Function ReadProperty(Name As String, Optional DefaultValue)
  Sub WriteProperty(Name As String, Value, Optional DefaultValue)

Class DataObject absent "Devices have no drag and drop; use the Clipboard"
  Property Files As DataObjectFiles readonly
  Sub Clear()
  Function GetData(Format As Integer)
  Function GetFormat(Format As Integer) As Boolean
  Sub SetData(Optional Value, Optional Format)

Class DataObjectFiles absent "Devices have no drag and drop; use the Clipboard"
  Property Count As Long readonly
  Property Item(Index As Long) As String default readonly
  Sub Add(FileName As String, Optional Index)
  Sub Clear()
  Sub Remove(Index)
  Function [_NewEnum]() As IUnknown enumerates hidden

Class AsyncProperty absent "Use a QLNetwork to fetch data"
  Property AsyncType As Long readonly
  Property BytesMax As Long readonly
  Property BytesRead As Long readonly
  Property PropertyName As String readonly
  Property Status As String readonly
  Property StatusCode As AsyncStatusCodeConstants readonly
  Property Target As String readonly
  Property Value default readonly

Class AmbientProperties open absent "Devices run Tavlets only; use the properties of the form"
  Property BackColor As OLE_COLOR readonly
  Property DisplayAsDefault As Boolean readonly
  Property DisplayName As String readonly
  Property Font As IFontDisp readonly
  Property ForeColor As OLE_COLOR readonly
  Property LocaleID As Long readonly
  Property MessageReflect As Boolean readonly
  Property Palette As IPictureDisp readonly
  Property RightToLeft As Boolean readonly
  Property ScaleUnits As String readonly
  Property ShowGrabHandles As Boolean readonly
  Property ShowHatching As Boolean readonly
  Property SupportsMnemonics As Boolean readonly
  Property TextAlign As Integer readonly
  Property UIDead As Boolean readonly
  Property UserMode As Boolean readonly

Class Hyperlink absent "Devices have no browser; remove it"
  Sub GoBack()
  Sub GoForward()
  Sub NavigateTo(Target As String, Optional Location, Optional FrameName)

Shared ObjectList
  Property Count As Long readonly
  Function Item(Index) As Object default
  Function [_NewEnum]() As IUnknown enumerates hidden

Class ContainedControls absent "Devices run Tavlets only; use the controls of the form"
  Include ObjectList
Class ParentControls absent "Devices run Tavlets only; use the controls of the form"
  Include ObjectList
  Property ParentControlsType As ParentControlsType
Class SelectedControls absent "Devices run Tavlets only; remove it"
  Include ObjectList

Class Licenses absent "Devices make no licensed controls at run time; place them on the form"
  Property Count As Long readonly
  Function Add(ProgId As String, Optional LicenseKey) As String
  Sub Clear()
  Function Item(Index) As LicenseInfo default
  Sub Remove(Index)
  Function [_NewEnum]() As IUnknown enumerates hidden

Class LicenseInfo absent "Devices make no licensed controls at run time; place them on the form"
  Property LicenseKey As String default
  Property ProgId As String readonly

Class DataMembers absent "Use QLDatabase"
  Property Count As Long readonly
  Sub Add(DataMember As String)
  Sub Clear()
  Function Item(Index As Long) As String default
  Sub Remove(Index)
  Function [_NewEnum]() As IUnknown enumerates hidden

Class EventInfo absent "Controls of devices are placed on forms; use their events"
  Property EventParameters As EventParameters readonly default
  Property Name As String readonly

Class EventParameters absent "Controls of devices are placed on forms; use their events"
  Property Count As Long readonly
  Function Item(Index) As EventParameter default
  Function [_NewEnum]() As IUnknown enumerates hidden

Class EventParameter absent "Controls of devices are placed on forms; use their events"
  Property Name As String readonly
  Property Value default

Class VBControlExtender open absent "Controls of devices are placed on forms; use their own class"
  Property Name As String readonly
  Property Visible As Boolean
  Property object As Object readonly
  Event ObjectEvent(Info As EventInfo)
)";

} // namespace language
