#include "Components/QLToolkit/insight/library_names.h"
#include "Components/QLToolkit/insight/meaning.h"
#include "Components/QLToolkit/source/characters.h"

namespace qltoolkit {

namespace {

class LibraryNames {
public:
    explicit LibraryNames(const Snapshot& snapshot) : symbols_(snapshot.program().symbols) {}

    void add(const Entity* entity) {
        const bool isOfLibrary =
            entity && (entity->owner ? !entity->owner->source : entity->kind == EntityKind::Library);
        if (!isOfLibrary) return;
        auto name = symbols_.spelling(entity->name);
        if (name.ends_with('$')) name.remove_suffix(1);
        names_.emplace_back(name);
    }
    std::vector<std::string> take() { return std::move(names_); }

private:
    const SymbolTable& symbols_;
    std::vector<std::string> names_;
};

} // namespace

std::vector<std::string> libraryNamesIn(Snapshot& snapshot, int module, std::string_view text, std::size_t begin,
                                        std::size_t end) {
    if (!snapshot.has(module)) return {};
    LibraryNames names{snapshot};
    const Probe probe{snapshot, module, text};
    if (probe.isBound()) {
        for (const auto& use : probe.uses())
            if (begin <= use.pos && use.pos < end) names.add(use.entity);
        return names.take();
    }
    // a declaration outside of procedures: types and constants
    const auto isPart = [](char c) { return charIs(c, kNamePart | kForeign); };
    for (auto at = begin; at < end; ++at) {
        auto next = at;
        while (next < end && isPart(text[next])) ++next;
        if (next == at) continue;
        names.add(declaredName(snapshot, module, text.substr(at, next - at)));
        at = next;
    }
    return names.take();
}

} // namespace qltoolkit
