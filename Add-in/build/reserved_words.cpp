#include "Add-in/build/reserved_words.h"
#include "Basic/text.h"
#include "Basic/text_search.h"
#include <unordered_set>

namespace fernwick {

namespace {

/// "Option Base" and its like count word by word.
constexpr char kReservedWords[] =
    "#Const #If #ElseIf #Else #End If AddressOf Alias And As Attribute BeginProperty Begin Boolean ByVal ByRef Byte "
    "Call "
    "Case Class Const Currency Date Decimal Declare Dim Double Do Each ElseIf Else Empty EndProperty End Enum End "
    "Function End If End Property End Select End Sub End Type End With End Enum Eqv On Error Exit False For Function "
    "Global GoTo If Implements Imp Integer In Is Let Lib Like Long Long Loop Mod Next New Nothing Not Null Object On "
    "Optional Option Base Option Compare Option Explicit Option Private Or Preserve Private Property Let Property Get "
    "Property Set Property Public RaiseEvent ReDim Resume Set Select Single Step String Sub Then To True Type Until "
    "Variant Version Wend While WithEvents With Xor";

std::unordered_set<std::string> wordsInCapitals() {
    std::unordered_set<std::string> words;
    for (const auto& word : basic::Split(kReservedWords)) words.insert(basic::UCase(word));
    return words;
}

} // namespace

bool IsReservedWord(const std::string& word) {
    static const auto words = wordsInCapitals();
    return words.count(basic::UCase(word)) > 0;
}

} // namespace fernwick
