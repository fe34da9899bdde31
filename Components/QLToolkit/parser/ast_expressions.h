#pragma once
// Expressions, and the names of types.
#include "Components/QLToolkit/source/arena.h"
#include "Components/QLToolkit/source/source_text.h"
#include "Components/QLToolkit/source/symbol_table.h"

namespace qltoolkit {

struct Expr;

/// '\0', '%', '&', '!', '#', '@' or '$': the type character of a name or number.
using TypeSuffix = char;

enum class TypeKind : std::uint8_t {
    Boolean,
    Byte,
    Integer,
    Long,
    Single,
    Double,
    Currency,
    Date,
    String,
    Variant,
    Object,
    Any,         ///< parameters of Declare only
    FixedString, ///< String * length
    Named        ///< a class, a Type or an Enum, optionally with its library
};

/// The type after As. Null without As: then the suffix, DefType or Variant determines the type.
struct TypeRef {
    TypeKind kind;
    bool isNew = false;   ///< As New
    bool isArray = false; ///< the result of a function: As Long()
    Pos pos;
    Symbol library = Symbol::None;
    Symbol name = Symbol::None;   ///< Named only
    Pos namePos = 0;              ///< of `name`; pos is that of the library
    const Expr* length = nullptr; ///< FixedString only
};

enum class ExprKind : std::uint8_t {
    Integer,
    Long,
    Currency,
    Single,
    Double,
    Date,
    String,
    Boolean,
    Empty,
    Null,
    Nothing,
    Me,
    Name,
    Member,
    Bang,
    Index,
    Paren,
    Unary,
    Binary,
    New,
    TypeOf,
    AddressOf,
    Coordinates,
    Range ///< bounds of ReDim within the parser; never part of a finished tree
};

enum class Operator : std::uint8_t {
    Power,
    Negate,
    Plus,
    Multiply,
    Divide,
    IntDivide,
    Mod,
    Add,
    Subtract,
    Concat,
    Equal,
    NotEqual,
    Less,
    LessEqual,
    Greater,
    GreaterEqual,
    Like,
    Is,
    Not,
    And,
    Or,
    Xor,
    Eqv,
    Imp
};

struct Expr {
    ExprKind kind;
    std::uint8_t detail = 0; ///< Operator of Unary and Binary; TypeSuffix of Name and Member; 1 = True
    /// The number of what binding found out about the expression, for the generator of code; 0 for nothing.
    mutable std::uint16_t note = 0;
    Pos pos;

    [[nodiscard]] Operator op() const { return static_cast<Operator>(detail); }
    [[nodiscard]] TypeSuffix suffix() const { return static_cast<TypeSuffix>(detail); }
};

/// Integer and Long: the value. Currency: the value times 10,000.
struct IntegerExpr : Expr {
    std::int64_t value;
};
/// Single, Double, and Date as days since 30 December 1899.
struct FloatExpr : Expr {
    double value;
};
/// The text between the quotes at pos: `length` bytes from pos + 1. detail is 1 when a quote in it is doubled.
struct StringExpr : Expr {
    Pos length;
};
struct NameExpr : Expr {
    Symbol name;
};
/// base.name; base!name for Bang. A null base is the object of the innermost With.
struct MemberExpr : Expr {
    Symbol name;
    const Expr* base;
};

/// One argument of a call or one index. Omitted: `f(, 1)` has a null value.
struct Argument {
    const Expr* value = nullptr;
    Symbol name = Symbol::None; ///< name:=value
    Pos namePos : 31 = 0;       ///< files are shorter than 2^31 bytes
    bool byVal : 1 = false;     ///< ByVal value, for parameters declared As Any
};
/// callee(arguments): a call or an array element, which cannot be distinguished by syntax. pos is that of the callee.
struct IndexExpr : Expr {
    const Expr* callee;
    Span<Argument> arguments;
};
/// Paren, Unary, AddressOf.
struct UnaryExpr : Expr {
    const Expr* operand;
};
struct BinaryExpr : Expr {
    const Expr* left;
    const Expr* right;
};
struct NewExpr : Expr {
    const TypeRef* type;
};
struct TypeOfExpr : Expr {
    const Expr* operand;
    const TypeRef* type;
};
/// `[Step] (x, y) [- [Step] (x, y)]`: an argument of Line, Circle, PSet, Scale and Point. Absent points are null.
struct CoordinatesExpr : Expr {
    bool step1, step2;
    const Expr *x1, *y1, *x2, *y2;
};

} // namespace qltoolkit
