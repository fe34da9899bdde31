#include "Apps/fernwick/stored/project_adoption.h"
#include "Add-in/lifecycle/device_references.h"
#include "Add-in/project/stored/project_format.h"
#include "Add-in/project/stored/project_store.h"
#include "Apps/common/source_code_page.h"
#include "Apps/fernwick/stored/source_check.h"
#include "Apps/fernwick/stored/stored_messages.h"
#include "Host/model/project.h"
#include <algorithm>
#include <set>

namespace cli {

namespace {

using Lines = std::vector<std::string>;

Lines linesOf(const std::string& text) {
    Lines lines;
    for (std::size_t begin = 0; begin < text.size();) {
        const auto end = std::min(text.find('\n', begin), text.size());
        auto line = text.substr(begin, end - begin);
        if (line.ends_with('\r')) line.pop_back();
        if (!line.empty()) lines.push_back(std::move(line));
        begin = end + 1;
    }
    return lines;
}

/// The lines of `some` that `others` has not, each as often as it is missing.
Lines without(const Lines& some, const Lines& others) {
    std::multiset<std::string> known(others.begin(), others.end());
    Lines left;
    for (const auto& line : some)
        if (const auto found = known.find(line); found != known.end())
            known.erase(found);
        else
            left.push_back(line);
    return left;
}

void becomeFernwickProject(Session& session, const std::string& device) {
    const auto project = session.project();
    project->WriteProperty(fernwick::kGlobalSection, "IsQuinloftProject", "True");
    project->WriteProperty(fernwick::kGlobalSection, "ProjectVersion", fernwick::kProjectFormat);
    session.takeUp();
    fernwick::clsDeviceConfig config{session.addIn().deviceServices};
    config.ReadDeviceConfig(device);
    session.settings()->SetProjectForDeviceConfig(config);
    session.settings()->SetupProjectToolbar();
    session.settings()->SetupProjectReferences();
    session.forget();
}

bool hasControl(const fernwick::Array<fernwick::ValidTavlet>& tavlets, const std::string& className) {
    return std::any_of(tavlets.begin(), tavlets.end(), [&](const fernwick::ValidTavlet& tavlet) {
        return !tavlet.progID.empty() && basic::equalNoCase(tavlet.VBProgID, className);
    });
}

void findForeignControls(const vbide::VBComponent& form, const fernwick::Array<fernwick::ValidTavlet>& tavlets,
                         const basic::Ref<vbide::VBForm>& designer, Adoption& found) {
    for (const auto& control : designer->VBControls()->items())
        if (const auto className = control->ProgId(); !hasControl(tavlets, className))
            found.controls.push_back(
                {form.FileNames(1), fernwick::asText(control->Properties()->Item("Name")->Value()), className});
}

void findForeignParts(Session& session, const std::string& device, Adoption& found) {
    auto& addIn = session.addIn();
    fernwick::Procedure here{addIn.errors, "frmDesignTargetConverter.ScanReferences"};
    for (const auto& reference : ScanReferences(here, addIn.deviceServices, session.project(), device))
        found.references.push_back(reference->Name());
    fernwick::clsDeviceConfig config{addIn.deviceServices};
    config.ReadDeviceConfig(device);
    fernwick::Array<fernwick::ValidTavlet> tavlets;
    config.GetDeviceTavlets(tavlets);
    for (const auto& component : session.project()->VBComponents()->items()) {
        const auto type = component->Type();
        if (type == vbide::vbext_ct_VBForm)
            findForeignControls(*component, tavlets, component->Designer(), found);
        else if (type != vbide::vbext_ct_StdModule && type != vbide::vbext_ct_ClassModule)
            found.components.push_back(component->FileNames(1));
    }
}

/// Events, properties and names of the forms.
void validateForms(Session& session, Adoption& found) {
    session.connect();
    if (!session.isOpen()) return;
    session.addIn().messages.ClearProjectCompileErrors(session.project());
    for (const auto& component : session.project()->VBComponents()->items())
        if (component->Type() == vbide::vbext_ct_VBForm)
            (void)session.addIn().validate.ScanForm(session.settings(), component, true);
    found.messages = messagesOfRun(session);
}

void parseSources(Session& session, Adoption& found) {
    for (const auto& component : session.project()->VBComponents()->items()) {
        const auto path = component->FileNames(1);
        const auto checked = checkSourceFile(path, apps::codePageOfSource(session.host(), path));
        for (const auto& diagnostic : checked.diagnostics) found.messages.push_back(messageOfDiagnostic(diagnostic));
    }
}

} // namespace

Adoption adoptProject(Session& session, const std::string& device) {
    const auto project = basic::cast<host::Project>(session.project());
    Adoption found;
    found.before = project->file().bytes();
    becomeFernwickProject(session, device);
    found.after = project->file().bytes();
    const auto& page = project->file().codePage();
    const auto before = linesOf(page.decode(found.before)), after = linesOf(page.decode(found.after));
    found.added = without(after, before);
    found.replaced = without(before, after);
    findForeignParts(session, device, found);
    validateForms(session, found);
    parseSources(session, found);
    return found;
}

} // namespace cli
