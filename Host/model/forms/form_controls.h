#pragma once
// The objects of a form and its controls.
#include "Host/model/forms/designer_state.h"

namespace host {

class ControlModel : public vbide::VBControl {
public:
    ControlModel(std::weak_ptr<DesignerState> state, std::shared_ptr<FormBlock> block);

    /// The class without its library: "TextBox".
    std::string ClassName() const override;
    /// The class as written in the form: "VB.TextBox".
    std::string ProgId() const override;
    basic::Ref<vbide::Properties> Properties() const override;
    std::vector<basic::Ref<vbide::VBControl>> ContainedVBControls() const override;

    const std::shared_ptr<FormBlock>& block() const { return block_; }

private:
    std::shared_ptr<DesignerState> live() const;
    std::weak_ptr<DesignerState> state_;
    std::shared_ptr<FormBlock> block_;
};

class ControlsModel : public vbide::VBControls {
public:
    explicit ControlsModel(std::weak_ptr<DesignerState> state) : state_(std::move(state)) {}

    int Count() const override;
    basic::Ref<vbide::VBControl> Item(int index) const override;
    /// Returns the first control of this name in the text, for a control array its first member.
    basic::Ref<vbide::VBControl> Item(const std::string& name) const override;
    std::vector<basic::Ref<vbide::VBControl>> items() const override;
    /// Adds a control in front of the others. Its name is that of its class with the lowest free number.
    basic::Ref<vbide::VBControl> Add(const std::string& progId) override;
    /// Removes a control with its contained controls. Error 5 if it is not on this form.
    void Remove(const basic::Ref<vbide::VBControl>& control) override;

private:
    std::weak_ptr<DesignerState> state_;
};

class FormModel : public vbide::VBForm {
public:
    explicit FormModel(std::weak_ptr<DesignerState> state) : state_(std::move(state)) {}

    basic::Ref<vbide::VBControls> VBControls() const override;
    std::vector<basic::Ref<vbide::VBControl>> ContainedVBControls() const override;

    /// Error 440 if the form has been removed.
    std::shared_ptr<DesignerState> state() const { return liveDesigner(state_); }

private:
    std::weak_ptr<DesignerState> state_;
};

/// Error 5 for a form of another host, 440 for a removed one.
std::shared_ptr<DesignerState> stateOf(const basic::Ref<vbide::VBForm>& form);

} // namespace host
