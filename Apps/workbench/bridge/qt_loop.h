#pragma once
// The add-in's message loop on top of Qt's.
#include "Host/system/event_loop.h"
#include <QObject>

namespace workbench {

/// Delivers whenever Qt's loop runs, including nested loops. An error of a delivery is passed to `failed`, because no
/// exception may cross Qt's loop; DoEvents throws it to its caller.
class QtLoop final : public fernwick::EventLoop {
public:
    using Failed = std::function<void(std::exception_ptr)>;

    QtLoop(const fernwick::Clock& clock, Failed failed) : loop_(clock), failed_(std::move(failed)) {}

    void Post(std::function<void()> event) override;
    void DoEvents() override;
    [[nodiscard]] fernwick::Subscription StartTimer(int interval, std::function<void()> tick) override;

private:
    /// Starts a timer for the next delivery. Each delivery has its own timer, as a timer that is being served does not
    /// fire in a nested loop.
    void arm();
    void wake();

    host::EventLoop loop_;
    Failed failed_;
    QObject context_;
    unsigned armed_ = 0;
};

} // namespace workbench
