#include "Components/Tamarik/library/stored_values.h"
#include "Basic/runtime_error.h"
#include "Components/Tamarik/values/array_block.h"

namespace tamarik {

using image::BaseType;
using image::TypeForm;

std::uint32_t slotsOfRecord(const image::CodeImage& code, std::uint32_t record) {
    std::uint32_t slots = 0;
    for (const image::RecordField& field : code.records.at(record).fields)
        slots += field.type.form == TypeForm::Value && field.type.base == BaseType::Record
                     ? slotsOfRecord(code, field.type.id)
                     : image::slotsOf({image::slotBase(field.type.base), field.type.form});
    return slots;
}

StoredPlace elementPlace(const ArrayBlock& array, std::uint32_t place) {
    return {{array.element.type.base, TypeForm::Value, array.element.type.id},
            array.element.fixedLength,
            static_cast<Slot*>(array.at(place)),
            array.element.type.base == BaseType::Byte};
}

} // namespace tamarik
