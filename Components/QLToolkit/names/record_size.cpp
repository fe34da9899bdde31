#include "Components/QLToolkit/names/record_size.h"
#include <algorithm>

namespace qltoolkit {

namespace {

/// Records that are contained in each other any deeper are too large for an image.
constexpr int kDeepestPlain = 32;

constexpr std::uint64_t kTooLarge = kLargestRecord + 1;

std::uint64_t sizeOf(ValueType type) {
    switch (type) {
    case ValueType::Byte: return 1;
    case ValueType::Boolean:
    case ValueType::Integer: return 2;
    case ValueType::Double:
    case ValueType::Currency:
    case ValueType::Date: return 8;
    case ValueType::Variant: return 16;
    default: return 4;
    }
}

bool isPointer(const Entity& field) { return field.type.isArray && !field.isStaticArray; }

bool isRecord(const Entity& field) { return field.type.value == ValueType::Record && !isPointer(field); }

std::uint64_t sizeOf(const Entity& field, std::uint64_t characterBytes) {
    if (isPointer(field)) return sizeOf(ValueType::Object);
    return field.type.value == ValueType::FixedString ? std::uint64_t{field.type.id} * characterBytes
                                                      : sizeOf(field.type.value);
}

/// In memory a character of a text of a fixed length has two bytes.
constexpr std::uint64_t kCharacterBytes = 2;

MemoryExtent extentOf(const Entity& field) {
    constexpr std::uint64_t kMostAlignment = 4;
    const auto bytes = sizeOf(field, kCharacterBytes);
    const bool isText = field.type.value == ValueType::FixedString && !isPointer(field);
    return {bytes, isText ? kCharacterBytes : std::min(bytes, kMostAlignment)};
}

} // namespace

void addField(MemoryExtent& record, const Entity& field, const MemoryExtent& inner) {
    const auto extent = isRecord(field) ? inner : extentOf(field);
    record.alignment = std::max(record.alignment, extent.alignment);
    record.bytes += (extent.alignment - record.bytes % extent.alignment) % extent.alignment;
    record.bytes += extent.bytes * field.elements;
}

void addEnd(MemoryExtent& record) {
    record.bytes += (record.alignment - record.bytes % record.alignment) % record.alignment;
}

bool isPlain(const Program& program, const Scope& record, int depth) {
    bool result = depth < kDeepestPlain;
    record.names.forEach([&](Symbol, const Entity& field) {
        const ValueType type = field.type.value;
        const bool isManaged = type == ValueType::String || type == ValueType::Object || type == ValueType::Variant ||
                               type == ValueType::Unknown || isPointer(field);
        result = result && !isManaged &&
                 (type != ValueType::Record || isPlain(program, program.scope(field.type.id), depth + 1));
    });
    return result;
}

RecordSize RecordSizes::of(const Scope& record) {
    if (!known_.contains(record.number)) open(record.number);
    while (!open_.empty()) {
        auto& [number, fields] = open_.back();
        if (fields.empty()) {
            known_[number].isDone = true;
            open_.pop_back();
        } else if (const Entity& field = *fields.back(); isRecord(field) && !known_.contains(field.type.id)) {
            open(field.type.id);
        } else {
            fields.pop_back();
            count(field);
        }
    }
    return known_[record.number].size;
}

void RecordSizes::open(std::uint32_t record) {
    known_[record] = {};
    auto& fields = open_.emplace_back(Open{record, {}}).fields;
    program_.scope(record).names.forEach([&](Symbol, const Entity& field) { fields.push_back(&field); });
}

/// Adds a field to the innermost record.
void RecordSizes::count(const Entity& field) {
    auto& total = known_[open_.back().record].size.bytes;
    if (!isRecord(field)) {
        total = std::min(total + std::min(sizeOf(field, characterBytes_), kTooLarge) * field.elements, kTooLarge);
    } else if (const auto& inner = known_[field.type.id]; inner.isDone) {
        total = std::min(total + inner.size.bytes * field.elements, kTooLarge);
    } else {
        markCircle(field.type.id);
    }
}

void RecordSizes::markCircle(std::uint32_t record) {
    for (auto at = open_.rbegin(); at != open_.rend(); ++at) {
        known_[at->record].size.isCircle = true;
        if (at->record == record) return;
    }
}

} // namespace qltoolkit
