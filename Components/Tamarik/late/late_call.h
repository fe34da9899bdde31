#pragma once
// Members that are found by name while the program runs.
#include "Components/Tamarik/late/late_request.h"

namespace tamarik {

/// Pushes the task of a call; its result goes to the frame below.
void callLate(Execution& m, LateRequest request, std::uint8_t result);
/// CallLate of an object of the runtime, without names of arguments: it calls no code and is done at once. False for others.
bool callLibrary(Execution& m, const std::uint32_t* ip);
/// The instruction CallLate.
void callLate(Execution& m, const std::uint32_t* ip);
/// The instruction CallByName. Error 5 for an unknown type of call.
void callByName(Execution& m, const std::uint32_t* ip);

/// The value of the default member of an object, at once or by a call; then the result is empty and the task receives it later.
void callDefault(Execution& m, const Variant& object);

/// The object is not a simple value. Errors 424, 91.
void requireObject(const Variant& v);

} // namespace tamarik
