#pragma once
// Work on a whole program in the thread of the snapshots.
#include "Components/QLToolkit/insight/snapshot.h"
#include <QObject>
#include <QThreadPool>
#include <QTimer>
#include <atomic>
#include <memory>
#include <mutex>

namespace workbench {

class ProgramTask final : public QObject {
public:
    /// Runs in the thread. What it reports as progress is passed on.
    using Work = std::function<void(const qltoolkit::Following&)>;

    /// The threads outlive this.
    explicit ProgramTask(QThreadPool& workers);
    ~ProgramTask() override { stop(); }

    /// Stops work that is still running. `ended` is called when this work ends, unless it is stopped. The work may run
    /// longer than this lives.
    void start(Work work, std::function<void()> ended);
    void stop();
    bool isRunning() const { return run_ != nullptr; }
    /// Called now and then while the work runs.
    std::function<void(int done, int all)> progress = [](int, int) {};

private:
    struct Run {
        std::stop_source stop;
        std::atomic<int> done = 0, all = 0;
        std::mutex mutex;
        ProgramTask* owner; ///< null once it is stopped

        explicit Run(ProgramTask* task) : owner(task) {}
    };
    static void finish(const std::shared_ptr<Run>& run, const std::function<void()>& ended);
    void ended(const std::shared_ptr<Run>& run, const std::function<void()>& ended);

    QThreadPool& workers_;
    std::shared_ptr<Run> run_;
    QTimer turn_;
};

} // namespace workbench
