#include "Components/QLToolkit/insight/offered_words.h"

namespace qltoolkit {

namespace {

void addAll(NameList& list, std::initializer_list<std::string_view> words) {
    for (const auto word : words) list.add(std::string(word), NameKind::Keyword);
}

} // namespace

void addStatementWords(NameList& list) {
    addAll(list, {"Call",       "Case",       "Close",  "Const",  "Dim",    "Do",    "Else",     "ElseIf",      "End",
                  "Erase",      "Exit",       "For",    "Get",    "GoSub",  "GoTo",  "If",       "Input",       "Let",
                  "Line Input", "Lock",       "Loop",   "LSet",   "Name",   "Next",  "On Error", "Open",        "Print",
                  "Put",        "RaiseEvent", "ReDim",  "Resume", "Return", "RSet",  "Seek",     "Select Case", "Set",
                  "Static",     "Stop",       "Unlock", "Wend",   "While",  "Width", "With",     "Write"});
}

void addDeclarationWords(NameList& list) {
    addAll(list, {"Const", "Declare", "Dim", "Enum", "Event", "Friend", "Function", "Implements", "Option Base",
                  "Option Compare", "Option Explicit", "Private", "Property", "Public", "Sub", "Type", "WithEvents"});
}

void addExpressionWords(NameList& list, bool isInClass) {
    addAll(list, {"AddressOf", "And", "Empty", "False", "Is", "Like", "Mod", "New", "Not", "Nothing", "Null", "Or",
                  "True", "TypeOf", "Xor"});
    if (isInClass) list.add("Me", NameKind::Keyword);
}

} // namespace qltoolkit
