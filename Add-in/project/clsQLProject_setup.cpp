// Set-up of the project for a device: settings, toolbox, references and forms.
#include "Add-in/core/core_texts.h"
#include "Add-in/project/clsQLProject.h"
#include "Add-in/project/form_fitting.h"
#include "Add-in/project/form_scaling.h"
#include "Add-in/project/stored/project_texts.h"
#include <fmt/format.h>

namespace fernwick {

namespace {
constexpr const char* kStyleVariable = "TavletStyle-DAF573D9-3AB3-4672-A6A7-6C23862A52E9";
} // namespace

void clsQLProject::SetProjectForDeviceConfig(const clsDeviceConfig& newDeviceConfig) {
    DefaultFormColor(newDeviceConfig.DefaultFormColor);
    defaultFormHeight(newDeviceConfig.defaultFormHeight);
    DefaultFormWidth(newDeviceConfig.DefaultFormWidth);
    TavletStyleID(newDeviceConfig.TavletStyleID);
    DefaultFontName(newDeviceConfig.DefaultFontName);
    DefaultFontSize(newDeviceConfig.DefaultFontSize);
    DefaultFontStyle(newDeviceConfig.DefaultFontStyle);
    SetTemplateForDeviceConfig(newDeviceConfig);
}

void clsQLProject::SetTemplateForDeviceConfig(const clsDeviceConfig& newDeviceConfig) {
    tavletCount_ = newDeviceConfig.GetDeviceTavlets(tavlets_);
    referenceCount_ = newDeviceConfig.GetDeviceReferences(references_);
    TargetDevice(newDeviceConfig.DeviceKey);
}

void clsQLProject::SetupProjectToolbar() {
    using namespace fmt::literals;
    if (tavletCount_ <= 0) return;
    for (const auto& tavlet : tavlets_) {
        if (tavlet.progID.empty()) continue;
        const auto err = basic::attempt([&] { VBProject()->AddToolboxProgID(tavlet.progID); });
        if (err.Number == 0 || err.Number == basic::kInvalidProcedureCall) continue;
        (void)basic::attempt([&] {
            box(fmt::format(texts::kToolboxFailure, "clsid"_a = tavlet.CLSID, "device"_a = TargetDevice(),
                            "description"_a = err.Description),
                vbExclamation);
        });
    }
}

void clsQLProject::SetupProjectReferences() {
    using namespace fmt::literals;
    if (referenceCount_ <= 0) return;
    for (const auto& reference : references_) {
        if (reference.GUID.empty() || reference.Value != 1) continue;
        const auto err = basic::attempt([&] { VBProject()->References()->AddFromGuid(reference.GUID, 1, 0); });
        if (err.Number == 0) continue;
        (void)basic::attempt([&] {
            box(fmt::format(texts::kReferenceFailure, "guid"_a = reference.GUID, "device"_a = TargetDevice(),
                            "description"_a = err.Description),
                vbExclamation);
        });
    }
}

void clsQLProject::PublishTavletStyle() {
    Procedure here{services_.errors, "clsQLProject.PublishTavletStyle"};
    here([&] {
        services_.platform.environment.SetEnvironmentVariable(kStyleVariable, std::to_string(TavletStyleID()));
    });
}

void clsQLProject::SetupDefaultForm(const basic::Ref<vbide::VBComponent>& MyForm) {
    Procedure here{services_.errors, store().withProjectName("clsDeviceConfig.SetupDefaultForm")};
    FormFitting{*this, services_.platform.screen}.apply(here, MyForm);
}

bool clsQLProject::ValidFormSize(const basic::Ref<vbide::VBComponent>& MyForm) {
    Procedure here{services_.errors, store().withProjectName("clsDeviceConfig.ValidFormSize")};
    return FormFitting{*this, services_.platform.screen}.hasValidSize(here, MyForm);
}

void clsQLProject::CheckTwipsMatch() {
    Procedure here{services_.errors, "clsQLProject.CheckTwipsMatch"};
    const auto& screen = services_.platform.screen;
    const Resolution now{here.value([&] { return screen.TwipsPerPixelX(); }),
                         here.value([&] { return screen.TwipsPerPixelY(); })};
    const Resolution then{TwipsPerPixelX(), TwipsPerPixelY()};
    if (then.x != 0) {
        if (now == then) return;
        const auto answer = [&] {
            return services_.platform.interaction.ask(Question::ConvertForms, std::string(texts::kOtherDpi),
                                                      vbYesNo | vbQuestion, std::string(texts::kFernwick));
        };
        if (here.value(answer) != vbYes) return;
        ScaleForms(VBProject(), now, then);
    }
    TwipsPerPixelX(now.x);
    TwipsPerPixelY(now.y);
}

} // namespace fernwick
