#pragma once
// Statements.
#include "Components/QLToolkit/parser/ast_expressions.h"

namespace qltoolkit {

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
/// OnErrorClear (GoTo -1) have no further members. The first small members of others use the space after the kind.
struct Stmt {
    const Stmt* next = nullptr;
    Pos pos;
    StmtKind kind;
};

/// A list of statements, linked by next.
struct Block {
    const Stmt* first = nullptr;
};

/// The target of a jump: a label, or a line number if name is None.
struct Target {
    Symbol name = Symbol::None;
    std::uint32_t number = 0;
    Pos pos = 0;
};

/// Label, LineNumber, GoTo, GoSub, OnErrorGoTo, Resume (without number and name: a plain Resume).
struct TargetStmt : Stmt {
    Target target;
};
/// Let, Set, LSet, RSet. explicitLet if the word Let was written.
struct AssignStmt : Stmt {
    bool explicitLet;
    const Expr* target;
    const Expr* value;
};
/// Mid(target, start, length) = value; also MidB, Mid$ and MidB$.
struct MidAssignStmt : Stmt {
    bool bytes;
    const Expr *target, *start, *length, *value;
};
/// Call x, or x alone. `x a, b` and `Call x(a, b)` both have an IndexExpr here.
struct CallStmt : Stmt {
    bool explicitCall;
    const Expr* call;
};

struct Bound {
    const Expr* lower;
    const Expr* upper;
}; ///< lower is null without `To`

/// A variable of Dim, Private, Static, ..., a member of a Type, an element of ReDim by name.
struct Variable {
    Symbol name;
    Pos pos;
    TypeSuffix suffix = 0;
    bool withEvents = false;
    bool isArray = false; ///< dynamic if it has no bounds
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
/// before: Dim, Static and Const before the first Case.
struct SelectStmt : Stmt {
    const Expr* value;
    Block before;
    Span<CaseBranch> branches;
};

struct ForStmt : Stmt {
    std::uint16_t lines; ///< from For to Next; needs no room of its own
    const Expr *variable, *from, *to, *step;
    Block body;
    const Expr* next;
}; ///< step is null for 1; next is the variable after Next, null if it is not named
struct ForEachStmt : Stmt {
    std::uint16_t lines; ///< as in ForStmt
    const Expr *variable, *in;
    Block body;
    const Expr* next; ///< as in ForStmt
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
    Pos namePos;
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
/// LineInput (number, variable), Width (number, width), NameAs (old, new). Absent operands are null.
struct FileStmt : Stmt {
    const Expr *first, *second, *third;
};

} // namespace qltoolkit
