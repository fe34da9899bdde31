#include "Components/QLToolkit/names/check_program.h"
#include "Components/QLToolkit/names/binder.h"
#include "Components/QLToolkit/names/declare.h"
#include "Components/QLToolkit/names/form_controls.h"
#include "Components/QLToolkit/names/library_scopes.h"
#include "Components/QLToolkit/names/lookup.h"
#include "Components/QLToolkit/names/module_name.h"
#include "Components/QLToolkit/names/resolve.h"
#include "Components/QLToolkit/source/each_index.h"
#include "Components/QLToolkit/source/ignored_warnings.h"
#include <set>

namespace qltoolkit {

namespace {

using UnknownNames = std::vector<std::pair<Symbol, Pos>>;

/// A module without a name of its own has that of its file.
Symbol nameOf(const Module& tree, SymbolTable& symbols) {
    auto name = moduleName(tree, symbols);
    if (name.empty()) {
        name = tree.source.name().substr(tree.source.name().find_last_of("/\\") + 1);
        name = name.substr(0, name.find_last_of('.'));
    }
    return symbols.intern(name);
}

/// Runs a pass over a module. Returns false for a module with too many errors, which is left.
template <class Pass>
bool within(const Pass& pass) {
    try {
        pass();
        return true;
    } catch (const TooManyErrors&) { return false; }
}

/// Returns whether all declarations of the program are known, whether they are right or not.
bool resolveAll(Program& program) {
    Constants constants{program};
    bool isWhole = true;
    for (auto& module : program.modules) isWhole &= within([&] { declareControls(program, module); });
    for (auto& module : program.modules) isWhole &= within([&] { resolveConstantTypes(program, module, constants); });
    for (auto& module : program.modules) isWhole &= within([&] { resolveModule(program, module, constants); });
    return isWhole;
}

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

/// Of the warnings that a comment lists, those that were looked for and not found.
bool isNeedless(const IgnoredWarnings::Listed& listed, const Program& program) {
    if (listed.isUsed || !program.warnsOptionally) return false;
    const bool isOfParser = listed.message < Message::VariableNotDefined;
    return !isOfParser && (listed.message != Message::NotOnDevices || program.warnsOfDevices);
}

/// `isWhole`: all passes ran.
void checkIgnored(Program& program, SourceModule& module, bool isWhole) {
    const auto& source = module.tree.source;
    IgnoredWarnings ignored{source};
    for (const auto& mistake : ignored.mistakes())
        module.diagnostics.report(Message::IgnoredIsNoWarning, mistake.pos, mistake.text);
    if (!isWhole || ignored.listed().empty()) return;
    auto all = module.diagnostics.all();
    ignored.removeFrom(all);
    for (const auto& listed : ignored.listed())
        if (isNeedless(listed, program))
            module.diagnostics.report(Message::NothingIgnored, listed.pos,
                                      std::to_string(static_cast<int>(listed.message)));
}

} // namespace

std::vector<std::vector<Diagnostic>> checkProgram(const std::vector<ParsedModule>& modules, SymbolTable& symbols,
                                                  const ProgramOptions& options) {
    Program program{symbols};
    program.isIncomplete = options.isIncomplete;
    program.warnsOptionally = options.warnsOptionally;
    program.warnsOfDevices = options.warnsOfDevices;
    program.warnsOfDeclares = options.warnsOfDeclares;
    auto libraries = options.libraries;
    const auto builtIn = language::builtInLibraries();
    libraries.insert(libraries.begin(), builtIn.begin(), builtIn.end());
    addLibraries(program, libraries);

    bool isWhole = true;
    for (const auto& parsed : modules) {
        auto& module = program.modules.emplace_back(*parsed.tree, parsed.form);
        isWhole &= within([&] { declareModule(program, module, nameOf(*parsed.tree, symbols)); });
    }
    declareProject(program, options.projectName);
    isWhole &= resolveAll(program);
    // Declarations that were left have no signatures, so what uses them cannot be checked.
    if (isWhole) checkAll(program, options.threads);
    std::vector<std::vector<Diagnostic>> result;
    for (auto& module : program.modules) within([&] { checkIgnored(program, module, isWhole); });
    for (auto& module : program.modules) result.push_back(module.diagnostics.takeSorted());
    return result;
}

} // namespace qltoolkit
