#pragma once
// Objects of the program's classes: how they are made, and which class or interface they are of.
#include "Components/Tamarik/vm/execution.h"

namespace tamarik {

/// Makes an object and stores it in a slot of the top frame once its Initialize has run.
void newObject(Execution& m, std::uint32_t classNumber, std::uint32_t target);
/// Returns a new object. Error 429 for an unknown class.
[[nodiscard]] Object* newLibraryObject(Execution& m, std::string_view name);

/// Whether an object is of the class or implements it.
[[nodiscard]] bool isOfClass(const Execution& m, const Object& object, std::uint32_t classNumber);
[[nodiscard]] bool isOfLibraryClass(const Execution& m, const Object& object, std::uint32_t name);
/// Error 13 unless it is Nothing or of the class.
void requireClass(const Execution& m, const Object* object, std::uint32_t classNumber);
void requireExactClass(const Object* object, std::uint32_t classNumber);
void requireLibraryClass(const Execution& m, const Object* object, std::uint32_t name);

/// The procedure for a member of an interface. Errors 91, 438.
[[nodiscard]] const LoadedProcedure* implementationOf(const Execution& m, const Object* object,
                                                      std::uint32_t interfaceAndMember);

} // namespace tamarik
