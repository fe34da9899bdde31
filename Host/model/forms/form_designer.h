#pragma once
// The designer of a form: what a component that has one owns.
#include "Add-in/platform/host.h"
#include "Host/model/forms/designer_state.h"

namespace host {

/// Gives the objects of the host's model over a form's file. All edits go straight into the file's lines, so
/// that file is always what is to be saved. The objects stay valid when the designer is destroyed; their
/// members then raise error 440.
class FormDesigner {
public:
    /// The file must have a form: error 380 without one. Its text was decoded with `codePage`, and text that this
    /// page can't encode is refused with error 5.
    FormDesigner(std::shared_ptr<FormFile> file, basic::CodePage codePage, DesignerHooks hooks = {});

    const FormFile& file() const { return *state_->file; }

    basic::Ref<vbide::VBForm> Designer() const { return form_; }
    basic::Ref<vbide::Properties> Properties() const;

    /// What the form's resource references don't find: a warning for each, with its line. The properties concerned
    /// have their default.
    std::vector<FormProblem> resourceWarnings() const;

private:
    std::shared_ptr<DesignerState> state_;
    basic::Ref<vbide::VBForm> form_;
};

} // namespace host
