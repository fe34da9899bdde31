#include "Apps/fernwick/devices/device_runs.h"
#include "Apps/fernwick/options/exit_status.h"
#include "Apps/fernwick/run/project_run.h"
#include "Basic/printable.h"
#include <algorithm>
#include <fmt/format.h>

namespace cli {

namespace {

/// The first error in one line, else the first critical box.
std::string reasonOf(const DeviceOutcome& outcome) {
    std::string reason = "the transfer did not finish";
    const auto error = std::ranges::find(outcome.messages, true, &Message::isError);
    const auto box = std::ranges::find(outcome.boxes, true, &ShownBox::critical);
    if (box != outcome.boxes.end()) reason = box->text;
    if (error != outcome.messages.end()) reason = error->text;
    return reason.substr(0, reason.find_first_of("\r\n"));
}

bool isSuccess(fernwick::RunStatus status) {
    return status == fernwick::RunStatus::Succeeded || status == fernwick::RunStatus::SucceededWithWarnings;
}

/// The status line is that of the compile if the transfer left none, and of neither while messages stay stored.
void completeStatus(DeviceOutcome& outcome, bool isRunning) {
    if (isRunning) outcome.statusText.clear();
    if (outcome.good || (!outcome.statusText.empty() && !outcome.statusIsSuccess)) return;
    outcome.statusText = "FAILED - The transfer did not finish.";
    outcome.statusIsSuccess = false;
}

DeviceOutcome serveOne(Session& session, const std::string& device, const ServeDevice& serve) {
    DeviceOutcome outcome;
    outcome.device = device;
    auto& transfer = session.machine().transfers();
    transfer = {};
    const auto boxesBefore = session.user().shown().size();
    outcome.messages = serve(device);
    if (session.project()) {
        outcome.statusText = statusText(session);
        outcome.statusIsSuccess = isSuccess(runStatus(session));
    }
    const auto& boxes = session.user().shown();
    outcome.boxes.assign(boxes.begin() + std::ptrdiff_t(boxesBefore), boxes.end());
    const auto isError = [](const Message& message) { return message.isError; };
    const auto isCritical = [](const ShownBox& box) { return box.critical; };
    outcome.good = transfer.succeeded && std::none_of(outcome.messages.begin(), outcome.messages.end(), isError) &&
                   std::none_of(outcome.boxes.begin(), outcome.boxes.end(), isCritical);
    if (outcome.good) {
        outcome.places = transfer.installed;
        if (!transfer.package.empty()) outcome.places.push_back(transfer.package);
    } else {
        outcome.reason = reasonOf(outcome);
    }
    completeStatus(outcome, runStatus(session) == fernwick::RunStatus::Running);
    return outcome;
}

void printPlaces(const DeviceOutcome& outcome, const std::string& done, Console& console) {
    console.out(fmt::format("{}: {}\n", outcome.device, done));
    for (const auto& place : outcome.places) console.out(fmt::format("  {}\n", basic::printable(place)));
}

/// The data of --quiet.
void printPlacesOnly(const Report& report, Console& console) {
    for (const auto& outcome : report.devices)
        for (const auto& place : outcome.places) console.out(place + "\n");
}

void printFailures(const Report& report, Console& console) {
    for (const auto& outcome : report.devices)
        if (!outcome.good) console.err(fmt::format("fernwick: {}: {}", outcome.device, outcome.reason), Tone::Error);
}

void printTable(const Report& report, const std::string& done, Console& console) {
    std::size_t width = 0;
    for (const auto& outcome : report.devices) width = std::max(width, outcome.device.size());
    for (const auto& outcome : report.devices)
        console.out(
            fmt::format("{:<{}}  {}\n", outcome.device, width, outcome.good ? done : "failed: " + outcome.reason));
}

} // namespace

std::vector<std::string> devicesToServe(Session& session, const Options& options, const std::string& own) {
    if (options.myDevices) {
        const auto& devices = session.addIn().prefs.gMyDevices;
        if (devices.empty()) throw Refusal(kWrongUse, "My Devices is empty; add devices with fernwick devices add KEY");
        return devices;
    }
    const auto& device = options.device.empty() ? own : options.device;
    if (device.empty())
        throw Refusal(kWrongUse, "no device given; choose one with --device KEY (see fernwick targets), or all of My "
                                 "Devices with --my-devices");
    return {usableDevice(session, device)};
}

std::vector<DeviceOutcome> serveDevices(Session& session, const std::vector<std::string>& devices, Console& console,
                                        const ServeDevice& serve) {
    std::vector<DeviceOutcome> outcomes;
    for (const auto& device : devices) {
        if (devices.size() > 1) console.note(fmt::format("== {}", device));
        outcomes.push_back(serveOne(session, device, serve));
    }
    return outcomes;
}

int statusOf(const std::vector<DeviceOutcome>& outcomes, bool list) {
    const auto failed = std::count_if(outcomes.begin(), outcomes.end(), [](const auto& each) { return !each.good; });
    if (failed == 0) return kGood;
    if (!list) return kProjectErrors;
    return std::size_t(failed) == outcomes.size() ? kAllDevicesFailed : kSomeDevicesFailed;
}

void printOutcomes(const Report& report, const std::string& done, bool list, const Options& options, Console& console) {
    if (printFormatted(report, options, console)) return;
    for (const auto& outcome : report.devices)
        printMessages(outcome.messages, report.project.empty() ? outcome.device : report.project, console);
    const bool quiet = options.verbosity == Verbosity::Quiet;
    if (quiet) printPlacesOnly(report, console);
    if (quiet && list) return printFailures(report, console);
    if (list) return printTable(report, done, console);
    const auto& outcome = report.devices.front();
    // a run that ended early still shows the status of the compile
    const bool isOutdated = !outcome.good && outcome.statusIsSuccess;
    if (!quiet && !outcome.statusText.empty() && !isOutdated) console.out(outcome.statusText + "\n");
    if (!quiet && outcome.good) printPlaces(outcome, done, console);
    printFailures(report, console);
}

} // namespace cli
