#pragma once
#include "Add-in/platform/form.h"
#include <string>

namespace fernwick {

class TextBox : public Control {
public:
    TextBox(Form* form, std::string name, bool locked = false) : Control(form, std::move(name)), Locked(locked) {}
    /// Whether the user can only read it.
    const bool Locked;
    Property<std::string> Text{this};
};

} // namespace fernwick
