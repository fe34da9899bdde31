#include "Components/Language/tables/tables.h"

namespace language {

const std::string_view kForeignTable = R"(
Library ADODB guid "{00000200-0000-0010-8000-00AA006D2EA4}" guid "{00000201-0000-0010-8000-00AA006D2EA4}" guid "{00000205-0000-0010-8000-00AA006D2EA4}" guid "{00000206-0000-0010-8000-00AA006D2EA4}" guid "{EF53050B-882E-4776-B643-EDA472E8E3F2}" guid "{2A75196C-D9EB-4129-B803-931327F72D5C}" absent "Use QLDatabase: the data of a device are in its own files" ' Microsoft ActiveX Data Objects
Library ADOR guid "{00000300-0000-0010-8000-00AA006D2EA4}" absent "Use QLDatabase: the data of a device are in its own files" ' Microsoft ActiveX Data Objects Recordset
Library DAO guid "{00025E01-0000-0000-C000-000000000046}" guid "{00025E04-0000-0000-C000-000000000046}" guid "{4AC9E1DA-5BAD-4AC7-86E3-24F4CDCECA28}" absent "Use QLDatabase: the data of a device are in its own files" ' Microsoft Data Access Objects
Library JRO guid "{AC3B8B4C-B6CA-11D1-9F31-00C04FC29D52}" absent "Use QLDatabase: devices do not replicate" ' Microsoft Jet and Replication Objects
Library MSDataSource guid "{7C0FFAB0-CD84-11D0-949A-00A0C91110ED}" absent "Use QLDatabase: fill the controls in code" ' Data sources
Library MSBind guid "{56BF9020-7A2F-11D0-9482-00A0C91110ED}" absent "Use QLDatabase: fill the controls in code" ' Data binding
Library StdFormat guid "{6B263850-900B-11D0-9484-00A0C91110ED}" absent "Use Format: controls of devices show texts" ' Formats of bound data
Library SQLDMO guid "{10010001-E260-11CF-AE68-00AA004A34D5}" absent "Use QLDatabase: devices have no database servers" ' SQL Server management
Library MSXML2 guid "{F5078F18-C551-11D3-89B9-0000F81FE221}" guid "{F5078F18-C551-11D3-89B9-0000F81FE222}" absent "Use QLFileStore: read the text and take it apart with InStr and Mid" ' Microsoft XML
Library MSXML guid "{D63E0CE2-A0A2-11D0-9C02-00C04FC99C8E}" absent "Use QLFileStore: read the text and take it apart with InStr and Mid" ' Microsoft XML, version 1
Library VBScript_RegExp_55 guid "{3F4DACA7-160D-11D2-A8E9-00104B365C9F}" absent "Use Like and InStr: devices have no regular expressions" ' Regular expressions
Library MSScriptControl guid "{0E59F1D2-1FBE-11D0-8FF2-00A0D10038BC}" absent "Use procedures of the project: devices run compiled code only" ' Script control
Library IWshRuntimeLibrary guid "{F935DC20-1CF0-11D0-ADB9-00C04FD58A0B}" absent "Remove it: devices have no shell" ' Windows Script Host
Library Shell32 guid "{50A7E9B0-70EF-11D1-B75A-00A0C90564FE}" absent "Use QLFileStore: devices have no shell" ' Windows shell
Library Excel guid "{00020813-0000-0000-C000-000000000046}" absent "Write a text file with Print #: devices start no other programs" ' Microsoft Excel
Library Word guid "{00020905-0000-0000-C000-000000000046}" absent "Write a text file with Print #: devices start no other programs" ' Microsoft Word
Library Outlook guid "{00062FFF-0000-0000-C000-000000000046}" absent "Remove it: devices start no other programs" ' Microsoft Outlook
Library Access guid "{4AFFC9A0-5F99-101B-AF4E-00AA003F0F07}" absent "Use QLDatabase: devices start no other programs" ' Microsoft Access
Library Office guid "{2DF8D04C-5BFA-101B-BDE5-00AA0044DE52}" absent "Use the Tavlets: devices have no Office" ' Microsoft Office
Library CDO guid "{CD000000-8B95-11D1-82DB-00C04FB1625D}" absent "Use QLNetwork: devices have no mail program" ' Collaboration data objects
Library SHDocVw absent "Remove it: devices have no browser to embed" ' Microsoft Internet Controls
Library MSHTML guid "{3050F1C5-98B5-11CF-BB82-00AA00BDCE0B}" absent "Remove it: devices have no browser to embed" ' HTML objects
Library WinHttp guid "{662901FC-6951-4854-9EB2-D9A2570F2B2E}" absent "Use QLNetwork: send the request as text" ' Web requests
Library DxVBLib guid "{E1211242-8E94-11D1-8808-00C04FC2C602}" absent "Use QLPicture and QLSound: devices have no DirectX" ' DirectX 7
Library DxVBLibA guid "{E1211242-8E94-11D1-8808-00C04FC2C603}" absent "Use QLPicture and QLSound: devices have no DirectX" ' DirectX 8
Library QuartzTypeLib guid "{56A868B0-0AD4-11CE-B03A-0020AF0BA770}" absent "Use QLMovie: devices have no DirectShow" ' Media player
Library MSDataReportRuntimeLib guid "{642AC760-AAB4-11D0-8494-00A0C90DC8A9}" absent "Remove it: devices have no printer" ' Data reports
Library MSDERuntimeLib guid "{3D5C6BF0-69A3-11D0-B393-00A0C9055D8E}" absent "Use QLDatabase: fill the controls in code" ' Data environments
Library VBIDE guid "{EF404E00-EDA6-101A-8DAF-00DD010F7EBB}" guid "{0002E157-0000-0000-C000-000000000046}" absent "Remove it: the development environment is not on the device" ' Extensibility of Visual Basic
Library COMSVCSLib guid "{2A005C00-A5DE-11CF-9E66-00AA00A3F464}" absent "Remove it: devices have no component services" ' Component services
Library ActiveDs guid "{97D25DB0-0363-11CF-ABC4-02608C9E7553}" absent "Remove it: devices have no directory service" ' Active directory
)";

} // namespace language
