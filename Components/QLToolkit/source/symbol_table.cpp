#include "Components/QLToolkit/source/symbol_table.h"
#include "Basic/case_folding.h"
#include "Components/QLToolkit/source/characters.h"
#include <algorithm>
#include <string>
#include <utility>

namespace qltoolkit {

namespace {

constexpr unsigned kFirstSlotBits = 10;

bool isOrdinary(std::string_view name) {
    return !name.empty() && std::all_of(name.begin(), name.end(), [](char c) { return charIs(c, kNamePart); });
}

std::string padded(std::string_view text) {
    std::string copy(text);
    copy.append(kWordBytes, '\0');
    return copy;
}

} // namespace

SymbolTable::SymbolTable()
    : entries_{{"", "", 0, 0}},
      slots_(std::size_t{1} << kFirstSlotBits),
      mask_(slots_.size() - 1),
      shift_(64 - kFirstSlotBits) {}

SymbolTable::SymbolTable(const SymbolTable* base)
    : entries_(base->entries_), slots_(base->slots_), mask_(base->mask_), shift_(base->shift_) {}

Symbol SymbolTable::internAscii(const char* name, std::uint32_t length, std::uint64_t key) {
    for (std::size_t at = slotOf(key);; at = (at + 1) & mask_) {
        const Slot& slot = slots_[at];
        if (slot.key == key && (isShortKey(key) || isName(slot.symbol, name, length))) return slot.symbol;
        if (slot.symbol == Symbol::None) return addAscii(name, length, key);
    }
}

bool SymbolTable::isName(Symbol symbol, const char* name, std::uint32_t length) const {
    const Entry& e = entries_[static_cast<std::uint32_t>(symbol)];
    return e.length == length && sameName(name, e.name, length);
}

// The bytes after the name are kept, too, so that it can be read in words.
Symbol SymbolTable::addAscii(const char* name, std::uint32_t length, std::uint64_t key) {
    const char* kept = text_.copy(name, length + kWordBytes).begin();
    return add(key, {kept, kept, length, length});
}

// A foreign letter may be folded to an ASCII letter: then the name is an ordinary one.
Symbol SymbolTable::intern(std::string_view utf8) {
    const std::string folded = isOrdinary(utf8) ? std::string(utf8) : basic::foldCase(utf8);
    if (!isOrdinary(folded)) return internForeign(folded, utf8);
    const auto known = entries_.size();
    const auto symbol = internAscii(padded(folded).data(), static_cast<std::uint32_t>(folded.size()));
    if (entries_.size() > known) spell(entries_.back(), utf8);
    return symbol;
}

// Names in brackets may contain anything, and different ones may have the same words: they are distinguished by
// comparing all bytes, and from ordinary names by their keys.
Symbol SymbolTable::internForeign(std::string_view folded, std::string_view spelling) {
    const auto length = static_cast<std::uint32_t>(folded.size());
    const auto key = longNameKey(padded(folded).data(), length) ^ 1;
    for (std::size_t at = slotOf(key); slots_[at].symbol != Symbol::None; at = (at + 1) & mask_) {
        const Entry& e = entries_[static_cast<std::uint32_t>(slots_[at].symbol)];
        if (slots_[at].key == key && std::string_view{e.name, e.length} == folded) return slots_[at].symbol;
    }
    const auto symbol = add(key, {text_.copy(folded.data(), length).begin(), "", length, 0});
    spell(entries_.back(), spelling);
    return symbol;
}

std::vector<Symbol> SymbolTable::internAll(const SymbolTable& other) {
    std::vector<Symbol> mine{Symbol::None};
    mine.reserve(other.count());
    for (std::size_t i = 1; i < other.count(); ++i) mine.push_back(internEntry(other.entries_[i]));
    return mine;
}

Symbol SymbolTable::internEntry(const Entry& entry) {
    const std::string_view name{entry.name, entry.length}, spelling{entry.spelling, entry.spellingLength};
    if (!isOrdinary(name)) return internForeign(name, spelling);
    const auto known = entries_.size();
    const auto symbol = internAscii(entry.name, entry.length);
    if (entries_.size() > known && entry.spelling != entry.name) spell(entries_.back(), spelling);
    return symbol;
}

void SymbolTable::spell(Entry& entry, std::string_view spelling) {
    entry.spelling = text_.copy(spelling.data(), spelling.size()).begin();
    entry.spellingLength = static_cast<std::uint32_t>(spelling.size());
}

Symbol SymbolTable::add(std::uint64_t key, const Entry& entry) {
    const auto symbol = static_cast<Symbol>(entries_.size());
    if ((entries_.size() + 1) * 2 > slots_.size()) grow();
    place({key, symbol});
    entries_.push_back(entry);
    return symbol;
}

void SymbolTable::place(const Slot& slot) {
    std::size_t at = slotOf(slot.key);
    while (slots_[at].symbol != Symbol::None) at = (at + 1) & mask_;
    slots_[at] = slot;
}

void SymbolTable::grow() {
    const auto old = std::exchange(slots_, std::vector<Slot>(slots_.size() * 2));
    mask_ = slots_.size() - 1;
    --shift_;
    for (const Slot& slot : old)
        if (slot.symbol != Symbol::None) place(slot);
}

} // namespace qltoolkit
