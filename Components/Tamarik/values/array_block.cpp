#include "Components/Tamarik/values/array_block.h"
#include "Basic/runtime_error.h"
#include "Components/Tamarik/values/object.h"
#include "Components/Tamarik/values/records.h"
#include <algorithm>
#include <cstring>
#include <utility>

namespace tamarik {

namespace {

using image::BaseType;

constexpr std::uint64_t kArrayCharge = 64;
constexpr std::uint64_t kMostElements = 0x7FFFFFFF;

std::uint32_t bytesOfElement(const ElementType& element) {
    switch (element.type.base) {
    case BaseType::Byte: return 1;
    case BaseType::Boolean:
    case BaseType::Integer:
    case BaseType::Long: return 4;
    case BaseType::Variant: return 2 * sizeof(Slot);
    case BaseType::Record: return element.record->slots * static_cast<std::uint32_t>(sizeof(Slot));
    default: return sizeof(Slot);
    }
}

std::uint64_t countOf(std::span<const Bounds> bounds, std::uint32_t elementBytes) {
    std::uint64_t count = 1;
    for (const Bounds& dimension : bounds) {
        const std::int64_t extent = std::int64_t{dimension.upper} - dimension.lower + 1;
        if (extent < 0) throw basic::RuntimeError(basic::kSubscriptOutOfRange);
        if (extent > 0 && count > kMostElements / static_cast<std::uint64_t>(extent))
            throw basic::RuntimeError(basic::kOutOfMemory);
        count *= static_cast<std::uint64_t>(extent);
    }
    if (count * elementBytes > kMostHeapBytes) throw basic::RuntimeError(basic::kOutOfMemory);
    return count;
}

void setBounds(ArrayBlock& array, std::vector<Bounds> bounds, std::uint32_t size) {
    array.size = size;
    array.lower = bounds.size() == 1 ? bounds[0].lower : 0;
    array.extent = bounds.size() == 1 ? size : 0;
    array.bounds = std::move(bounds);
}

std::uint64_t dataBytes(const ArrayBlock& array) { return std::uint64_t{array.size} * array.elementBytes; }

void* allocateData(Heap& heap, std::uint64_t bytes) {
    return bytes == 0 ? nullptr : heap.allocate(static_cast<std::size_t>(bytes), bytes);
}

bool needsPreparation(const ElementType& element) {
    return element.fixedLength != 0 || (element.record && !element.record->prepared.empty());
}

void prepareElements(Heap& heap, const ElementType& element, void* data, std::uint32_t from, std::uint32_t to) {
    if (!needsPreparation(element)) return;
    auto* const slots = static_cast<Slot*>(data);
    const std::uint32_t step = element.record ? element.record->slots : 1;
    for (std::uint32_t i = from; i < to; ++i) {
        if (element.record)
            prepareRecord(heap, slots + std::size_t{i} * step, *element.record);
        else
            slots[i].text = makeFilled(heap, element.fixedLength, u'\0');
    }
}

void releaseElements(Heap& heap, const ElementType& element, void* data, std::uint32_t from, std::uint32_t to) {
    auto* const slots = static_cast<Slot*>(data);
    if (element.record) {
        if (element.record->managed.empty()) return;
        for (std::uint32_t i = from; i < to; ++i)
            clearManaged(heap, slots + std::size_t{i} * element.record->slots, element.record->managed);
    } else if (image::isManaged({element.type.base})) {
        const Managed kind = managedKind({element.type.base});
        const std::uint32_t step = kind == Managed::Variant ? 2 : 1;
        for (std::uint32_t i = from; i < to; ++i) releaseSlot(heap, slots + std::size_t{i} * step, kind);
    }
}

/// Copies arrays inside of arrays without recursion, since Variants may nest them deeply.
class Copier {
public:
    explicit Copier(Heap& heap) : heap_(heap) {}

    void run(ArrayBlock& target, const ArrayBlock& source) {
        copyElements(target, source);
        while (!waiting_.empty()) {
            const auto [array, slot] = waiting_.back();
            waiting_.pop_back();
            *slot = makeArray(heap_, array->element, array->bounds);
            copyElements(**slot, *array);
        }
    }

private:
    void copyManaged(Slot* target, const Slot* source, Managed kind) {
        if (kind == Managed::Text) target->text = retain(source->text);
        if (kind == Managed::Object) retain(target->object = source->object);
        if (kind == Managed::Array) later(target->array, source->array);
        if (kind == Managed::Variant) copyVariant(variantAt(target), variantAt(source));
    }

    void copyVariant(Variant& target, const Variant& source) {
        target = source;
        target.flags &= Variant::kNegative;
        if (source.isArray())
            later(target.array, source.array);
        else
            target = sharedOf(source);
    }

    void later(ArrayBlock*& target, const ArrayBlock* source) {
        target = nullptr;
        if (source) waiting_.emplace_back(source, &target);
    }

    void copyElements(ArrayBlock& target, const ArrayBlock& source) {
        releaseElements(heap_, target.element, target.data, 0, target.size);
        const auto& element = source.element;
        auto* const from = source.as<Slot>();
        auto* const to = target.as<Slot>();
        const bool managed = element.record ? !element.record->managed.empty() : image::isManaged({element.type.base});
        if (dataBytes(source) != 0) std::memset(target.data, 0, static_cast<std::size_t>(dataBytes(source)));
        if (!managed) {
            if (dataBytes(source) != 0)
                std::memcpy(target.data, source.data, static_cast<std::size_t>(dataBytes(source)));
            return;
        }
        if (element.record) return copyRecords(to, from, *element.record, source.size);
        const Managed kind = managedKind({element.type.base});
        const std::size_t step = kind == Managed::Variant ? 2 : 1;
        for (std::size_t i = 0; i < source.size; ++i) copyManaged(to + i * step, from + i * step, kind);
    }

    void copyRecords(Slot* to, const Slot* from, const RecordShape& shape, std::size_t count) {
        for (std::size_t i = 0; i < count; ++i, to += shape.slots, from += shape.slots) {
            std::copy_n(from, shape.slots, to);
            // If a field fails, those after it hold nothing.
            for (const ManagedSlot& field : shape.managed) {
                to[field.slot].bits = 0;
                if (field.kind == Managed::Variant) to[field.slot + 1].bits = 0;
            }
            for (const ManagedSlot& field : shape.managed) copyManaged(to + field.slot, from + field.slot, field.kind);
        }
    }

    Heap& heap_;
    std::vector<std::pair<const ArrayBlock*, ArrayBlock**>> waiting_;
};

} // namespace

Managed managedKind(image::SlotType type) {
    if (type.form == image::TypeForm::Array) return Managed::Array;
    if (type.form != image::TypeForm::Value) return Managed::Reference;
    if (type.base == BaseType::Text) return Managed::Text;
    return type.base == BaseType::Variant ? Managed::Variant : Managed::Object;
}

bool isPlain(const ArrayBlock& array) {
    const auto& element = array.element;
    if (element.record) return element.record->managed.empty();
    return element.type.base == BaseType::Text || !image::isManaged({element.type.base});
}

ArrayBlock* makeArray(Heap& heap, const ElementType& element) {
    auto* const array = new (heap.allocate(sizeof(ArrayBlock), kArrayCharge)) ArrayBlock;
    array->element = element;
    array->elementBytes = bytesOfElement(element);
    return array;
}

ArrayBlock* makeArray(Heap& heap, const ElementType& element, std::span<const Bounds> bounds) {
    ArrayBlock* const array = makeArray(heap, element);
    try {
        if (!bounds.empty()) redimension(heap, *array, bounds, false);
    } catch (...) {
        destroy(heap, array);
        throw;
    }
    return array;
}

ArrayBlock* copyOf(Heap& heap, const ArrayBlock& source) {
    ArrayBlock* const copy = makeArray(heap, source.element, source.bounds);
    try {
        Copier(heap).run(*copy, source);
    } catch (...) {
        release(heap, copy);
        throw;
    }
    return copy;
}

void destroy(Heap& heap, ArrayBlock* array) {
    if (array->data) {
        releaseElements(heap, array->element, array->data, 0, array->size);
        heap.free(array->data, dataBytes(*array));
    }
    array->~ArrayBlock();
    heap.free(array, kArrayCharge);
}

std::uint32_t placeOf(const ArrayBlock* array, std::span<const std::int32_t> indexes) {
    if (!array || indexes.size() != array->bounds.size()) throw basic::RuntimeError(basic::kSubscriptOutOfRange);
    std::uint32_t place = 0, weight = 1;
    for (std::size_t i = 0; i < indexes.size(); ++i) {
        const Bounds& dimension = array->bounds[i];
        if (indexes[i] < dimension.lower || indexes[i] > dimension.upper)
            throw basic::RuntimeError(basic::kSubscriptOutOfRange);
        place += weight * (static_cast<std::uint32_t>(indexes[i]) - static_cast<std::uint32_t>(dimension.lower));
        weight *= static_cast<std::uint32_t>(dimension.upper) - static_cast<std::uint32_t>(dimension.lower) + 1;
    }
    return place;
}

void requireUnlocked(const ArrayBlock& array) {
    if (array.locks != 0) throw basic::RuntimeError(basic::kArrayFixedOrLocked);
}

namespace {

void requireSameButLast(const ArrayBlock& array, std::span<const Bounds> bounds) {
    if (array.bounds.empty()) return;
    bool same = bounds.size() == array.bounds.size() && bounds.back().lower == array.bounds.back().lower;
    for (std::size_t i = 0; same && i + 1 < bounds.size(); ++i) same = bounds[i] == array.bounds[i];
    if (!same) throw basic::RuntimeError(basic::kSubscriptOutOfRange);
}

/// Replaces the data; the old elements from `kept` on are released after everything is in place.
void replaceData(Heap& heap, ArrayBlock& array, void* data, std::vector<Bounds> bounds, std::uint32_t size,
                 std::uint32_t kept) {
    void* const old = std::exchange(array.data, data);
    const std::uint32_t oldSize = array.size;
    const std::uint64_t oldBytes = dataBytes(array);
    setBounds(array, std::move(bounds), size);
    if (!old) return;
    releaseElements(heap, array.element, old, kept, oldSize);
    heap.free(old, oldBytes);
}

void* newData(Heap& heap, const ArrayBlock& array, std::uint32_t from, std::uint32_t size) {
    const std::uint64_t bytes = std::uint64_t{size} * array.elementBytes;
    void* const data = allocateData(heap, bytes);
    try {
        prepareElements(heap, array.element, data, from, size);
    } catch (...) {
        releaseElements(heap, array.element, data, from, size);
        heap.free(data, bytes);
        throw;
    }
    return data;
}

} // namespace

void redimension(Heap& heap, ArrayBlock& array, std::span<const Bounds> bounds, bool keep) {
    requireUnlocked(array);
    const auto size = static_cast<std::uint32_t>(countOf(bounds, array.elementBytes));
    if (keep) requireSameButLast(array, bounds);
    const std::uint32_t kept = keep ? std::min(size, array.size) : 0;
    std::vector<Bounds> copied(bounds.begin(), bounds.end());
    void* const data = newData(heap, array, kept, size);
    if (kept != 0) std::memcpy(data, array.data, std::size_t{kept} * array.elementBytes);
    replaceData(heap, array, data, std::move(copied), size, kept);
}

void erase(Heap& heap, ArrayBlock& array) {
    requireUnlocked(array);
    replaceData(heap, array, nullptr, {}, 0, 0);
}

void reset(Heap& heap, ArrayBlock& array) {
    requireUnlocked(array);
    const std::vector<Bounds> bounds = array.bounds;
    if (!bounds.empty()) redimension(heap, array, bounds, false);
}

void moveElements(Heap& heap, ArrayBlock& target, ArrayBlock& source) {
    requireUnlocked(target);
    requireUnlocked(source);
    if (&target == &source) return;
    std::vector<Bounds> bounds = std::move(source.bounds);
    const std::uint32_t size = source.size;
    void* const data = std::exchange(source.data, nullptr);
    setBounds(source, {}, 0);
    target.element = source.element;
    replaceData(heap, target, data, std::move(bounds), size, 0);
}

Variant elementAt(Heap& heap, const ArrayBlock& array, std::uint32_t place) {
    const auto base = array.element.type.base;
    const VariantKind kind = kindOf(base);
    const void* const element = array.at(place);
    const auto* const slot = static_cast<const Slot*>(element);
    switch (base) {
    case BaseType::Byte: return ofNumber(array.as<std::uint8_t>()[place], kByte);
    case BaseType::Boolean:
    case BaseType::Integer:
    case BaseType::Long: return ofNumber(array.as<std::int32_t>()[place], kind);
    case BaseType::Single:
    case BaseType::Double:
    case BaseType::Date: return ofFraction(slot->fraction, kind);
    case BaseType::Currency: return ofCurrency(slot->currency);
    case BaseType::Text: return ofText(retain(slot->text));
    case BaseType::Object: retain(slot->object); return ofObject(slot->object);
    case BaseType::Variant: return copyOf(heap, variantAt(slot));
    default: throw basic::RuntimeError(basic::kTypeMismatch);
    }
}

} // namespace tamarik
