#pragma once
// A hash table from symbols to pointers.
#include "Components/QLToolkit/source/symbol_table.h"
#include <bit>
#include <vector>

namespace qltoolkit {

/// Open addressing. Symbols are numbered from 1 in the order of their first occurrence, so the lowest bits distribute
/// them well. Removal is not needed.
template <class T>
class SymbolMap {
public:
    [[nodiscard]] T* find(Symbol symbol) const {
        if (slots_.empty()) return nullptr;
        const std::size_t mask = slots_.size() - 1;
        for (std::size_t at = static_cast<std::size_t>(symbol) & mask; slots_[at].value; at = (at + 1) & mask)
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
        std::size_t at = static_cast<std::size_t>(symbol) & mask;
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

    void put(Symbol symbol, T* value) {
        const std::size_t mask = slots_.size() - 1;
        std::size_t at = static_cast<std::size_t>(symbol) & mask;
        while (slots_[at].value) at = (at + 1) & mask;
        slots_[at] = {symbol, value};
    }

    void grow() {
        std::vector<Slot> old(slots_.empty() ? kFirstSlots : slots_.size() * 2);
        old.swap(slots_);
        for (const auto& slot : old)
            if (slot.value) put(slot.symbol, slot.value);
    }

    std::vector<Slot> slots_;
    std::size_t size_ = 0;
};

} // namespace qltoolkit
