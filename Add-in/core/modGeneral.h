#pragma once
// General helpers on arrays.
#include "Add-in/core/array.h"

namespace fernwick {

/// Whether the array is not allocated. One with an upper bound of -1 is allocated, though it has no element.
template <class T>
bool IsArrayEmpty(const Array<T>& array) {
    return basic::attempt([&] { (void)array.UBound(); }).Number == basic::kSubscriptOutOfRange;
}

/// How many elements the array has; 0 for one that is not allocated.
template <class T>
std::int32_t SafeUpdim(const Array<T>& array) {
    return IsArrayEmpty(array) ? 0 : array.UBound() - array.LBound() + 1;
}

} // namespace fernwick
