#include "Host/model/forms/form_places.h"
#include "Basic/case_folding.h"
#include "Basic/runtime_error.h"
#include "Host/model/forms/form_controls.h"

namespace host {
namespace {

constexpr std::string_view kOwnLibrary = "VB.";
constexpr std::string_view kOwnScale = "VB.PictureBox";

double numberOfProperty(const vbide::VBControl& control, const char* name) {
    return fernwick::asDouble(control.Properties()->Item(name)->Value());
}

/// The size of a user-defined unit in twips.
double userUnit(double size, double units) { return size > 0 && units > 0 ? size / units : 1; }

} // namespace

FormExtent extentOf(const basic::Ref<vbide::VBForm>& form) {
    const auto model = basic::cast<FormModel>(form);
    return model ? FormGeometry(*model->state()).extent() : FormExtent{};
}

TwipsPerUnit unitsOn(const basic::Ref<vbide::VBForm>& form) {
    const auto model = basic::cast<FormModel>(form);
    return model ? FormGeometry(*model->state()).scale() : TwipsPerUnit{};
}

TwipsPerUnit unitsIn(const basic::Ref<vbide::VBControl>& container, const TwipsPerUnit& around) {
    const auto className = container->ProgId();
    if (!basic::startsWithNoCase(className, kOwnLibrary)) return around;
    if (!basic::equalNoCase(className, kOwnScale)) return {};
    const auto& control = *container;
    const auto mode = int(numberOfProperty(control, "ScaleMode"));
    if (mode != kUserScale) return twipsPerUnit(mode);
    return {userUnit(numberOfProperty(control, "Width") * around.x, numberOfProperty(control, "ScaleWidth")),
            userUnit(numberOfProperty(control, "Height") * around.y, numberOfProperty(control, "ScaleHeight"))};
}

} // namespace host
