#include "Components/QLToolkit/names/lookup.h"
#include "Components/QLToolkit/source/characters.h"
#include "Components/QLToolkit/source/encoding.h"
#include <algorithm>

namespace qltoolkit {

namespace {

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

std::pair<Pos, Pos> extentOfName(const SourceText& source, Pos pos) {
    const char* const text = source.data();
    const bool hasBrackets = text[pos] == '[';
    const Pos begin = hasBrackets ? pos + 1 : pos;
    const auto isPart = [&](Pos at) {
        if (hasBrackets) return text[at] != ']' && !isLineEnd(text[at]);
        const bool isBlank = charIs(text[at], kForeign) && isWideBlank(source.codePage().number(), text + at);
        return !isBlank && charIs(text[at], kNamePart | kForeign);
    };
    Pos end = begin;
    while (end < source.size() && isPart(end)) end += source.isLeadByte(static_cast<unsigned char>(text[end])) ? 2 : 1;
    return {begin, std::min(end, source.size())};
}

std::string nameAt(const SourceText& source, Pos pos) {
    const auto [begin, end] = extentOfName(source, pos);
    return source.decode(source.text(begin, end));
}

} // namespace qltoolkit
