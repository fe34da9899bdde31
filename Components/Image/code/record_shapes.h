#pragma once
// Which slot belongs to which variable: the slots of a record are those of its fields, in order.
#include "Components/Image/code/code_image.h"
#include <cstdint>
#include <vector>

namespace image {

/// Variables or fields whose slots follow each other.
class SlotSequence {
public:
    void add(SlotType type, std::uint64_t slots);
    void clear();
    [[nodiscard]] std::uint64_t slots() const { return ends_.empty() ? 0 : ends_.back(); }
    [[nodiscard]] const std::vector<SlotType>& types() const { return types_; }

    struct Place {
        SlotType type;            ///< of the variable or field; None outside of them
        std::uint64_t offset = 0; ///< of the slot in it
    };
    [[nodiscard]] Place at(std::uint64_t slot) const;

private:
    std::vector<SlotType> types_;
    std::vector<std::uint64_t> ends_;
};

/// The slots of all records. Takes as much memory as the records, however large these are.
class RecordShapes {
public:
    /// More slots than any limit; sums end here.
    static constexpr std::uint64_t kTooMany = std::uint64_t{1} << 40;

    /// Of a record in a record that does not have a lower number, the slots are not known: it has none.
    explicit RecordShapes(const std::vector<RecordLayout>& records);

    [[nodiscard]] std::uint64_t slotsOf(SlotType type) const;
    [[nodiscard]] SlotSequence sequenceOf(const std::vector<SlotVariable>& variables) const;
    /// Replaces a sequence by that of these variables, in the memory that it has.
    void assign(SlotSequence& sequence, const std::vector<SlotVariable>& variables) const;
    [[nodiscard]] const SlotSequence& fieldsOf(std::uint32_t record) const { return records_[record]; }

    /// Returns the type of what is in a slot: a value that is not a record, an array or a reference; Half for the second
    /// slot of a pair; None outside the variables.
    [[nodiscard]] SlotType typeAt(const SlotSequence& variables, std::uint64_t slot) const;
    /// Whether a record of a layout begins in a slot.
    [[nodiscard]] bool beginsRecord(const SlotSequence& variables, std::uint64_t slot, std::uint32_t layout) const;

private:
    std::vector<SlotSequence> records_;
};

} // namespace image
