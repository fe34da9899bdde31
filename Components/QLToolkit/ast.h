#pragma once
// The tree of a module, as the parser builds it and as name checks and code generation read it.
//
// Nodes lie in the module's arena, have no destructors, and refer to the source by byte offset (`pos`).
// `as<T>(node)` goes from a node to its kind's struct. Lists of statements and declarations are linked by `next`.
// How deep a tree can be is bounded (kMaxDepth in parser.h), with one exception: the left side of a chain of
// operators (`a & b & c ...`) and of members may be long; walk it in a loop, not by recursion.
#include "Components/QLToolkit/arena.h"
#include "Components/QLToolkit/source_file.h"
#include "Components/QLToolkit/symbol_table.h"

namespace compiler {

struct Expr;
struct Stmt;
struct Decl;

/// '\0', '%', '&', '!', '#', '@' or '$': the type character that stood behind a name or number.
using TypeSuffix = char;

// ---------------------------------------------------------------- types

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
    Named        ///< a class, a Type or an Enum, with or without its library
};

/// What stands behind As. Null where nothing does: then the suffix, DefType or Variant decides.
struct TypeRef {
    TypeKind kind;
    bool isNew = false;   ///< As New
    bool isArray = false; ///< the result of a function: As Long()
    Pos pos;
    Symbol library = Symbol::None;
    Symbol name = Symbol::None;   ///< Named only
    const Expr* length = nullptr; ///< FixedString only
};

// ---------------------------------------------------------------- expressions

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
    Range ///< the bounds of ReDim on their way through the parser; no finished tree has one
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
    bool byVal = false;         ///< ByVal value, for parameters declared As Any
};
/// pos is that of the callee. callee(arguments): a call or an element of an array; only the names tell which.
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

// ---------------------------------------------------------------- statements

enum class StmtKind : std::uint8_t {
    Label,
    LineNumber,
    Let,
    Set,
    LSet,
    RSet,
    MidAssign,
    Call,
    Local,
    LocalConst,
    ReDim,
    Erase,
    If,
    Select,
    For,
    ForEach,
    Do,
    While,
    With,
    GoTo,
    GoSub,
    Return,
    OnGoTo,
    OnGoSub,
    OnErrorGoTo,
    OnErrorResumeNext,
    OnErrorOff,
    OnErrorClear,
    Resume,
    ResumeNext,
    ExitSub,
    ExitFunction,
    ExitProperty,
    ExitDo,
    ExitFor,
    End,
    Stop,
    RaiseEvent,
    Print,
    Open,
    Close,
    Get,
    Put,
    Seek,
    Lock,
    Unlock,
    PrintFile,
    WriteFile,
    InputFile,
    LineInput,
    Width,
    NameAs
};

/// Every statement. Return, Stop, End, the Exit family, ResumeNext, OnErrorResumeNext, OnErrorOff (GoTo 0) and
/// OnErrorClear (GoTo -1) have nothing more.
struct Stmt {
    StmtKind kind;
    Pos pos;
    const Stmt* next = nullptr;
};

/// Statements in a row, linked by next.
struct Block {
    const Stmt* first = nullptr;
};

/// Where a jump goes: a label, or a line number when name is None.
struct Target {
    Symbol name = Symbol::None;
    std::uint32_t number = 0;
    Pos pos = 0;
};

/// Label, LineNumber, GoTo, GoSub, OnErrorGoTo, Resume (number 0 and no name: a plain Resume).
struct TargetStmt : Stmt {
    Target target;
};
/// Let, Set, LSet, RSet. explicitLet when the word Let stands there.
struct AssignStmt : Stmt {
    const Expr* target;
    const Expr* value;
    bool explicitLet = false;
};
/// Mid(target, start, length) = value; MidB, Mid$ and MidB$ alike.
struct MidAssignStmt : Stmt {
    bool bytes;
    const Expr *target, *start, *length, *value;
};
/// Call x, or x alone. `x a, b` and `Call x(a, b)` both have an IndexExpr here.
struct CallStmt : Stmt {
    const Expr* call;
    bool explicitCall = false;
};

struct Bound {
    const Expr* lower;
    const Expr* upper;
}; ///< lower is null where `To` is absent

/// A variable of Dim, Private, Static, ..., a member of a Type, an element of ReDim by name.
struct Variable {
    Symbol name;
    Pos pos;
    TypeSuffix suffix = 0;
    bool withEvents = false;
    bool isArray = false; ///< without bounds: a dynamic array
    const TypeRef* type = nullptr;
    Span<Bound> bounds;
};
struct Constant {
    Symbol name;
    Pos pos;
    TypeSuffix suffix = 0;
    const TypeRef* type = nullptr;
    const Expr* value = nullptr;
};
struct LocalStmt : Stmt {
    bool isStatic;
    Span<Variable> variables;
};
struct LocalConstStmt : Stmt {
    Span<Constant> constants;
};
struct ReDimItem {
    const Expr* target;
    Span<Bound> bounds;
    const TypeRef* type;
};
struct ReDimStmt : Stmt {
    bool preserve;
    Span<ReDimItem> items;
};
/// Erase, Close (numbers; empty closes all), InputFile (the number first, then the variables).
struct ListStmt : Stmt {
    Span<const Expr*> items;
};

struct IfBranch {
    const Expr* condition;
    Block body;
    Pos pos;
}; ///< condition is null in Else
struct IfStmt : Stmt {
    bool singleLine;
    Span<IfBranch> branches;
};

enum class CaseTest : std::uint8_t { Equal, NotEqual, Less, LessEqual, Greater, GreaterEqual, Range };
struct CaseItem {
    CaseTest test;
    const Expr* value;
    const Expr* to;
}; ///< to: Range only
struct CaseBranch {
    Span<CaseItem> items;
    Block body;
    Pos pos;
}; ///< no items: Case Else
/// before: Dim, Static and Const that stand above the first Case.
struct SelectStmt : Stmt {
    const Expr* value;
    Block before;
    Span<CaseBranch> branches;
};

struct ForStmt : Stmt {
    const Expr *variable, *from, *to, *step;
    Block body;
}; ///< step is null for 1
struct ForEachStmt : Stmt {
    const Expr *variable, *in;
    Block body;
};
enum class LoopTest : std::uint8_t { None, While, Until };
struct DoStmt : Stmt {
    LoopTest head, foot;
    const Expr* condition;
    Block body;
};
/// While and With.
struct BodyStmt : Stmt {
    const Expr* value;
    Block body;
};

struct OnJumpStmt : Stmt {
    const Expr* value;
    Span<Target> targets;
};
struct RaiseEventStmt : Stmt {
    Symbol name;
    Span<Argument> arguments;
};

enum class PrintSeparator : std::uint8_t { None, Semicolon, Comma };
struct PrintItem {
    const Expr* value;
    PrintSeparator separator;
}; ///< value is null before a bare separator
/// Print (target = the method as a MemberExpr or NameExpr), PrintFile and WriteFile (target = the file number).
struct PrintStmt : Stmt {
    const Expr* target;
    Span<PrintItem> items;
};

enum class OpenMode : std::uint8_t { Random, Input, Output, Append, Binary };
enum class OpenAccess : std::uint8_t { Default, Read, Write, ReadWrite };
enum class OpenLock : std::uint8_t { Default, Shared, Read, Write, ReadWrite };
struct OpenStmt : Stmt {
    OpenMode mode;
    OpenAccess access;
    OpenLock lock;
    const Expr *path, *number, *recordLength;
};
/// Get, Put (number, record, variable), Seek (number, position), Lock and Unlock (number, from, to),
/// LineInput (number, variable), Width (number, width), NameAs (old, new). What is absent is null.
struct FileStmt : Stmt {
    const Expr *first, *second, *third;
};

// ---------------------------------------------------------------- declarations

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
    DeclKind kind;
    Visibility visibility = Visibility::Default;
    Pos pos;
    const Decl* next = nullptr;
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
    Span<Variable> members;
};
struct EnumDecl : Decl {
    Symbol name;
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
/// What a procedure and a Declare say about themselves.
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
    Span<Parameter> parameters;
};
struct ProcedureDecl : Decl {
    Signature signature;
    bool isStatic;
    Block body;
    Pos end;
}; ///< end: pos of End Sub

/// `Attribute a.b.VB_Name = value, value`: the path without its last part, the last part, the values as literals.
struct AttributeDecl : Decl {
    Span<Symbol> path;
    Symbol name;
    Span<const Expr*> values;
};

// ---------------------------------------------------------------- the module

/// One parsed file. Needs its SourceFile and its SymbolTable to live on.
struct Module {
    explicit Module(const SourceFile& s) : source(s) {}

    const SourceFile& source;
    Arena arena;
    const Decl* declarations = nullptr;     ///< in the order of the source, those of the head (Attributes) included
    std::vector<std::uint32_t> hiddenLines; ///< physical lines of Attributes inside the code, ascending

    /// The line of the code window, from 1, that shows a physical line; 0 for a line that it hides.
    [[nodiscard]] std::uint32_t codeLine(std::uint32_t physicalLine) const;
};

template <class T>
const T& as(const Expr& e) {
    return static_cast<const T&>(e);
}
template <class T>
const T& as(const Stmt& s) {
    return static_cast<const T&>(s);
}
template <class T>
const T& as(const Decl& d) {
    return static_cast<const T&>(d);
}

/// The value of a string literal as UTF-8.
[[nodiscard]] std::string stringValue(const SourceFile&, const StringExpr&);

} // namespace compiler
