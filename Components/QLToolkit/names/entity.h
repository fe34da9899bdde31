#pragma once
// What the names of a program mean.
#include "Components/QLToolkit/names/symbol_map.h"
#include "Components/QLToolkit/parser/ast.h"
#include "Components/QLToolkit/types/constant_value.h"
#include "Components/QLToolkit/types/type.h"
#include <string>
#include <vector>

namespace language {
struct Member;
}

namespace qltoolkit {

struct Scope;
struct SourceModule;

struct ParameterInfo {
    Symbol name = Symbol::None;
    Type type;
    bool byVal = false;
    bool optional = false;
    bool paramArray = false;
    bool any = false; ///< As Any, of a Declare
    bool isOfDeclare = false;
    const Expr* defaultValue = nullptr;       ///< of a procedure of the project
    const std::string* defaultText = nullptr; ///< of a library, as its description has it; null for none
    Symbol defaultName = Symbol::None;        ///< the same, if it is the name of a constant
    Pos pos = 0;                              ///< of the declaration; 0 in libraries
};

/// How a procedure, property or Declare is called.
struct Callable {
    Span<ParameterInfo> parameters; ///< of Property Let and Set without the value
    Type result{ValueType::None};   ///< of Property Let and Set the type of the value
    const ProcedureDecl* body = nullptr;
    mutable std::uint32_t number = 0;     ///< of the compiled procedure, given by the generator of code
    const SourceModule* source = nullptr; ///< null in libraries
};

/// Whether what Property Let or Set assigns is passed by value, as it is where a variable is assigned.
[[nodiscard]] inline bool takesValueByVal(const Callable& callable) {
    if (!callable.body) return true;
    const auto& parameters = callable.body->signature.parameters;
    return parameters.size() > 0 && parameters[parameters.size() - 1].passing == Passing::ByVal;
}

/// A Friend procedure belongs to no interface, and cannot be called late.
[[nodiscard]] inline bool isFriend(const Callable& callable) {
    return callable.body && callable.body->visibility == Visibility::Friend;
}

/// Whether Set assigns to a variable of the type.
[[nodiscard]] inline bool mayBeSet(ValueType type) { return type == ValueType::Object || type == ValueType::Variant; }

enum class EntityKind : std::uint8_t {
    Variable, ///< also a field of a record
    Constant,
    Procedure,
    Property,
    Event,
    Control,
    Enum,
    Record,
    Module, ///< a module, class or form of the project, or a module or class of a library
    Library,
    Project,
    Label ///< of a line; without a name if it is a number
};

/// The value of a constant, found when it is first needed, because constants may refer to later ones.
struct ConstantState {
    enum class Progress : std::uint8_t { Waiting, Running, Done };

    const Expr* expression = nullptr;        ///< null: one more than `previous`, or 0
    const struct Entity* previous = nullptr; ///< the member of the enumeration before this one
    Type declared{ValueType::Unknown};       ///< Unknown: the type of the value
    Progress progress = Progress::Waiting;
    bool failed = false; ///< reported already
    ConstantValue value;
};

struct Entity {
    EntityKind kind = EntityKind::Variable;
    bool isPublic = false;
    bool isResult = false; ///< the variable that a function's name is within the function
    bool isParameter = false;
    bool isStaticArray = false; ///< an array with bounds
    bool isUsed = false;        ///< a local variable that is read or passed on
    bool isImplicit = false;    ///< a local variable without a declaration
    bool onDevices = true;
    bool withEvents = false;
    bool isStatic = false;      ///< a local variable that keeps its value
    bool isNew = false;         ///< As New
    std::int16_t rank = -1;     ///< dimensions of an array; -1 if they are not known
    std::uint32_t elements = 1; ///< of an array with bounds, at most kMostElements
    Symbol name = Symbol::None;
    Pos pos = 0; ///< of the declaration
    Type type;
    Scope* owner = nullptr;        ///< null for a local variable
    const Scope* inner = nullptr;  ///< Enum, Record, Module, Library: what can follow the point
    const Callable* get = nullptr; ///< Procedure, Event; Property Get
    const Callable* let = nullptr;
    const Callable* set = nullptr;
    ConstantState* constant = nullptr;
    const Entity* text = nullptr;               ///< of a library's function f: the function f$
    const std::string* instead = nullptr;       ///< what devices have instead of this; null if that is not known
    const language::Member* answered = nullptr; ///< of a Declare: the function that devices answer
    const Variable* declaration = nullptr;      ///< of a variable or field with a declaration
    mutable std::uint32_t place = 0;            ///< of a variable: its slot, given by the generator of code
};

/// Whether the variable is given an object when it is used and Nothing.
[[nodiscard]] inline bool makesObject(const Entity& variable) {
    return variable.isNew && variable.type.value == ValueType::Object;
}

enum class ScopeKind : std::uint8_t { StandardModule, ClassModule, Record, Enum, Library, LibraryModule, LibraryClass };

/// The names that something declares.
struct Scope {
    ScopeKind kind = ScopeKind::StandardModule;
    Symbol name = Symbol::None;
    std::uint32_t number = 0; ///< Type::id
    SymbolMap<Entity> names;
    SymbolMap<Entity> types; ///< records, enumerations and classes, which have names of their own
    SymbolMap<Entity> events;
    const Scope* base = nullptr; ///< whose members this has too
    const Entity* defaultMember = nullptr;
    const Entity* enumerator = nullptr; ///< what For Each calls
    std::vector<const Scope*> interfaces;
    SourceModule* source = nullptr;       ///< of a module of the project
    const std::string* instead = nullptr; ///< of a library that devices lack: what to use instead
    bool isPrivate = false;               ///< a record or enumeration that other modules cannot name
    bool open = false;                    ///< may have members that are not known
    bool creatable = false;               ///< by New
    bool predeclared = false;             ///< its name is an object

    [[nodiscard]] Entity* find(Symbol symbol) const {
        for (const Scope* scope = this; scope; scope = scope->base)
            if (Entity* found = scope->names.find(symbol)) return found;
        return nullptr;
    }
    [[nodiscard]] const Entity* findDefault() const {
        return defaultMember || !base ? defaultMember : base->findDefault();
    }
    [[nodiscard]] const Entity* findEnumerator() const {
        return enumerator || !base ? enumerator : base->findEnumerator();
    }
    /// Whether this or a scope whose members it has may have members that are not known.
    [[nodiscard]] bool isOpen() const { return open || (base && base->isOpen()); }
    [[nodiscard]] bool isClass() const { return kind == ScopeKind::ClassModule || kind == ScopeKind::LibraryClass; }
};

/// What is before a point or an exclamation mark.
struct MemberBase {
    Type type;
    const Entity* entity = nullptr;
    const Scope* inner = nullptr; ///< of a qualifier; null for the project
    bool isQualifier = false;     ///< a module, library, project or enumeration
};

/// Learns what names mean while a program is resolved and bound, for the editor.
class UseSink {
public:
    UseSink() = default;
    UseSink(const UseSink&) = delete;
    virtual ~UseSink() = default;

    /// Called before anything is reported, with the table of all names.
    virtual void begin(SymbolTable&) {}

    /// The name at a position means this. Names are reported where they are declared, too.
    virtual void used(const SourceModule& module, Pos pos, const Entity& entity) = 0;
    /// A part of a handler's name means this.
    virtual void usedPart(const SourceModule&, Pos, std::size_t /*length*/, const Entity&) {}
    /// The name means a parameter: in `name:=value`, and where a Declare or an event declares it.
    virtual void usedParameter(const SourceModule&, Pos, const Callable&, const ParameterInfo&) {}
    virtual void member(const MemberBase&, Symbol /*name*/) {}
};

} // namespace qltoolkit
