#include "Apps/fernwick/options/exit_status.h"
#include "Apps/fernwick/output/json_output.h"
#include "Apps/fernwick/run/project_run.h"
#include "Apps/fernwick/stored/new_project.h"
#include "Apps/fernwick/verbs/verbs.h"
#include <fmt/format.h>

namespace cli {

namespace {

/// Nothing was written yet.
void requireProjectWithDevice(Session& session, const std::string& templateFile) {
    if (session.addIn().devices.GetNumDesignTargets() == 0)
        throw Refusal(kMachineTrouble, "no usable design target is installed; see fernwick targets");
    if (session.settings() && !session.settings()->IsQuinloftProject())
        throw Refusal(kWrongUse, templateFile + ": is not a template of Fernwick projects");
    if (!session.settings() || session.settings()->TargetDevice().empty())
        throw Refusal(kWrongUse, "choose the device of the project with --device KEY (see fernwick targets)");
}

/// The template may have another device, and no form.
void fit(Session& session, const std::string& device) {
    auto& project = *session.settings();
    if (!device.empty() && project.TargetDevice() != device) {
        session.assignDevice(device);
        project.SetupProjectToolbar();
        project.SetupProjectReferences();
    }
    const auto components = session.project()->VBComponents();
    if (components->Count() > 0) return;
    const auto form = components->Add(vbide::vbext_ct_VBForm);
    components->StartUpObject({false, form});
}

void print(Session& session, const Options& options, Console& console, const std::vector<std::string>& files) {
    if (options.format == Format::Text) return console.out(session.project()->FileName() + "\n");
    auto json = jsonResult("new");
    json["project"] = session.project()->FileName();
    json["device"] = session.settings()->TargetDevice();
    json["files"] = files;
    console.out(dumpJson(json));
}

} // namespace

int runNew(const Options& options, Console& console) {
    const auto place = newProjectPlace(options.project);
    Session session{options, console};
    const auto templateFile = newProjectTemplate(session, options.templateName);
    const auto device = options.device.empty() ? std::string() : usableDevice(session, options.device);
    session.user().context().device = device;
    session.addFromTemplate(templateFile);
    requireProjectWithDevice(session, templateFile);
    fit(session, device);
    const auto files = saveNewProject(session, place);
    session.addIn().recent.AddProjectToRecentList(session.settings());
    print(session, options, console, files);
    if (!session.closeAndSave()) throw Refusal(kProjectErrors, place.projectFile + " cannot be saved");
    return kGood;
}

} // namespace cli
