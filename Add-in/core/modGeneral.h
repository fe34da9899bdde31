#pragma once
// General helpers for arrays.
#include "Add-in/core/array.h"

namespace fernwick {

/// Whether the array is unallocated. An array with an upper bound of -1 is allocated although it is empty.
template <class T>
bool IsArrayEmpty(const Array<T>& array) {
    return basic::attempt([&] { (void)array.UBound(); }).Number == basic::kSubscriptOutOfRange;
}

/// Number of elements; 0 for an unallocated array.
template <class T>
std::int32_t SafeUpdim(const Array<T>& array) {
    return IsArrayEmpty(array) ? 0 : array.UBound() - array.LBound() + 1;
}

} // namespace fernwick
