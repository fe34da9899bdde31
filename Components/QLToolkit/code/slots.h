#pragma once
// The slots of a procedure: variables, and temporaries that are used again.
#include "Components/Image/code/code_image.h"
#include "Components/Image/code/slot_type.h"
#include <algorithm>

namespace qltoolkit {

/// Slots are typed for the whole procedure, so a temporary is used again for values of its type only.
class Slots {
public:
    /// `isLarge`: the variables leave no room for temporaries among the slots that instructions reach, so those come
    /// directly after the parameters.
    void begin(bool isLarge) {
        isLarge_ = isLarge;
        variables_.clear();
        types_.clear();
        temporaries_.clear();
        hidden_.clear();
        inUse_.clear();
        next_ = nextTemporary_ = 0;
        temporaryEnd_ = image::kMostDirectSlots;
        isFull_ = false;
    }

    /// A variable of a type, with so many slots. Parameters come first.
    std::uint32_t variable(image::SlotType type, std::uint32_t slots) {
        const auto slot = next_;
        next_ += slots;
        add(slot, type, slots, false);
        return slot;
    }
    /// Called after the last parameter.
    void endParameters() {
        if (!isLarge_) return;
        nextTemporary_ = next_;
        next_ += kReserved;
        temporaryEnd_ = next_;
    }
    /// Called after the last variable.
    void endVariables() {
        if (!isLarge_) nextTemporary_ = next_;
    }

    /// Returns a slot that nothing else uses until releaseTo.
    std::uint32_t temporary(image::SlotType type);
    /// A record for the result of a call.
    std::uint32_t record(image::SlotType type, std::uint32_t slots) { return allocate(type, slots, false); }
    /// A slot for what lasts longer than a statement, until it is given back.
    std::uint32_t hidden(image::SlotType type);
    void giveBack(std::uint32_t slot, image::SlotType type) { hidden_.push_back({slot, type, false}); }

    /// Temporaries in use. releaseTo gives back those that were taken since.
    [[nodiscard]] std::size_t mark() const { return inUse_.size(); }
    void releaseTo(std::size_t mark) {
        for (; inUse_.size() > mark; inUse_.pop_back()) temporaries_.push_back(inUse_.back());
    }

    /// As releaseTo, but for one slot and those that must be cleared first.
    void keepHeld(std::size_t mark, std::uint32_t slot);

    struct Temporary {
        std::uint32_t slot;
        image::SlotType type;
        bool mustClear; ///< holds an object or a lock that must not last longer than the statement
    };
    [[nodiscard]] std::vector<Temporary>& inUse() { return inUse_; }
    [[nodiscard]] bool isInUse(std::uint32_t temporary) const {
        return std::ranges::any_of(inUse_, [&](const Temporary& each) { return each.slot == temporary; });
    }

    /// Whether there were more temporaries than instructions reach.
    [[nodiscard]] bool isFull() const { return isFull_; }
    /// The type of a slot at which a variable or temporary begins.
    [[nodiscard]] image::SlotType typeAt(std::uint32_t slot) const {
        return slot < types_.size() ? types_[slot] : image::SlotType{};
    }
    [[nodiscard]] std::uint32_t variableCount() const { return static_cast<std::uint32_t>(variables_.size()); }
    [[nodiscard]] std::uint32_t count() const;
    /// The types of all slots, in order.
    [[nodiscard]] std::vector<image::SlotVariable> variables() const;

    static constexpr std::uint32_t kReserved = 96;
    static constexpr std::uint32_t kMostVariables = image::kMostDirectSlots - kReserved;

private:
    struct Placed {
        std::uint32_t slot;
        image::SlotVariable variable;
        std::uint32_t slots;
    };
    void add(std::uint32_t slot, image::SlotType type, std::uint32_t slots, bool isTemporary) {
        variables_.push_back({slot, {type, isTemporary}, slots});
        if (types_.size() <= slot) types_.resize(slot + 1);
        types_[slot] = type;
    }
    std::uint32_t allocate(image::SlotType type, std::uint32_t slots, bool isTemporary);

    bool isLarge_ = false, isFull_ = false;
    std::uint32_t next_ = 0, nextTemporary_ = 0, temporaryEnd_ = 0;
    std::vector<Placed> variables_;
    std::vector<image::SlotType> types_;          // by slot
    std::vector<Temporary> temporaries_, hidden_; // free ones
    std::vector<Temporary> inUse_;
};

} // namespace qltoolkit
