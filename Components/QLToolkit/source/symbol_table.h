#pragma once
// Numbers for names, regardless of case. All modules of a project share one table.
#include "Components/QLToolkit/source/arena.h"
#include "Components/QLToolkit/source/name_words.h"
#include <cstdint>
#include <string_view>
#include <vector>

namespace qltoolkit {

/// A name, regardless of case.
enum class Symbol : std::uint32_t { None = 0 };

class SymbolTable {
public:
    SymbolTable();
    /// Begins with the names of another table under the same numbers. The other one must outlive this.
    explicit SymbolTable(const SymbolTable* base);

    /// Returns the symbol of a name where it is found at once, or null: then intern it. `key` is its nameKey.
    [[nodiscard]] const Symbol* find(std::uint64_t key) const {
        const Slot& slot = slots_[slotOf(key)];
        return slot.key == key && isShortKey(key) ? &slot.symbol : nullptr;
    }
    /// Returns the symbol of a name of ASCII letters, digits and underscores. Reads up to 8 bytes beyond its end, as a
    /// SourceText allows. `key` is nameKey(name, length).
    Symbol internAscii(const char* name, std::uint32_t length, std::uint64_t key);
    Symbol internAscii(const char* name, std::uint32_t length) {
        return internAscii(name, length, nameKey(name, length));
    }
    /// Returns the symbol of any name, given as UTF-8.
    Symbol intern(std::string_view utf8);

    /// Adds the names of another table in its order. Returns the symbol here for each symbol there.
    [[nodiscard]] std::vector<Symbol> internAll(const SymbolTable& other);

    /// Returns the first spelling of the name as UTF-8, or "" for None.
    [[nodiscard]] std::string_view spelling(Symbol symbol) const {
        const Entry& e = entries_[static_cast<std::uint32_t>(symbol)];
        return {e.spelling, e.spellingLength};
    }

    /// Symbols are less than this.
    [[nodiscard]] std::size_t count() const { return entries_.size(); }

private:
    struct Entry {
        const char* name; // of ASCII letters in any case, otherwise folded
        const char* spelling;
        std::uint32_t length;
        std::uint32_t spellingLength;
    };
    struct Slot {
        std::uint64_t key = 0;
        Symbol symbol = Symbol::None;
    };
    [[nodiscard]] std::size_t slotOf(std::uint64_t key) const { return key * 0x9E3779B97F4A7C15u >> shift_; }
    [[nodiscard]] bool isName(Symbol, const char* name, std::uint32_t length) const;
    Symbol addAscii(const char* name, std::uint32_t length, std::uint64_t key);
    Symbol internEntry(const Entry&);
    Symbol internForeign(std::string_view folded, std::string_view spelling);
    void spell(Entry&, std::string_view);
    Symbol add(std::uint64_t key, const Entry&);
    void place(const Slot&);
    void grow();

    Arena text_;
    std::vector<Entry> entries_;
    std::vector<Slot> slots_; // a power of two, open addressing
    std::size_t mask_;
    unsigned shift_;
};

} // namespace qltoolkit
