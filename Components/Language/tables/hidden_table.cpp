#include "Components/Language/tables/tables.h"

namespace language {

const std::string_view kHiddenTable = R"(
Module [_HiddenModule]
  Function Array(ParamArray ArgList()) pure ' A Variant with an array of these values
  Function Input(Number As Long, FileNumber As Integer) ' Characters from a file
  Function Input$(Number As Long, FileNumber As Integer) As String ' Characters from a file
  Function InputB(Number As Long, FileNumber As Integer) ' Bytes from a file
  Function InputB$(Number As Long, FileNumber As Integer) As String ' Bytes from a file
  Property Debug As DebugObject readonly ' The immediate window
  Function ObjPtr(Ptr As Object) As Long hidden ' A number that identifies an object
  Function Spc(Count As Integer) hidden ' Blanks in Print
  Function StrPtr(Ptr As String) As Long hidden ' A number that identifies a text; 0 for vbNullString
  Function Tab(Optional Column As Integer) hidden ' A column in Print
  Function VarPtr(Ptr As Any) As Long hidden ' A number that identifies a variable
  Sub Width(FileNumber As Integer, Width As Integer) hidden ' The longest line of a file
)";

} // namespace language
