#include "Components/QLToolkit/insight/references.h"
#include "Components/QLToolkit/names/lookup.h"
#include <algorithm>

namespace qltoolkit {

namespace {

bool contains(const NamePlace& place, std::size_t source, Pos pos) {
    return place.source == source && place.pos <= pos && pos <= place.pos + place.length;
}

} // namespace

std::string nameAround(const SourceText& source, Pos pos) {
    const auto line = source.lineOf(pos);
    // forwards, because the second byte of a character may look like another one
    for (Pos at = source.lineStart(line), end = at + static_cast<Pos>(source.line(line).size()); at < end;) {
        const auto [begin, nameEnd] = extentOfName(source, at);
        if (nameEnd > begin && begin <= pos && pos <= nameEnd) return source.decode(source.text(begin, nameEnd));
        at = std::max(nameEnd, at + 1);
        if (at > pos) break;
    }
    return {};
}

References::References(const ProgramInput& input, std::size_t source, Pos pos, const Following& following,
                       std::vector<std::string> alsoUsed)
    : name_(nameAround(*input.sources[source], pos)) {
    alsoUsed.push_back(name_);
    uses_ = std::make_unique<NameUses>(input.sources, std::move(alsoUsed));
    snapshot_ = std::make_unique<Snapshot>(input, *uses_, following);
    uses_->finish();
    trees_.resize(input.sources.size());
    for (const auto& module : snapshot_->program().modules) trees_[uses_->sourceOf(module)] = &module.tree;
    if (following.stop.stop_requested() || name_.empty()) return;
    findTarget(source, pos);
    if (!target_) return;
    for (const auto& use : uses_->all())
        if (use.meaning == target_->meaning)
            all_.push_back({use.place, declares(use.place), use.isPart, lineOf(use.place)});
}

std::uint32_t References::lineOf(const NamePlace& place) const {
    const Module* tree = trees_[place.source];
    return tree ? tree->codeLine(tree->source.lineOf(place.pos)) : 0;
}

/// The whole name of a handler is preferred to its parts.
void References::findTarget(std::size_t source, Pos pos) {
    for (const auto& use : uses_->all())
        if (contains(use.place, source, pos) && (!target_ || (target_->isPart && !use.isPart))) target_ = &use;
}

/// The procedures of a property declare it, each at its place.
bool References::declares(const NamePlace& place) const {
    const auto& meaning = uses_->meaning(*target_);
    if (!meaning.declaredIn) return false;
    const auto beginsAt = [&](Pos pos) {
        return extentOfName(meaning.declaredIn->tree.source, pos).first == place.pos;
    };
    if (uses_->sourceOf(*meaning.declaredIn) != place.source) return false;
    if (meaning.kind != EntityKind::Property) return beginsAt(meaning.declaredAt);
    return std::any_of(meaning.declaredIn->callables.begin(), meaning.declaredIn->callables.end(),
                       [&](const auto& each) {
                           return each.first == meaning.entity && each.second->kind == DeclKind::Procedure &&
                                  beginsAt(as<ProcedureDecl>(*each.second).signature.namePos);
                       });
}

} // namespace qltoolkit
