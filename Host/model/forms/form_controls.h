#pragma once
// The controls of a form.
#include "Host/model/forms/designer_state.h"

namespace host {

class ControlModel : public vbide::VBControl {
public:
    ControlModel(std::weak_ptr<DesignerState> state, std::shared_ptr<FormBlock> block);

    /// The class without its library: "TextBox".
    std::string ClassName() const override;
    /// As the form's text names it: "VB.TextBox".
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
    /// Of a control array the member that stands first in the text.
    basic::Ref<vbide::VBControl> Item(const std::string& name) const override;
    std::vector<basic::Ref<vbide::VBControl>> items() const override;
    /// Puts a control on the form, in front of the others. Its name is its class with the lowest number that is free.
    basic::Ref<vbide::VBControl> Add(const std::string& progId) override;
    /// Takes a control and those inside it off the form. Error 5 for one that is not on this form.
    void Remove(const basic::Ref<vbide::VBControl>& control) override;

private:
    std::weak_ptr<DesignerState> state_;
};

/// A control that was taken off its form, and where it stood.
struct RemovedControl {
    std::shared_ptr<FormBlock> container, block;
    std::size_t place = 0;
};

// ---- for front ends -----------------------------------------------------------------------------------------------------
/// As VBControls.Add, within a control that is a container; Nothing for the form itself.
basic::Ref<vbide::VBControl> addControl(const basic::Ref<vbide::VBForm>& form,
                                        const basic::Ref<vbide::VBControl>& container, const std::string& progId);
/// As VBControls.Remove.
RemovedControl removeControl(const basic::Ref<vbide::VBForm>& form, const basic::Ref<vbide::VBControl>& control);
/// Puts a control back where it stood, as one that was added. Error 440 when its container is gone.
void restoreControl(const basic::Ref<vbide::VBForm>& form, const RemovedControl& removed);

class FormModel : public vbide::VBForm {
public:
    explicit FormModel(std::weak_ptr<DesignerState> state) : state_(std::move(state)) {}

    basic::Ref<vbide::VBControls> VBControls() const override;
    std::vector<basic::Ref<vbide::VBControl>> ContainedVBControls() const override;

    /// Error 440 when the form is gone.
    std::shared_ptr<DesignerState> state() const { return liveDesigner(state_); }

private:
    std::weak_ptr<DesignerState> state_;
};

} // namespace host
