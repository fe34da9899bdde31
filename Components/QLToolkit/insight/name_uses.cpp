#include "Components/QLToolkit/insight/name_uses.h"
#include "Components/QLToolkit/names/lookup.h"
#include <algorithm>

namespace qltoolkit {

NameUses::NameUses(const SourceTexts& sources, std::vector<std::string> names) : names_(std::move(names)) {
    for (std::size_t i = 0; i < sources.size(); ++i) sources_.emplace(sources[i].get(), i);
}

void NameUses::begin(SymbolTable& symbols) {
    for (const auto& name : names_) {
        wanted_.insert(symbols.intern(name));
        wanted_.insert(symbols.intern(name + "$")); // the function Left$ is described apart from Left
    }
}

void NameUses::finish() {
    std::sort(uses_.begin(), uses_.end());
    uses_.erase(std::unique(uses_.begin(), uses_.end()), uses_.end());
}

void NameUses::add(const SourceModule& module, Pos pos, Pos length, std::size_t meaning, bool isPart) {
    uses_.push_back({{sourceOf(module), pos, length}, meaning, isPart});
}

void NameUses::used(const SourceModule& module, Pos pos, const Entity& entity) {
    const bool isNumber = entity.kind == EntityKind::Label && entity.name == Symbol::None;
    if (!isNumber && !isWanted(entity.name)) return;
    const auto [begin, end] = extentOfName(module.tree.source, pos);
    add(module, begin, end - begin, meaningOf(module, entity), false);
}

void NameUses::usedPart(const SourceModule& module, Pos pos, std::size_t length, const Entity& entity) {
    if (isWanted(entity.name)) add(module, pos, static_cast<Pos>(length), meaningOf(module, entity), true);
}

void NameUses::usedParameter(const SourceModule& module, Pos pos, const Callable& callable,
                             const ParameterInfo& parameter) {
    if (!isWanted(parameter.name)) return;
    const auto [begin, end] = extentOfName(module.tree.source, pos);
    const NameMeaning meaning{EntityKind::Variable, parameter.type, nullptr, callable.source, parameter.pos};
    const Key key = callable.source ? Key{callable.source, parameter.pos} : Key{&parameter, 0};
    add(module, begin, end - begin, meaningOf(key, meaning), false);
}

std::size_t NameUses::meaningOf(const SourceModule& module, const Entity& entity) {
    const bool mayBeLocal =
        entity.kind == EntityKind::Variable || entity.kind == EntityKind::Constant || entity.kind == EntityKind::Label;
    if (!entity.owner && mayBeLocal)
        return meaningOf({&module, entity.pos}, {entity.kind, entity.type, nullptr, &module, entity.pos});
    const Entity& one = entity.text ? *entity.text : entity;
    const Scope* declaring = entity.kind == EntityKind::Module ? entity.inner : entity.owner;
    return meaningOf({&one, 0}, {entity.kind, entity.type, &one, declaring ? declaring->source : nullptr, entity.pos});
}

/// A name that is reported before its type is known, as where it is declared, gets its type with a later use.
std::size_t NameUses::meaningOf(const Key& key, const NameMeaning& meaning) {
    const auto [at, isNew] = known_.try_emplace(key, meanings_.size());
    if (isNew)
        meanings_.push_back(meaning);
    else if (meaning.isLocal())
        meanings_[at->second].type = meaning.type;
    return at->second;
}

} // namespace qltoolkit
