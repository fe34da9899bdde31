#include "Components/Language/tables/tables.h"

namespace language {

const std::string_view kInformationTable = R"(
Module Information
  Function Erl() As Long ' The number of the last numbered line before the error
  Function Err() As ErrObject ' The last error
  Function IMEStatus() As VbIMEStatus absent "Devices have no input method editor" ' The state of the input method
  Function IsArray(VarName) As Boolean pure ' Whether a variable is an array
  Function IsDate(Expression) As Boolean pure ' Whether a value can be converted to a date
  Function IsEmpty(Expression) As Boolean pure ' Whether a Variant has no value yet
  Function IsError(Expression) As Boolean pure ' Whether a Variant is an error number
  Function IsMissing(ArgName) As Boolean pure ' Whether an optional Variant argument was left out
  Function IsNull(Expression) As Boolean pure ' Whether a value is Null
  Function IsNumeric(Expression) As Boolean pure ' Whether a value can be converted to a number
  Function IsObject(Expression) As Boolean pure ' Whether a variable is an object variable
  Function LBound(ArrayName, Optional Dimension As Long = 1) As Long pure ' The lowest index of an array
  Function QBColor(Color As Integer) As Long pure ' The colour of a number from 0 to 15
  Function RGB(Red As Integer, Green As Integer, Blue As Integer) As Long pure ' The colour with these parts of red, green and blue
  Function TypeName(VarName) As String pure ' The name of a value's type
  Function UBound(ArrayName, Optional Dimension As Long = 1) As Long pure ' The highest index of an array
  Function VarType(VarName) As VbVarType pure ' The number of a value's type
)";

} // namespace language
