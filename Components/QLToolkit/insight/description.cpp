#include "Components/QLToolkit/insight/description.h"
#include "Components/QLToolkit/names/lookup.h"
#include "Components/QLToolkit/parser/form_header.h"
#include "Components/QLToolkit/parser/header_places.h"
#include "Components/QLToolkit/parser/module_name.h"
#include <algorithm>

namespace qltoolkit {

namespace {

std::string controlSpelling(const SourceText& source, std::string name) {
    const Pos pos = placeInHeader(source, name);
    if (pos == 0) return name;
    const auto line = trimmedHeaderText(source.line(source.lineOf(pos)));
    return source.decode(line.substr(line.find_last_of(" \t") + 1));
}

std::string_view simpleName(ValueType value) {
    switch (value) {
    case ValueType::Boolean: return "Boolean";
    case ValueType::Byte: return "Byte";
    case ValueType::Integer: return "Integer";
    case ValueType::Long: return "Long";
    case ValueType::Single: return "Single";
    case ValueType::Double: return "Double";
    case ValueType::Currency: return "Currency";
    case ValueType::Date: return "Date";
    case ValueType::String:
    case ValueType::FixedString: return "String";
    case ValueType::Object: return "Object";
    default: return "Variant";
    }
}

/// The source text of an expression up to the comma or parenthesis that ends it.
std::string expressionText(const SourceText& source, Pos pos) {
    Pos end = pos;
    bool isText = false;
    for (int depth = 0; end < source.size(); ++end) {
        const char c = source.data()[end];
        if (c == '"') isText = !isText;
        if (c == '\n' || c == '\r' || (!isText && depth == 0 && (c == ',' || c == ')'))) break;
        if (!isText) depth += (c == '(') - (c == ')');
    }
    while (end > pos && source.data()[end - 1] == ' ') --end;
    return source.decode(source.text(pos, end));
}

std::string withType(const Snapshot& snapshot, std::string name, const Type& type) {
    name += type.isArray ? "()" : "";
    const bool isPlain =
        type.value == ValueType::Variant || type.value == ValueType::Unknown || type.value == ValueType::None;
    return isPlain ? name : name + " As " + typeText(snapshot, type);
}

/// What the declaration of a parameter adds to its type.
struct ParameterSource {
    std::string name, defaultValue;
};

ParameterSource ofBody(const SourceText& source, const Parameter& parameter) {
    return {nameAt(source, parameter.pos),
            parameter.defaultValue ? expressionText(source, parameter.defaultValue->pos) : std::string()};
}

ParameterSource sourceOf(const Snapshot& snapshot, const CalledMember& called, std::size_t at) {
    const auto* body = called.callable->body;
    const auto* owner = called.entity->owner;
    if (body && owner && owner->source && at < body->signature.parameters.size())
        return ofBody(owner->source->tree.source, body->signature.parameters[at]);
    const auto* member = snapshot.describedMember(*called.entity);
    if (member && at < member->parameters.size())
        return {member->parameters[at].name, member->parameters[at].defaultValue};
    return {std::string(snapshot.program().symbols.spelling(called.callable->parameters[at].name)), {}};
}

std::string parameterText(const Snapshot& snapshot, const CalledMember& called, std::size_t at) {
    const auto& parameter = called.callable->parameters[at];
    auto source = sourceOf(snapshot, called, at);
    if (parameter.paramArray) return "ParamArray " + source.name + "()";
    auto text = withType(snapshot, std::move(source.name), parameter.type);
    if (!source.defaultValue.empty()) text += " = " + source.defaultValue;
    return parameter.optional ? "[" + text + "]" : text;
}

std::string joined(const std::vector<std::string>& parts) {
    std::string text;
    for (const auto& part : parts) text += (text.empty() ? "" : ", ") + part;
    return text;
}

std::string procedureText(const Snapshot& snapshot, const Entity& entity, std::string name) {
    const bool isProperty = entity.kind == EntityKind::Property;
    const CalledMember called = calledMember(snapshot, entity);
    const auto* callable = called.entity == &entity ? called.callable : nullptr;
    const bool hasResult = entity.type.value != ValueType::None;
    const std::string word = isProperty                         ? "Property "
                             : entity.kind == EntityKind::Event ? "Event "
                             : hasResult                        ? "Function "
                                                                : "Sub ";
    const bool isBare = !callable || (isProperty && callable->parameters.empty());
    if (!isBare) name += "(" + joined(parameterTexts(snapshot, called)) + ")";
    return word +
           (hasResult && entity.kind != EntityKind::Event ? withType(snapshot, std::move(name), entity.type) : name);
}

std::string variableText(const Snapshot& snapshot, const Entity& entity, std::string name) {
    auto text = withType(snapshot, std::move(name), entity.type);
    if (entity.isParameter || (entity.owner && entity.owner->kind == ScopeKind::Record)) return text;
    if (!entity.owner) return "Dim " + text;
    return (entity.isPublic ? "Public " : "Private ") + text;
}

std::string constantText(const Snapshot& snapshot, const Entity& entity, std::string name) {
    auto text = "Const " + withType(snapshot, std::move(name), entity.type);
    const auto* state = entity.constant;
    if (!state || state->failed) return text;
    const auto value = convert(state->value, ValueType::String);
    const auto* written = std::get_if<std::string>(&value.value);
    if (value.error != 0 || !written) return text;
    return text + " = " + (std::holds_alternative<std::string>(state->value) ? '"' + *written + '"' : *written);
}

std::string_view moduleWord(const Scope& scope) {
    if (!scope.isClass()) return "Module ";
    return scope.source && scope.source->tree.source.kind() == FileKind::Form ? "Form " : "Class ";
}

std::string declaration(const Snapshot& snapshot, const Entity& entity, std::string name) {
    switch (entity.kind) {
    case EntityKind::Variable: return variableText(snapshot, entity, std::move(name));
    case EntityKind::Constant: return constantText(snapshot, entity, std::move(name));
    case EntityKind::Control: return withType(snapshot, std::move(name), entity.type);
    case EntityKind::Enum: return "Enum " + name;
    case EntityKind::Record: return "Type " + name;
    case EntityKind::Module: return std::string(moduleWord(*entity.inner)) + name;
    case EntityKind::Library: return "Library " + name;
    case EntityKind::Project: return "Project " + name;
    case EntityKind::Label: return "Label " + name;
    default: return procedureText(snapshot, entity, std::move(name));
    }
}

} // namespace

std::string spellingOf(const Snapshot& snapshot, const Entity& entity, const SourceText* local) {
    const auto& symbols = snapshot.program().symbols;
    const std::string usual{symbols.spelling(entity.name)};
    if (entity.kind == EntityKind::Module && entity.inner->source) {
        const auto name = moduleName(entity.inner->source->tree, symbols);
        return name.empty() ? usual : name;
    }
    const SourceText* source = local;
    if (entity.owner) source = entity.owner->source ? &entity.owner->source->tree.source : nullptr;
    if (!source || entity.kind == EntityKind::Module) return usual;
    return entity.kind == EntityKind::Control ? controlSpelling(*source, usual) : nameAt(*source, entity.pos);
}

std::string typeText(const Snapshot& snapshot, const Type& type) {
    const auto& program = snapshot.program();
    const auto named = [&] { return std::string(program.symbols.spelling(program.scope(type.id).name)); };
    if (type.value == ValueType::FixedString) return "String * " + std::to_string(type.id);
    if (type.isEnum || type.value == ValueType::Record) return named();
    if (type.value == ValueType::Object && type.id != 0) return named();
    return std::string(simpleName(type.value));
}

CalledMember calledMember(const Snapshot& snapshot, const Entity& entity) {
    if (entity.kind == EntityKind::Procedure || entity.kind == EntityKind::Event ||
        entity.kind == EntityKind::Property) {
        const auto* callable = entity.get ? entity.get : entity.let ? entity.let : entity.set;
        const bool takesNone = callable && callable->parameters.empty() && entity.kind != EntityKind::Event;
        if (!takesNone || entity.type.value != ValueType::Object) return {&entity, callable};
    }
    if (entity.type.value != ValueType::Object || entity.type.isArray || entity.type.id == 0) return {};
    const Entity* member = snapshot.program().scope(entity.type.id).findDefault();
    const bool isOther = member && member != &entity && member->type.value != ValueType::Object;
    return isOther || (member && member->get && !member->get->parameters.empty()) ? CalledMember{member, member->get}
                                                                                  : CalledMember{&entity, entity.get};
}

std::vector<std::string> parameterTexts(const Snapshot& snapshot, const CalledMember& called) {
    std::vector<std::string> texts;
    for (std::size_t at = 0; at < called.callable->parameters.size(); ++at)
        texts.push_back(parameterText(snapshot, called, at));
    return texts;
}

std::string describe(const Snapshot& snapshot, const Entity& entity, const SourceText* local) {
    auto text = declaration(snapshot, entity, spellingOf(snapshot, entity, local));
    const auto* member = snapshot.describedMember(entity);
    return member && !member->help.empty() ? text + "\n" + member->help : text;
}

} // namespace qltoolkit
