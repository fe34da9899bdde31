#pragma once
// Numbers for names, regardless of case. All modules of a project share one table.
#include "Components/QLToolkit/source/arena.h"
#include <cstdint>
#include <string_view>
#include <vector>

namespace qltoolkit {

/// A name, regardless of case.
enum class Symbol : std::uint32_t { None = 0 };

class SymbolTable {
public:
    SymbolTable();

    /// Returns the symbol of a name of ASCII letters, digits and underscores. Reads up to 8 bytes beyond its end, as a
    /// SourceText allows.
    Symbol internAscii(const char* name, std::uint32_t length);
    /// Returns the symbol of any name, given as UTF-8.
    Symbol intern(std::string_view utf8);

    /// Returns the first spelling of the name as UTF-8, or "" for None.
    [[nodiscard]] std::string_view spelling(Symbol symbol) const {
        const Entry& e = entries_[static_cast<std::uint32_t>(symbol)];
        return {e.spelling, e.spellingLength};
    }

    /// Symbols are less than this.
    [[nodiscard]] std::size_t count() const { return entries_.size(); }

private:
    struct Entry {
        std::uint64_t firstWord; // the first 8 folded bytes, which distinguish most names
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
