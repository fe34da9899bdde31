#include "Components/Tamarik/values/instance.h"
#include "Components/Tamarik/values/records.h"

namespace tamarik {

static_assert(sizeof(Instance) % sizeof(Slot) == 0);

void Instance::releaseMembers(Heap& heap) { clearManaged(heap, fields(), shape_.managed); }

Instance* makeInstance(Heap& heap, std::uint32_t classNumber, std::string_view name, const RecordShape& shape) {
    const std::uint64_t fields = std::uint64_t{shape.slots} * sizeof(Slot), charge = kObjectCharge + fields;
    void* const memory = heap.allocate(static_cast<std::size_t>(sizeof(Instance) + fields), charge);
    auto* const instance = new (memory) Instance(name, shape);
    instance->classNumber = classNumber;
    instance->charge = charge;
    link(heap, *instance);
    return instance;
}

} // namespace tamarik
