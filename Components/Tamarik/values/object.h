#pragma once
// Objects: instances of a program's classes, and of classes of the runtime.
#include "Components/Tamarik/values/counted.h"
#include "Components/Tamarik/values/slot.h"
#include <new>
#include <string_view>

namespace tamarik {

/// What an object of a class of the runtime costs, on all machines.
inline constexpr std::uint64_t kObjectCharge = 64;

/// The base of all objects. An object is linked into the heap's list of living ones until it is destroyed.
class Object : public Counted {
public:
    Object() : Counted(Kind::Object) {}
    Object(const Object&) = delete;
    Object& operator=(const Object&) = delete;
    virtual ~Object() = default;

    [[nodiscard]] virtual std::string_view className() const = 0;
    /// Releases what the object holds and makes it empty. Called once before it is destroyed, and for all living objects when
    /// the machine ends.
    virtual void releaseMembers(Heap& heap) = 0;

    std::uint32_t classNumber = 0; ///< from 1; 0 for classes of the runtime
    std::uint64_t charge = 0;
    Object *older = nullptr, *newer = nullptr;
};

void link(Heap& heap, Object& object);
/// Releases the members, removes the object from the list and frees it.
void destroy(Heap& heap, Object* object);

/// Makes an object of a class of the runtime.
template <class T, class... Arguments>
[[nodiscard]] T* makeObject(Heap& heap, Arguments&&... arguments) {
    void* const memory = heap.allocate(sizeof(T), kObjectCharge);
    T* object = nullptr;
    try {
        object = new (memory) T(static_cast<Arguments&&>(arguments)...);
    } catch (...) {
        heap.free(memory, kObjectCharge);
        throw;
    }
    object->charge = kObjectCharge;
    link(heap, *object);
    return object;
}

} // namespace tamarik
