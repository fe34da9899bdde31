// Functions that choose among values, and Array.
#include "Components/Tamarik/library/library_function.h"
#include "Components/Tamarik/library/library_natives.h"
#include "Components/Tamarik/numbers/partition.h"
#include "Components/Tamarik/values/rounding.h"

namespace tamarik {

namespace {

Variant iif(Session& session, const Variant& condition, const Variant& whenTrue, const Variant& whenFalse) {
    return copyOf(session.heap, isTrue(condition) ? whenTrue : whenFalse);
}

std::uint32_t countOf(VariantArray list) { return list.block ? list.block->size : 0; }

Variant choose(Session& session, double index, VariantArray choices) {
    const std::int32_t place = toLong(index);
    if (place < 1 || static_cast<std::uint32_t>(place) > countOf(choices)) return null();
    return elementAt(session.heap, *choices.block, static_cast<std::uint32_t>(place) - 1);
}

Variant switchTo(Session& session, VariantArray list) {
    const std::uint32_t size = countOf(list);
    requireArgument(size % 2 == 0);
    for (std::uint32_t i = 0; i < size; i += 2)
        if (isTrue(variantAt(list.block->as<Slot>() + std::size_t{2} * i)))
            return elementAt(session.heap, *list.block, i + 1);
    return null();
}

/// The list was made for this call, so it need not be copied.
Variant array(Session& session, VariantArray list) {
    if (!list.block) return ofArray(makeArray(session.heap, {{image::BaseType::Variant}}));
    retain(list.block);
    return ofArray(list.block);
}

Variant partition(Session& session, const Variant& number, const Variant& start, const Variant& stop,
                  const Variant& interval) {
    for (const Variant* each : {&number, &start, &stop, &interval})
        if (each->kind == kNull) return null();
    const std::string range = Partition(longOf(number), longOf(start), longOf(stop), longOf(interval));
    return ofText(madeOfUtf8(session, range));
}

} // namespace

void addChoices(Natives& natives) {
    natives.add("IIf", native<&iif>());
    natives.add("Choose", native<&choose>());
    natives.add("Switch", native<&switchTo>());
    natives.add("Array", native<&array>());
    natives.add("Partition", native<&partition>());
}

} // namespace tamarik
