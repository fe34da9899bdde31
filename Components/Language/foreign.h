#pragma once
// What projects use from outside of the language, and what devices have instead.
#include "Components/Language/library.h"

namespace language {

/// The control libraries that came with Visual Basic, and libraries that many projects refer to. Most are open: they
/// describe what a form needs, not what a program can call.
[[nodiscard]] std::span<const Library> foreignLibraries();

/// Looks up one of them by a GUID in capitals and braces, or by the name that programs use, ignoring case. Null if it
/// is unknown.
[[nodiscard]] const Library* foreignLibrary(std::string_view guidOrName);

/// Returns a class of the built-in or foreign libraries by its library and name, "VB.Form" or "Scripting.Dictionary",
/// ignoring case. Null if there is none.
[[nodiscard]] const Group* findClass(std::string_view name);

/// Returns a function of the operating system by what Declare names: "kernel32.dll" and "GetTempPathA". Ignores the
/// case of the library, its extension, and the letter A or W at the end of the function. Null if it is unknown. Those
/// on devices are answered there; of the others, `instead` explains what to use.
[[nodiscard]] const Member* findDeclared(std::string_view library, std::string_view function);

/// What to use instead of a declared function that is unknown.
[[nodiscard]] std::string_view insteadOfDeclare();

} // namespace language
