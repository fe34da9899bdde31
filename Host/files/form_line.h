#pragma once
// One line of the head of a form or class file: how it is read and written.
#include <string>
#include <string_view>

namespace host {

/// Removes the first line from `rest` and returns it with its line end. `rest` must not be empty.
std::string_view takeWholeLine(std::string_view& rest);

std::string_view lineText(std::string_view wholeLine);
std::string_view lineEndOf(std::string_view wholeLine);

/// The parts of a line, as views into it. Nesting depends on the keywords alone: hand-merged files have any
/// indentation.
struct FormLine {
    enum class Kind { Blank, Comment, Begin, BeginProperty, End, EndProperty, Property, Other };

    Kind kind = Kind::Other;
    std::string_view indent;
    std::string_view name;    ///< Property: its key. BeginProperty: its name. Begin: the name of the object.
    std::string_view type;    ///< Begin: the class. BeginProperty: the GUID, if there is one.
    std::string_view value;   ///< Property: the literal
    std::string_view comment; ///< Property: the text after "'", possibly empty
    bool hasComment = false;
};

FormLine parseFormLine(std::string_view line);

/// True if the line begins with `word` and a blank, at its first column.
bool beginsWithWord(std::string_view line, std::string_view word);

/// The text of a property line in the designer's layout, without indentation and line end.
std::string propertyLineText(std::string_view key, std::string_view literal, std::string_view comment);
/// The text of the first line of a block, without indentation and line end. `second` may be empty.
std::string blockLineText(std::string_view keyword, std::string_view first, std::string_view second);
/// The property line with another literal and comment in the same layout.
std::string rewrittenLine(std::string_view wholeLine, std::string_view literal, std::string_view comment);

} // namespace host
