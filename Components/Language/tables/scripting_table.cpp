#include "Components/Language/tables/tables.h"

namespace language {

const std::string_view kScriptingTable = R"(
Library Scripting guid "{420B2830-E718-11CF-893D-00A0C9054228}" ' Dictionaries and files

Class Dictionary creatable ' Items by their keys
  Property CompareMode As CompareMethod ' How keys are compared; set before the first Add
  Property Count As Long readonly
  Property Item(Key) default
  Property Key(Key) writeonly ' Changes a key
  Property HashVal(Key) readonly hidden absent "Remove it: the number has no meaning outside of the Dictionary"
  Sub Add(Key, Item)
  Function Exists(Key) As Boolean
  Function Items()
  Function Keys()
  Sub Remove(Key)
  Sub RemoveAll()
  Function [_NewEnum]() As IUnknown enumerates hidden

Class FileSystemObject creatable ' Files and folders
  Property Drives As Drives readonly absent "Devices have no drives; use the application's folder"
  Function BuildPath(Path As String, Name As String) As String
  Sub CopyFile(Source As String, Destination As String, Optional OverWriteFiles As Boolean = True)
  Sub CopyFolder(Source As String, Destination As String, Optional OverWriteFiles As Boolean = True)
  Function CreateFolder(Path As String) As Folder
  Function CreateTextFile(FileName As String, Optional Overwrite As Boolean = True, Optional Unicode As Boolean = False) As TextStream
  Sub DeleteFile(FileSpec As String, Optional Force As Boolean = False)
  Sub DeleteFolder(FolderSpec As String, Optional Force As Boolean = False)
  Function DriveExists(DriveSpec As String) As Boolean
  Function FileExists(FileSpec As String) As Boolean
  Function FolderExists(FolderSpec As String) As Boolean
  Function GetAbsolutePathName(Path As String) As String
  Function GetBaseName(Path As String) As String
  Function GetDrive(DriveSpec As String) As Drive absent "Devices have no drives; use the application's folder"
  Function GetDriveName(Path As String) As String
  Function GetExtensionName(Path As String) As String
  Function GetFile(FilePath As String) As File
  Function GetFileName(Path As String) As String
  Function GetFileVersion(FileName As String) As String absent "Files of devices have no version; remove it"
  Function GetFolder(FolderPath As String) As Folder
  Function GetParentFolderName(Path As String) As String
  Function GetSpecialFolder(SpecialFolder As SpecialFolderConst) As Folder
  Function GetStandardStream(StandardStreamType As StandardStreamTypes, Optional Unicode As Boolean = False) As TextStream absent "Devices have no standard streams; use a file"
  Function GetTempName() As String
  Sub MoveFile(Source As String, Destination As String)
  Sub MoveFolder(Source As String, Destination As String)
  Function OpenTextFile(FileName As String, Optional IOMode As IOMode = ForReading, Optional Create As Boolean = False, Optional Format As Tristate = TristateFalse) As TextStream

Class TextStream ' An open text file
  Property AtEndOfLine As Boolean readonly
  Property AtEndOfStream As Boolean readonly
  Property Column As Long readonly
  Property Line As Long readonly
  Sub Close()
  Function Read(Characters As Long) As String
  Function ReadAll() As String
  Function ReadLine() As String
  Sub Skip(Characters As Long)
  Sub SkipLine()
  Sub Write(Text As String)
  Sub WriteBlankLines(Lines As Long)
  Sub WriteLine(Optional Text As String)

Shared Entry
  Property Attributes As FileAttribute
  Property DateCreated As Date readonly
  Property DateLastAccessed As Date readonly
  Property DateLastModified As Date readonly
  Property Drive As Drive readonly absent "Devices have no drives; use the application's folder"
  Property Name As String
  Property ParentFolder As Folder readonly
  Property Path As String readonly default
  Property ShortName As String readonly
  Property ShortPath As String readonly
  Property Size readonly
  Property Type As String readonly
  Sub Copy(Destination As String, Optional OverWriteFiles As Boolean = True)
  Sub Delete(Optional Force As Boolean = False)
  Sub Move(Destination As String)

Class File
  Include Entry
  Function OpenAsTextStream(Optional IOMode As IOMode = ForReading, Optional Format As Tristate = TristateFalse) As TextStream

Class Files
  Property Count As Long readonly
  Property Item(Key) As File default readonly
  Function [_NewEnum]() As IUnknown enumerates hidden

Class Folder
  Include Entry
  Property Files As Files readonly
  Property IsRootFolder As Boolean readonly
  Property SubFolders As Folders readonly
  Function CreateTextFile(FileName As String, Optional Overwrite As Boolean = True, Optional Unicode As Boolean = False) As TextStream

Class Folders
  Property Count As Long readonly
  Property Item(Key) As Folder default readonly
  Function Add(Name As String) As Folder
  Function [_NewEnum]() As IUnknown enumerates hidden

Class Drive absent "Devices have no drives; use the application's folder"
  Property AvailableSpace readonly
  Property DriveLetter As String readonly
  Property DriveType As DriveTypeConst readonly
  Property FileSystem As String readonly
  Property FreeSpace readonly
  Property IsReady As Boolean readonly
  Property Path As String readonly default
  Property RootFolder As Folder readonly
  Property SerialNumber As Long readonly
  Property ShareName As String readonly
  Property TotalSize readonly
  Property VolumeName As String

Class Drives absent "Devices have no drives; use the application's folder"
  Property Count As Long readonly
  Property Item(Key) As Drive default readonly
  Function [_NewEnum]() As IUnknown enumerates hidden

Class Encoder creatable absent "Devices have no script encoder; remove it"
  Function EncodeScriptFile(SzExt As String, BstrStreamIn As String, CFlags As Long, BstrDefaultLang As String) As String

Enum CompareMethod
  BinaryCompare = 0
  TextCompare = 1
  DatabaseCompare = 2

Enum IOMode
  ForReading = 1
  ForWriting = 2
  ForAppending = 8

Enum Tristate
  TristateUseDefault = -2
  TristateMixed = -2
  TristateTrue = -1
  TristateFalse = 0

Enum FileAttribute
  Normal = 0
  ReadOnly = 1
  Hidden = 2
  System = 4
  Volume = 8
  Directory = 16
  Archive = 32
  Alias = 1024
  Compressed = 2048

Enum SpecialFolderConst
  WindowsFolder = 0
  SystemFolder = 1
  TemporaryFolder = 2

Enum DriveTypeConst
  UnknownType = 0
  Removable = 1
  Fixed = 2
  Remote = 3
  CDRom = 4
  RamDisk = 5

Enum StandardStreamTypes
  StdIn = 0
  StdOut = 1
  StdErr = 2
)";

} // namespace language
