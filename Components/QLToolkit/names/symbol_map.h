#pragma once
// A hash table from symbols to pointers.
#include "Components/QLToolkit/source/symbol_table.h"
#include <bit>
#include <vector>

namespace qltoolkit {

/// Open addressing. Names that first occur one after the other, such as those of modules, have consecutive symbols: they are
/// spread, since a look-up of a name that is absent would walk along the whole run. Removal is not needed.
template <class T>
class SymbolMap {
public:
    [[nodiscard]] T* find(Symbol symbol) const {
        if (slots_.empty()) return nullptr;
        const std::size_t mask = slots_.size() - 1;
        for (std::size_t at = home(symbol); slots_[at].value; at = (at + 1) & mask)
            if (slots_[at].symbol == symbol) return slots_[at].value;
        return nullptr;
    }

    /// Returns false, and changes nothing, if the symbol is there already.
    bool add(Symbol symbol, T* value) {
        if (find(symbol)) return false;
        if ((size_ + 1) * 2 > slots_.size()) grow();
        put(symbol, value);
        ++size_;
        return true;
    }

    void replace(Symbol symbol, T* value) {
        if (add(symbol, value)) return;
        const std::size_t mask = slots_.size() - 1;
        std::size_t at = home(symbol);
        while (slots_[at].symbol != symbol) at = (at + 1) & mask;
        slots_[at].value = value;
    }

    [[nodiscard]] std::size_t size() const { return size_; }

    /// Calls `visit(symbol, value)` in an order that depends only on what was added.
    template <class Visit>
    void forEach(const Visit& visit) const {
        for (const auto& slot : slots_)
            if (slot.value) visit(slot.symbol, *slot.value);
    }

private:
    struct Slot {
        Symbol symbol = Symbol::None;
        T* value = nullptr;
    };
    static constexpr std::size_t kFirstSlots = 8;

    [[nodiscard]] std::size_t home(Symbol symbol) const {
        return static_cast<std::uint64_t>(symbol) * 0x9E3779B97F4A7C15u >> shift_;
    }

    void put(Symbol symbol, T* value) {
        const std::size_t mask = slots_.size() - 1;
        std::size_t at = home(symbol);
        while (slots_[at].value) at = (at + 1) & mask;
        slots_[at] = {symbol, value};
    }

    void grow() {
        std::vector<Slot> old(slots_.empty() ? kFirstSlots : slots_.size() * 2);
        old.swap(slots_);
        shift_ = 64 - static_cast<unsigned>(std::countr_zero(slots_.size()));
        for (const auto& slot : old)
            if (slot.value) put(slot.symbol, slot.value);
    }

    std::vector<Slot> slots_;
    std::size_t size_ = 0;
    unsigned shift_ = 0;
};

} // namespace qltoolkit
