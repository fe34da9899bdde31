#include "Components/Language/tables/tables.h"

namespace language {

const std::string_view kStringsTable = R"(
Library VBA ' The language's own functions, constants and classes

Module Strings
  Function Asc(String As String) As Integer pure ' The character code of the first letter
  Function AscB(String As String) As Byte pure ' The first byte of a text
  Function AscW(String As String) As Integer pure ' The Unicode number of the first letter
  Function Chr(CharCode As Long) pure ' The character with a code
  Function Chr$(CharCode As Long) As String pure ' The character with a code
  Function ChrB(CharCode As Byte) pure ' A text of one byte
  Function ChrB$(CharCode As Byte) As String pure ' A text of one byte
  Function ChrW(CharCode As Long) pure ' The character with a Unicode number
  Function ChrW$(CharCode As Long) As String pure ' The character with a Unicode number
  Function Filter(SourceArray, Match As String, Optional Include As Boolean = True, Optional Compare As VbCompareMethod = vbBinaryCompare) pure ' The elements of an array that contain a text
  Function Format(Expression, Optional Format, Optional FirstDayOfWeek As VbDayOfWeek = vbSunday, Optional FirstWeekOfYear As VbFirstWeekOfYear = vbFirstJan1) pure ' A value as text, in a named or user-defined format
  Function Format$(Expression, Optional Format, Optional FirstDayOfWeek As VbDayOfWeek = vbSunday, Optional FirstWeekOfYear As VbFirstWeekOfYear = vbFirstJan1) As String pure ' A value as text, in a named or user-defined format
  Function FormatCurrency(Expression, Optional NumDigitsAfterDecimal As Long = -1, Optional IncludeLeadingDigit As VbTriState = vbUseDefault, Optional UseParensForNegativeNumbers As VbTriState = vbUseDefault, Optional GroupDigits As VbTriState = vbUseDefault) As String pure ' An amount of money as text
  Function FormatDateTime(Expression, Optional NamedFormat As VbDateTimeFormat = vbGeneralDate) As String pure ' A date or time as text
  Function FormatNumber(Expression, Optional NumDigitsAfterDecimal As Long = -1, Optional IncludeLeadingDigit As VbTriState = vbUseDefault, Optional UseParensForNegativeNumbers As VbTriState = vbUseDefault, Optional GroupDigits As VbTriState = vbUseDefault) As String pure ' A number as text
  Function FormatPercent(Expression, Optional NumDigitsAfterDecimal As Long = -1, Optional IncludeLeadingDigit As VbTriState = vbUseDefault, Optional UseParensForNegativeNumbers As VbTriState = vbUseDefault, Optional GroupDigits As VbTriState = vbUseDefault) As String pure ' A number as a percentage
  Function InStr(Optional Start, Optional String1, Optional String2, Optional Compare As VbCompareMethod = vbBinaryCompare) pure ' The place of a text in another one; 0 if it is not found
  Function InStrB(Optional Start, Optional String1, Optional String2, Optional Compare As VbCompareMethod = vbBinaryCompare) pure ' The place of a text in another one, counted in bytes
  Function InStrRev(StringCheck As String, StringMatch As String, Optional Start As Long = -1, Optional Compare As VbCompareMethod = vbBinaryCompare) As Long pure ' The last place of a text in another one; 0 if it is not found
  Function Join(SourceArray, Optional Delimiter) As String pure ' The elements of an array as one text
  Function LCase(String) pure ' A text in lower case
  Function LCase$(String As String) As String pure ' A text in lower case
  Function Left(String, Length As Long) pure ' The first characters of a text
  Function Left$(String As String, Length As Long) As String pure ' The first characters of a text
  Function LeftB(String, Length As Long) pure ' The first bytes of a text
  Function LeftB$(String As String, Length As Long) As String pure ' The first bytes of a text
  Function Len(Expression As Any) pure ' The number of characters of a text, or the bytes that a variable takes in a file
  Function LenB(Expression As Any) pure ' The number of bytes of a text or variable
  Function LTrim(String) pure ' A text without blanks at its start
  Function LTrim$(String As String) As String pure ' A text without blanks at its start
  Function Mid(String, Start As Long, Optional Length) pure ' Characters from within a text
  Function Mid$(String As String, Start As Long, Optional Length) As String pure ' Characters from within a text
  Function MidB(String, Start As Long, Optional Length) pure ' Bytes from within a text
  Function MidB$(String As String, Start As Long, Optional Length) As String pure ' Bytes from within a text
  Function MonthName(Month As Long, Optional Abbreviate As Boolean = False) As String pure ' The name of a month
  Function Replace(Expression As String, Find As String, Replace As String, Optional Start As Long = 1, Optional Count As Long = -1, Optional Compare As VbCompareMethod = vbBinaryCompare) As String pure ' A text in which one text is replaced by another
  Function Right(String, Length As Long) pure ' The last characters of a text
  Function Right$(String As String, Length As Long) As String pure ' The last characters of a text
  Function RightB(String, Length As Long) pure ' The last bytes of a text
  Function RightB$(String As String, Length As Long) As String pure ' The last bytes of a text
  Function RTrim(String) pure ' A text without blanks at its end
  Function RTrim$(String As String) As String pure ' A text without blanks at its end
  Function Space(Number As Long) pure ' A text of blanks
  Function Space$(Number As Long) As String pure ' A text of blanks
  Function Split(Expression As String, Optional Delimiter, Optional Limit As Long = -1, Optional Compare As VbCompareMethod = vbBinaryCompare) As String() pure ' The pieces of a text between delimiters
  Function StrComp(String1, String2, Optional Compare As VbCompareMethod = vbBinaryCompare) pure ' Compares two texts: -1, 0, 1, or Null
  Function StrConv(String, Conversion As VbStrConv, Optional LocaleID As Long) pure ' A text with its case or width changed, or between Unicode and the code page
  Function String(Number As Long, Character) pure ' A text of one character, repeated
  Function String$(Number As Long, Character) As String pure ' A text of one character, repeated
  Function StrReverse(Expression As String) As String pure ' A text backwards
  Function Trim(String) pure ' A text without blanks at its start and end
  Function Trim$(String As String) As String pure ' A text without blanks at its start and end
  Function UCase(String) pure ' A text in upper case
  Function UCase$(String As String) As String pure ' A text in upper case
  Function WeekdayName(Weekday As Long, Optional Abbreviate As Boolean = False, Optional FirstDayOfWeek As VbDayOfWeek = vbUseSystemDayOfWeek) As String pure ' The name of a day of the week
)";

} // namespace language
