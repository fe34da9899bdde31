#pragma once
// Assertions about run-time errors.
#include "Basic/runtime_error.h"
#include <gtest/gtest.h>

namespace test {

/// Returns the number of the run-time error that `statement` raises; 0 for none.
template <class F>
int errorOf(F&& statement) {
    return basic::attempt(std::forward<F>(statement)).Number;
}

} // namespace test
