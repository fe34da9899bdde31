#include "Add-in/platform/form.h"

namespace fernwick {

Control::Control(Form* form, std::string name) : Name(std::move(name)), form_(form) {
    if (form_) form_->controls_.push_back(this);
}

Control::~Control() {
    if (form_) std::erase(form_->controls_, this);
}

void Form::Load() {
    if (loaded_) return;
    loaded_ = true;
    asDesigned();
    for (auto* control : controls_) control->asDesigned();
    Loaded.raise();
    Form_Load();
}

void Form::Unload() {
    if (!loaded_) return;
    loaded_ = false;
    Visible(false);
    Form_Unload();
    Unloaded.raise();
}

void Form::ShowModal() {
    Load();
    if (Visible()) throw basic::RuntimeError(basic::kFormAlreadyDisplayed);
    Visible(true);
    try {
        user_.showModal(*this);
    } catch (...) {
        Unload(); // the window must not remain open
        throw;
    }
    Visible(false);
}

void Form::SetFocus() {
    if (!Visible()) throw basic::RuntimeError(basic::kInvalidProcedureCall);
    Form_GotFocus();
}

void Form::activate() {
    if (Visible()) Form_Activate();
}

Control& Form::control(const std::string& name) const {
    for (auto* control : controls_)
        if (control->Name == name) return *control;
    throw basic::RuntimeError(basic::kControlNotFound, "Control '" + name + "' not found");
}

} // namespace fernwick
