#include "Components/QLToolkit/names/declared_types.h"
#include "Components/QLToolkit/names/lacks.h"
#include "Components/QLToolkit/names/lookup.h"

namespace qltoolkit {

ValueType typeOfSuffix(TypeSuffix suffix) {
    switch (suffix) {
    case '%': return ValueType::Integer;
    case '&': return ValueType::Long;
    case '!': return ValueType::Single;
    case '#': return ValueType::Double;
    case '@': return ValueType::Currency;
    case '$': return ValueType::String;
    default: return ValueType::Variant;
    }
}

ValueType simpleType(TypeKind kind) {
    switch (kind) {
    case TypeKind::Boolean: return ValueType::Boolean;
    case TypeKind::Byte: return ValueType::Byte;
    case TypeKind::Integer: return ValueType::Integer;
    case TypeKind::Long: return ValueType::Long;
    case TypeKind::Single: return ValueType::Single;
    case TypeKind::Double: return ValueType::Double;
    case TypeKind::Currency: return ValueType::Currency;
    case TypeKind::Date: return ValueType::Date;
    case TypeKind::String: return ValueType::String;
    case TypeKind::FixedString: return ValueType::FixedString;
    case TypeKind::Object: return ValueType::Object;
    case TypeKind::Variant:
    case TypeKind::Any: return ValueType::Variant;
    case TypeKind::Named: break;
    }
    return ValueType::Unknown;
}

namespace {

std::string spellingOf(const TypeRef& ref, const SymbolTable& symbols) {
    const std::string name(symbols.spelling(ref.name));
    return ref.library == Symbol::None ? name : std::string(symbols.spelling(ref.library)) + "." + name;
}

} // namespace

Type DeclaredTypes::typeOf(const TypeRef& ref, LocalConstants local) {
    Type type{simpleType(ref.kind)};
    if (ref.kind == TypeKind::Named) type = namedType(ref);
    if (ref.kind == TypeKind::FixedString && ref.length) type.id = constants_.lengthOf(*ref.length, module_, local);
    type.isArray = ref.isArray;
    return type;
}

Type DeclaredTypes::typeOf(Symbol name, TypeSuffix suffix, const TypeRef* ref, LocalConstants local) {
    if (ref) return typeOf(*ref, local);
    return suffix ? Type{typeOfSuffix(suffix)} : defaultType(name);
}

Type DeclaredTypes::defaultType(Symbol name) {
    const auto spelling = program_.symbols.spelling(name);
    const auto letter = static_cast<unsigned char>((spelling.empty() ? 0 : spelling[0]) | 0x20);
    if (letter < 'a' || letter > 'z') return {};
    return {simpleType(module_.defaultTypes[letter - 'a'])};
}

void DeclaredTypes::reportUse(const TypeRef& ref, const Entity& type) {
    const auto* qualifier = ref.library == Symbol::None ? nullptr : program_.topNames.find(ref.library);
    if (qualifier) program_.uses->used(module_, ref.pos, *qualifier);
    program_.uses->used(module_, ref.namePos, type);
}

Type DeclaredTypes::namedType(const TypeRef& ref) {
    const Entity* found = findType(program_, *module_.scope, ref.library, ref.name);
    warnOfDevices(ref, found ? found : program_.topNames.find(ref.library));
    if (found && program_.uses) reportUse(ref, *found);
    if (found) return found->type;
    if (!program_.isIncomplete) {
        const bool isProject = ref.library == Symbol::None && program_.topNames.find(ref.name) &&
                               program_.topNames.find(ref.name)->kind == EntityKind::Project;
        module_.diagnostics.report(isProject ? Message::ExpectedTypeNotProject : Message::TypeNotDefined, ref.pos,
                                   nameAt(module_.tree.source, ref.pos));
    }
    return {ValueType::Unknown};
}

void DeclaredTypes::warnOfDevices(const TypeRef& ref, const Entity* named) {
    if (program_.warnsOfDevices && named && !named->onDevices)
        reportLack(program_, module_.diagnostics, Lack::Class, *named, ref.pos, spellingOf(ref, program_.symbols));
}

Type DeclaredTypes::classOf(const TypeRef& ref) {
    if (ref.kind == TypeKind::Object) return {ValueType::Object};
    const Type type = typeOf(ref);
    return type.value == ValueType::Object || type.value == ValueType::Unknown ? type : Type{ValueType::Unknown};
}

} // namespace qltoolkit
