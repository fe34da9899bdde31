#pragma once
// A function of the runtime that waits for its host.
#include "Components/Tamarik/natives/wait.h"
#include "Components/Tamarik/vm/program.h"
#include "Components/Tamarik/vm/task.h"
#include <optional>

namespace tamarik {

/// Lies on top of the code that waits. Code that the host runs meanwhile lies above it, so the last question is answered first.
class WaitTask final : public Task {
public:
    /// `result` is what the function returns, in one slot.
    WaitTask(WaitRequest request, ValueKind result) : request_(std::move(request)), result_(result) {}

    [[nodiscard]] const Wait& wait() const { return request_.wait; }
    void answer(Answer given) { answer_ = std::move(given); }

    bool step(Execution& machine) override;
    void returned(Execution&, const Variant&) override {}
    void release(Heap&) override {}

private:
    WaitRequest request_;
    ValueKind result_;
    std::optional<Answer> answer_;
};

} // namespace tamarik
