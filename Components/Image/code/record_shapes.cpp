#include "Components/Image/code/record_shapes.h"
#include <algorithm>

namespace image {

namespace {

bool isRecord(SlotType type) { return type.form == TypeForm::Value && type.base == BaseType::Record; }

} // namespace

void SlotSequence::add(SlotType type, std::uint64_t slots) {
    types_.push_back(type);
    ends_.push_back(std::min(this->slots() + slots, RecordShapes::kTooMany));
}

void SlotSequence::clear() {
    types_.clear();
    ends_.clear();
}

SlotSequence::Place SlotSequence::at(std::uint64_t slot) const {
    // Skips records without fields, which end where they begin.
    const auto end = std::ranges::upper_bound(ends_, slot);
    if (end == ends_.end()) return {};
    const auto index = static_cast<std::size_t>(end - ends_.begin());
    return {types_[index], slot - (index == 0 ? 0 : ends_[index - 1])};
}

RecordShapes::RecordShapes(const std::vector<RecordLayout>& records) {
    records_.reserve(records.size());
    for (const auto& record : records) {
        SlotSequence fields;
        for (const auto& field : record.fields) fields.add(field.type, slotsOf(field.type));
        records_.push_back(std::move(fields));
    }
}

std::uint64_t RecordShapes::slotsOf(SlotType type) const {
    if (!isRecord(type)) return image::slotsOf(type);
    return type.id < records_.size() ? records_[type.id].slots() : 0;
}

SlotSequence RecordShapes::sequenceOf(const std::vector<SlotVariable>& variables) const {
    SlotSequence sequence;
    assign(sequence, variables);
    return sequence;
}

void RecordShapes::assign(SlotSequence& sequence, const std::vector<SlotVariable>& variables) const {
    sequence.clear();
    for (const auto& variable : variables) sequence.add(variable.type, slotsOf(variable.type));
}

SlotType RecordShapes::typeAt(const SlotSequence& variables, std::uint64_t slot) const {
    auto place = variables.at(slot);
    while (isRecord(place.type)) place = records_[place.type.id].at(place.offset);
    return place.offset == 0 ? place.type : SlotType{BaseType::Half};
}

bool RecordShapes::beginsRecord(const SlotSequence& variables, std::uint64_t slot, std::uint32_t layout) const {
    auto place = variables.at(slot);
    for (; isRecord(place.type); place = records_[place.type.id].at(place.offset))
        if (place.type.id == layout) return place.offset == 0;
    return false;
}

} // namespace image
