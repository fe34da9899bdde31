#include "Components/Language/tables/tables.h"

namespace language {

const std::string_view kFilesTable = R"(
Module FileSystem
  Sub ChDir(Path As String) ' Changes the current folder
  Sub ChDrive(Drive As String) ' Changes the current drive
  Function CurDir(Optional Drive) ' The current folder
  Function CurDir$(Optional Drive) As String ' The current folder
  Function Dir(Optional PathName, Optional Attributes As VbFileAttribute = vbNormal) As String ' The first, or without arguments the next, file name that fits a pattern
  Function Dir$(Optional PathName, Optional Attributes As VbFileAttribute = vbNormal) As String ' The first, or without arguments the next, file name that fits a pattern
  Function EOF(FileNumber As Integer) As Boolean ' Whether the end of a file is reached
  Function FileAttr(FileNumber As Integer, Optional ReturnType As Integer = 1) As Long ' How a file was opened
  Sub FileCopy(Source As String, Destination As String) ' Copies a file
  Function FileDateTime(PathName As String) ' When a file was last changed
  Function FileLen(PathName As String) As Long ' The size of a file in bytes
  Function FreeFile(Optional RangeNumber) As Integer ' A file number that is not in use
  Function GetAttr(PathName As String) As VbFileAttribute ' The attributes of a file
  Sub Kill(PathName) ' Deletes files
  Function Loc(FileNumber As Integer) As Long ' The place in an open file
  Function LOF(FileNumber As Integer) As Long ' The size of an open file in bytes
  Sub MkDir(Path As String) ' Makes a folder
  Sub Reset() ' Closes all files
  Sub RmDir(Path As String) ' Removes an empty folder
  Function Seek(FileNumber As Integer) As Long ' The place in an open file that is read or written next
  Sub SetAttr(PathName As String, Attributes As VbFileAttribute) ' Sets the attributes of a file
)";

} // namespace language
