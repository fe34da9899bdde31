#include "Apps/workbench/events/event_handler.h"
#include "Basic/case_folding.h"
#include "Host/model/module_code.h"
#include <fmt/format.h>

namespace workbench {

namespace {

std::string nameOf(const EventObject& object, const host::ClassEvent& event) { return object.name + "_" + event.name; }

vbide::vbext_ProcKind kindOf(const host::ClassEvent& event) {
    if (event.procedure == "Property Get") return vbide::vbext_pk_Get;
    if (event.procedure == "Property Let") return vbide::vbext_pk_Let;
    return event.procedure == "Property Set" ? vbide::vbext_pk_Set : vbide::vbext_pk_Proc;
}

/// Adds the handler after all other code, with a blank line before it. Returns the first line of its body.
int addHandler(vbide::CodeModule& module, const EventObject& object, const host::ClassEvent& event) {
    const int last = module.CountOfLines();
    const bool apart = last > 0 && module.Lines(last, 1).find_first_not_of(" \t") != std::string::npos;
    const auto end = event.procedure.substr(0, event.procedure.find(' '));
    module.InsertLines(last + 1,
                       fmt::format("{}Private {} {}({}){}\r\n\r\nEnd {}\r\n", apart ? "\r\n" : "", event.procedure,
                                   nameOf(object, event), event.parameters, event.result, end));
    return last + (apart ? 3 : 2);
}

} // namespace

int handlerLine(const vbide::CodeModule& module, const EventObject& object, const host::ClassEvent& event) {
    const auto name = nameOf(object, event);
    for (const auto& procedure : dynamic_cast<const host::ModuleCode&>(module).outline().procedures)
        if (procedure.kind == kindOf(event) && basic::equalNoCase(procedure.name, name)) return procedure.body;
    return 0;
}

void openHandler(vbide::VBComponent& component, const EventObject& object, const host::ClassEvent& event) {
    const auto module = component.CodeModule();
    const auto pane = module->CodePane();
    const int head = handlerLine(*module, object, event);
    const int body = head > 0 ? head + 1 : addHandler(*module, object, event);
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
