#pragma once
// The search for what hinders a project on a device, in a thread of its own.
#include "Apps/common/migration.h"
#include <QObject>
#include <functional>
#include <thread>

namespace workbench {

class MigrationRun final : public QObject {
public:
    struct Events {
        std::function<void(int done, int all)> progress;
        std::function<void(const apps::Migration&)> found;
        std::function<void(const std::string& why)> failed;
    };
    explicit MigrationRun(Events events) : events_(std::move(events)) {}
    ~MigrationRun() override { stop(); }

    /// Stops the search before.
    void start(apps::CheckedProject project, apps::MigrationDevice device, std::string installation);
    /// After this no event is raised.
    void stop();

private:
    void run(const std::stop_token& stop, int number, const apps::CheckedProject& project,
             const apps::MigrationDevice& device, const std::string& installation);
    /// Calls `act` in the thread of this object unless the search was stopped.
    void post(int number, std::function<void()> act);

    Events events_;
    int number_ = 0; // of the current search
    std::jthread thread_;
};

} // namespace workbench
