#include "Apps/workbench/assist/program_task.h"
#include <utility>

namespace workbench {

namespace {
constexpr int kMillisecondsBetweenReports = 50;
} // namespace

ProgramTask::ProgramTask(QThreadPool& workers) : workers_(workers) {
    turn_.setInterval(kMillisecondsBetweenReports);
    connect(&turn_, &QTimer::timeout, this, [this] { progress(run_->done, run_->all); });
}

void ProgramTask::start(Work work, std::function<void()> ended) {
    stop();
    run_ = std::make_shared<Run>(this);
    turn_.start();
    workers_.start([run = run_, work = std::move(work), ended = std::move(ended)] {
        work({run->stop.get_token(), [&run](std::size_t done, std::size_t all) {
                  run->done = int(done);
                  run->all = int(all);
              }});
        finish(run, ended);
    });
}

void ProgramTask::finish(const std::shared_ptr<Run>& run, const std::function<void()>& ended) {
    const std::lock_guard lock(run->mutex);
    if (!run->owner) return;
    QMetaObject::invokeMethod(
        run->owner, [owner = run->owner, run, ended] { owner->ended(run, ended); }, Qt::QueuedConnection);
}

void ProgramTask::stop() {
    turn_.stop();
    const auto run = std::exchange(run_, nullptr);
    if (!run) return;
    run->stop.request_stop();
    const std::lock_guard lock(run->mutex);
    run->owner = nullptr;
}

/// The work may have been stopped since it ended.
void ProgramTask::ended(const std::shared_ptr<Run>& run, const std::function<void()>& ended) {
    if (run != run_) return;
    stop();
    ended();
}

} // namespace workbench
