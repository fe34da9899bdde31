#pragma once
// The types of a procedure's slots.
#include "Components/Image/verify/operand_masks.h"
#include "Components/Image/verify/tables.h"
#include <array>

namespace image {

/// Returns the type of a slot that holds a field of a record.
constexpr SlotType asSlot(SlotType type) {
    return type.form == TypeForm::Value ? SlotType{slotBase(type.base), type.form, type.id} : type;
}

/// Those that instructions reach directly are in tables; the others are looked up.
class SlotTable {
public:
    explicit SlotTable(const Tables& tables);
    void assign(const Procedure& procedure);

    [[nodiscard]] TypeClass classOfSlot(std::uint8_t slot) const { return classes_[slot]; }
    /// None outside the variables, Half for the second slot of a pair.
    [[nodiscard]] SlotType typeAt(std::uint32_t slot) const {
        return slot < kMostDirectSlots ? types_[slot] : asSlot(tables_.shapes.typeAt(variables(), slot));
    }
    [[nodiscard]] bool beginsRecord(std::uint32_t slot, std::uint32_t layout) const {
        return tables_.shapes.beginsRecord(variables(), slot, layout);
    }

private:
    /// Most procedures do not need it.
    [[nodiscard]] const SlotSequence& variables() const;
    void add(SlotType type);
    void addSlot(SlotType type);

    const Tables& tables_;
    const Procedure* procedure_ = nullptr;
    mutable const Procedure* known_ = nullptr; ///< the procedure that variables_ is of
    mutable SlotSequence variables_;
    std::uint32_t count_ = 0;
    std::array<TypeClass, 256> classes_;
    std::array<SlotType, kMostDirectSlots> types_{};
};

} // namespace image
