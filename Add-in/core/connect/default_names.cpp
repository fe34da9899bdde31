#include "Add-in/core/connect/default_names.h"
#include "Basic/number_text.h"
#include "Basic/text.h"

namespace fernwick {

namespace {

bool isNumbered(const vbide::VBComponent& component, vbide::vbext_ComponentType type, std::string_view word) {
    if (component.Type() != type) return false;
    const std::string name = basic::LCase(component.Name());
    return name.starts_with(word) && basic::IsNumeric(name.substr(word.size()));
}

} // namespace

bool IsDefaultFormName(const vbide::VBComponent& component) {
    return isNumbered(component, vbide::vbext_ct_VBForm, "form");
}

bool IsDefaultModuleName(const vbide::VBComponent& component) {
    return isNumbered(component, vbide::vbext_ct_StdModule, "module");
}

bool IsDefaultClassName(const vbide::VBComponent& component) {
    return isNumbered(component, vbide::vbext_ct_ClassModule, "class");
}

} // namespace fernwick
