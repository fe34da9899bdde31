// The names that the validator refuses, as a list that does not depend on the table of the language's words.
#include "Add-in/build/reserved_words.h"
#include "Basic/text_search.h"
#include "Basic/vb_words.h"
#include <gtest/gtest.h>
#include <set>

namespace {

constexpr char kRefused[] =
    "#Const #If #ElseIf #Else #End If AddressOf Alias And As Attribute BeginProperty Begin Boolean ByVal ByRef Byte "
    "Call Case Class Const Currency Date Decimal Declare Dim Double Do Each ElseIf Else Empty EndProperty End Enum End "
    "Function End If End Property End Select End Sub End Type End With End Enum Eqv On Error Exit False For Function "
    "Global GoTo If Implements Imp Integer In Is Let Lib Like Long Long Loop Mod Next New Nothing Not Null Object On "
    "Optional Option Base Option Compare Option Explicit Option Private Or Preserve Private Property Let Property Get "
    "Property Set Property Public RaiseEvent ReDim Resume Set Select Single Step String Sub Then To True Type Until "
    "Variant Version Wend While WithEvents With Xor";

std::set<std::string> expectedWords() {
    const auto words = basic::Split(kRefused);
    return {words.begin(), words.end()};
}

TEST(ReservedWords, AreExactlyTheExpectedOnes) {
    std::set<std::string> refused;
    for (const auto& word : basic::vbWords())
        if (word.asName == basic::VbWordAsName::Refused) refused.emplace(word.text);
    EXPECT_EQ(refused, expectedWords());
}

TEST(ReservedWords, AreRefusedInAnyCase) {
    for (const auto* word : {"Select", "SELECT", "select", "#if", "BeginProperty"})
        EXPECT_TRUE(fernwick::IsReservedWord(word)) << word;
}

TEST(ReservedWords, OtherWordsOfTheLanguageMayBeNames) {
    for (const auto* word : {"Close", "Print", "CInt", "Text", "Any", "Option Base", ""})
        EXPECT_FALSE(fernwick::IsReservedWord(word)) << word;
}

} // namespace
