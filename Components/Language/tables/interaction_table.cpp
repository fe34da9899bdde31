#include "Components/Language/tables/tables.h"

namespace language {

const std::string_view kInteractionTable = R"(
Module Interaction
  Sub AppActivate(Title, Optional Wait) absent "Devices show one application at a time; remove the call"
  Sub Beep() ' Sounds the speaker
  Function CallByName(Object As Object, ProcName As String, CallType As VbCallType, ParamArray Args()) ' Calls a member by its name
  Function Choose(Index As Single, ParamArray Choice()) pure ' One value of a list
  Function Command() ' The arguments that the application was started with
  Function Command$() As String ' The arguments that the application was started with
  Function CreateObject(Class As String, Optional ServerName As String) absent "Use New with a class of the project; of other classes, Scripting.Dictionary and Scripting.FileSystemObject can be created" ' Makes an object of a registered class
  Sub DeleteSetting(AppName As String, Optional Section, Optional Key) ' Deletes settings of the application
  Function DoEvents() As Integer ' Lets waiting events run
  Function Environ(Expression) ' A variable of the environment
  Function Environ$(Expression) As String ' A variable of the environment
  Function GetAllSettings(AppName As String, Section As String) ' All settings of a section, as an array of names and values
  Function GetObject(Optional PathName, Optional Class) absent "Devices have no other programs to take objects from; use New with a class of the project"
  Function GetSetting(AppName As String, Section As String, Key As String, Optional Default) As String ' A setting of the application
  Function IIf(Expression, TruePart, FalsePart) pure ' One of two values; both are evaluated
  Function InputBox(Prompt, Optional Title, Optional Default, Optional XPos, Optional YPos, Optional HelpFile, Optional Context) As String ' Asks the user for a text
  Function MsgBox(Prompt, Optional Buttons As VbMsgBoxStyle = vbOKOnly, Optional Title, Optional HelpFile, Optional Context) As VbMsgBoxResult ' Shows a message and returns the button that was chosen
  Function Partition(Number, Start, Stop, Interval) pure ' The range of a series in which a number falls, as text
  Sub SaveSetting(AppName As String, Section As String, Key As String, Setting As String) ' Stores a setting of the application
  Sub SendKeys(String As String, Optional Wait) absent "Set the focus and the properties of the control instead"
  Function Shell(PathName, Optional WindowStyle As VbAppWinStyle = vbMinimizedFocus) As Double absent "Devices start no other programs; call a procedure of the project instead"
  Function Switch(ParamArray VarExpr()) pure ' The value after the first expression that is True
)";

} // namespace language
