#include "Components/QLToolkit/names/record_size.h"
#include <algorithm>

namespace qltoolkit {

namespace {

constexpr int kDeepestRecord = 64;
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

std::uint64_t sizeOf(const Program& program, const Scope& record, int depth);

std::uint64_t sizeOf(const Program& program, const Entity& field, int depth) {
    if (field.type.isArray && !field.isStaticArray) return sizeOf(ValueType::Object);
    std::uint64_t size = sizeOf(field.type.value);
    if (field.type.value == ValueType::FixedString) size = std::uint64_t{field.type.id} * 2;
    if (field.type.value == ValueType::Record) size = sizeOf(program, program.scope(field.type.id), depth + 1);
    return std::min(size, kTooLarge) * field.elements;
}

std::uint64_t sizeOf(const Program& program, const Scope& record, int depth) {
    if (depth > kDeepestRecord) return kTooLarge;
    std::uint64_t total = 0;
    record.names.forEach([&](Symbol, const Entity& field) {
        if (total <= kLargestRecord) total += sizeOf(program, field, depth);
    });
    return std::min(total, kTooLarge);
}

} // namespace

std::uint64_t sizeOfRecord(const Program& program, const Scope& record) { return sizeOf(program, record, 0); }

} // namespace qltoolkit
