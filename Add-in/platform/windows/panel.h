#pragma once
#include "Add-in/platform/form.h"
#include <cstdint>

namespace fernwick {

/// In twips.
struct ControlPlace {
    std::int32_t Left = 0, Top = 0, Width = 0, Height = 0;
    friend bool operator==(const ControlPlace&, const ControlPlace&) = default;
};

/// A control that its document moves and resizes.
class PlacedControl : public Control {
public:
    PlacedControl(Form* form, std::string name, const ControlPlace& place = {})
        : Control(form, std::move(name)), Place(this, place) {}
    Property<ControlPlace> Place;
};

class Panel : public PlacedControl {
public:
    using PlacedControl::PlacedControl;
};

} // namespace fernwick
