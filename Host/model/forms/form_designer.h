#pragma once
// The designer of a form, owned by its component.
#include "Add-in/platform/host.h"
#include "Host/model/forms/designer_state.h"

namespace host {

/// Provides the host's objects over the file of a form. Edits are made directly in the file's lines. The objects remain
/// valid after the designer is destroyed; their members then raise error 440.
class FormDesigner {
public:
    /// Error 380 if the file has no form. `codePage` is the code page of the file; text that it cannot encode is
    /// refused with error 5.
    FormDesigner(std::shared_ptr<FormFile> file, basic::CodePage codePage, DesignerHooks hooks = {});

    const FormFile& file() const { return *state_->file; }

    basic::Ref<vbide::VBForm> Designer() const { return form_; }
    basic::Ref<vbide::Properties> Properties() const;

    /// Returns a warning for each resource reference that cannot be resolved. These properties have their defaults.
    std::vector<FormProblem> resourceWarnings() const;

private:
    std::shared_ptr<DesignerState> state_;
    basic::Ref<vbide::VBForm> form_;
};

} // namespace host
