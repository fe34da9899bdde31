#include "Components/Image/verify/slot_table.h"
#include <utility>

namespace image {

SlotTable::SlotTable(const Tables& tables) : tables_(tables) {
    classes_.fill(kMissingSlot);
    classes_[kNoSlot] = kSlotForNone;
}

void SlotTable::assign(const Procedure& procedure) {
    procedure_ = &procedure;
    const auto before = std::exchange(count_, 0);
    for (const auto& variable : procedure.variables) {
        if (count_ == kMostDirectSlots) break;
        add(variable.type);
    }
    for (auto slot = count_; slot < before; ++slot) {
        classes_[slot] = kMissingSlot;
        types_[slot] = {};
    }
}

const SlotSequence& SlotTable::variables() const {
    if (known_ != procedure_) tables_.shapes.assign(variables_, procedure_->variables);
    known_ = procedure_;
    return variables_;
}

void SlotTable::add(SlotType type) {
    if (type.form == TypeForm::Value && type.base == BaseType::Record) {
        for (const auto field : tables_.shapes.fieldsOf(type.id).types()) {
            if (count_ == kMostDirectSlots) return;
            add(field);
        }
        return;
    }
    addSlot(asSlot(type));
    if (slotsOf(type) == 2) addSlot({BaseType::Half});
}

void SlotTable::addSlot(SlotType type) {
    if (count_ == kMostDirectSlots) return;
    types_[count_] = type;
    classes_[count_++] = classOf(type);
}

} // namespace image
