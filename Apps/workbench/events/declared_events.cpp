#include "Apps/workbench/events/declared_events.h"
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

/// The text between the parentheses of a declaration, which may have a line for each parameter.
std::string parametersOf(vbide::CodeModule& module, int line) {
    std::string declaration;
    for (; line <= module.CountOfLines(); ++line) {
        declaration += module.Lines(line, 1);
        const auto last = declaration.find_last_not_of(" \t");
        if (last == std::string::npos || declaration[last] != '_') break;
        declaration.erase(last);
    }
    const auto open = declaration.find('('), close = declaration.rfind(')');
    if (open == std::string::npos || close == std::string::npos || close < open) return "";
    auto parameters = declaration.substr(open + 1, close - open - 1);
    const auto blanks = [](char a, char b) { return a == ' ' && b == ' '; };
    parameters.erase(std::unique(parameters.begin(), parameters.end(), blanks), parameters.end());
    return parameters;
}

std::vector<host::ClassEvent> eventsOfControl(vbide::VBComponent& control) {
    auto events = kOfContainer;
    const auto module = control.CodeModule();
    for (const auto& member : module->Members())
        if (member.type == vbide::Member::Event)
            events.push_back({member.Name, parametersOf(*module, member.CodeLocation)});
    std::sort(events.begin(), events.end(), [](const auto& a, const auto& b) { return a.name < b.name; });
    return events;
}

} // namespace

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
