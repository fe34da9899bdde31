#pragma once
// Makes the code of procedures that are bound. One walk over the tree: an expression is computed into a slot, a condition
// into a jump.
#include "Components/QLToolkit/code/line_cursor.h"
#include "Components/QLToolkit/code/procedure_code.h"
#include "Components/QLToolkit/code/program_layout.h"
#include "Components/QLToolkit/code/slots.h"
#include "Components/QLToolkit/names/binder.h"
#include "Components/QLToolkit/types/operators.h"
#include <span>

namespace qltoolkit {

/// A value in a slot: that of a variable, or a temporary. Its type is one that a slot can have.
struct Value {
    Type type;
    std::uint32_t slot = 0;
    bool isTemporary = true;          ///< what it holds may be taken
    const Entity* variable = nullptr; ///< the variable of the procedure that the slot is
};

/// Where a variable, element or field is, or how a property is reached.
enum class PlaceKind : std::uint8_t {
    Slot,           ///< a slot of the procedure
    Wide,           ///< a slot that instructions do not reach
    Global,         ///< a variable of a module
    Static,         ///< a variable of a procedure that keeps its value
    Field,          ///< of an object
    Ref,            ///< behind a reference
    Element,        ///< of an array
    VariantElement, ///< of an array in a Variant, or the default member of an object in it
    Property,       ///< of a class of the project
    Late            ///< found by name when the program runs
};

struct Place {
    PlaceKind kind = PlaceKind::Slot;
    Type type;
    std::uint32_t slot =
        0; ///< Slot, Wide: the slot; Field: of the object; Ref: of the reference; Element: of the array
    std::uint32_t offset = 0;       ///< of a variable among all, of a field in its object or record
    std::uint32_t index = 0;        ///< Element: the slot of the index
    bool isFlat = false;            ///< Element: the index is a place from 0; VariantElement: `object` is a reference
    bool isTemporary = false;       ///< Slot: the result of a call
    bool isNew = false;             ///< As New
    bool withEvents = false;        ///< Field
    bool isBang = false;            ///< Late: the name is the argument of the default member
    bool isPart = false;            ///< Ref: the first field of a record, not the record itself
    const Entity* entity = nullptr; ///< Property; Slot: the variable of the procedure
    Value object;                   ///< Property, Late, VariantElement: the object or Variant
    Symbol name = Symbol::None;     ///< Late; None for the default member
    const Span<Argument>* arguments = nullptr; ///< Property, Late
    std::uint32_t firstIndex = 0, indexes = 0; ///< VariantElement: the slots of its indexes, see Emitter::indexesOf
};

/// What an argument of a call is before it is passed.
struct PassedArgument {
    std::uint16_t word = 0;
    /// Where a temporary that was passed in the place of a variable is stored after the call.
    std::optional<Place> storedTo;
    Value temporary;
    /// Of a ParamArray, which `temporary` holds: the variables that its elements are, by their places.
    std::vector<std::pair<std::uint32_t, Place>> elements = {};
};

class Emitter {
public:
    Emitter(const ProgramLayout& layout, SourceModule& module, ModuleCode& code);

    void procedure(const ProcedureDecl& decl, const Entity& entity, const ProcedureNames& names, const Notes& notes);
    /// The procedure that prepares the variables of the module or the fields of the class.
    void prepare(std::uint32_t number);
    /// The procedures through which other classes reach the variables of the class.
    void fieldAccesses();

private:
    using Op = image::Op;

    // Procedures
    void begin(const ProcedureNames* names, const Notes* notes);
    void declareParameters(const Callable& callable, const ProcedureDecl& decl);
    void declareLocals(image::Procedure& made);
    [[nodiscard]] std::uint32_t localSlots() const;
    void placeVariable(const Entity& entity);
    void setPlace(const Entity& own, const Place& place);
    void prepareVariable(const Place& place, const Entity& entity);
    void prepareLocals();
    void readField(const Entity& field, const Callable& callable);
    void assignField(const Entity& field, const Callable& callable, bool isSet);
    void beginAccess(const Entity& field, image::Procedure& made);
    void prepareOne(const Place& place, const Entity& entity);
    void shareArrays();
    void shareArray(const Entity& entity, const Place& place);
    void finish(image::Procedure made, std::uint32_t number);
    std::uint32_t shapeOf(const Entity& entity);
    static Type known(const Type& type);
    [[nodiscard]] image::SlotType typeOfMe() const;
    [[nodiscard]] std::string nameOfProcedure() const;

    // Statements
    void block(const Block& block);
    void statement(const Stmt& stmt);
    bool blockStatement(const Stmt& stmt);
    bool jumpStatement(const Stmt& stmt);
    bool fileStatement(const Stmt& stmt);
    void simpleStatement(const Stmt& stmt);
    void ifStatement(const IfStmt& stmt);
    void select(const SelectStmt& stmt);
    void caseTest(const Value& tested, const CaseItem& item, Label body);
    void caseCompare(const Value& tested, Operator op, const Expr& with, bool when, Label target);
    void compareJump(Operator op, const Value& left, const Value& right, bool when, Label target);
    void with(const BodyStmt& stmt);
    void doLoop(const DoStmt& loop);
    void forLoop(const ForStmt& loop);
    void whileLoop(const Expr* test, bool when, const Block& body, std::optional<bool> isDo);
    void fastFor(const ForStmt& loop, const Place& counter, int step);
    void generalFor(const ForStmt& loop, const Place& counter);
    void forEach(const ForEachStmt& loop);
    std::optional<std::uint32_t> beginLoopCheck();
    void checkLoop(std::optional<std::uint32_t> entered);
    void endLoopCheck(std::optional<std::uint32_t> entered);
    Value counted(const Expr& expr, const Type& type);
    Value sumOf(const Value& left, const Value& right, const Type& type);
    void jumpIf(Operator op, const Value& left, const Value& right, Label target);
    void beginLine(Pos pos);
    /// The statement at the end of a loop, which has so many lines.
    void beginNext(Pos loop, std::uint32_t lines);
    void onJump(const OnJumpStmt& stmt);
    void callStatement(const Expr& call);
    [[nodiscard]] const Expr* raisedNumber(const Expr& call) const;
    void redim(const ReDimStmt& stmt);
    void redimItem(const ReDimItem& item, bool preserve);
    void erase(const Expr& target);
    void raiseEvent(const RaiseEventStmt& stmt);
    void midAssign(const MidAssignStmt& stmt);
    void align(const AssignStmt& stmt);
    void print(const PrintStmt& stmt);
    struct PrintTarget {
        std::string_view prefix; ///< of the names of the functions
        std::optional<Value> file;
    };
    void printPart(const PrintTarget& to, std::string_view part, std::vector<Value> values);
    void printItem(const Expr& item, const PrintTarget& to, bool isWrite);
    void transfer(const FileStmt& stmt);
    void open(const OpenStmt& stmt);
    void fileAccess(const FileStmt& stmt);
    void inputFile(const ListStmt& stmt);

    // Assignments
    void let(const AssignStmt& stmt);
    void set(const AssignStmt& stmt);
    bool append(const Place& target, const Expr& value);
    void assignArray(const Place& target, const Expr& value);
    void assignRecord(const Place& target, const Expr& value);
    void assignValue(const Place& target, const Value& value);
    void setObject(const Place& target, Value object);

    // Places
    Place place(const Expr& expr);
    Place place(const Expr& expr, const Span<Argument>* given);
    Place namePlace(const Expr& expr, const Span<Argument>* given);
    Place entityPlace(const Entity& entity, const Expr& expr, const Span<Argument>* given);
    Place ownPlace(const Entity& entity, const Expr& expr);
    [[nodiscard]] const Place* ownSlot(const Expr& expr) const;
    [[nodiscard]] Place variablePlace(const Entity& entity) const;
    [[nodiscard]] std::span<const std::uint16_t> indexesOf(const Place& place) const {
        return std::span{indexes_}.subspan(place.firstIndex, place.indexes);
    }
    Place basePlace(const Expr* base);
    Place fieldOf(const Place& record, const Entity& field);
    Place element(const Value& array, const Type& type, const Span<Argument>& indexes);
    Place indexPlace(const IndexExpr& expr);
    Place latePlace(const Value& object, Symbol name, const Span<Argument>* arguments, const Type& type);
    Place propertyPlace(const Entity& entity, const Value& object, const Span<Argument>* arguments);
    Place libraryPlace(const Entity& entity, const Value& object, const Span<Argument>* arguments);
    Place resultPlace(const Value& value);
    void needObject(std::uint32_t slot, const Type& type);
    const Operand& noteOfBase(const MemberExpr& expr) const;
    Value load(const Place& place, std::optional<std::uint32_t> target = {});
    void loadInto(const Place& place, std::uint32_t slot);
    void store(const Place& place, const Value& value);
    bool isAddressable(const Place& place) const;
    Value reference(const Place& place);
    Value recordOf(const Expr& expr);
    Value referenceAt(const Place& element);
    Value array(const Place& place);

    // Expressions
    Value value(const Expr& expr);
    Value value(const Expr& expr, const Type& want);
    std::optional<Value> constantAs(const Expr& expr, const Type& want, std::optional<std::uint32_t> target);
    void into(const Expr& expr, const Type& want, std::uint32_t slot);
    Value valueIn(const Expr& expr, std::optional<std::uint32_t> target);
    Value literal(const Expr& expr, std::optional<std::uint32_t> target);
    Value constant(const ConstantValue& value, std::optional<std::uint32_t> target);
    Value longConstant(std::int64_t value, std::optional<std::uint32_t> target, ValueType type = ValueType::Long);
    Value floatConstant(double value, std::optional<std::uint32_t> target, ValueType type = ValueType::Double);
    Value textConstant(const std::string& value, std::optional<std::uint32_t> target = {});
    Value variantConstant(int kind, ValueType type, std::optional<std::uint32_t> target = {});
    Value missing();
    Value nothing();
    Value binary(const Expr& expr, std::optional<std::uint32_t> target);
    Value operate(const BinaryExpr& expr, const Value& left, std::optional<std::uint32_t> target);
    Value join(const Value& left, const Expr& right, bool isTemporary, std::optional<std::uint32_t> target);
    Value arithmetic(Operator op, ValueType type, ValueType result, const Value& left, const Value& right,
                     std::optional<std::uint32_t> target);
    std::uint32_t uncheckedSlot(const Value& made);
    Value comparison(Operator op, const Value& left, const Value& right, std::optional<std::uint32_t> target);
    Value operateVariants(Operator op, const Value& left, const Value& right, std::optional<std::uint32_t> target);
    struct NumberForm {
        Op op;
        std::uint32_t operand; ///< the number, or its place among the constants
    };
    std::optional<NumberForm> numberForm(Operator op, const Operation& operation, const Expr& number,
                                         const Type& other);
    Value operateByNumber(const NumberForm& form, const Operation& operation, const Value& operand,
                          std::optional<std::uint32_t> target);
    std::optional<Value> operateOnNumber(const BinaryExpr& expr, std::optional<std::uint32_t> target);
    Value unary(const UnaryExpr& expr, std::optional<std::uint32_t> target);
    Value isSame(const BinaryExpr& expr);
    Value typeOf(const TypeOfExpr& expr);
    Value newObject(const Type& type);
    Value checkClass(const Value& object, const Type& type);
    [[nodiscard]] Type typeOfExpr(const Expr& expr) const;
    void condition(const Expr& expr, bool when, Label target);
    bool compareCondition(const BinaryExpr& expr, bool when, Label target);
    void clearObjects(std::size_t mark);
    bool mayChange(const Expr& expr, const Value& value) const;
    bool mentions(const Expr& expr, const Entity* entity) const;
    bool isPure(const Expr& expr, const Entity* variable) const;

    // Conversions
    Value convert(const Value& value, const Type& want, std::optional<std::uint32_t> target = {}) {
        const bool isSame = value.type == want && want.value <= ValueType::String && !want.isArray;
        return isSame && !target ? value : converted(value, want, target);
    }
    Value converted(const Value& value, const Type& want, std::optional<std::uint32_t> target);
    Value convertSimple(const Value& value, ValueType to, std::optional<std::uint32_t> target);
    Value toLong(const Value& value, ValueType to, std::optional<std::uint32_t> target);
    Value toFloat(const Value& value, ValueType to, std::optional<std::uint32_t> target);
    Value toCurrency(const Value& value, std::optional<std::uint32_t> target);
    Value toText(const Value& value, std::optional<std::uint32_t> target);
    Value toVariant(const Value& value, std::optional<std::uint32_t> target);
    std::optional<Value> explicitConversion(const Expr& expr, ValueType to);
    Value narrow(const Value& value, ValueType to, std::optional<std::uint32_t> target);
    Value moved(const Value& value, std::uint32_t slot);
    void holdsNoObject(std::uint32_t temporary);
    Value variantOf(const Expr& expr);

    // Calls
    Place procedurePlace(const Entity& entity, const Expr& expr, const Span<Argument>* given);
    Value call(const Callable& callable, const Span<Argument>& given, const Value* object, const Entity& entity,
               const Value* assigned = nullptr);
    void words(const std::vector<PassedArgument>& list);
    Value resultRecord(const Type& type, std::vector<PassedArgument>& list);
    Value libraryCall(const Entity& entity, const Span<Argument>& given, const std::string& prefix = {});
    void takeDefaultValues(const Callable& callable, const Span<Argument>& given,
                           const std::vector<PassedArgument>& list);
    std::optional<Value> intrinsic(const LibraryFunction& function, const Span<Argument>& given);
    std::optional<Value> squareRoot(const Expr& expr);
    std::optional<Value> wholePart(Builtin function, const Expr& expr);
    Value boundOf(const Span<Argument>& given, bool isUpper);
    std::optional<Value> lengthOf(const Expr& expr);
    std::optional<Value> bytesOfRecord(const Expr& expr);
    /// Calls a function of the runtime with values of these types.
    Value native(const std::string& name, const Type& result, const std::vector<Value>& values);
    struct NativeCall {
        std::vector<PassedArgument> list;
        std::vector<image::SlotType> types;
    };
    void pass(NativeCall& call, const Value& value);
    void passReference(NativeCall& call, const Place& place);
    Value finish(NativeCall& call, const std::string& name, const Type& result);
    Value lateCall(const Place& member, image::LateUse use, const Value* assigned, bool wantsResult);
    Value exactly(const Value& object, const Scope& owner);
    std::uint32_t memberNumber(const Entity& entity, const Callable& callable) const;
    PassedArgument argument(const Expr* given, const ParameterInfo& parameter, bool byVal);
    PassedArgument referenceArgument(const Expr& given, const ParameterInfo& parameter);
    PassedArgument omitted(const Callable& callable, const ParameterInfo& parameter);
    PassedArgument paramArray(const Span<Argument>& given, std::uint32_t first, std::int32_t base, bool refers);
    void passElement(PassedArgument& list, std::uint32_t index, const Expr& given);
    void storeElementBack(const Value& list, std::uint32_t index, const Place& variable);
    PassedArgument copied(const Place& variable, const Value& value, const ParameterInfo& parameter);
    PassedArgument passArray(const Expr& given, const Type& type);
    std::uint16_t passed(const Value& value);
    std::uint16_t passed(const Value& value, image::SlotType type);
    Value callByName(const Span<Argument>& given);
    std::vector<PassedArgument> lateArguments(const Span<Argument>& given, std::uint32_t first, bool isOfLibrary,
                                              std::vector<std::uint16_t>& slots);
    PassedArgument lateArgument(const Expr& given, bool isOfLibrary);
    static std::size_t parameterOf(const Callable& callable, const Span<Argument>& given, std::uint32_t i);
    Value variableId(const Expr& given);
    [[nodiscard]] bool isVariable(const Expr& given) const;
    Value declaredCall(const Entity& entity, const Span<Argument>& given);
    std::optional<std::vector<ParameterInfo>> answeredParameters(const Entity& entity,
                                                                 const Span<Argument>& given) const;
    static std::uint16_t passedAddress(std::uint32_t slot) { return image::encodeArgument(image::Pass::Address, slot); }
    void storeBack(const std::vector<PassedArgument>& passed);
    Value boxed(const Value& object);
    void clearObject(Slots::Temporary& temporary);
    void releaseOperands(std::size_t mark, std::uint32_t result);
    void storeBackAfterCall(const std::vector<PassedArgument>& passed);
    void arguments(const Callable& callable, const Span<Argument>& given, std::vector<PassedArgument>& list,
                   std::int32_t base = 0);
    Value defaultOf(const Callable& callable, const ParameterInfo& parameter);
    Value objectOf(const Expr* base);
    Value me();
    Value fail(int error, const Type& type);

    // Small things
    const Operand& noteOf(const Expr& expr) const { return (*notes_)[expr.note]; }
    std::string_view spelling(Symbol name) const { return layout_.program().symbols.spelling(name); }
    std::uint32_t temporary(const Type& type) { return slots_.temporary(layout_.slotTypeOf(type)); }
    /// The target, if it is of the type; otherwise a temporary.
    std::uint32_t targetOr(std::optional<std::uint32_t> target, ValueType type) {
        return isTarget(target, type) ? *target : temporary({type});
    }
    [[nodiscard]] bool isTarget(std::optional<std::uint32_t> target, ValueType type) const {
        return target && slots_.typeAt(*target) == layout_.slotTypeOf({type});
    }
    Label labelOf(const Target& target);
    void reportTooLarge(Pos pos);

    struct WithObject {
        Place record;
        Value object;
        bool isRecord = false;
    };

    const ProgramLayout& layout_;
    SourceModule& module_;
    Constants constants_;
    ProcedureCode out_;
    Slots slots_;
    LineCursor lines_;

    const ProcedureNames* names_ = nullptr;
    const Notes* notes_ = nullptr;
    const ProcedureDecl* decl_ = nullptr;
    const Entity* function_ = nullptr;
    std::vector<Place> places_;                       // of the procedure's own names, by Entity::place
    std::unordered_map<const Entity*, Place> shared_; // of arrays of the module
    std::vector<std::uint16_t> indexes_;              // of places
    // Used again and again for their memory.
    std::vector<const BinaryExpr*> chain_;
    mutable std::vector<const Expr*> waiting_;
    std::unordered_map<std::uint64_t, Label> labels_;
    std::vector<Label> forExits_, doExits_;
    std::vector<WithObject> withs_;
    std::optional<Place> resultRecord_;
    std::vector<std::pair<Place, Entity>> statics_; // of all procedures
    std::uint32_t me_ = image::kNoSlot;
    std::size_t statementMark_ = 0;
    bool resumes_ = false, isTooLarge_ = false;
    int depth_ = 0;
};

} // namespace qltoolkit
