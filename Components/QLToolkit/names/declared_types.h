#pragma once
// The types that declarations name.
#include "Components/QLToolkit/names/constants.h"

namespace qltoolkit {

/// Turns what a declaration says about a type into the type, and reports types that do not exist, once per position.
class DeclaredTypes {
public:
    DeclaredTypes(Program& program, SourceModule& module, Constants& constants)
        : program_(program), module_(module), constants_(constants) {}

    /// The type after As. The length of a text may be one of the constants of a procedure.
    Type typeOf(const TypeRef& ref, LocalConstants local = nullptr);
    /// The type of a name: after As, by its type character, or by DefType.
    Type typeOf(Symbol name, TypeSuffix suffix, const TypeRef* ref, LocalConstants local = nullptr);
    /// The class after As New, New and TypeOf ... Is. Unknown after an error.
    Type classOf(const TypeRef& ref);

private:
    void reportUse(const TypeRef& ref, const Entity& type);
    Type namedType(const TypeRef& ref);
    void warnOfDevices(const TypeRef& ref, const Entity* named);
    Type defaultType(Symbol name);

    Program& program_;
    SourceModule& module_;
    Constants& constants_;
};

/// The type that a type character stands for.
[[nodiscard]] ValueType typeOfSuffix(TypeSuffix suffix);
[[nodiscard]] ValueType simpleType(TypeKind kind);

} // namespace qltoolkit
