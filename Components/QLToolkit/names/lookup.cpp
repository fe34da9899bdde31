#include "Components/QLToolkit/names/lookup.h"

namespace qltoolkit {

namespace {

bool isNameByte(char c) {
    return (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || c == '_' || c < 0;
}

const Entity* classIn(const Program& program, Symbol name) {
    const Entity* found = program.topNames.find(name);
    return found && found->kind == EntityKind::Module && found->inner->isClass() ? found : nullptr;
}

const Entity* typeInLibraries(const Program& program, Symbol name) {
    for (const auto* library : program.libraries)
        if (const Entity* found = library->types.find(name)) return found;
    return nullptr;
}

/// Library.Class, Project.Class, Module.Type.
const Entity* qualifiedType(const Program& program, Symbol qualifier, Symbol name) {
    const Entity* found = program.topNames.find(qualifier);
    if (!found) return nullptr;
    if (found->kind != EntityKind::Project) return found->inner->types.find(name);
    if (const Entity* type = classIn(program, name)) return type;
    return program.publicTypes.find(name);
}

/// Such a name is a type only, so a variable may have it too.
bool isClassWithoutObject(const Entity& entity) {
    return entity.kind == EntityKind::Module && entity.inner->isClass() && !entity.inner->predeclared;
}

} // namespace

FoundName findName(const Program& program, const Scope& module, Symbol name) {
    if (Entity* found = module.find(name)) return {found};
    Entity* const top = program.topNames.find(name);
    if (top && !isClassWithoutObject(*top)) return {top};
    if (Entity* found = program.publicNames.find(name)) return {found, program.ambiguous.find(name) != nullptr};
    for (const auto* library : program.libraries)
        if (Entity* found = library->names.find(name)) return {found};
    return {top};
}

const Entity* findType(const Program& program, const Scope& module, Symbol library, Symbol name) {
    if (library != Symbol::None) return qualifiedType(program, library, name);
    if (const Entity* own = module.types.find(name)) return own;
    if (const Entity* found = classIn(program, name)) return found;
    if (const Entity* found = program.publicTypes.find(name)) return found;
    return typeInLibraries(program, name);
}

std::string nameAt(const SourceText& source, Pos pos) {
    Pos end = pos;
    if (end < source.size() && source.data()[end] == '[') {
        while (end < source.size() && source.data()[end] != ']') ++end;
        return source.decode(source.text(pos + 1, end));
    }
    while (end < source.size() && isNameByte(source.data()[end])) ++end;
    return source.decode(source.text(pos, end));
}

} // namespace qltoolkit
