#include "Components/Tamarik/values/object.h"

namespace tamarik {

void link(Heap& heap, Object& object) {
    object.older = static_cast<Object*>(heap.living);
    if (object.older) object.older->newer = &object;
    heap.living = &object;
}

void destroy(Heap& heap, Object* object) {
    object->releaseMembers(heap);
    if (object->older) object->older->newer = object->newer;
    if (object->newer)
        object->newer->older = object->older;
    else
        heap.living = object->older;
    const std::uint64_t charge = object->charge;
    object->~Object();
    heap.free(object, charge);
}

} // namespace tamarik
