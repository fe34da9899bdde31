#include "Components/QLToolkit/names/declare_program.h"
#include "Components/QLToolkit/names/declare.h"
#include "Components/QLToolkit/names/form_controls.h"
#include "Components/QLToolkit/names/library_scopes.h"
#include "Components/QLToolkit/names/resolve.h"
#include "Components/QLToolkit/parser/module_name.h"

namespace qltoolkit {

namespace {

/// A module without a name of its own has that of its file.
Symbol nameOf(const Module& tree, SymbolTable& symbols) {
    auto name = moduleName(tree, symbols);
    if (name.empty()) {
        name = tree.source.name().substr(tree.source.name().find_last_of("/\\") + 1);
        name = name.substr(0, name.find_last_of('.'));
    }
    return symbols.intern(name);
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

} // namespace

void addLibraries(Program& program, const ProgramOptions& options) { addLibraries(program, librariesOf(options)); }

std::vector<const language::Library*> librariesOf(const ProgramOptions& options) {
    const auto builtIn = language::builtInLibraries();
    std::vector<const language::Library*> libraries{builtIn.begin(), builtIn.end()};
    libraries.insert(libraries.end(), options.libraries.begin(), options.libraries.end());
    return libraries;
}

bool declareProgram(Program& program, const std::vector<ParsedModule>& modules, const ProgramOptions& options) {
    program.isIncomplete = options.isIncomplete || options.lacksFiles;
    program.warnsOptionally = options.warnsOptionally;
    program.warnsOfDevices = options.warnsOfDevices;
    program.warnsOfDeclares = options.warnsOfDeclares;
    bool isWhole = true;
    for (const auto& parsed : modules) {
        auto& module = program.modules.emplace_back(*parsed.tree, parsed.form);
        isWhole &= within([&] { declareModule(program, module, nameOf(*parsed.tree, program.symbols)); });
    }
    declareProject(program, options.projectName);
    return resolveAll(program) && isWhole;
}

} // namespace qltoolkit
