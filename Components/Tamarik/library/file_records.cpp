// Get and Put.
#include "Components/Tamarik/library/file_function.h"
#include "Components/Tamarik/library/library_natives.h"
#include "Components/Tamarik/library/stored_values.h"
#include <limits>

namespace tamarik {

using image::BaseType;
using image::SlotType;
using image::TypeForm;

namespace {

/// The file, with its place moved to the record, or byte, that the call names.
OpenFile& fileAtRecord(const NativeCall& call) {
    OpenFile& file = call.session.files.at(call.arguments[0].number);
    if (!file.isRandom() && file.traits().mode != FileMode::Binary) throw basic::RuntimeError(basic::kBadFileMode);
    const std::int32_t record = call.arguments[1].number;
    if (record < 0) throw basic::RuntimeError(basic::kBadRecordNumber);
    const std::uint64_t size = file.isRandom() ? file.traits().recordLength : 1;
    if (record > 0) file.seek((static_cast<std::uint64_t>(record) - 1) * size);
    if (file.isRandom()) file.lastRecord = file.position() / size + 1;
    return file;
}

void leaveRecord(OpenFile& file) {
    if (file.isRandom()) file.seek(file.lastRecord * file.traits().recordLength);
}

StoredPlace placeOf(const NativeCall& call) {
    const SlotType type = call.import->parameters[4];
    const bool isArray = type.form == TypeForm::ArrayReference;
    const std::int32_t base = call.arguments[2].number, length = call.arguments[3].number;
    requireArgument(base >= 0 && base < image::kBaseTypes && length >= 0);
    Slot* const slot = call.arguments[4].pointer;
    if (!slot) throw basic::RuntimeError(basic::kObjectVariableNotSet);
    const auto declared = static_cast<BaseType>(base);
    if (isArray) return {{type.base, TypeForm::Array, type.id}, 0, slot};
    // The slot decides how the value is held.
    if (image::slotBase(declared) != type.base) throw basic::RuntimeError(basic::kTypeMismatch);
    return {{declared, TypeForm::Value, type.id}, static_cast<std::uint32_t>(length), slot};
}

void put(NativeCall& call) {
    const StoredPlace place = placeOf(call);
    OpenFile& file = fileAtRecord(call);
    if (!file.traits().writes) throw basic::RuntimeError(basic::kBadFileMode);
    ValueWriter writer(call.session, *call.code, file.isRandom());
    writer.write(place);
    std::string bytes = writer.bytes();
    if (file.isRandom()) {
        if (bytes.size() > file.traits().recordLength) throw basic::RuntimeError(basic::kBadRecordLength);
        bytes.resize(file.traits().recordLength);
    }
    file.write(bytes);
    leaveRecord(file);
    file.wasShort = false;
}

void get(NativeCall& call) {
    const StoredPlace place = placeOf(call);
    OpenFile& file = fileAtRecord(call);
    if (!file.traits().reads) throw basic::RuntimeError(basic::kBadFileMode);
    const std::uint64_t limit =
        file.isRandom() ? file.traits().recordLength : std::numeric_limits<std::uint64_t>::max();
    ValueReader reader(call.session, *call.code, file, file.isRandom(), limit);
    reader.read(place);
    leaveRecord(file);
    file.wasShort = reader.wasShort();
}

void addForm(Natives& natives, SlotType variable) {
    const SlotType number{BaseType::Long};
    const std::vector<SlotType> parameters{number, number, number, number, variable};
    natives.addForm("Get", {{}, parameters, &get});
    natives.addForm("Put", {{}, parameters, &put});
}

} // namespace

void addFileRecords(Natives& natives) {
    constexpr BaseType kValues[]{BaseType::Long, BaseType::Double,  BaseType::Currency,
                                 BaseType::Text, BaseType::Variant, BaseType::Record};
    constexpr BaseType kElements[]{BaseType::Boolean, BaseType::Byte,    BaseType::Integer,  BaseType::Long,
                                   BaseType::Single,  BaseType::Double,  BaseType::Currency, BaseType::Date,
                                   BaseType::Text,    BaseType::Variant, BaseType::Record};
    const auto idOf = [](BaseType base) { return base == BaseType::Record ? kAnyId : 0; };
    for (const BaseType base : kValues) addForm(natives, {base, TypeForm::Reference, idOf(base)});
    for (const BaseType base : kElements) addForm(natives, {base, TypeForm::ArrayReference, idOf(base)});
}

} // namespace tamarik
