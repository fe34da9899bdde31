#include "Components/QLToolkit/names/check_program.h"
#include "Components/QLToolkit/names/binder.h"
#include "Components/QLToolkit/names/declare_program.h"
#include "Components/QLToolkit/names/lookup.h"
#include "Components/QLToolkit/names/resolve.h"
#include "Components/QLToolkit/source/each_index.h"
#include "Components/QLToolkit/source/ignored_warnings.h"
#include <set>

namespace qltoolkit {

namespace {

using UnknownNames = std::vector<std::pair<Symbol, Pos>>;

void bindAll(Program& program, unsigned threads, std::vector<UnknownNames>& unknown, CodeSink* code) {
    forEachIndex(program.modules.size(), threads, [&] {
        return [&, names = ProcedureNames{}](std::size_t i) mutable {
            Binder binder{program, program.modules[i], names};
            within([&] { binder.bindModule(code ? &code->module(i) : nullptr); });
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

[[nodiscard]] bool isRight(const Program& program) {
    return std::none_of(program.modules.begin(), program.modules.end(),
                        [](const SourceModule& module) { return module.diagnostics.errors() > 0; });
}

void checkAll(Program& program, const ProgramOptions& options, CodeSink* code) {
    RecordSizes sizes{program};
    for (auto& module : program.modules) within([&] { checkDeclarations(program, module, sizes); });
    std::vector<UnknownNames> unknown(program.modules.size());
    if (!isRight(program)) code = nullptr;
    if (code) code->declared(program);
    bindAll(program, options.threads, unknown, code);
    if (!options.lacksFiles) reportUnknown(program, unknown);
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

ProgramMessages checkProgram(const std::vector<ParsedModule>& modules, SymbolTable& symbols,
                             const ProgramOptions& options) {
    ProgramMessages result;
    checkProgram(
        modules, symbols, options, [&](ProgramMessages messages) { result = std::move(messages); }, nullptr);
    return result;
}

void checkProgram(const std::vector<ParsedModule>& modules, SymbolTable& symbols, const ProgramOptions& options,
                  const std::function<void(ProgramMessages)>& done, CodeSink* code) {
    Program program{symbols};
    addLibraries(program, options);
    // Declarations that were left have no signatures, so what uses them cannot be checked.
    const bool isWhole = declareProgram(program, modules, options);
    if (isWhole) checkAll(program, options, code);
    ProgramMessages result;
    for (auto& module : program.modules) within([&] { checkIgnored(program, module, isWhole && !options.lacksFiles); });
    for (auto& module : program.modules) result.push_back(module.diagnostics.takeSorted());
    done(std::move(result));
}

} // namespace qltoolkit
