#include "Apps/workbench/events/event_handler.h"
#include "Basic/case_folding.h"
#include <fmt/format.h>

namespace workbench {

namespace {

std::string nameOf(const EventObject& object, const host::ClassEvent& event) { return object.name + "_" + event.name; }

/// The first line (from 1) of its body; 0 if there is none.
int handlerOf(const vbide::CodeModule& module, const EventObject& object, const host::ClassEvent& event) {
    const auto name = nameOf(object, event);
    for (const auto& member : module.Members())
        if (member.type == vbide::Member::Method && basic::equalNoCase(member.Name, name))
            return member.CodeLocation + 1;
    return 0;
}

/// Adds the handler after all other code, with a blank line before it. Returns the first line of its body.
int addHandler(vbide::CodeModule& module, const EventObject& object, const host::ClassEvent& event) {
    const int last = module.CountOfLines();
    const bool apart = last > 0 && module.Lines(last, 1).find_first_not_of(" \t") != std::string::npos;
    module.InsertLines(last + 1, fmt::format("{}Private Sub {}({})\r\n\r\nEnd Sub\r\n", apart ? "\r\n" : "",
                                             nameOf(object, event), event.parameters));
    return last + (apart ? 3 : 2);
}

} // namespace

void openHandler(vbide::VBComponent& component, const EventObject& object, const host::ClassEvent& event) {
    const auto module = component.CodeModule();
    const auto pane = module->CodePane();
    int body = handlerOf(*module, object, event);
    if (body == 0) body = addHandler(*module, object, event);
    pane->Show();
    pane->SetSelection(body, 1, body, 1);
}

void openHandler(vbide::VBComponent& component, const vbide::Ref<vbide::VBControl>& control) {
    const auto object = eventObjectOf(component, control);
    const auto event = defaultEventOf(component, object);
    if (event.name.empty()) return component.CodeModule()->CodePane()->Show();
    openHandler(component, object, event);
}

} // namespace workbench
