#pragma once
// Values as Get and Put store them: little-endian, fields without gaps, texts in the code page of the application.
#include "Components/Image/code/code_image.h"
#include "Components/Tamarik/natives/session.h"
#include <string>

namespace tamarik {

/// A variable or what holds others, as compiled code passes it.
struct StoredPlace {
    image::SlotType type;          ///< as declared: Integer, not Long
    std::uint32_t fixedLength = 0; ///< of a text
    Slot* slot = nullptr;
    bool isByteElement = false; ///< the slot is one byte of an array

    /// Elements of arrays of whole numbers take 4 bytes, so a slot would not be aligned.
    [[nodiscard]] std::int32_t& whole() const { return *static_cast<std::int32_t*>(static_cast<void*>(slot)); }
};

/// Appends the bytes of values.
class ValueWriter {
public:
    ValueWriter(Session& session, const image::CodeImage& code, bool hasLengths)
        : session_(session), code_(code), hasLengths_(hasLengths) {}

    /// Texts of any length have it in front, in records and Variants always. Error 13 for objects.
    void write(const StoredPlace& place);
    [[nodiscard]] const std::string& bytes() const { return bytes_; }

private:
    template <class Number>
    void number(Number value);
    void text(std::u16string_view units, std::uint32_t fixedLength, bool hasLength);
    void variant(const Variant& v);
    void record(std::uint32_t id, Slot* slots);
    void array(const ArrayBlock* array, bool hasBounds);

    Session& session_;
    const image::CodeImage& code_;
    bool hasLengths_;
    std::string bytes_;
};

/// Reads values from an open file. What is beyond the end is zero.
class ValueReader {
public:
    /// `limit` is how many bytes there are at most; more are error 59.
    ValueReader(Session& session, const image::CodeImage& code, OpenFile& file, bool hasLengths, std::uint64_t limit)
        : session_(session), code_(code), file_(file), hasLengths_(hasLengths), limit_(limit) {}

    /// Errors 6, 13 and 458 for what is not a value of the type.
    void read(const StoredPlace& place);
    [[nodiscard]] bool wasShort() const { return wasShort_; }

private:
    template <class Number>
    Number number();
    std::string take(std::uint64_t count);
    double fraction(image::BaseType type);
    void text(const StoredPlace& place, bool hasLength);
    [[nodiscard]] Variant variant();
    void record(std::uint32_t id, Slot* slots);
    void array(Slot& slot, image::SlotType type, bool hasBounds);

    Session& session_;
    const image::CodeImage& code_;
    OpenFile& file_;
    bool hasLengths_;
    std::uint64_t limit_;
    bool wasShort_ = false;
};

/// Calls act(field, its first slot) for each field of a record.
template <class F>
void forEachField(const image::CodeImage& code, std::uint32_t record, Slot* slots, F act);

/// How many slots the variables of a record take.
[[nodiscard]] std::uint32_t slotsOfRecord(const image::CodeImage& code, std::uint32_t record);

/// The place of an element.
[[nodiscard]] StoredPlace elementPlace(const ArrayBlock& array, std::uint32_t place);

template <class F>
void forEachField(const image::CodeImage& code, std::uint32_t record, Slot* slots, F act) {
    for (const image::RecordField& field : code.records.at(record).fields) {
        act(field, slots);
        const bool isRecord = field.type.form == image::TypeForm::Value && field.type.base == image::BaseType::Record;
        slots += isRecord ? slotsOfRecord(code, field.type.id)
                          : image::slotsOf({image::slotBase(field.type.base), field.type.form});
    }
}

} // namespace tamarik
