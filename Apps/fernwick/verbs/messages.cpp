#include "Apps/fernwick/options/exit_status.h"
#include "Apps/fernwick/run/project_argument.h"
#include "Apps/fernwick/run/session.h"
#include "Apps/fernwick/stored/stored_messages.h"
#include "Apps/fernwick/verbs/verbs.h"
#include <fmt/format.h>

namespace cli {

namespace {

/// With the component and the line of its code window, as in the messages window.
std::string storedText(const Message& message) {
    std::string place = message.component.empty() ? "-" : message.component;
    if (message.codeLine != 0) place += fmt::format(":{}", message.codeLine);
    return fmt::format("{}: {} {}: {}", place, severityOf(message), message.number, message.text);
}

} // namespace

int runMessages(const Options& options, Console& console) {
    Session session{options, console};
    session.open(projectArgument(options.project));
    Report report;
    report.verb = "messages";
    report.project = session.path();
    report.messages = storedMessages(session);
    session.closeUnsaved();
    printDocument(report, options, console);
    if (options.format == Format::Text) {
        for (const auto& message : report.messages) console.out(storedText(message) + "\n");
        if (report.messages.empty()) console.note("no stored messages");
    }
    return kGood;
}

} // namespace cli
