#include "Components/Language/tables/tables.h"

namespace language {

const std::string_view kConversionTable = R"(
Module Conversion
  Function CBool(Expression) As Boolean pure ' Converts to Boolean
  Function CByte(Expression) As Byte pure ' Converts to Byte
  Function CCur(Expression) As Currency pure ' Converts to Currency
  Function CDate(Expression) As Date pure ' Converts to Date
  Function CDbl(Expression) As Double pure ' Converts to Double
  Function CDec(Expression) pure ' Converts to a Variant with a Decimal
  Function CInt(Expression) As Integer pure ' Converts to Integer; halves are rounded to even
  Function CLng(Expression) As Long pure ' Converts to Long; halves are rounded to even
  Function CSng(Expression) As Single pure ' Converts to Single
  Function CStr(Expression) As String pure ' Converts to String
  Function CVar(Expression) pure ' Converts to Variant
  Function CVDate(Expression) pure hidden ' Converts to a Variant with a Date
  Function CVErr(Expression) pure ' A Variant with an error number
  Function Error(Optional ErrorNumber) ' The text of an error number, or of the last error
  Function Error$(Optional ErrorNumber) As String ' The text of an error number, or of the last error
  Function Fix(Number) pure ' The whole part of a number, towards 0
  Function Hex(Number) pure ' A number in hexadecimal digits
  Function Hex$(Number) As String pure ' A number in hexadecimal digits
  Function Int(Number) pure ' The greatest whole number that is not above a number
  Function Oct(Number) pure ' A number in octal digits
  Function Oct$(Number) As String pure ' A number in octal digits
  Function Str(Number) pure ' A number as text, with a blank for a positive sign
  Function Str$(Number) As String pure ' A number as text, with a blank for a positive sign
  Function Val(String As String) As Double pure ' The number at the start of a text
)";

} // namespace language
