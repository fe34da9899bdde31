#include "Components/QLToolkit/names/lacks.h"
#include "Basic/case_folding.h"
#include "Components/Language/foreign.h"

namespace qltoolkit {

namespace {

bool isOfPrinting(const Program& program, const Entity& entity) {
    const auto name = program.symbols.spelling(entity.name);
    const auto owner = entity.owner ? program.symbols.spelling(entity.owner->name) : std::string_view{};
    for (const auto* word : {"Printer", "Printers", "PrintForm"})
        if (basic::equalNoCase(name, word) || basic::equalNoCase(owner, word)) return true;
    return false;
}

} // namespace

Lack lackOf(const Program& program, const Entity& entity) {
    if (entity.owner && entity.owner->source) return Lack::Declare;
    if (isOfPrinting(program, entity)) return Lack::Printing;
    return entity.owner && entity.owner->isClass() ? Lack::Member : Lack::Function;
}

void reportLack(const Program& program, Diagnostics& diagnostics, Lack lack, const Entity& entity, Pos pos,
                std::string_view name) {
    if (lack == Lack::Class && isOfPrinting(program, entity)) lack = Lack::Printing;
    const bool isKnown = entity.instead && !entity.instead->empty();
    diagnostics.reportLack(lack, pos, name, isKnown ? *entity.instead : language::insteadOfDeclare());
}

} // namespace qltoolkit
