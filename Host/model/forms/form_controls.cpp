#include "Host/model/forms/form_controls.h"
#include "Host/model/errors/host_errors.h"
#include "Host/model/forms/block_properties.h"
#include "Host/model/forms/control_edits.h"
#include "Host/model/forms/control_names.h"
#include "Host/model/forms/form_geometry.h"

namespace host {
namespace {

std::vector<basic::Ref<vbide::VBControl>> controlsIn(DesignerState& state, const FormBlock& container) {
    std::vector<basic::Ref<vbide::VBControl>> out;
    for (const auto& block : container.objects()) out.push_back(state.controlOf(*block));
    return out;
}

} // namespace

ControlModel::ControlModel(std::weak_ptr<DesignerState> state, std::shared_ptr<FormBlock> block)
    : state_(std::move(state)), block_(std::move(block)) {}

std::shared_ptr<DesignerState> ControlModel::live() const { return liveDesigner(state_, *block_); }

std::string ControlModel::ClassName() const {
    live();
    return classNameOf(block_->type());
}

std::string ControlModel::ProgId() const {
    live();
    return std::string(block_->type());
}

basic::Ref<vbide::Properties> ControlModel::Properties() const {
    live();
    return propertiesOf(std::make_shared<BlockProperties>(state_, block_));
}

std::vector<basic::Ref<vbide::VBControl>> ControlModel::ContainedVBControls() const {
    return controlsIn(*live(), *block_);
}

int ControlsModel::Count() const { return int(liveDesigner(state_)->controls().size()); }

basic::Ref<vbide::VBControl> ControlsModel::Item(int index) const {
    return itemAt(liveDesigner(state_)->controls(), index);
}

basic::Ref<vbide::VBControl> ControlsModel::Item(const std::string& name) const {
    auto control = liveDesigner(state_)->controlNamed(name);
    if (!control) throw hostError(basic::kSubscriptOutOfRange, "There is no control \"" + name + "\".");
    return control;
}

std::vector<basic::Ref<vbide::VBControl>> ControlsModel::items() const { return liveDesigner(state_)->controls(); }

basic::Ref<vbide::VBControl> ControlsModel::Add(const std::string& progId) {
    const auto state = liveDesigner(state_);
    return addControlTo(*state, state->root(), FormGeometry(*state).scale(), progId);
}

void ControlsModel::Remove(const basic::Ref<vbide::VBControl>& control) {
    removeControlFrom(*liveDesigner(state_), control);
}

basic::Ref<vbide::VBControls> FormModel::VBControls() const {
    liveDesigner(state_);
    return basic::make<ControlsModel>(state_);
}

std::vector<basic::Ref<vbide::VBControl>> FormModel::ContainedVBControls() const {
    const auto state = liveDesigner(state_);
    return controlsIn(*state, state->root());
}

std::shared_ptr<DesignerState> stateOf(const basic::Ref<vbide::VBForm>& form) {
    const auto model = basic::cast<FormModel>(form);
    if (!model) throw hostError(basic::kInvalidProcedureCall);
    return model->state();
}

} // namespace host
