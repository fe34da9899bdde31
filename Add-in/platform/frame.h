#pragma once
#include "Add-in/platform/form.h"
#include <string>

namespace fernwick {

/// Surrounds other controls, which are shown and hidden with it.
class Frame : public Control {
public:
    Frame(Form* form, std::string name, bool visible = true) : Control(form, std::move(name)) {
        Visible.design(visible);
    }
    /// Twips. Front ends that lay out the form themselves ignore them.
    Property<int> Top{this, 0}, Left{this, 0};
};

} // namespace fernwick
