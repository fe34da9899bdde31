#pragma once
// Numbers that identify texts, objects and variables, in the place of addresses, which a program must not learn.
#include <cstdint>
#include <unordered_map>

namespace tamarik {

class Identities {
public:
    /// The number of a block, the same as long as it lives; 0 for none.
    [[nodiscard]] std::int32_t of(const void* block) {
        if (!block) return 0;
        const auto [found, isNew] = numbers_.try_emplace(block, next_);
        if (isNew) next_ = next_ < kLast ? next_ + kStep : kFirst;
        return found->second;
    }

private:
    static constexpr std::int32_t kFirst = 0x10000, kStep = 16, kLast = 0x7FFF0000;

    std::unordered_map<const void*, std::int32_t> numbers_;
    std::int32_t next_ = kFirst;
};

} // namespace tamarik
