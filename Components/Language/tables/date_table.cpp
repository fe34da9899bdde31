#include "Components/Language/tables/tables.h"

namespace language {

const std::string_view kDateTable = R"(
Module DateTime
  Property Calendar As VbCalendar ' The calendar of dates in texts
  Property Date ' Today
  Property Date$ As String ' Today as text, as in "12-31-2001"
  Function DateAdd(Interval As String, Number As Double, Date) pure ' A date a number of intervals later
  Function DateDiff(Interval As String, Date1, Date2, Optional FirstDayOfWeek As VbDayOfWeek = vbSunday, Optional FirstWeekOfYear As VbFirstWeekOfYear = vbFirstJan1) pure ' The number of interval boundaries between two dates
  Function DatePart(Interval As String, Date, Optional FirstDayOfWeek As VbDayOfWeek = vbSunday, Optional FirstWeekOfYear As VbFirstWeekOfYear = vbFirstJan1) pure ' One part of a date
  Function DateSerial(Year As Integer, Month As Integer, Day As Integer) pure ' The date with a year, month and day
  Function DateValue(Date As String) pure ' The date in a text
  Function Day(Date) pure ' The day of the month
  Function Hour(Time) pure ' The hour of a time
  Function Minute(Time) pure ' The minute of a time
  Function Month(Date) pure ' The month of a date
  Property Now readonly ' The date and time
  Function Second(Time) pure ' The second of a time
  Property Time ' The time of day
  Property Time$ As String ' The time of day as text
  Property Timer As Single readonly ' The seconds since midnight
  Function TimeSerial(Hour As Integer, Minute As Integer, Second As Integer) pure ' The time with an hour, minute and second
  Function TimeValue(Time As String) pure ' The time in a text
  Function Weekday(Date, Optional FirstDayOfWeek As VbDayOfWeek = vbSunday) pure ' The day of the week as a number
  Function Year(Date) pure ' The year of a date
)";

} // namespace language
