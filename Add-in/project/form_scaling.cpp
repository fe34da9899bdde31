#include "Add-in/project/form_scaling.h"
#include "Basic/arithmetic.h"

namespace fernwick {

namespace {

void scaleProperty(basic::Suppressed& quietly, const basic::Ref<vbide::Properties>& properties, const char* name,
                   float now, float then) {
    quietly([&] {
        const auto property = properties->Item(name);
        property->Value(basic::Divide(asDouble(property->Value()) * now, basic::Double{then}));
    });
}

void scaleBox(basic::Suppressed& quietly, const basic::Ref<vbide::Properties>& properties, Resolution now,
              Resolution then) {
    scaleProperty(quietly, properties, "Left", now.x, then.x);
    scaleProperty(quietly, properties, "Width", now.x, then.x);
    scaleProperty(quietly, properties, "Top", now.y, then.y);
    scaleProperty(quietly, properties, "Height", now.y, then.y);
}

void scaleForm(basic::Suppressed& quietly, const basic::Ref<vbide::VBComponent>& component, Resolution now,
               Resolution then) {
    basic::Ref<vbide::Properties> form;
    quietly([&] { form = component->Properties(); });
    Variant position;
    const bool remembered = quietly([&] { position = form->Item("StartupPosition")->Value(); });
    scaleBox(quietly, form, now, then);
    if (remembered) quietly([&] { form->Item("StartupPosition")->Value(position); });

    std::vector<basic::Ref<vbide::VBControl>> controls;
    quietly([&] { controls = component->Designer()->VBControls()->items(); });
    for (const auto& control : controls) {
        basic::Ref<vbide::Properties> properties;
        quietly([&] { properties = control->Properties(); });
        scaleBox(quietly, properties, now, then);
    }
}

} // namespace

void ScaleForms(const basic::Ref<vbide::VBProject>& project, Resolution now, Resolution then) {
    basic::Suppressed quietly;
    std::vector<basic::Ref<vbide::VBComponent>> components;
    quietly([&] { components = project->VBComponents()->items(); });
    for (const auto& component : components) {
        bool isForm = false;
        quietly([&] { isForm = component->Type() == vbide::vbext_ct_VBForm; });
        if (isForm) scaleForm(quietly, component, now, then);
    }
}

} // namespace fernwick
