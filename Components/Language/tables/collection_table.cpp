#include "Components/Language/tables/tables.h"

namespace language {

const std::string_view kCollectionTable = R"(
Class Collection creatable ' A list of items with positions from 1 and optional keys
  Sub Add(Item, Optional Key, Optional Before, Optional After) ' Adds an item
  Function Count() As Long ' The number of items
  Function Item(Index) default ' The item with a position or key
  Sub Remove(Index) ' Removes the item with a position or key
  Function [_NewEnum]() As IUnknown enumerates hidden

Class DebugObject ' The immediate window
  Sub Assert(BooleanCheck As Boolean) ' Stops where a condition is False
  Sub Print(ParamArray Items()) ' Writes texts

Class ErrObject ' The last error
  Sub Clear() ' Forgets the error
  Property Description As String ' The text of the error
  Property HelpContext As Long ' The topic of the help file about the error
  Property HelpFile As String ' The help file about the error
  Property LastDllError As Long readonly ' The error of the last call of a library
  Property Number As Long default ' The number of the error; 0 for none
  Sub Raise(Number As Long, Optional Source, Optional Description, Optional HelpFile, Optional HelpContext) ' Raises an error
  Property Source As String ' What raised the error
)";

} // namespace language
