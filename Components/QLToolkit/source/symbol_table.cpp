#include "Components/QLToolkit/source/symbol_table.h"
#include "Basic/case_folding.h"
#include "Components/QLToolkit/source/name_words.h"
#include <algorithm>
#include <string>

namespace qltoolkit {

namespace {

constexpr std::size_t kFirstSlots = 1024;

std::uint32_t hashOfName(const char* name, std::uint32_t length, std::uint64_t firstWord) {
    std::uint64_t hash = mixWord(length, firstWord);
    for (std::uint32_t at = 8; at < length; at += 8) hash = mixWord(hash, foldedWord(name + at, length - at));
    return static_cast<std::uint32_t>(hash ^ (hash >> 32));
}

bool sameRest(const char* name, const char* folded, std::uint32_t length) {
    for (std::uint32_t at = 8; at < length; at += 8)
        if (foldedWord(name + at, length - at) != foldedWord(folded + at, length - at)) return false;
    return true;
}

} // namespace

SymbolTable::SymbolTable() : slots_(kFirstSlots, 0) { entries_.push_back({0, 0, 0, "", "", 0}); }

Symbol SymbolTable::internAscii(const char* name, std::uint32_t length) {
    const auto firstWord = foldedWord(name, length);
    const auto hash = hashOfName(name, length, firstWord);
    const std::size_t mask = slots_.size() - 1;
    for (std::size_t slot = hash & mask; slots_[slot] != 0; slot = (slot + 1) & mask) {
        const Entry& e = entries_[slots_[slot]];
        if (e.firstWord == firstWord && e.hash == hash && e.foldedLength == length && sameRest(name, e.folded, length))
            return static_cast<Symbol>(slots_[slot]);
    }
    const char* spelling = keep({name, length});
    return add({firstWord, hash, length, spelling, spelling, length});
}

// Hashes the folded form like an ASCII name, so that both functions return the same symbol. Names that differ but have
// the same words (names in brackets may contain anything) are distinguished by comparing all bytes.
Symbol SymbolTable::intern(std::string_view utf8) {
    std::string folded = basic::foldCase(utf8);
    const auto length = static_cast<std::uint32_t>(folded.size());
    folded.append(8, '\0');
    const auto firstWord = foldedWord(folded.data(), length);
    const auto hash = hashOfName(folded.data(), length, firstWord);
    const std::size_t mask = slots_.size() - 1;
    for (std::size_t slot = hash & mask; slots_[slot] != 0; slot = (slot + 1) & mask) {
        const Entry& e = entries_[slots_[slot]];
        if (e.hash != hash || e.foldedLength != length) continue;
        if (basic::foldCase({e.folded, length}) == std::string_view(folded.data(), length))
            return static_cast<Symbol>(slots_[slot]);
    }
    const char* kept = keep({folded.data(), length});
    return add({firstWord, hash, length, kept, keep(utf8), static_cast<std::uint32_t>(utf8.size())});
}

const char* SymbolTable::keep(std::string_view name) {
    std::string padded(name);
    padded.append(8, '\0');
    return text_.copy(padded.data(), padded.size()).begin();
}

Symbol SymbolTable::add(const Entry& entry) {
    const auto number = static_cast<std::uint32_t>(entries_.size());
    entries_.push_back(entry);
    if (entries_.size() * 2 > slots_.size()) {
        rehash();
    } else {
        std::size_t slot = entry.hash & (slots_.size() - 1);
        while (slots_[slot] != 0) slot = (slot + 1) & (slots_.size() - 1);
        slots_[slot] = number;
    }
    return static_cast<Symbol>(number);
}

void SymbolTable::rehash() {
    slots_.assign(slots_.size() * 2, 0);
    const std::size_t mask = slots_.size() - 1;
    for (std::uint32_t number = 1; number < entries_.size(); ++number) {
        std::size_t slot = entries_[number].hash & mask;
        while (slots_[slot] != 0) slot = (slot + 1) & mask;
        slots_[slot] = number;
    }
}

} // namespace qltoolkit
