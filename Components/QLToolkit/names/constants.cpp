#include "Components/QLToolkit/names/constants.h"
#include "Basic/error_numbers.h"
#include "Components/QLToolkit/names/lookup.h"
#include "Components/QLToolkit/names/procedure_names.h"
#include "Components/QLToolkit/types/constant_functions.h"
#include <limits>

namespace qltoolkit {

namespace {

Message messageOfError(int error) {
    switch (error) {
    case basic::kOverflow: return Message::ConstantOverflow;
    case basic::kDivisionByZero: return Message::ConstantDivisionByZero;
    default: return Message::TypeMismatch;
    }
}

/// Constants that refer to one another in a longer chain are refused as a circle would be.
constexpr int kDeepestConstant = 500;

/// The value of a member of an enumeration after another one; nothing if it is too large.
std::optional<ConstantValue> nextValue(const ConstantState& state) {
    if (!state.previous) return basic::Long{0};
    const auto* before = std::get_if<basic::Long>(&state.previous->constant->value);
    if (!before) return basic::Long{0};
    if (*before == std::numeric_limits<basic::Long>::max()) return std::nullopt;
    return *before + 1;
}

} // namespace

std::optional<ConstantValue> Constants::valueOf(const Expr& expr, SourceModule& module, LocalConstants local) {
    return value(expr, {module, local});
}

std::optional<basic::Long> Constants::longOf(const Expr& expr, SourceModule& module, LocalConstants local) {
    const Context context{module, local};
    const auto found = value(expr, context);
    if (!found) return std::nullopt;
    const auto number = checked(expr, convert(*found, ValueType::Long), context);
    return number ? std::optional(std::get<basic::Long>(*number)) : std::nullopt;
}

std::uint32_t Constants::lengthOf(const Expr& expr, SourceModule& module, LocalConstants local) {
    const auto length = longOf(expr, module, local);
    return length && *length > 0 ? static_cast<std::uint32_t>(*length) : 0;
}

// The members of an enumeration follow one another in a loop, because there may be many.
void Constants::evaluate(const Entity& constant, SourceModule& module, LocalConstants local) {
    std::vector<const Entity*> waiting;
    for (const Entity* at = &constant; at && at->constant->progress == ConstantState::Progress::Waiting;
         at = at->constant->expression ? nullptr : at->constant->previous)
        waiting.push_back(at);
    if (constant.constant->progress == ConstantState::Progress::Running) return refuseCircle(constant, module);
    for (; !waiting.empty(); waiting.pop_back()) evaluateOne(*waiting.back(), module, local);
}

void Constants::evaluateOne(const Entity& constant, SourceModule& module, LocalConstants local) {
    ConstantState& state = *constant.constant;
    if (state.progress != ConstantState::Progress::Waiting) return;
    const bool isCircle =
        !state.expression && state.previous && state.previous->constant->progress == ConstantState::Progress::Running;
    if (isCircle || depth_ >= kDeepestConstant) return refuseCircle(constant, module);
    state.progress = ConstantState::Progress::Running;
    ++depth_;
    const Context context{module, local};
    std::optional<ConstantValue> found;
    if (!state.expression) {
        found = nextValue(state);
        if (!found) module.diagnostics.report(Message::ConstantOverflow, constant.pos);
    } else if ((found = value(*state.expression, context)) && state.declared.value != ValueType::Unknown)
        found = checked(*state.expression, convert(*found, state.declared.value), context);
    --depth_;
    state.failed |= !found;
    if (found) state.value = std::move(*found);
    state.progress = ConstantState::Progress::Done;
}

void Constants::refuseCircle(const Entity& constant, SourceModule& module) {
    if (!constant.constant->failed)
        module.diagnostics.report(Message::CircularReference, constant.pos, nameAt(module.tree.source, constant.pos));
    constant.constant->failed = true;
}

std::optional<ConstantValue> Constants::value(const Expr& expr, const Context& context) {
    switch (expr.kind) {
    case ExprKind::Binary: return chain(expr, context);
    case ExprKind::Unary:
    case ExprKind::Paren: return unary(as<UnaryExpr>(expr), context);
    case ExprKind::Name: {
        const auto& name = as<NameExpr>(expr);
        const Entity* local = context.local ? context.local->find(name.name) : nullptr;
        return named(expr, local ? local : findName(program_, *context.module.scope, name.name).entity, context);
    }
    case ExprKind::Member: return named(expr, qualified(as<MemberExpr>(expr), context), context);
    case ExprKind::Index: return called(as<IndexExpr>(expr), context);
    default: return literal(expr, context);
    }
}

// Chains of operators may be long, so their left sides are walked in a loop.
std::optional<ConstantValue> Constants::chain(const Expr& expr, const Context& context) {
    std::vector<const BinaryExpr*> operators;
    const Expr* left = &expr;
    for (; left->kind == ExprKind::Binary; left = operators.back()->left) operators.push_back(&as<BinaryExpr>(*left));
    auto result = value(*left, context);
    for (auto at = operators.rbegin(); at != operators.rend(); ++at) {
        const auto right = value(*(*at)->right, context);
        if (!result || !right) return std::nullopt;
        result = checked(**at, fold((*at)->op(), *result, *right, context.module.comparesText), context);
    }
    return result;
}

std::optional<ConstantValue> Constants::unary(const UnaryExpr& expr, const Context& context) {
    auto operand = value(*expr.operand, context);
    if (!operand || expr.kind == ExprKind::Paren) return operand;
    return checked(expr, fold(expr.op(), *operand), context);
}

std::optional<ConstantValue> Constants::literal(const Expr& expr, const Context& context) {
    switch (expr.kind) {
    case ExprKind::Integer: return static_cast<basic::Integer>(as<IntegerExpr>(expr).value);
    case ExprKind::Long: return static_cast<basic::Long>(as<IntegerExpr>(expr).value);
    case ExprKind::Currency: return basic::Currency{as<IntegerExpr>(expr).value};
    case ExprKind::Single: return static_cast<basic::Single>(as<FloatExpr>(expr).value);
    case ExprKind::Double: return as<FloatExpr>(expr).value;
    case ExprKind::Date: return basic::Date{as<FloatExpr>(expr).value};
    case ExprKind::String: return stringValue(context.module.tree.source, as<StringExpr>(expr));
    case ExprKind::Boolean: return expr.detail == 1;
    case ExprKind::Empty: return std::monostate{};
    case ExprKind::Null: return NullValue{};
    case ExprKind::Nothing: return NothingValue{};
    default: return refuse(expr, context);
    }
}

void Constants::used(const Expr& expr, const Entity* entity, const Context& context) {
    if (program_.uses && entity) program_.uses->used(context.module, expr.pos, *entity);
}

std::optional<ConstantValue> Constants::named(const Expr& expr, const Entity* entity, const Context& context) {
    if (!entity && program_.isIncomplete) return std::nullopt;
    if (!entity || entity->kind != EntityKind::Constant) return refuse(expr, context);
    used(expr, entity, context);
    if (entity->constant->progress != ConstantState::Progress::Done) {
        auto& module = entity->owner && entity->owner->source ? *entity->owner->source : context.module;
        evaluate(*entity, module, entity->owner ? nullptr : context.local);
    }
    if (entity->constant->failed) return std::nullopt;
    return entity->constant->value;
}

/// A function of the language with one argument.
std::optional<ConstantValue> Constants::called(const IndexExpr& expr, const Context& context) {
    const bool isCall = expr.callee->kind == ExprKind::Name && expr.arguments.size() == 1 && expr.arguments[0].value;
    if (!isCall) return refuse(expr, context);
    const Symbol name = as<NameExpr>(*expr.callee).name;
    const Entity* function =
        context.local && context.local->find(name) ? nullptr : findName(program_, *context.module.scope, name).entity;
    if (!function || !function->owner || function->owner->kind != ScopeKind::LibraryModule)
        return refuse(expr, context);
    const auto argument = value(*expr.arguments[0].value, context);
    if (!argument) return std::nullopt;
    auto result = callConstantFunction(program_.symbols.spelling(name), *argument);
    return result ? checked(expr, std::move(*result), context) : refuse(expr, context);
}

// Enumeration.Member, Module.Constant, Library.Constant, and all of them behind the name of the project or library.
const Entity* Constants::qualified(const MemberExpr& expr, const Context& context) {
    std::vector<const MemberExpr*> names; // from the last one to the first
    const Expr* at = &expr;
    for (; at && at->kind == ExprKind::Member; at = as<MemberExpr>(*at).base) names.push_back(&as<MemberExpr>(*at));
    if (!at || at->kind != ExprKind::Name) return nullptr;
    const Entity* found = qualifier(nullptr, as<NameExpr>(*at).name, context);
    used(*at, found, context);
    for (; found && names.size() > 1; names.pop_back()) {
        found = qualifier(found, names.back()->name, context);
        used(*names.back(), found, context);
    }
    if (found && found->kind == EntityKind::Project) return findName(program_, *context.module.scope, expr.name).entity;
    return found && found->inner ? found->inner->names.find(expr.name) : nullptr;
}

/// An enumeration, module, library or project that a name means at the beginning or after the point.
const Entity* Constants::qualifier(const Entity* outer, Symbol name, const Context& context) {
    const Scope& module = *context.module.scope;
    const bool isFirst = !outer || outer->kind == EntityKind::Project;
    if (!isFirst && !outer->inner) return nullptr;
    const Entity* type = isFirst ? findType(program_, module, Symbol::None, name) : outer->inner->types.find(name);
    if (type && (type->kind == EntityKind::Enum || !isFirst)) return type;
    return isFirst ? findName(program_, module, name).entity : outer->inner->names.find(name);
}

std::optional<ConstantValue> Constants::checked(const Expr& expr, Folded folded, const Context& context) {
    if (folded.error == 0) return std::move(folded.value);
    context.module.diagnostics.report(messageOfError(folded.error), expr.pos);
    return std::nullopt;
}

std::optional<ConstantValue> Constants::refuse(const Expr& expr, const Context& context) {
    context.module.diagnostics.report(Message::ConstantRequired, expr.pos);
    return std::nullopt;
}

} // namespace qltoolkit
