#include "Apps/workbench/base/component_icons.h"
#include "Apps/workbench/base/drawn_icons.h"
#include <array>

namespace workbench {

namespace {

struct ComponentIcon {
    vbide::vbext_ComponentType type;
    std::string_view name;
};
constexpr std::array kComponentIcons{
    ComponentIcon{vbide::vbext_ct_VBForm, "Form"},
    ComponentIcon{vbide::vbext_ct_VBMDIForm, "MDIForm"},
    ComponentIcon{vbide::vbext_ct_StdModule, "Module"},
    ComponentIcon{vbide::vbext_ct_ClassModule, "Class"},
    ComponentIcon{vbide::vbext_ct_UserControl, "UserControl"},
    ComponentIcon{vbide::vbext_ct_PropPage, "PropertyPage"},
    ComponentIcon{vbide::vbext_ct_DocObject, "UserDocument"},
    ComponentIcon{vbide::vbext_ct_ActiveXDesigner, "Designer"},
};

} // namespace

QIcon componentIcon(vbide::vbext_ComponentType type) {
    for (const auto& icon : kComponentIcons)
        if (icon.type == type) return drawnIcon(icon.name);
    return drawnIcon("New");
}

} // namespace workbench
