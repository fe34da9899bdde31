#include "Host/model/forms/form_designer.h"
#include "Host/files/system_error.h"
#include "Host/model/forms/form_controls.h"
#include "Host/model/forms/form_properties.h"
#include "Host/model/forms/resource_check.h"

namespace host {

FormDesigner::FormDesigner(std::shared_ptr<FormFile> file, basic::CodePage codePage, DesignerHooks hooks)
    : state_(std::make_shared<DesignerState>(std::move(file), std::move(codePage), std::move(hooks))) {
    if (!state_->file || !state_->file->root())
        throw hostError(basic::kInvalidPropertyValue, "The file has no description of a form.");
    const std::weak_ptr<DesignerState> state = state_;
    form_ = basic::make<FormModel>(state);
}

basic::Ref<vbide::Properties> FormDesigner::Properties() const {
    return propertiesOf(std::make_shared<FormProperties>(state_, state_->file->root()));
}

std::vector<FormProblem> FormDesigner::resourceWarnings() const { return checkResources(*state_); }

} // namespace host
