#include "Components/QLToolkit/code/slots.h"
#include <algorithm>

namespace qltoolkit {

std::uint32_t Slots::temporary(image::SlotType type) {
    const auto free = std::find_if(temporaries_.rbegin(), temporaries_.rend(),
                                   [&](const Temporary& each) { return each.type == type; });
    std::uint32_t slot = 0;
    if (free != temporaries_.rend()) {
        slot = free->slot;
        temporaries_.erase(std::next(free).base());
    } else {
        slot = allocate(type, image::slotsOf(type), true);
    }
    const bool isObject = type.form != image::TypeForm::Array && type.base != image::BaseType::Text && isManaged(type);
    inUse_.push_back({slot, type, isObject});
    return slot;
}

std::uint32_t Slots::hidden(image::SlotType type) {
    const auto free =
        std::find_if(hidden_.begin(), hidden_.end(), [&](const Temporary& each) { return each.type == type; });
    if (free == hidden_.end()) return allocate(type, image::slotsOf(type), false);
    const auto slot = free->slot;
    hidden_.erase(free);
    return slot;
}

std::uint32_t Slots::allocate(image::SlotType type, std::uint32_t slots, bool isTemporary) {
    if (nextTemporary_ + slots > temporaryEnd_) {
        isFull_ = true;
        return 0;
    }
    const auto slot = nextTemporary_;
    nextTemporary_ += slots;
    add(slot, type, slots, isTemporary);
    return slot;
}

void Slots::keepHeld(std::size_t mark, std::uint32_t slot) {
    std::size_t kept = mark;
    for (std::size_t i = mark; i < inUse_.size(); ++i) {
        if (inUse_[i].slot == slot || inUse_[i].mustClear)
            inUse_[kept++] = inUse_[i];
        else
            temporaries_.push_back(inUse_[i]);
    }
    inUse_.resize(kept);
}

std::uint32_t Slots::count() const { return std::max(next_, nextTemporary_); }

std::vector<image::SlotVariable> Slots::variables() const {
    auto sorted = variables_;
    // Only where temporaries come before variables they are not in order already.
    if (isLarge_)
        std::sort(sorted.begin(), sorted.end(), [](const Placed& a, const Placed& b) { return a.slot < b.slot; });
    std::vector<image::SlotVariable> result;
    result.reserve(sorted.size());
    std::uint32_t next = 0;
    for (const auto& each : sorted) {
        for (; next < each.slot; ++next) result.push_back({{image::BaseType::Long, {}, 0}, false});
        result.push_back(each.variable);
        next = each.slot + each.slots;
    }
    return result;
}

} // namespace qltoolkit
