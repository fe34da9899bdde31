#pragma once
// A hash table from keys to what has them.
#include <cstddef>
#include <cstdint>
#include <utility>
#include <vector>

namespace tamarik {

/// Open addressing. The hashes are in the table, so that a search reads few items but the one it finds.
template <class T>
class KeyTable {
public:
    /// The item with this hash that `isKey` accepts, or null.
    template <class IsKey>
    [[nodiscard]] T* find(std::uint32_t hash, const IsKey& isKey) const {
        if (slots_.empty()) return nullptr;
        for (std::size_t at = hash & mask(); slots_[at].item; at = (at + 1) & mask())
            if (slots_[at].hash == hash && isKey(*slots_[at].item)) return slots_[at].item;
        return nullptr;
    }

    /// The key must not be there already.
    void add(std::uint32_t hash, T* item) {
        if ((count_ + 1) * 3 > slots_.size() * 2) grow();
        put({item, hash});
        ++count_;
    }

    /// The item must be there.
    void remove(std::uint32_t hash, const T* item) {
        std::size_t hole = hash & mask();
        while (slots_[hole].item != item) hole = (hole + 1) & mask();
        // Items that a search reaches only past the hole move into it.
        for (std::size_t at = (hole + 1) & mask(); slots_[at].item; at = (at + 1) & mask()) {
            const std::size_t distance = (at - (slots_[at].hash & mask())) & mask();
            if (distance < ((at - hole) & mask())) continue;
            slots_[hole] = slots_[at];
            hole = at;
        }
        slots_[hole] = {};
        --count_;
    }

    void clear() {
        slots_.clear();
        count_ = 0;
    }

private:
    struct Slot {
        T* item = nullptr;
        std::uint32_t hash = 0;
    };
    static constexpr std::size_t kFewestSlots = 16;

    [[nodiscard]] std::size_t mask() const { return slots_.size() - 1; }
    void put(Slot slot) {
        std::size_t at = slot.hash & mask();
        while (slots_[at].item) at = (at + 1) & mask();
        slots_[at] = slot;
    }
    void grow() {
        std::vector<Slot> old(slots_.empty() ? kFewestSlots : slots_.size() * 2);
        old.swap(slots_);
        for (const Slot& slot : old)
            if (slot.item) put(slot);
    }

    std::vector<Slot> slots_; ///< a power of two
    std::size_t count_ = 0;
};

} // namespace tamarik
