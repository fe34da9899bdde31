#pragma once
// Members that are found by name while the program runs.
#include "Components/Tamarik/vm/execution.h"
#include <string>
#include <utility>
#include <vector>

namespace tamarik {

/// A call of a member of an object. It owns its Variants.
struct LateRequest {
    explicit LateRequest(Heap& of) : heap(of) {}
    LateRequest(LateRequest&& other) noexcept
        : heap(other.heap),
          object(std::exchange(other.object, {})),
          name(other.name),
          use(other.use),
          arguments(std::move(other.arguments)),
          variables(std::move(other.variables)),
          named(std::move(other.named)) {}
    LateRequest& operator=(LateRequest&&) = delete;
    ~LateRequest() { release(); }
    void release() noexcept {
        tamarik::release(heap, std::exchange(object, {}));
        for (Variant& argument : arguments) tamarik::release(heap, std::exchange(argument, {}));
    }

    Heap& heap;
    Variant object;
    std::uint32_t name = image::kNone; ///< a text; kNone for the default member
    image::LateUse use = image::LateUse::Get;
    std::vector<Variant> arguments;
    std::vector<Slot*> variables;     ///< of the caller, which ByRef parameters refer to; may be shorter
    std::vector<std::uint32_t> named; ///< texts, the names of the last arguments
};

/// Pushes the task of a call; its result goes to the frame below.
void callLate(Execution& m, LateRequest request, std::uint8_t result);
/// CallLate of an object of the runtime, without names of arguments: it calls no code and is done at once. False for others.
bool callLibrary(Execution& m, const std::uint32_t* ip);
/// The instruction CallLate.
void callLate(Execution& m, const std::uint32_t* ip);

/// The value of the default member of an object, at once or by a call; then the result is empty and the task receives it later.
void callDefault(Execution& m, const Variant& object);

/// The object is not a simple value. Errors 424, 91.
void requireObject(const Variant& v);

} // namespace tamarik
