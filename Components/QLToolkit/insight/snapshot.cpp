#include "Components/QLToolkit/insight/snapshot.h"
#include "Components/QLToolkit/names/binder.h"
#include "Components/QLToolkit/parser/form_header.h"

namespace qltoolkit {

namespace {

std::string_view plainName(std::string_view name) {
    return name.starts_with('[') ? name.substr(1, name.size() - 2) : name;
}

} // namespace

// The libraries are first, so that their spelling of a name is the one that the table of symbols keeps.
Snapshot::Snapshot(Sources sources, const ConditionalConstants& constants, const ProgramOptions& options, UseSink* uses)
    : sources_(std::move(sources)), program_(symbols_) {
    addLibraries(program_, options);
    std::vector<ParsedModule> modules;
    parse(constants, modules);
    program_.uses = uses;
    isWhole_ = declareProgram(program_, modules, options);
    if (uses && isWhole_) bind();
    program_.uses = nullptr;
    describe(librariesOf(options));
}

void Snapshot::parse(const ConditionalConstants& constants, std::vector<ParsedModule>& modules) {
    for (const auto& source : sources_) {
        auto parsed = parseModule(*source, symbols_, constants);
        syntaxErrors_ += parsed.errors;
        if (!parsed.module) continue;
        trees_.push_back(std::move(parsed.module));
        modules.push_back({trees_.back().get(), readFormHeader(*source)});
    }
}

void Snapshot::bind() {
    for (auto& module : program_.modules) (void)within([&] { Binder{program_, module, names_}.bindModule(); });
}

void Snapshot::describe(const std::vector<const language::Library*>& libraries) {
    for (std::size_t i = 0; i < libraries.size(); ++i) {
        for (const auto& group : libraries[i]->groups) {
            const Entity* type = program_.libraries[i]->types.find(symbols_.intern(plainName(group.name)));
            if (!type || !type->inner) continue;
            for (const auto& member : group.members) {
                const Symbol name = symbols_.intern(plainName(member.name));
                const auto& map = member.kind == language::MemberKind::Event ? type->inner->events : type->inner->names;
                if (const Entity* found = map.find(name)) members_.emplace(found, &member);
            }
        }
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
    const auto found = members_.find(&entity);
    return found == members_.end() ? nullptr : found->second;
}

std::size_t Snapshot::errors() const {
    std::size_t count = syntaxErrors_;
    for (const auto& module : program_.modules) count += module.diagnostics.errors();
    return count;
}

} // namespace qltoolkit
