#pragma once
// Binds the names in the code of a module and checks types. Changes nothing but the module's diagnostics, so modules can
// be bound at the same time.
#include "Components/QLToolkit/names/code_sink.h"
#include "Components/QLToolkit/names/constants.h"
#include "Components/QLToolkit/names/declared_types.h"
#include "Components/QLToolkit/names/procedure_names.h"

namespace qltoolkit {

/// What an expression does where it stands.
enum class Use : std::uint8_t {
    Value,     ///< its value is read
    Argument,  ///< it may be passed by reference, as a whole array too
    Statement, ///< it is called as a statement
    Let,       ///< a value is assigned to it
    Set        ///< an object is assigned to it
};

enum class OperandKind : std::uint8_t {
    Value,
    Variable, ///< has an address: a variable, an element, a field of a record
    Property, ///< is read and assigned by calls
    Constant,
    Late,     ///< found when the program runs
    Qualifier ///< a module, library, project or enumeration; only a point can follow
};

/// What an expression turned out to be.
struct Operand {
    OperandKind kind = OperandKind::Value;
    Type type{ValueType::Unknown};
    Pos pos = 0;
    const Entity* entity = nullptr;
    const Scope* inner = nullptr; ///< of a Qualifier, null for the project; of TypeOf the class
};

/// An array of controls is an object, which variables of type Object and Variant can hold.
inline bool isControlArray(const Operand& operand) {
    return operand.type.isArray && operand.entity && operand.entity->kind == EntityKind::Control;
}

/// What a Qualifier is, for messages.
[[nodiscard]] std::string_view kindOf(const Operand& qualifier);

/// Default members that lead to one another are followed no further.
inline constexpr int kMostDefaults = 64;

class Binder {
public:
    Binder(Program& program, SourceModule& module, ProcedureNames& names)
        : program_(program), module_(module), names_(names), constants_(program), types_(program, module, constants_) {}

    /// Names that were not found while parts of the program are missing, in order.
    [[nodiscard]] const std::vector<std::pair<Symbol, Pos>>& unknownNames() const { return unknownNames_; }

    /// Binds all procedures. Those without errors are passed to `code`, if there is one.
    void bindModule(ModuleCodeSink* code = nullptr);
    /// Binds one procedure. Its names can be looked up until another one is bound.
    void procedure(const ProcedureDecl& decl, Entity& entity);

private:
    Entity* declare(EntityKind kind, Symbol name, Pos pos);
    void used(Pos pos, const Entity& entity) {
        if (program_.uses) program_.uses->used(module_, pos, entity.isResult ? *function_ : entity);
    }
    void used(const Expr* next, const Operand& variable);
    void usedMember(const Operand& base, const MemberExpr& expr);
    Operand use(const Entity& entity, const Expr& expr, bool throughObject);
    void declareParameters(const Callable& callable, const ProcedureDecl& decl);
    void declareLabels(const Block& block);
    void declareLabel(const Target& label);
    void warnOfUnused(const ProcedureDecl& decl);

    // Statements
    void block(const Block& block);
    void statement(const Stmt& stmt);
    bool blockStatement(const Stmt& stmt);
    bool jumpStatement(const Stmt& stmt);
    bool fileStatement(const Stmt& stmt);
    void simpleStatement(const Stmt& stmt);
    void forLoop(const ForStmt& loop);
    void forEach(const ForEachStmt& loop);
    void loopBody(const Operand& variable, const Block& body);
    void forEachVariable(const Operand& variable, const Operand& group);
    void doLoop(const DoStmt& loop);
    void select(const SelectStmt& stmt);
    void with(const BodyStmt& stmt);
    void called(const Operand& operand);
    void condition(const Expr* expr);
    void jump(const Target& target);
    void exit(const Stmt& stmt);
    void exitProcedure(bool fits, std::string_view word, Pos pos);
    void raiseEvent(const RaiseEventStmt& stmt);
    void print(const PrintStmt& stmt);
    void printTarget(const Expr& target);
    void value(const Expr* expr, ValueType wanted);

    // Declarations in procedures
    void local(const Variable& variable, bool isStatic);
    void warnOfUntyped(const Span<Variable>& variables);
    void localConstant(const Constant& constant);
    void reDim(const ReDimItem& item);
    Operand reDimTarget(const ReDimItem& item);

    // Assignments
    void let(const AssignStmt& stmt);
    void set(const AssignStmt& stmt);
    void assign(const Operand& target, const Operand& value, Pos pos);
    void assignArray(const Operand& target, const Operand& value, Pos pos);
    bool mayAssign(const Operand& target);
    void align(const AssignStmt& stmt);
    Operand input(const Expr* target);
    void setObject(const Operand& target, const Operand& value, Pos pos);

    // Expressions
    void note(const Expr& expr, const Operand& operand);
    Operand expression(const Expr& expr, Use use = Use::Value);
    Operand operandOf(const Expr* expr, Use use = Use::Value);
    Operand leaf(const Expr& expr);
    Operand literal(const Expr& expr);
    Operand name(const NameExpr& expr);
    Operand local(const NameExpr& expr, Entity& entity);
    [[nodiscard]] const Entity* functionBehind(const Entity& entity, const NameExpr& expr) const;
    [[nodiscard]] const Entity* libraryFunction(Symbol name) const;
    Operand undefined(const NameExpr& expr);
    Operand implicit(const NameExpr& expr, Type type);
    Operand unary(const UnaryExpr& expr);
    Operand binary(const BinaryExpr& expr, const Operand& left);
    void warnOfFailure(const BinaryExpr& expr);
    Operand isOperator(const BinaryExpr& expr, const Operand& left, const Operand& right);
    Operand newObject(const NewExpr& expr);
    Operand typeOf(const TypeOfExpr& expr);
    Operand addressOf(const UnaryExpr& expr);
    Operand coordinates(const CoordinatesExpr& expr);

    // Members
    Operand member(const Operand& base, const MemberExpr& expr);
    Operand memberOfQualifier(const Operand& base, const MemberExpr& expr);
    Operand memberOfObject(const Operand& base, const MemberExpr& expr);
    Operand bang(const Operand& base, const MemberExpr& expr);
    Operand notFound(const MemberExpr& expr);

    // Calls
    Operand entityOperand(const Entity& entity, const Expr& expr, bool throughObject);
    Operand moduleOperand(const Entity& entity, const Expr& expr);
    Operand call(const Entity& entity, const Expr& expr);
    Operand property(const Entity& entity, const Expr& expr);
    Operand called(const Callable& callable, const Expr& expr, const Entity& entity, OperandKind kind);
    Operand index(const Operand& base, const IndexExpr& expr);
    Operand element(const Operand& base, const IndexExpr& expr);
    Operand defaultMember(const Operand& base, const IndexExpr& expr);
    Operand late(Pos pos, ValueType type = ValueType::Variant);
    void arguments(const Callable& callable, const Span<Argument>& given, Pos pos);
    void argument(const Argument& given, const ParameterInfo& parameter);
    void argumentByRef(const Operand& given, const ParameterInfo& parameter);
    void drawingArguments(const Span<Argument>& given);
    void lateArguments(const Span<Argument>& given);
    const ParameterInfo* parameterOf(const Callable& callable, const Argument& given, std::uint32_t position, Pos pos);

    /// The arguments that follow the part of the expression that is being bound, or null.
    const IndexExpr* pendingIndex() const {
        return spine_.size() > bottom_ && spine_.back()->kind == ExprKind::Index ? &as<IndexExpr>(*spine_.back())
                                                                                 : nullptr;
    }
    [[nodiscard]] bool memberFollows() const {
        return spine_.size() > bottom_ &&
               (spine_.back()->kind == ExprKind::Member || spine_.back()->kind == ExprKind::Bang);
    }
    [[nodiscard]] bool isWhole() const { return spine_.size() == bottom_; }

    bool isIndexable(const Type& type) const;
    bool fitsTo(const Operand& value, const Type& wanted);
    void readValue(const Operand& operand);
    void refuseQualifier(const Operand& operand);
    [[nodiscard]] bool isEnumerable(const Type& type) const;
    void report(Message message, Pos pos) { module_.diagnostics.report(message, pos); }
    void reportName(Message message, Pos pos);
    void warn(Message message, Pos pos);
    void warnNotOnDevices(const Entity& entity, Pos pos);
    [[nodiscard]] std::string pendingLiteral() const;

    Program& program_;
    SourceModule& module_;
    ProcedureNames& names_;
    Constants constants_;
    DeclaredTypes types_;

    const ProcedureDecl* procedure_ = nullptr;
    Entity* function_ = nullptr; ///< the entity of the procedure, as others see it
    std::vector<Operand> withs_;
    std::vector<const Entity*> loopVariables_;
    int doLoops_ = 0, forLoops_ = 0;

    // The expression that is being bound, from the outside in: what follows its innermost part.
    std::vector<const Expr*> spine_;
    std::size_t bottom_ = 0;
    Use use_ = Use::Value;
    const IndexExpr* defaultsOf_ = nullptr; // whose arguments the last default members were offered
    int defaults_ = 0;
    std::vector<std::pair<Symbol, Pos>> unknownNames_;
    bool notes_ = false; // whether found_ is filled
    Notes found_;
};

} // namespace qltoolkit
