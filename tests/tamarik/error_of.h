#pragma once
#include "Basic/runtime_error.h"
#include <utility>

namespace test {

/// The number of the error that a statement raises, or 0.
template <class F>
int errorOf(F&& statement) {
    return basic::attempt(std::forward<F>(statement)).Number;
}

} // namespace test
