#include "Apps/fernwick/groups/group_run.h"
#include "Apps/fernwick/options/exit_status.h"
#include "Apps/fernwick/output/plural.h"
#include "Apps/fernwick/run/project_run.h"
#include "Apps/fernwick/stored/stored_messages.h"
#include "Apps/fernwick/verbs/verbs.h"
#include <algorithm>

namespace cli {

namespace {

/// Checks the names, properties, events and controls of each form, which ValidateProject does not.
bool scanForms(Session& session) {
    bool good = true;
    for (const auto& component : session.project()->VBComponents()->items())
        if (component->Type() == vbide::vbext_ct_VBForm)
            good = session.addIn().validate.ScanForm(session.settings(), component, true) && good;
    return good;
}

std::string closingLine(const Report& report) {
    if (report.exitStatus != kGood && report.messages.empty()) return "FAILED - The project was not validated.";
    const auto errors = std::size_t(std::count_if(report.messages.begin(), report.messages.end(),
                                                  [](const Message& message) { return message.isError; }));
    return fmt::format("Validated for {}: {}, {}.", report.device, plural(errors, "error"),
                       plural(report.messages.size() - errors, "warning"));
}

Report validateProject(const Options& options, Console& console) {
    Session session{options, console};
    openProject(session, options);
    beginWork(session, options);

    Report report;
    report.verb = options.verb;
    report.project = session.path();
    report.device = deviceOfRun(session, options);
    // as before a deployment, so that messages do not accumulate
    session.addIn().messages.ClearProjectCompileErrors(session.project());
    bool good = session.addIn().validate.ValidateProject(session.project(), report.device);
    if (options.forms) good = scanForms(session) && good;
    report.messages = messagesOfRun(session);
    report.exitStatus = good ? kGood : kProjectErrors;
    report.statusText = closingLine(report);
    endWork(session, report, options);
    return report;
}

} // namespace

int runValidate(const Options& options, Console& console) {
    const Report report = runProjects(options, console, validateProject);
    printProjects(report, options, console, printReport);
    return report.exitStatus;
}

} // namespace cli
