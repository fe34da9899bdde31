#pragma once
// Names: each gets a number, letter case does not matter. One table serves all modules of a project.
#include "Components/QLToolkit/source/arena.h"
#include <cstdint>
#include <string_view>
#include <vector>

namespace qltoolkit {

/// A name, whatever the case of its letters.
enum class Symbol : std::uint32_t { None = 0 };

class SymbolTable {
public:
    SymbolTable();

    /// The symbol of a name of ASCII letters, digits and underscores, all of them readable 8 bytes beyond its end
    /// (a SourceText's text is).
    Symbol internAscii(const char* name, std::uint32_t length);
    /// The symbol of any name, given as UTF-8.
    Symbol intern(std::string_view utf8);

    /// The spelling in which the name was seen first, as UTF-8. Empty for None.
    [[nodiscard]] std::string_view spelling(Symbol symbol) const {
        const Entry& e = entries_[static_cast<std::uint32_t>(symbol)];
        return {e.spelling, e.spellingLength};
    }
    [[nodiscard]] std::size_t size() const { return entries_.size() - 1; }

private:
    struct Entry {
        std::uint64_t firstWord; // the first 8 folded bytes: they tell most names apart
        std::uint32_t hash;
        std::uint32_t foldedLength;
        const char* folded;
        const char* spelling;
        std::uint32_t spellingLength;
    };
    const char* keep(std::string_view);
    Symbol add(const Entry&);
    void rehash();

    Arena text_;
    std::vector<Entry> entries_;
    std::vector<std::uint32_t> slots_; // a power of two, open addressing, 0 is free
};

} // namespace qltoolkit
