#include "Components/Tamarik/objects/walk.h"
#include "Components/Tamarik/values/records.h"
#include <utility>

namespace tamarik {

ArrayWalk::ArrayWalk(ArrayBlock& array) : array_(&array) { lock(array_); }

bool ArrayWalk::next(Heap& heap, Variant& element) {
    if (!array_ || place_ >= array_->size) return false;
    element = elementAt(heap, *array_, place_++);
    return true;
}

void ArrayWalk::releaseMembers(Heap& heap) {
    ArrayBlock* const array = std::exchange(array_, nullptr);
    unlock(array);
    release(heap, array);
}

} // namespace tamarik
