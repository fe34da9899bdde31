#include "Components/QLToolkit/insight/meaning.h"
#include "Components/QLToolkit/insight/description.h"
#include "Components/QLToolkit/insight/typed_statement.h"
#include "Components/QLToolkit/names/lookup.h"
#include "Components/QLToolkit/source/characters.h"

namespace qltoolkit {

namespace {

/// The end of the name around a position.
std::size_t endOfName(std::string_view text, std::size_t pos) {
    while (pos < text.size() && charIs(text[pos], kNamePart | kForeign)) ++pos;
    return pos;
}

} // namespace

const Entity* declaredName(Snapshot& snapshot, int module, std::string_view name) {
    auto& program = snapshot.program();
    const auto& scope = *program.modules[static_cast<std::size_t>(module)].scope;
    const Symbol symbol = program.symbols.intern(name);
    if (const Entity* found = findName(program, scope, symbol).entity) return found;
    if (const Entity* event = scope.events.find(symbol)) return event;
    return findType(program, scope, Symbol::None, symbol);
}

std::string quickInfo(Snapshot& snapshot, int module, std::string_view procedure, std::size_t pos) {
    if (!snapshot.has(module)) return {};
    const TypedStatement statement{procedure.substr(0, endOfName(procedure, pos))};
    if (statement.partial().empty()) return {};
    const Probe probe{snapshot, module, procedure};
    if (probe.isBound()) {
        const Entity* found = probe.nameAt(pos);
        return found ? describe(snapshot, *found, &probe.source()) : std::string();
    }
    const Entity* found = declaredName(snapshot, module, statement.partial());
    return found ? describe(snapshot, *found) : std::string();
}

} // namespace qltoolkit
