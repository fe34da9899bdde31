#include "Apps/workbench/migration/migration_run.h"
#include "Basic/runtime_error.h"

namespace workbench {

namespace {

/// Thrown through the search to end it.
struct Stopped {};

} // namespace

void MigrationRun::start(apps::CheckedProject project, apps::MigrationDevice device, std::string installation) {
    stop();
    thread_ = std::jthread([this, number = number_, project = std::move(project), device = std::move(device),
                            installation = std::move(installation)](const std::stop_token& stop) {
        run(stop, number, project, device, installation);
    });
}

void MigrationRun::stop() {
    ++number_;
    thread_ = {}; // asks it to stop, and waits for the end of the check
}

void MigrationRun::run(const std::stop_token& stop, int number, const apps::CheckedProject& project,
                       const apps::MigrationDevice& device, const std::string& installation) {
    const auto progress = [&](std::size_t done, std::size_t all) {
        if (stop.stop_requested()) throw Stopped{};
        post(number, [this, done, all] { events_.progress(int(done), int(all)); });
    };
    try {
        apps::DescribedLibraries libraries{installation};
        auto found = apps::migrationOf(project, device, libraries, progress);
        post(number, [this, found = std::move(found)] { events_.found(found); });
    } catch (const Stopped&) {
    } catch (const basic::RuntimeError& e) {
        post(number, [this, why = e.Description] { events_.failed(why); });
    } catch (const std::exception& e) {
        post(number, [this, why = std::string(e.what())] { events_.failed(why); });
    }
}

void MigrationRun::post(int number, std::function<void()> act) {
    QMetaObject::invokeMethod(
        this,
        [this, number, act = std::move(act)] {
            if (number == number_) act();
        },
        Qt::QueuedConnection);
}

} // namespace workbench
