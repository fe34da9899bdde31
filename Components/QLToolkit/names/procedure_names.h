#pragma once
// The names of one procedure: parameters, variables, constants, its own name, and labels.
#include "Components/QLToolkit/names/entity.h"
#include <deque>
#include <unordered_map>

namespace qltoolkit {

/// Serves one procedure after the other; a procedure's names are forgotten when the next one begins.
class ProcedureNames {
public:
    void begin(std::size_t symbols) {
        if (slots_.size() < symbols) slots_.resize(symbols);
        ++procedure_;
        entities_.clear();
        constants_.clear();
        labels_.clear();
    }

    [[nodiscard]] Entity* find(Symbol name) const {
        const auto& slot = slots_[static_cast<std::size_t>(name)];
        return slot.procedure == procedure_ ? slot.entity : nullptr;
    }

    /// Returns nothing if the name is declared already.
    Entity* add(EntityKind kind, Symbol name, Pos pos) {
        auto& slot = slots_[static_cast<std::size_t>(name)];
        if (slot.procedure == procedure_) return nullptr;
        Entity& entity = entities_.emplace_back();
        entity.kind = kind;
        entity.name = name;
        entity.pos = pos;
        slot = {procedure_, &entity};
        return &entity;
    }

    ConstantState& newConstant() { return constants_.emplace_back(); }

    [[nodiscard]] bool hasLabels() const { return !labels_.empty(); }
    /// Labels and line numbers. Returns nothing for one that is there already.
    Entity* addLabel(const Target& label) {
        const auto [at, isNew] = labels_.try_emplace(keyOf(label));
        if (!isNew) return nullptr;
        at->second.kind = EntityKind::Label;
        at->second.name = label.name;
        at->second.pos = label.pos;
        return &at->second;
    }
    [[nodiscard]] const Entity* findLabel(const Target& label) const {
        const auto found = labels_.find(keyOf(label));
        return found == labels_.end() ? nullptr : &found->second;
    }

    [[nodiscard]] const std::deque<Entity>& all() const { return entities_; }

private:
    struct Slot {
        std::uint32_t procedure = 0;
        Entity* entity = nullptr;
    };
    static std::uint64_t keyOf(const Target& label) {
        return std::uint64_t{static_cast<std::uint32_t>(label.name)} << 32 | label.number;
    }

    std::uint32_t procedure_ = 0;
    std::vector<Slot> slots_; // by symbol
    std::deque<Entity> entities_;
    std::deque<ConstantState> constants_;
    std::unordered_map<std::uint64_t, Entity> labels_;
};

} // namespace qltoolkit
