// Whether devices support a form's properties, controls and events.
#include "Add-in/build/control_events.h"
#include "Add-in/build/frmValidate.h"
#include "Add-in/build/messages/build_texts.h"
#include "Add-in/build/messages/message_numbers.h"
#include "Add-in/build/reserved_words.h"
#include "Basic/text.h"
#include <fmt/format.h>
#include <map>

namespace fernwick {

using namespace fmt::literals;

namespace {

constexpr std::int32_t kPixels = 3;

std::int32_t numberIn(const basic::Ref<vbide::VBComponent>& form, const char* property) {
    return asLong(form->Properties()->Item(property)->Value());
}

bool hasPicture(const basic::Ref<vbide::VBComponent>& form) {
    return asLong(form->Properties()->Item("Picture")->ObjectValue()->Item("Handle")->Value()) != 0;
}

std::string nameOf(const basic::Ref<vbide::VBControl>& control) {
    return asText(control->Properties()->Item("Name")->Value());
}

/// What to use instead of a form's event; "" for nothing.
std::string_view insteadOf(const std::string& eventInCapitals) {
    static constexpr std::pair<std::string_view, std::string_view> kInstead[] = {
        {"FORM_DBLCLICK", build_texts::kUseClickAndTimer}, {"FORM_GOTFOCUS", build_texts::kUseActivate},
        {"FORM_KEYUP", build_texts::kUseKeyPress}, // never used, as IsValidFormEvent accepts KeyUp
        {"FORM_LOSTFOCUS", build_texts::kUseDeactivate},   {"FORM_MOUSEUP", build_texts::kUseClick},
        {"FORM_PAINT", build_texts::kUseActivate}};
    for (const auto& [event, instead] : kInstead)
        if (event == eventInCapitals) return instead;
    return {};
}

} // namespace

bool frmValidate::ScanForm(const QLProject& qlProject, const Component& component, bool scanEvents) {
    Procedure here{services_.errors, "frmValidate.ScanForm"};
    const auto project = here.value([&] { return qlProject->VBProject(); });
    bool good = !scanEvents || ScanEvents(project, component);
    if (!checkFormName(here, project, component)) good = false;
    if (!checkFormProperties(here, project, component)) good = false;
    const auto designer = here.value([&] { return component->Designer(); });
    if (!ScanControls(project, component, designer)) good = false;
    return good;
}

bool frmValidate::checkFormName(Procedure& here, const Project& project, const Component& component) {
    if (!here.test([&] { return IsReservedWord(component->Name()); })) return true;
    here([&] {
        ShowValidationError(
            project,
            fmt::format(build_texts::kReservedName, "name"_a = component->Name(), "kind"_a = build_texts::kFormKind),
            component->FileNames(1), 0, message_numbers::kReservedWord);
    });
    return false;
}

bool frmValidate::checkFormProperties(Procedure& here, const Project& project, const Component& component) {
    const auto warn = [&](const char* text, std::int32_t number) {
        here([&] { ShowValidationWarning(project, text, component->FileNames(1), 0, number); });
    };
    const bool inPixels = !here.test([&] { return numberIn(component, "ScaleMode") != kPixels; });
    if (!inPixels)
        here([&] {
            ShowValidationError(project, build_texts::kScaleModeNotPixels, component->FileNames(1), 0,
                                message_numbers::kScaleModeNotPixels);
        });
    if (here.test([&] { return numberIn(component, "StartupPosition") == 0; }))
        warn(build_texts::kStartUpPositionManual, message_numbers::kStartUpPositionManual);
    if (here.test([&] { return hasPicture(component); }))
        warn(build_texts::kFormPicture, message_numbers::kFormPicture);
    if (here.test([&] {
            const auto border = numberIn(component, "BorderStyle");
            return border != 0 && border != 1 && border != 3;
        }))
        warn(build_texts::kBorderStyle, message_numbers::kBorderStyle);
    return inPixels;
}

bool frmValidate::ScanControls(const Project& project, const Component& component,
                               const basic::Ref<vbide::VBForm>& designer) {
    Procedure here{services_.errors, "frmValidate.ScanControls"};
    bool good = true;
    for (const auto& control : here.value([&] { return designer->VBControls()->items(); })) {
        if (!here.test([&] { return IsReservedWord(nameOf(control)); })) continue;
        good = false;
        here([&] {
            ShowValidationError(project,
                                fmt::format(build_texts::kReservedName, "name"_a = nameOf(control),
                                            "kind"_a = build_texts::kControlKind),
                                component->FileNames(1), 0, message_numbers::kReservedWord);
        });
    }
    return good;
}

/// Events give warnings only.
bool frmValidate::ScanEvents(const Project& project, const Component& component) {
    Procedure here{services_.errors, "frmValidate.ScanEvents"};
    const auto members = here.value([&] { return component->CodeModule()->Members(); });
    const FormControls controls{here, here.value([&] { return component->Designer(); })};
    for (const auto& member : members) {
        if (member.type != vbide::Member::Method) continue;
        const auto event = controls.IsControlEvent(member.Name);
        if (event && !IsValidTavletEvent(event->name))
            warnOfControlEvent(here, project, component, member, event->control);
        if (IsFormEvent(member.Name) && !IsValidFormEvent(member.Name))
            GenerateFormEventWarning(project, component, member);
    }
    return true;
}

void frmValidate::warnOfControlEvent(Procedure& here, const Project& project, const Component& component,
                                     const vbide::Member& member, const basic::Ref<vbide::VBControl>& control) {
    here([&] {
        const auto text = fmt::format(build_texts::kControlEventNotSupported, "procedure"_a = member.Name,
                                      "class"_a = control->ClassName(), "control"_a = nameOf(control));
        ShowValidationWarning(project, text, component->FileNames(1), member.CodeLocation,
                              message_numbers::kControlEventNotSupported);
    });
}

void frmValidate::GenerateFormEventWarning(const Project& project, const Component& component,
                                           const vbide::Member& member) {
    Procedure here{services_.errors, "frmValidate.GenerateFormEventWarning"};
    here([&] {
        const auto text = fmt::format(build_texts::kFormEventNotSupported, "procedure"_a = member.Name,
                                      "form"_a = component->Name(), "instead"_a = insteadOf(basic::UCase(member.Name)));
        ShowValidationWarning(project, text, component->FileNames(1), member.CodeLocation,
                              message_numbers::kFormEventNotSupported);
    });
}

} // namespace fernwick
