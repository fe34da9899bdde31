#pragma once
// A call of a member of an object that is found by name.
#include "Components/Tamarik/vm/execution.h"
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace tamarik {

/// It owns its Variants.
struct LateRequest {
    explicit LateRequest(Heap& of) : heap(of) {}
    LateRequest(LateRequest&& other) noexcept
        : heap(other.heap),
          object(std::exchange(other.object, {})),
          name(other.name),
          givenName(std::move(other.givenName)),
          use(other.use),
          isExact(other.isExact),
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
    std::string givenName;             ///< a name that the program computed, of CallByName; replaces `name`
    image::LateUse use = image::LateUse::Get;
    bool isExact = false; ///< Call does not find properties, and Get no methods
    std::vector<Variant> arguments;
    std::vector<Slot*> variables;     ///< of the caller, which ByRef parameters refer to; may be shorter
    std::vector<std::uint32_t> named; ///< texts, the names of the last arguments; the value of Let and Set follows

    /// Whether the last argument is a value that is assigned.
    [[nodiscard]] bool assigns() const { return use == image::LateUse::Let || use == image::LateUse::Set; }
    [[nodiscard]] std::size_t firstNamed() const { return arguments.size() - named.size() - (assigns() ? 1 : 0); }
    /// The name, empty for the default member.
    [[nodiscard]] std::string_view nameIn(const Program& program) const;
};

/// Let takes the value of an object's default member.
[[nodiscard]] inline bool assignsObject(image::LateUse use, const Variant& value) {
    return use == image::LateUse::Let && value.kind == kObject;
}

/// The member that serves a request; null if the object's class has none.
[[nodiscard]] const image::ClassMember* memberFor(Execution& m, const LateRequest& request, image::LateUse use);

/// Puts the arguments in the order of the member's parameters. Errors 446, 448, 450.
void arrangeArguments(const Program& program, LateRequest& request, const image::ClassMember& member);

} // namespace tamarik
