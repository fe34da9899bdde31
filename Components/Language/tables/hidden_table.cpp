#include "Components/Language/tables/tables.h"

namespace language {

const std::string_view kHiddenTable = R"(
Module [_HiddenModule]
  Function Array(ParamArray ArgList()) pure ' A Variant with an array of these values
  Function Input(Number As Long, FileNumber As Integer) ' Characters from a file
  Function Input$(Number As Long, FileNumber As Integer) As String ' Characters from a file
  Function InputB(Number As Long, FileNumber As Integer) ' Bytes from a file
  Function InputB$(Number As Long, FileNumber As Integer) As String ' Bytes from a file
  Function ObjPtr(Ptr As Unknown) As Long hidden ' A number that identifies an object
  Function StrPtr(Ptr As String) As Long hidden ' A number that identifies a text; 0 for vbNullString
  Function VarPtr(Ptr As Any) As Long hidden ' A number that identifies a variable
  Property Debug As Debug readonly hidden ' The output of a program that is being tested
  Sub Width(FileNumber As Integer, Width As Integer) hidden ' The longest line of a file

Class Debug
  Sub Assert(BooleanCheck As Boolean) ' Stops where the value is False
  Sub Print(ParamArray OutputList()) ' Writes a line
)";

} // namespace language
