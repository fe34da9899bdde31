#include "Add-in/build/control_events.h"
#include "Add-in/core/procedure.h"
#include "Basic/text.h"
#include <algorithm>
#include <array>

namespace fernwick {

namespace {

constexpr std::array<std::string_view, 12> kValidFormEvents = {
    "FORM_LOAD",     "FORM_UNLOAD", "FORM_QUERYUNLOAD", "FORM_CLICK",      "FORM_KEYDOWN",   "FORM_KEYUP",
    "FORM_KEYPRESS", "FORM_RESIZE", "FORM_ACTIVATE",    "FORM_INITIALIZE", "FORM_TERMINATE", "FORM_DEACTIVATE"};

} // namespace

FormControls::FormControls(Procedure& here, const basic::Ref<vbide::VBForm>& designer) {
    for (const auto& control : here.value([&] { return designer->VBControls()->items(); }))
        here([&] {
            places_.try_emplace(asText(control->Properties()->Item("Name")->Value()), controls_.size());
            controls_.push_back(control);
        });
}

std::optional<ControlEvent> FormControls::IsControlEvent(const std::string& procedureName) const {
    std::size_t first = controls_.size(), behindName = 0;
    for (auto bar = procedureName.find('_'); bar != std::string::npos; bar = procedureName.find('_', bar + 1)) {
        const auto place = places_.find(procedureName.substr(0, bar));
        if (place == places_.end() || place->second >= first) continue;
        first = place->second;
        behindName = bar + 1;
    }
    if (first == controls_.size()) return std::nullopt;
    return ControlEvent{controls_[first], procedureName.substr(behindName)};
}

bool IsFormEvent(const std::string& name) { return name.starts_with("Form_"); }

bool IsValidTavletEvent(const std::string& eventName) { return eventName != "DRAGDROP" && eventName != "DRAGOVER"; }

bool IsValidFormEvent(const std::string& name) {
    const auto capitals = basic::UCase(name);
    return std::find(kValidFormEvents.begin(), kValidFormEvents.end(), capitals) != kValidFormEvents.end();
}

} // namespace fernwick
