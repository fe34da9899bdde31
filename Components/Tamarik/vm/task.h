#pragma once
// A step-by-step function of the machine itself, which calls code between its steps.
#include "Components/Tamarik/values/variant.h"

namespace tamarik {

struct Execution;

/// Its frame lies below those that it calls. The destructor frees nothing: `release` does, on every way out.
class Task {
public:
    Task() = default;
    Task(const Task&) = delete;
    Task& operator=(const Task&) = delete;
    virtual ~Task() = default;

    /// Runs until it has called code or is done, which it reports by true; its frame is then removed. Called again when the code
    /// has returned.
    virtual bool step(Execution& machine) = 0;
    /// Receives the result of the code that was called, with a new reference.
    virtual void returned(Execution& machine, const Variant& result) = 0;
    virtual void release(Heap& heap) = 0;
};

} // namespace tamarik
