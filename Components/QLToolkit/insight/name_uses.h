#pragma once
// The places of a program in which some names are used, with what they mean there.
#include "Components/QLToolkit/insight/snapshot.h"
#include <map>
#include <set>

namespace qltoolkit {

/// A name in a source of a program.
struct NamePlace {
    std::size_t source = 0;
    Pos pos = 0;
    Pos length = 0;

    friend auto operator<=>(const NamePlace&, const NamePlace&) = default;
};

/// What a name means, also after the procedure that declares it was left.
struct NameMeaning {
    EntityKind kind = EntityKind::Variable;
    Type type;                                ///< of a local name
    const Entity* entity = nullptr;           ///< null for local names and parameters
    const SourceModule* declaredIn = nullptr; ///< null for names of libraries
    Pos declaredAt = 0;

    [[nodiscard]] bool isLocal() const { return !entity && declaredIn; }
    /// Whether other modules can use it.
    [[nodiscard]] bool isShared() const {
        return entity && entity->isPublic && !(entity->owner && entity->owner->isPrivate);
    }
    /// Whether it can be found in an object when the program runs.
    [[nodiscard]] bool isMember() const {
        const bool isOfObject =
            kind == EntityKind::Variable || kind == EntityKind::Procedure || kind == EntityKind::Property;
        return isOfObject && isShared() && entity->owner && entity->owner->isClass();
    }
    [[nodiscard]] const Type& presentType() const { return entity ? entity->type : type; }
};

struct NameUse {
    NamePlace place;
    std::size_t meaning = 0; ///< among the meanings
    bool isPart = false;     ///< of a handler's name

    friend auto operator<=>(const NameUse&, const NameUse&) = default;
};

/// Collects the uses of some names only, because a large program has millions of them.
class NameUses final : public UseSink {
public:
    NameUses(const SourceTexts& sources, std::vector<std::string> names);

    /// Sorts what was collected and removes what was reported twice.
    void finish();
    [[nodiscard]] const std::vector<NameUse>& all() const { return uses_; }
    /// The place of a module among the sources.
    [[nodiscard]] std::size_t sourceOf(const SourceModule& module) const { return sources_.at(&module.tree.source); }
    [[nodiscard]] const NameMeaning& meaning(const NameUse& use) const { return meanings_[use.meaning]; }

    void begin(SymbolTable& symbols) override;
    void used(const SourceModule& module, Pos pos, const Entity& entity) override;
    void usedPart(const SourceModule& module, Pos pos, std::size_t length, const Entity& entity) override;
    void usedParameter(const SourceModule& module, Pos pos, const Callable& callable,
                       const ParameterInfo& parameter) override;

private:
    /// A local name by the module and position of its declaration, another one by its entity.
    using Key = std::pair<const void*, Pos>;
    [[nodiscard]] bool isWanted(Symbol name) const { return wanted_.contains(name); }
    std::size_t meaningOf(const SourceModule& module, const Entity& entity);
    std::size_t meaningOf(const Key& key, const NameMeaning& meaning);
    void add(const SourceModule& module, Pos pos, Pos length, std::size_t meaning, bool isPart);

    std::map<const SourceText*, std::size_t> sources_;
    std::vector<std::string> names_;
    std::set<Symbol> wanted_;
    std::map<Key, std::size_t> known_;
    std::vector<NameMeaning> meanings_;
    std::vector<NameUse> uses_;
};

} // namespace qltoolkit
