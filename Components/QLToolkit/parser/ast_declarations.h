#pragma once
// Declarations, including procedures.
#include "Components/QLToolkit/parser/ast_statements.h"

namespace qltoolkit {

enum class Visibility : std::uint8_t { Default, Private, Public, Friend, Global };

enum class DeclKind : std::uint8_t {
    OptionExplicit,
    OptionBase,
    OptionCompareText,
    OptionCompareBinary,
    OptionCompareDatabase,
    OptionPrivateModule,
    DefType,
    Implements,
    Variables,
    Constants,
    Type,
    Enum,
    Declare,
    Event,
    Procedure,
    Attribute
};

struct Decl {
    const Decl* next = nullptr;
    Pos pos;
    DeclKind kind;
    Visibility visibility = Visibility::Default;
};

struct OptionBaseDecl : Decl {
    std::uint32_t base;
};
/// letters: bit 0 is A, bit 25 is Z.
struct DefTypeDecl : Decl {
    TypeKind type;
    std::uint32_t letters;
};
struct ImplementsDecl : Decl {
    const TypeRef* type;
};
struct VariablesDecl : Decl {
    Span<Variable> variables;
};
struct ConstantsDecl : Decl {
    Span<Constant> constants;
};
struct TypeDecl : Decl {
    Symbol name;
    Pos namePos;
    Span<Variable> members;
};
struct EnumDecl : Decl {
    Symbol name;
    Pos namePos;
    Span<Constant> members;
};

enum class Passing : std::uint8_t { Default, ByVal, ByRef };
struct Parameter {
    Symbol name;
    Pos pos;
    TypeSuffix suffix = 0;
    Passing passing = Passing::Default;
    bool optional = false;
    bool paramArray = false;
    bool isArray = false;
    const TypeRef* type = nullptr;
    const Expr* defaultValue = nullptr;
};

enum class ProcedureKind : std::uint8_t { Sub, Function, PropertyGet, PropertyLet, PropertySet };
/// The signature of a procedure or a Declare.
struct Signature {
    ProcedureKind kind;
    TypeSuffix suffix = 0;
    Symbol name;
    Pos namePos;
    Span<Parameter> parameters;
    const TypeRef* result = nullptr;
};
/// library and alias are StringExpr; an alias "#123" is an ordinal. alias may be null.
struct DeclareDecl : Decl {
    Signature signature;
    const StringExpr* library;
    const StringExpr* alias;
};
struct EventDecl : Decl {
    Symbol name;
    Pos namePos;
    Span<Parameter> parameters;
};
struct ProcedureDecl : Decl {
    bool isStatic;
    Signature signature;
    Block body;
    Pos end;                 ///< of End Sub
    bool isLabelled = false; ///< has labels or line numbers
};

/// `Attribute a.b.VB_Name = value, value`: the path without its last part, the last part, and the values as literals.
struct AttributeDecl : Decl {
    Span<Symbol> path;
    Pos pathPos;
    Symbol name;
    Span<const Expr*> values;
};

} // namespace qltoolkit
