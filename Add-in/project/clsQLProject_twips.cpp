// Forms at another screen resolution than the one that they were laid out at.
#include "Add-in/project/clsQLProject.h"
#include "Add-in/project/project_texts.h"
#include "Basic/arithmetic.h"

namespace fernwick {

namespace {

struct Resolution {
    float x, y;
};

void scaleProperty(basic::Suppressed& quietly, const basic::Ref<vbide::Properties>& properties, const char* name,
                   float now, float then) {
    quietly([&] {
        const auto property = properties->Item(name);
        property->Value(basic::Divide(asDouble(property->Value()) * now, then));
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

void clsQLProject::CheckTwipsMatch() {
    Procedure here{services_.errors, "clsQLProject.CheckTwipsMatch"};
    const auto& screen = services_.platform.screen;
    const Resolution now{here.value([&] { return screen.TwipsPerPixelX(); }),
                         here.value([&] { return screen.TwipsPerPixelY(); })};
    const Resolution then{TwipsPerPixelX(), TwipsPerPixelY()};
    if (then.x != 0) {
        if (now.x == then.x && now.y == then.y) return;
        const auto answer = [&] {
            return services_.platform.interaction.ask(Question::ConvertForms, std::string(texts::kOtherDpi),
                                                      vbYesNo | vbQuestion, std::string(texts::kFernwick));
        };
        if (here.value(answer) != vbYes) return;
        basic::Suppressed quietly;
        std::vector<basic::Ref<vbide::VBComponent>> components;
        quietly([&] { components = project_->VBComponents()->items(); });
        for (const auto& component : components) {
            bool isForm = false;
            quietly([&] { isForm = component->Type() == vbide::vbext_ct_VBForm; });
            if (isForm) scaleForm(quietly, component, now, then);
        }
    }
    TwipsPerPixelX(now.x);
    TwipsPerPixelY(now.y);
}

} // namespace fernwick
