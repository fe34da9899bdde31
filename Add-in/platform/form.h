#pragma once
// Forms and controls without a window.
#include "Add-in/platform/interaction.h"
#include "Add-in/platform/property.h"
#include "Basic/runtime_error.h"
#include <string>

namespace fernwick {

class Form;

class Control : public PropertyOwner {
public:
    /// A control of a tool window's document has no form.
    Control(Form* form, std::string name);
    Control(const Control&) = delete;
    virtual ~Control();

    const std::string Name;
    Property<bool> Visible{this, true};
    Property<bool> Enabled{this, true};
    Property<std::string> ToolTipText{this};

private:
    Form* form_;
};

/// A form outlives its windows: a window exists between Load and Unload. Load resets the controls to their design
/// values; fields are kept, so a caller reads the result after Unload.
class Form : public PropertyOwner {
public:
    explicit Form(Interaction& user) : user_(user) {}
    Form(const Form&) = delete;
    virtual ~Form() = default;

    virtual const char* typeName() const = 0;
    Property<std::string> Caption{this};
    Property<int> MousePointer{this, vbDefault};
    Property<bool> Visible{false};
    Event<> Loaded, Unloaded, Refreshed;
    /// False if the user cannot close the form.
    bool ControlBox = true;
    /// Whether the close box presses the Cancel button instead of unloading the form.
    bool CloseBoxCancels = false;

    void Load();
    /// Marks the form as closed; the front end removes its window when showModal returns.
    void Unload();
    void Hide() { Visible(false); }
    /// Error 400 for a form that is already shown.
    void ShowModal();
    void Refresh() { Refreshed.raise(); }
    void SetFocus();
    bool isLoaded() const { return loaded_; }

    /// Called by the front end when the form is first shown and whenever it becomes the front window.
    void activate();
    const std::vector<Control*>& Controls() const { return controls_; }
    /// Error 730 for an unknown name.
    Control& control(const std::string& name) const;

protected:
    virtual void Form_Load() {}
    virtual void Form_Activate() {}
    virtual void Form_Unload() {}
    virtual void Form_GotFocus() {}
    Interaction& user_;

private:
    friend class Control;
    std::vector<Control*> controls_;
    bool loaded_ = false;
};

} // namespace fernwick
