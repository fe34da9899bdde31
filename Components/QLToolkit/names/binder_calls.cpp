// Calls, their arguments, and elements of arrays.
#include "Basic/case_folding.h"
#include "Components/Language/foreign.h"
#include "Components/QLToolkit/names/binder.h"
#include "Components/QLToolkit/names/lacks.h"
#include "Components/QLToolkit/names/lookup.h"
#include "Components/QLToolkit/types/coercions.h"
#include <utility>

namespace qltoolkit {

namespace {

bool isDrawing(const Span<Argument>& given) {
    return !given.empty() && given[0].value && given[0].value->kind == ExprKind::Coordinates;
}

} // namespace

Operand Binder::late(Pos pos, ValueType type) {
    if (const IndexExpr* given = pendingIndex()) {
        spine_.pop_back();
        lateArguments(given->arguments);
    }
    return {OperandKind::Late, {type}, pos};
}

bool Binder::isIndexable(const Type& type) const {
    if (type.isArray) return true;
    return type.value == ValueType::Variant || type.value == ValueType::Object || type.value == ValueType::Unknown;
}

Operand Binder::call(const Entity& entity, const Expr& expr) {
    if (!entity.onDevices) warnNotOnDevices(entity, expr.pos);
    const bool isWholeCall = spine_.size() <= bottom_ + (pendingIndex() ? 1 : 0);
    const Operand result = called(*entity.get, expr, entity, OperandKind::Value);
    if (entity.type.value != ValueType::None || (isWholeCall && use_ == Use::Statement)) return result;
    reportName(Message::ExpectedFunction, expr.pos);
    return {OperandKind::Late, {ValueType::Unknown}, expr.pos};
}

// Arguments that the procedure cannot take belong to what it returns.
Operand Binder::called(const Callable& callable, const Expr& expr, const Entity& entity, OperandKind kind) {
    const IndexExpr* given = pendingIndex();
    const bool takes =
        given && !(callable.parameters.empty() && !given->arguments.empty() && isIndexable(callable.result));
    if (takes) spine_.pop_back();
    arguments(callable, takes ? given->arguments : Span<Argument>{}, expr.pos);
    return {kind, callable.result, expr.pos, &entity};
}

Operand Binder::property(const Entity& entity, const Expr& expr) {
    if (!entity.onDevices) warnNotOnDevices(entity, expr.pos);
    const IndexExpr* given = pendingIndex();
    const bool isTarget = spine_.size() <= bottom_ + (given ? 1 : 0) && (use_ == Use::Let || use_ == Use::Set);
    // x.Items(1) = 5 assigns to an element of what Items returns if Items itself has no parameters.
    const bool readsFirst = given && entity.get && entity.get->parameters.empty() && !given->arguments.empty();
    if (!isTarget || readsFirst) {
        if (entity.get) return called(*entity.get, expr, entity, OperandKind::Property);
        reportName(Message::WriteOnlyProperty, expr.pos);
        return late(expr.pos, ValueType::Unknown);
    }
    const Callable* assigning = use_ == Use::Set ? (entity.set ? entity.set : entity.let) : entity.let;
    if (assigning) return called(*assigning, expr, entity, OperandKind::Property);
    // An object that the property returns may have a default property.
    const bool returnsObject =
        entity.get && entity.get->result.value != ValueType::Variant && isIndexable(entity.get->result);
    if (returnsObject && use_ == Use::Let) return called(*entity.get, expr, entity, OperandKind::Property);
    reportName(entity.let || entity.set ? Message::InvalidUseOfProperty : Message::ReadOnlyProperty, expr.pos);
    return late(expr.pos, ValueType::Unknown);
}

Operand Binder::index(const Operand& base, const IndexExpr& expr) {
    if (base.kind == OperandKind::Qualifier) {
        refuseQualifier(base);
        lateArguments(expr.arguments);
        return {OperandKind::Late, {ValueType::Unknown}, base.pos};
    }
    if (base.type.isArray) return element(base, expr);
    if (base.type.value == ValueType::Object && base.type.id != 0) return defaultMember(base, expr);
    // A class's variable is a property to those who have an object: x.Width() calls it.
    if (expr.arguments.empty() && base.kind == OperandKind::Property) return base;
    lateArguments(expr.arguments);
    if (isIndexable(base.type))
        return {OperandKind::Late,
                {base.type.value == ValueType::Unknown ? ValueType::Unknown : ValueType::Variant},
                base.pos};
    if (base.entity && base.entity->kind == EntityKind::Procedure)
        report(Message::ArgumentCount, base.pos);
    else
        reportName(Message::ExpectedArray, base.pos);
    return {OperandKind::Late, {ValueType::Unknown}, base.pos};
}

Operand Binder::element(const Operand& base, const IndexExpr& expr) {
    for (const auto& given : expr.arguments) value(given.value, ValueType::Long);
    if (expr.arguments.empty()) return base; // the whole array: f a()
    const auto rank = base.entity ? base.entity->rank : -1;
    if (rank >= 0 && static_cast<std::uint32_t>(rank) != expr.arguments.size())
        report(Message::DimensionCount, base.pos);
    Type type = base.type;
    type.isArray = false;
    const bool isControl = base.entity && base.entity->kind == EntityKind::Control;
    return {isControl || base.kind == OperandKind::Property ? OperandKind::Property : OperandKind::Variable, type,
            base.pos};
}

Operand Binder::defaultMember(const Operand& base, const IndexExpr& expr) {
    const Scope& scope = program_.scope(base.type.id);
    const Entity* member = scope.findDefault();
    // A default member without parameters passes the arguments on to what it returns, which may have the same class.
    if (std::exchange(defaultsOf_, &expr) != &expr) defaults_ = 0;
    if (!member || ++defaults_ > kMostDefaults) {
        lateArguments(expr.arguments);
        if (member || !scope.open) report(Message::ArgumentCount, base.pos);
        return {OperandKind::Late, {ValueType::Unknown}, base.pos};
    }
    spine_.push_back(&expr);
    return entityOperand(*member, *expr.callee, true);
}

void Binder::lateArguments(const Span<Argument>& given) {
    if (isDrawing(given)) return drawingArguments(given);
    for (const auto& each : given)
        if (each.value) (void)expression(*each.value, Use::Argument);
}

const ParameterInfo* Binder::parameterOf(const Callable& callable, const Argument& given, std::uint32_t position,
                                         Pos pos) {
    const auto& parameters = callable.parameters;
    const bool hasArray = !parameters.empty() && parameters[parameters.size() - 1].paramArray;
    if (given.name == Symbol::None) {
        if (position < parameters.size()) return &parameters[position];
        return hasArray ? &parameters[parameters.size() - 1] : nullptr;
    }
    for (const auto& parameter : parameters)
        if (parameter.name == given.name && !parameter.paramArray) {
            if (program_.uses) program_.uses->usedParameter(module_, given.namePos, callable, parameter);
            return &parameter;
        }
    if (hasArray)
        report(Message::NamedWithParamArray, given.value ? given.value->pos : pos);
    else
        module_.diagnostics.report(Message::NamedArgumentUnknown, given.value ? given.value->pos : pos,
                                   program_.symbols.spelling(given.name));
    return nullptr;
}

namespace {

/// Line (x1, y1)-(x2, y2), color, BF: B and BF are no names.
bool isBoxWord(std::string_view name) { return basic::equalNoCase(name, "B") || basic::equalNoCase(name, "BF"); }

} // namespace

/// The arguments of Line, Circle, PSet and Scale, which have a form of their own.
void Binder::drawingArguments(const Span<Argument>& given) {
    for (const auto& each : given) {
        if (!each.value) continue;
        const bool isBox = each.value == given[given.size() - 1].value && each.value->kind == ExprKind::Name &&
                           isBoxWord(program_.symbols.spelling(as<NameExpr>(*each.value).name));
        if (!isBox) (void)expression(*each.value, Use::Argument);
    }
}

void Binder::arguments(const Callable& callable, const Span<Argument>& given, Pos pos) {
    if (isDrawing(given)) return drawingArguments(given);
    const auto& parameters = callable.parameters;
    std::vector<bool> filled(parameters.size());
    bool tooMany = false, unknown = false;
    for (std::uint32_t i = 0; i < given.size(); ++i) {
        const ParameterInfo* parameter = parameterOf(callable, given[i], i, pos);
        tooMany |= !parameter && given[i].name == Symbol::None;
        unknown |= !parameter;
        if (!parameter) {
            if (given[i].value) (void)expression(*given[i].value, Use::Argument);
            continue;
        }
        const auto at = static_cast<std::size_t>(parameter - parameters.begin());
        if (filled[at] && given[i].name != Symbol::None)
            module_.diagnostics.report(Message::NamedArgumentTwice, given[i].value ? given[i].value->pos : pos,
                                       program_.symbols.spelling(given[i].name));
        if (given[i].value) {
            filled[at] = true;
            argument(given[i], *parameter);
        }
    }
    if (tooMany) return report(Message::ArgumentCount, pos);
    if (unknown) return;
    for (std::size_t i = 0; i < parameters.size(); ++i)
        if (!filled[i] && !parameters[i].optional && !parameters[i].paramArray)
            return module_.diagnostics.report(Message::ArgumentMissing, pos,
                                              program_.symbols.spelling(parameters[i].name));
}

void Binder::argument(const Argument& given, const ParameterInfo& parameter) {
    const Operand operand = expression(*given.value, Use::Argument);
    readValue(operand);
    if (parameter.any || operand.type.value == ValueType::Unknown || parameter.type.value == ValueType::Unknown) return;
    if (operand.type.value == ValueType::None) return; // reported already
    if (!parameter.byVal && given.value->kind == ExprKind::Paren &&
        as<UnaryExpr>(*given.value).operand->kind == ExprKind::Name)
        warn(Message::ArgumentInParentheses, given.value->pos);
    const Type& wanted = parameter.type;
    if (wanted.isArray) {
        const bool fits = operand.type.isArray &&
                          (operand.type.value == wanted.value || wanted.value == ValueType::Variant) &&
                          (operand.type.value != ValueType::Record || operand.type.id == wanted.id);
        // What a function returns may hold an array.
        const bool mayFit = operand.type == Type{ValueType::Variant} && operand.kind != OperandKind::Variable;
        if (!fits && !mayFit) report(Message::TypeMismatch, operand.pos);
        return;
    }
    if (!parameter.byVal && !given.byVal && operand.kind == OperandKind::Variable &&
        given.value->kind != ExprKind::Paren)
        return argumentByRef(operand, parameter);
    if (!fitsTo(operand, wanted)) report(Message::TypeMismatch, operand.pos);
}

void Binder::argumentByRef(const Operand& given, const ParameterInfo& parameter) {
    if (given.type.value == ValueType::Record && parameter.type.value == ValueType::Variant)
        return report(Message::RecordToVariant, given.pos);
    if (parameter.isOfDeclare && given.type.value == ValueType::Variant) return; // its value is copied there and back
    // Of an object the value of its default member is passed, which is no variable.
    const Scope* scope = given.type.value == ValueType::Object && !given.type.isArray && given.type.id != 0
                             ? &program_.scope(given.type.id)
                             : nullptr;
    const bool isValue = scope && (scope->open || scope->findDefault()) && fitsTo(given, parameter.type);
    if (!isValue && byRefOf(given.type, parameter.type) == ByRef::Never) reportName(Message::ByRefMismatch, given.pos);
}

bool Binder::fitsTo(const Operand& value, const Type& wanted) {
    if (value.type.value == ValueType::Unknown || wanted.value == ValueType::Unknown) return true;
    if (wanted.value == ValueType::Variant) {
        if (value.type.value == ValueType::Record && !value.type.isArray) {
            report(Message::RecordToVariant, value.pos);
        }
        return true;
    }
    if (isControlArray(value)) return wanted.value == ValueType::Object && wanted.id == 0;
    if (value.type.isArray) return coercionOf(value.type, wanted) != Coercion::Never;
    if (value.type.value == ValueType::Record || wanted.value == ValueType::Record)
        return value.type.value == wanted.value && value.type.id == wanted.id;
    return coercionOf(value.type.value, wanted.value) != Coercion::Never;
}

/// The text in the call that follows, if that is its only argument.
std::string Binder::pendingLiteral() const {
    const IndexExpr* given = pendingIndex();
    const bool isOnlyText = given && given->arguments.size() == 1 && given->arguments[0].value &&
                            given->arguments[0].value->kind == ExprKind::String;
    return isOnlyText ? stringValue(module_.tree.source, as<StringExpr>(*given->arguments[0].value)) : std::string{};
}

/// CreateObject of a class that devices have is no reason to warn, and of one that they lack the class is the reason.
void Binder::warnNotOnDevices(const Entity& entity, Pos pos) {
    if (!program_.warnsOfDevices) return;
    const auto literal = pendingLiteral();
    const auto* created = language::findClass(literal);
    if (created && created->creatable && created->onDevices) return;
    const auto* library = language::foreignLibrary(literal.substr(0, literal.find('.')));
    if (literal.find('.') != literal.npos && library && !library->onDevices)
        return module_.diagnostics.reportLack(Lack::Class, pos, literal,
                                              created && !created->onDevices ? created->instead : library->instead);
    reportLack(program_, module_.diagnostics, lackOf(program_, entity), entity, pos, nameAt(module_.tree.source, pos));
}

} // namespace qltoolkit
