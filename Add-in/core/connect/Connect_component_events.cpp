// Components are added to a project, selected and activated.
#include "Add-in/core/connect/Connect.h"
#include "Add-in/core/connect/connect_texts.h"
#include "Add-in/core/connect/default_names.h"
#include <algorithm>

namespace fernwick {

namespace {

bool holds(const vbide::VBComponents& components, const basic::Ref<vbide::VBComponent>& component) {
    const auto all = components.items();
    return std::find(all.begin(), all.end(), component) != all.end();
}

} // namespace

/// Returns Nothing for a project of another kind or one that is not listed.
Connect::QLProject Connect::activeFernwickProject(Procedure& here) {
    const auto active = here.value([&] { return services_.addIn.gVBInstance->ActiveVBProject(); });
    const auto project = services_.projects.FindQLProject(active);
    return project && project->IsQuinloftProject() ? project : nullptr;
}

void Connect::CompsEventsHandler_ItemAdded(Component VBComponent) {
    Procedure here{services_.errors, "Connect.CompsEventsHandler_ItemAdded"};
    here([&] { services_.loop.DoEvents(); });
    const auto project = activeFernwickProject(here);
    if (!project) return;
    // removed, or of a project that was left, in the meantime
    if (!here.value([&] { return holds(*project->VBProject()->VBComponents(), VBComponent); })) return;

    vbide::vbext_ComponentType type{};
    if (!here([&] { type = VBComponent->Type(); })) return;

    switch (type) {
    case vbide::vbext_ct_VBForm:
        if (!replaceByTemplate(here, project, VBComponent, IsDefaultFormName, &clsQLProject::FormTemplate))
            fitForm(here, project, VBComponent);
        break;
    case vbide::vbext_ct_StdModule:
        if (!replaceByTemplate(here, project, VBComponent, IsDefaultModuleName, &clsQLProject::ModuleTemplate))
            ComponentAddGuard = false;
        break;
    case vbide::vbext_ct_ClassModule:
        if (!replaceByTemplate(here, project, VBComponent, IsDefaultClassName, &clsQLProject::ClassModuleTemplate))
            ComponentAddGuard = false;
        break;
    default: refuseType(here, project, VBComponent);
    }
}

/// Only a blank component with the host's default name is replaced. The guard is set during the template's own event,
/// which clears it; a template that cannot be added has none. The blank component is removed after this event.
bool Connect::replaceByTemplate(Procedure& here, const QLProject& project, const Component& VBComponent,
                                NameTest isDefault, TemplateOf path) {
    const auto file = here.value([&] { return VBComponent->FileNames(1); });
    const auto isBlank = [&] { return isDefault(*VBComponent) && !ComponentAddGuard && file.empty(); };
    if (!here.test(isBlank)) return false;
    project->InitDesignTarget();
    const std::string templateFile = (*project.*path)();
    if (templateFile.empty()) return false;
    ComponentAddGuard = true;
    if (!here([&] { project->VBProject()->VBComponents()->AddFile(templateFile); })) ComponentAddGuard = false;
    services_.removal.RemoveComponent(project->VBProject(), VBComponent);
    return true;
}

/// A new form gets the device's size and font; a form from a template, during whose event the guard is set, keeps its
/// own.
void Connect::fitForm(Procedure& here, const QLProject& project, const Component& VBComponent) {
    if (here.test([&] { return VBComponent->FileNames(1).empty() && !ComponentAddGuard; }))
        project->SetupDefaultForm(VBComponent);
    if (here.test([&] { return VBComponent->HasOpenDesigner(); })) here([&] { watchDesigner(VBComponent); });
    services_.messages.ClearProjectCompileErrors(project->VBProject());
    ComponentAddGuard = false;
}

void Connect::refuseType(Procedure& here, const QLProject& project, const Component& VBComponent) {
    const auto text =
        connect_texts::kTypeNotSupportedBefore + project->TargetDevice() + connect_texts::kTypeNotSupportedAfter;
    here([&] { box(text.c_str(), vbExclamation); });
    here([&] { VBComponent->VBE()->ActiveVBProject()->VBComponents()->Remove(VBComponent); });
}

bool Connect::isFormOfOurs(Procedure& here, const Component& VBComponent) {
    return activeFernwickProject(here) && here.test([&] { return VBComponent->Type() == vbide::vbext_ct_VBForm; });
}

/// A form may be selected before the host has created its designer; that is error 5.
void Connect::CompsEventsHandler_ItemSelected(Component VBComponent) {
    Procedure here{services_.errors, "Connect.CompsEventsHandler_ItemSelected"};
    if (!isFormOfOurs(here, VBComponent)) return;
    if (here.test([&] { return VBComponent->HasOpenDesigner(); }))
        here([&] {
            try {
                watchDesigner(VBComponent);
            } catch (const basic::RuntimeError& error) {
                if (error.Number != basic::kInvalidProcedureCall) throw;
            }
        });
    SelectedForm = VBComponent;
    services_.zoom.SetZoomForm(VBComponent);
}

void Connect::CompsEventsHandler_ItemActivated(Component VBComponent) {
    Procedure here{services_.errors, "Connect.CompsEventsHandler_ItemActivated"};
    if (!isFormOfOurs(here, VBComponent)) return;
    if (here.test([&] { return VBComponent->HasOpenDesigner(); })) here([&] { watchDesigner(VBComponent); });
    services_.zoom.SetZoomForm(VBComponent);
}

/// Only looks the project up, which reports an unlisted one.
void Connect::RefEventsHandler_ItemAdded() {
    Procedure here{services_.errors, "Connect.RefEventsHandler_ItemAdded"};
    here([&] { activeProject(); });
}

} // namespace fernwick
