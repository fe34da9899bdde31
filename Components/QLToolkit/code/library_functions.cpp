#include "Components/QLToolkit/code/library_functions.h"

namespace qltoolkit {

namespace {

constexpr LibraryFunction kFunctions[] = {{"CBool", Builtin::Convert, false, ValueType::Boolean},
                                          {"CByte", Builtin::Convert, false, ValueType::Byte},
                                          {"CInt", Builtin::Convert, false, ValueType::Integer},
                                          {"CLng", Builtin::Convert, false, ValueType::Long},
                                          {"CSng", Builtin::Convert, false, ValueType::Single},
                                          {"CDbl", Builtin::Convert, false, ValueType::Double},
                                          {"CCur", Builtin::Convert, false, ValueType::Currency},
                                          {"CStr", Builtin::Convert, false, ValueType::String},
                                          {"CVar", Builtin::Convert, true, ValueType::Variant},
                                          {"LBound", Builtin::LowerBound},
                                          {"UBound", Builtin::UpperBound},
                                          {"Len", Builtin::Length},
                                          {"LenB", Builtin::LengthInBytes},
                                          {"Sqr", Builtin::Root},
                                          {"Abs", Builtin::Absolute},
                                          {"Int", Builtin::Int},
                                          {"Fix", Builtin::Fix},
                                          {"CallByName", Builtin::CallByName},
                                          {"VarPtr", Builtin::VarPtr, true},
                                          {"Array", Builtin::Array},
                                          {"CreateObject", Builtin::CreateObject},
                                          {"IIf", Builtin::None, true},
                                          {"IsArray", Builtin::None, true},
                                          {"IsDate", Builtin::None, true},
                                          {"IsEmpty", Builtin::None, true},
                                          {"IsError", Builtin::None, true},
                                          {"IsMissing", Builtin::None, true},
                                          {"IsNull", Builtin::None, true},
                                          {"IsNumeric", Builtin::None, true},
                                          {"IsObject", Builtin::None, true},
                                          {"TypeName", Builtin::None, true},
                                          {"VarType", Builtin::None, true}};

} // namespace

LibraryFunctions::LibraryFunctions(SymbolTable& symbols) {
    for (const auto& each : kFunctions) functions_.add(symbols.intern(each.name), &each);
}

} // namespace qltoolkit
