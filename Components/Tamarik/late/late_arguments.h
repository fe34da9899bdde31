#pragma once
// Variants as the arguments of a procedure whose parameters are typed.
#include "Components/Tamarik/vm/execution.h"
#include <span>
#include <vector>

namespace tamarik {

/// Converts arguments, keeps what ByRef parameters refer to, and copies it back to the caller's variables.
class LateArguments {
public:
    /// The first argument that is an object where the parameter is a simple value; null if there is none.
    [[nodiscard]] Variant* firstWithoutValue(const LoadedProcedure& procedure, std::span<Variant> arguments) const;
    /// Errors 13, 449, 450 and those of conversions.
    void prepare(Execution& m, const LoadedProcedure& procedure, const image::ClassMember& member,
                 std::span<const Variant> arguments, std::span<Slot* const> variables);
    /// Moves the arguments to the slots of the parameters, from the one after Me on.
    void moveTo(Heap& heap, Slot* target);
    void writeBack(Heap& heap);
    void release(Heap& heap);

private:
    struct Argument {
        image::SlotType type; ///< of the parameter
        image::BaseType declared = image::BaseType::None;
        Slot value[2]{}; ///< what is passed, or what the parameter refers to
        Slot* variable = nullptr;
        bool isInVariable = false; ///< the parameter refers to the caller's Variant itself
    };
    void prepareOne(Execution& m, Argument& argument, const Variant& value);
    void packRest(Execution& m, Argument& argument, std::span<const Variant> rest, std::span<Slot* const> variables);

    std::vector<Argument> arguments_;
    ArrayBlock* rest_ = nullptr;       ///< of the ParamArray
    std::vector<Slot*> restVariables_; ///< which its elements are
};

/// The argument if it is an object where a simple value is needed; otherwise null.
[[nodiscard]] Variant* valueNeeded(Variant& argument, image::SlotType type);
/// Assigns a Variant to a slot with a static type. `declared` is the type before it became a slot's. Error 13.
void storeInSlot(Execution& m, Slot* slot, image::SlotType type, image::BaseType declared, const Variant& value);
[[nodiscard]] Variant copyOfSlot(Heap& heap, const Slot* slot, image::SlotType type, image::BaseType declared);

} // namespace tamarik
