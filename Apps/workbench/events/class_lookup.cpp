#include "Apps/workbench/events/class_lookup.h"
#include "Apps/workbench/events/declared_events.h"
#include "Basic/case_folding.h"
#include "Basic/runtime_error.h"
#include "Components/Language/foreign.h"
#include "Host/model/component.h"
#include "Host/model/forms/control_class.h"
#include "Host/model/host.h"
#include "Host/model/project.h"

namespace workbench {

namespace {

using Events = std::vector<host::ClassEvent>;

/// "" without a qualifier.
std::string qualifierOf(const std::string& className) {
    return className.substr(0, className.find('.') == std::string::npos ? 0 : className.find('.'));
}

std::string plainName(const std::string& className) { return className.substr(className.find('.') + 1); }

Events eventsOfComponent(vbide::VBComponent& component) {
    auto events = eventsDeclaredIn(component);
    if (component.Type() != vbide::vbext_ct_VBForm) return events;
    auto all = host::languageEvents("VB.Form");
    all.insert(all.end(), events.begin(), events.end());
    return all;
}

Events eventsOfDescribed(const host::HostOptions& options, const std::string& className) {
    const auto described = options.controlClasses ? options.controlClasses(className) : nullptr;
    return described ? described->events : Events();
}

/// A class without a qualifier is that of the first library that has it.
Events eventsInLibraries(host::Project& project, const std::string& name) {
    const auto& options = project.host()->options();
    for (const auto& reference : project.References()->items()) {
        auto events = eventsOfDescribed(options, reference->Name() + "Ctl." + name);
        const auto* library = language::foreignLibrary(reference->Guid());
        if (events.empty() && library) events = host::languageEvents(library->name + "." + name);
        if (!events.empty()) return events;
    }
    return {};
}

Events eventsOfLibraryClass(host::Project& project, const std::string& className) {
    const bool isQualified = !qualifierOf(className).empty();
    auto events = host::languageEvents(isQualified ? className : "VB." + className);
    if (events.empty() && isQualified) events = eventsOfDescribed(project.host()->options(), className);
    return events.empty() && !isQualified ? eventsInLibraries(project, className) : events;
}

} // namespace

vbide::Ref<vbide::VBComponent> componentOfClass(vbide::VBComponent& component, const std::string& className) {
    const auto qualifier = qualifierOf(className), name = plainName(className);
    const auto& own = dynamic_cast<host::Component&>(component);
    if (!qualifier.empty() && !basic::equalNoCase(qualifier, own.owner()->Name())) return nullptr;
    for (const auto& other : component.Collection()->items())
        if (other->Type() != vbide::vbext_ct_StdModule && basic::equalNoCase(other->Name(), name)) return other;
    return nullptr;
}

std::vector<host::ClassEvent> eventsOfVariable(vbide::VBComponent& component, const std::string& className) {
    if (const auto own = componentOfClass(component, className)) return eventsOfComponent(*own);
    return eventsOfLibraryClass(*dynamic_cast<host::Component&>(component).owner(), className);
}

} // namespace workbench
