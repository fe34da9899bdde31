#include "Components/QLToolkit/names/check_program.h"
#include "Components/QLToolkit/names/binder.h"
#include "Components/QLToolkit/names/declare_program.h"
#include "Components/QLToolkit/names/lookup.h"
#include "Components/QLToolkit/names/resolve.h"
#include "Components/QLToolkit/source/each_index.h"
#include <set>

namespace qltoolkit {

namespace {

using UnknownNames = std::vector<std::pair<Symbol, Pos>>;

void bindAll(Program& program, unsigned threads, std::vector<UnknownNames>& unknown) {
    forEachIndex(program.modules.size(), threads, [&] {
        return [&, names = ProcedureNames{}](std::size_t i) mutable {
            Binder binder{program, program.modules[i], names};
            within([&] { binder.bindModule(); });
            unknown[i] = binder.unknownNames();
        };
    });
}

/// A name that may be one of a missing library is mentioned once in a project.
void reportUnknown(Program& program, const std::vector<UnknownNames>& unknown) {
    std::set<Symbol> known;
    for (std::size_t i = 0; i < unknown.size(); ++i)
        within([&] {
            auto& module = program.modules[i];
            for (const auto& [name, pos] : unknown[i])
                if (known.insert(name).second)
                    module.diagnostics.report(Message::UnknownLibraryName, pos, nameAt(module.tree.source, pos));
        });
}

void checkAll(Program& program, unsigned threads) {
    RecordSizes sizes{program};
    for (auto& module : program.modules) within([&] { checkDeclarations(program, module, sizes); });
    std::vector<UnknownNames> unknown(program.modules.size());
    bindAll(program, threads, unknown);
    reportUnknown(program, unknown);
}

} // namespace

std::vector<std::vector<Diagnostic>> checkProgram(const std::vector<ParsedModule>& modules, SymbolTable& symbols,
                                                  const ProgramOptions& options) {
    Program program{symbols};
    addLibraries(program, options);
    // Declarations that were left have no signatures, so what uses them cannot be checked.
    if (declareProgram(program, modules, options)) checkAll(program, options.threads);
    std::vector<std::vector<Diagnostic>> result;
    for (auto& module : program.modules) result.push_back(module.diagnostics.takeSorted());
    return result;
}

} // namespace qltoolkit
