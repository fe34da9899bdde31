#include "Host/model/event_sources.h"
#include "Host/model/bars/bars.h"
#include "Host/model/component_designer.h"
#include "Host/model/errors/host_errors.h"
#include "Host/model/project.h"

namespace host {
namespace {

/// The host's implementation of an interface. Error 91 for Nothing, 5 for a foreign object.
template <class Own, class Interface>
std::shared_ptr<Own> ownObject(const vbide::Ref<Interface>& object) {
    if (!object) throw hostError(basic::kObjectVariableNotSet);
    const auto own = basic::cast<Own>(object);
    if (!own) throw hostError(basic::kInvalidProcedureCall);
    return own.shared();
}

} // namespace

vbide::Ref<vbide::VBProjectsEvents> EventSources::VBProjectsEvents() { return projects_; }

vbide::Ref<vbide::VBComponentsEvents> EventSources::VBComponentsEvents(const vbide::Ref<vbide::VBProject>& project) {
    return ownObject<Project>(project)->componentsEvents;
}

vbide::Ref<vbide::ReferencesEvents> EventSources::ReferencesEvents(const vbide::Ref<vbide::VBProject>& project) {
    return ownObject<Project>(project)->referencesEvents;
}

vbide::Ref<vbide::VBControlsEvents> EventSources::VBControlsEvents(const vbide::Ref<vbide::VBProject>& project,
                                                                   const vbide::Ref<vbide::VBForm>& form) {
    const auto own = ownObject<Project>(project);
    if (!form) throw hostError(basic::kObjectVariableNotSet);
    for (const auto& component : own->components().list())
        if (component->designer().isDesignerOf(form)) return component->designer().controlsEvents();
    throw hostError(basic::kInvalidProcedureCall);
}

vbide::Ref<vbide::CommandBarEvents>
EventSources::CommandBarEvents(const vbide::Ref<office::CommandBarControl>& control) {
    return ownObject<BarControl>(control)->events();
}

vbide::Ref<vbide::FileControlEvents> EventSources::FileControlEvents(const vbide::Ref<vbide::VBProject>& project) {
    return project ? ownObject<Project>(project)->fileEvents : files_;
}

vbide::Ref<vbide::VBBuildEvents> EventSources::VBBuildEvents() { return build_; }

} // namespace host
