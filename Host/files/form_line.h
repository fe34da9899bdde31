#pragma once
// One line of the head of a form or class file: what kind it is and where its pieces stand.
#include <string>
#include <string_view>

namespace host {

/// The next line of `rest` together with its line end, taken from it. `rest` must not be empty.
std::string_view takeWholeLine(std::string_view& rest);

/// The line without its end.
std::string_view lineText(std::string_view wholeLine);

/// A head line taken apart. All pieces are views into the line. Blanks and tabs may stand anywhere and are
/// no sign of depth: nesting goes by the keywords alone, since hand-merged files are indented at will.
struct FormLine {
    enum class Kind { Blank, Comment, Begin, BeginProperty, End, EndProperty, Property, Other };

    Kind kind = Kind::Other;
    std::string_view indent;
    std::string_view name;    ///< Property: its key. BeginProperty: its name. Begin: the name of the object.
    std::string_view type;    ///< Begin: the class. BeginProperty: the GUID, if there is one.
    std::string_view value;   ///< Property: the literal
    std::string_view comment; ///< Property: what stands behind the "'", which may be empty
    bool hasComment = false;
};

FormLine parseFormLine(std::string_view line);

/// True when the line begins with `word` and a blank, at its first column.
bool beginsWithWord(std::string_view line, std::string_view word);

} // namespace host
