#include "Apps/workbench/events/object_events.h"
#include "Apps/workbench/events/class_lookup.h"
#include "Apps/workbench/events/declared_events.h"
#include "Apps/workbench/events/interface_members.h"
#include "Basic/case_folding.h"
#include "Basic/runtime_error.h"
#include "Host/model/forms/control_edits.h"
#include "Host/model/module_code.h"
#include <algorithm>

namespace workbench {

namespace {

struct OwnObject {
    vbide::vbext_ComponentType type;
    const char *name, *className;
};
constexpr OwnObject kOwnObjects[] = {
    {vbide::vbext_ct_VBForm, "Form", "VB.Form"},
    {vbide::vbext_ct_VBMDIForm, "MDIForm", "VB.MDIForm"},
    {vbide::vbext_ct_ClassModule, "Class", "VB.Class"},
    {vbide::vbext_ct_PropPage, "PropertyPage", "VB.PropertyPage"},
    {vbide::vbext_ct_UserControl, "UserControl", "VB.UserControl"},
    {vbide::vbext_ct_DocObject, "UserDocument", "VB.UserDocument"},
};

EventObject objectOfControl(const vbide::Ref<vbide::VBControl>& control) {
    const auto properties = control->Properties();
    return {fernwick::asText(properties->Item("Name")->Value()), control->ProgId(), control,
            fernwick::asLong(properties->Item("Index")->Value()) >= 0, EventSource::Control};
}

void addDeclared(vbide::VBComponent& component, std::vector<EventObject>& objects) {
    if (component.Type() == vbide::vbext_ct_StdModule) return;
    const auto module = basic::cast<host::ModuleCode>(component.CodeModule());
    for (const auto& [name, className, isInterface] : module->outline().sources)
        objects.push_back(
            {name, className, nullptr, false, isInterface ? EventSource::Interface : EventSource::Variable});
}

std::vector<host::ClassEvent> eventsOfSource(vbide::VBComponent& component, const EventObject& object) {
    switch (object.source) {
    case EventSource::Control: return host::eventsOf(component.Designer(), object.control);
    case EventSource::Variable: return eventsOfVariable(component, object.className);
    case EventSource::Interface: {
        const auto implemented = componentOfClass(component, object.className);
        return implemented ? interfaceMembers(*implemented) : std::vector<host::ClassEvent>();
    }
    case EventSource::Component: break;
    }
    return host::languageEvents(object.className);
}

} // namespace

EventObject eventObjectOf(const vbide::VBComponent& component, const vbide::Ref<vbide::VBControl>& control) {
    if (control) return objectOfControl(control);
    for (const auto& own : kOwnObjects)
        if (own.type == component.Type()) return {own.name, own.className, nullptr};
    return {};
}

std::vector<EventObject> eventObjects(vbide::VBComponent& component) {
    std::vector<EventObject> objects;
    if (auto own = eventObjectOf(component, nullptr); !own.name.empty()) objects.push_back(std::move(own));
    (void)basic::attempt([&] { // fails for a file without the description of a form
        if (const auto designer = component.Designer())
            for (const auto& control : designer->VBControls()->items()) objects.push_back(objectOfControl(control));
    });
    addDeclared(component, objects);
    const auto key = [](const EventObject& object) { return basic::foldCase(object.name); };
    std::ranges::stable_sort(objects, {}, key);
    const auto repeated = std::ranges::unique(objects, {}, key);
    objects.erase(repeated.begin(), repeated.end());
    return objects;
}

std::vector<host::ClassEvent> eventsOf(vbide::VBComponent& component, const EventObject& object) {
    auto events = eventsOfSource(component, object);
    if (object.control && events.empty()) events = declaredEvents(component, object.className);
    if (object.isArray)
        for (auto& event : events)
            event.parameters.insert(0, event.parameters.empty() ? "Index As Integer" : "Index As Integer, ");
    return events;
}

host::ClassEvent defaultEventOf(vbide::VBComponent& component, const EventObject& object) {
    const auto events = eventsOf(component, object);
    const auto name = host::defaultEventOf(object.className);
    for (const auto& event : events)
        if (basic::equalNoCase(event.name, name)) return event;
    return events.empty() || !name.empty() ? host::ClassEvent{} : events.front();
}

} // namespace workbench
