#pragma once
// The add-in's message loop, turned by Qt's.
#include "Host/system/event_loop.h"
#include <QObject>

namespace workbench {

/// Deliveries happen when Qt's loop runs, nested ones too. What a delivery lets out is told to `failed`, for no error
/// crosses Qt's loop; in DoEvents it comes out to the caller.
class QtLoop final : public fernwick::EventLoop {
public:
    using Failed = std::function<void(std::exception_ptr)>;

    QtLoop(const fernwick::Clock& clock, Failed failed) : loop_(clock), failed_(std::move(failed)) {}

    void Post(std::function<void()> event) override;
    void DoEvents() override;
    [[nodiscard]] fernwick::Subscription StartTimer(int interval, std::function<void()> tick) override;

private:
    /// Has Qt wake us when the next delivery is due. Each wake has a timer of its own: one that is being served would
    /// not fire in a nested loop.
    void arm();
    void wake();

    host::EventLoop loop_;
    Failed failed_;
    QObject context_;
    unsigned armed_ = 0;
};

} // namespace workbench
