#pragma once
// Why a name cannot be renamed. %1 is the name; the comments have the rest.

namespace qltoolkit::rename_texts {

inline constexpr auto kNoName = "There is no name at the cursor.";
inline constexpr auto kNotKnown = "What %1 means is known only when the program runs.";
inline constexpr auto kSyntaxErrors = "The project has syntax errors. Correct them first.";
inline constexpr auto kManyErrors = "The project has too many errors. Correct them first.";
inline constexpr auto kOfLibrary = "%1 is a name of a library.";
inline constexpr auto kLineNumber = "%1 is a line number.";
inline constexpr auto kModule = "%1 is a module, class or form. Rename it in the Properties window.";
inline constexpr auto kProject = "%1 is the project. Rename it in its properties.";
inline constexpr auto kControl = "%1 is a control. Rename it in the Properties window.";
inline constexpr auto kEvent = "%1 is an event. Procedures that handle it are named after it.";
inline constexpr auto kHandler = "%1 handles an event or implements an interface, so its name is given.";
inline constexpr auto kHasHandlers = "Procedures are named after %1, as in %2, line %3."; // file, line
inline constexpr auto kMain = "A program may start with Sub Main, so this name cannot be given or changed.";
inline constexpr auto kDeclared = "The library knows %1 by this name. Add an Alias to the declaration first.";
inline constexpr auto kStored = "Forms may store values of %1 under this name.";
inline constexpr auto kInvalid =
    "%1 is not a valid name. A name begins with a letter and contains only letters, digits and underscores.";
inline constexpr auto kTooLong = "A name has at most %1 characters."; // instead of the name
inline constexpr auto kKeyword = "%1 is a word of the language.";
inline constexpr auto kNotEncoded = "The code page of %2 lacks a character of %1.";            // file
inline constexpr auto kNotHere = "%1 cannot be used as a name in %2, line %3.";                // file, line
inline constexpr auto kChanges = "%1 has another meaning in %2, line %3, which would change."; // file, line
inline constexpr auto kWouldFail = "With the name %1, line %3 of %2 would have an error: %4";  // file, line, message

} // namespace qltoolkit::rename_texts
