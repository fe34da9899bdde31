#include "Components/QLToolkit/insight/snapshot.h"
#include "Components/QLToolkit/names/binder.h"
#include "Components/QLToolkit/names/handlers.h"
#include "Components/QLToolkit/names/library_scopes.h"
#include "Components/QLToolkit/names/resolve.h"
#include "Components/QLToolkit/parser/form_header.h"

namespace qltoolkit {

// The libraries are first, so that their spelling of a name is the one that the table of symbols keeps.
Snapshot::Snapshot(SourceTexts sources, const std::vector<const language::Library*>& libraries)
    : sources_(std::move(sources)) {
    const auto shared = program_.libraries.size();
    addLibraries(program_, libraries);
    addMembers(members_, program_, libraries, shared);
}

Snapshot::Snapshot(SourceTexts sources, const ConditionalConstants& constants, const ProgramOptions& options)
    : Snapshot(std::move(sources), options.libraries) {
    std::vector<ParsedModule> modules;
    parse(constants, modules, {});
    isWhole_ = declareProgram(program_, modules, options);
}

Snapshot::Snapshot(const ProgramInput& input, UseSink& uses, const Following& following)
    : Snapshot(input.sources, input.options.libraries) {
    std::vector<ParsedModule> modules;
    parse(input.constants, modules, following);
    uses.begin(symbols_);
    program_.uses = &uses;
    isWhole_ = declareProgram(program_, modules, input.options);
    if (isWhole_) bind(following);
    program_.uses = nullptr;
}

void Snapshot::parse(const ConditionalConstants& constants, std::vector<ParsedModule>& modules,
                     const Following& following) {
    for (std::size_t i = 0; i < sources_.size() && !following.stop.stop_requested(); ++i) {
        auto parsed = parseModule(*sources_[i], symbols_, constants);
        following.progress(i + 1, 2 * sources_.size());
        syntaxErrors_ += parsed.errors;
        if (!parsed.module) continue;
        trees_.push_back(std::move(parsed.module));
        modules.push_back({trees_.back().get(), readFormHeader(*sources_[i])});
    }
}

void Snapshot::bind(const Following& following) {
    RecordSizes sizes{program_};
    isBound_ = true;
    std::size_t done = sources_.size();
    for (auto& module : program_.modules) {
        if (following.stop.stop_requested()) {
            isBound_ = false;
            return;
        }
        isBound_ &= within([&] { checkDeclarations(program_, module, sizes); });
        isBound_ &= within([&] { Binder{program_, module, names_}.bindModule(); });
        reportHandlers(program_, module);
        following.progress(++done, 2 * sources_.size());
    }
}

int Snapshot::moduleOf(std::string_view file) const {
    for (const auto& module : program_.modules)
        if (module.tree.source.name() == file) return moduleOf(module);
    return -1;
}

int Snapshot::moduleOf(const SourceModule& module) const {
    for (std::size_t i = 0; i < program_.modules.size(); ++i)
        if (&program_.modules[i] == &module) return static_cast<int>(i);
    return -1;
}

const language::Member* Snapshot::describedMember(const Entity& entity) const {
    const DescribedMembers& builtIn = BuiltInLibraries::shared().members;
    for (const auto* members : {&members_, &builtIn})
        if (const auto found = members->find(&entity); found != members->end()) return found->second;
    return nullptr;
}

std::size_t Snapshot::errors() const {
    std::size_t count = syntaxErrors_;
    for (const auto& module : program_.modules) count += module.diagnostics.errors();
    return count;
}

} // namespace qltoolkit
