#pragma once
// Keys of the Dictionary class.
#include "Components/Tamarik/values/variant.h"
#include <cstdint>

namespace tamarik {

/// A hash of a key, equal for equal keys whether or not case counts. Error 5 for an array.
[[nodiscard]] std::uint32_t keyHash(const Variant& key);

/// Numbers of all types are equal by their value, texts only to texts, objects by identity.
[[nodiscard]] bool equalKeys(Heap& heap, const Variant& a, const Variant& b, bool ignoresCase);

} // namespace tamarik
