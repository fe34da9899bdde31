#include "Components/Image/verify/table_checks.h"
#include "Components/Image/verify/type_rules.h"
#include <algorithm>

namespace image {

namespace {

/// Whether a procedure is one that the runtime can call without anything.
bool isPlainSub(const Tables& tables, std::uint32_t number) {
    return number < tables.code.procedures.size() && tables.code.procedures[number].parameters == 0 &&
           tables.results[number] == SlotType{};
}

/// The runtime's functions know the records and classes of an image only as what they refer to.
bool isForRuntime(SlotType type) {
    const bool refers = type.form == TypeForm::Reference || type.form == TypeForm::ArrayReference;
    return refers || (type.id == 0 && type.base != BaseType::Record);
}

bool isUsable(const Tables& tables, const Import& import) {
    return isForRuntime(import.result) && isResult(tables, import.result) &&
           std::ranges::all_of(import.parameters,
                               [&](SlotType type) { return isForRuntime(type) && isParameter(tables, type); });
}

} // namespace

void checkImports(const Tables& tables, const FindFunction& runtime) {
    const auto& code = tables.code;
    for (std::size_t i = 0; i < code.imports.size(); ++i) {
        const auto& import = code.imports[i];
        if (import.name >= code.texts.size()) refuse("import " + std::to_string(i) + " has no name");
        const auto name = "function " + textNumbered(code, import.name);
        if (import.parameters.size() > kMostParameters || !isUsable(tables, import))
            refuse(name + " has a type that functions of the runtime cannot have");
        if (!runtime) continue;
        const auto* known = runtime(code.texts[import.name]);
        if (!known) refuse(name + " is not part of this runtime");
        if (known->result != import.result || known->parameters != import.parameters)
            refuse(name + " has other types in this runtime");
    }
}

void checkModules(const Tables& tables) {
    const auto& code = tables.code;
    for (std::size_t i = 0; i < code.modules.size(); ++i) {
        const auto& module = code.modules[i];
        if (module.name >= code.texts.size() || module.file >= code.texts.size())
            refuse("module " + std::to_string(i) + " has no name or file");
        if (module.prepare != kNone && !isPlainSub(tables, module.prepare))
            refuse("module " + textNumbered(code, module.name) + " has " + procedureName(code, module.prepare) +
                   " as prepare, which is no Sub without parameters");
    }
    if (code.start == kNone) return;
    const bool isOfClass =
        code.start < code.procedures.size() && std::ranges::any_of(code.classes, [&](const ClassInfo& each) {
            return each.module == code.procedures[code.start].module;
        });
    if (!isPlainSub(tables, code.start) || isOfClass)
        refuse("the program starts with " + procedureName(code, code.start) +
               ", which is no Sub without parameters of a standard module");
}

} // namespace image
