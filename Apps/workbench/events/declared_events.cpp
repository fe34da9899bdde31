#include "Apps/workbench/events/declared_events.h"
#include "Apps/workbench/events/declaration_text.h"
#include "Basic/case_folding.h"
#include "Basic/runtime_error.h"
#include <algorithm>

namespace workbench {

namespace {

/// What a form adds to each control.
const std::vector<host::ClassEvent> kOfContainer{
    {"DragDrop", "Source As Control, X As Single, Y As Single"},
    {"DragOver", "Source As Control, X As Single, Y As Single, State As Integer"},
    {"GotFocus", ""},
    {"LostFocus", ""},
    {"Validate", "Cancel As Boolean"}};

std::vector<host::ClassEvent> eventsOfControl(vbide::VBComponent& control) {
    auto events = kOfContainer;
    const auto own = eventsDeclaredIn(control);
    events.insert(events.end(), own.begin(), own.end());
    std::sort(events.begin(), events.end(), [](const auto& a, const auto& b) { return a.name < b.name; });
    return events;
}

} // namespace

std::vector<host::ClassEvent> eventsDeclaredIn(vbide::VBComponent& component) {
    std::vector<host::ClassEvent> events;
    const auto module = component.CodeModule();
    for (const auto& member : module->Members())
        if (member.type == vbide::Member::Event)
            events.push_back({member.Name, headOf(statementAt(*module, member.CodeLocation), member.Name).parameters});
    std::sort(events.begin(), events.end(), [](const auto& a, const auto& b) { return a.name < b.name; });
    return events;
}

std::vector<host::ClassEvent> declaredEvents(vbide::VBComponent& component, const std::string& className) {
    std::vector<host::ClassEvent> events;
    const auto name = className.substr(className.find('.') + 1);
    (void)basic::attempt([&] { // fails for a removed component
        for (const auto& other : component.Collection()->items())
            if (other->Type() == vbide::vbext_ct_UserControl && basic::equalNoCase(other->Name(), name))
                events = eventsOfControl(*other);
    });
    return events;
}

} // namespace workbench
