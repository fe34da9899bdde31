#include "Host/model/forms/control_edits.h"
#include "Host/files/property_value.h"
#include "Host/files/system_error.h"
#include "Host/model/forms/control_names.h"
#include "Host/model/forms/form_controls.h"
#include "Host/model/forms/form_places.h"
#include <algorithm>

namespace host {
namespace {

constexpr int kNewWidth = 1215, kNewHeight = 495; // twips

/// The container of a block, which is the form or a control on it.
std::shared_ptr<FormBlock> containerOf(const std::shared_ptr<FormBlock>& root, const FormBlock& block) {
    const auto inner = root->objects();
    if (std::any_of(inner.begin(), inner.end(), [&](const auto& b) { return b.get() == &block; })) return root;
    for (const auto& candidate : inner)
        if (auto found = containerOf(candidate, block)) return found;
    return nullptr;
}

/// Writes the properties of a new control, in twips at the origin of its container.
void placeNewControl(FormBlock& block, const TwipsPerUnit& scale, long tabIndex) {
    block.set("Height", singleLiteral(kNewHeight / scale.y));
    block.set("Left", "0");
    block.set("TabIndex", integerLiteral(tabIndex));
    block.set("Top", "0");
    block.set("Width", singleLiteral(kNewWidth / scale.x));
}

} // namespace

basic::Ref<vbide::VBControl> addControlTo(DesignerState& state, FormBlock& container, const TwipsPerUnit& scale,
                                          const std::string& progId) {
    const auto type = state.hooks.classOfProgId ? state.hooks.classOfProgId(progId) : progId;
    if (type.find('.') == std::string::npos || type.find_first_of(" \t\r\n") != std::string::npos)
        throw hostError(basic::kCantCreateObject);
    state.checkText(type);
    const auto block = container.addObject(type, freeControlName(state, type));
    const auto tabIndex = nextTabIndex(state);
    placeNewControl(*block, scale, tabIndex);
    if (const auto line = state.hooks.objectLine ? state.hooks.objectLine(type) : std::nullopt)
        state.file->addObject(*line);
    state.controlsChanged();
    state.raiseChanged();
    auto control = state.controlOf(*block);
    if (state.hooks.controlAdded) state.hooks.controlAdded(control);
    return control;
}

RemovedControl removeControlFrom(DesignerState& state, const basic::Ref<vbide::VBControl>& control) {
    const auto model = basic::cast<ControlModel>(control);
    auto container = model ? containerOf(state.file->root(), *model->block()) : nullptr;
    if (!container) throw hostError(basic::kInvalidProcedureCall, "The control is not on this form.");
    const auto place = container->removeObject(*model->block()).value_or(0);
    state.controlsChanged();
    state.raiseChanged();
    if (state.hooks.controlRemoved) state.hooks.controlRemoved(control);
    return {std::move(container), model->block(), place};
}

basic::Ref<vbide::VBControl> addControl(const basic::Ref<vbide::VBForm>& form,
                                        const basic::Ref<vbide::VBControl>& container, const std::string& progId) {
    const auto state = stateOf(form);
    const auto scale = FormGeometry(*state).scale();
    const auto model = basic::cast<ControlModel>(container);
    if (!model) return addControlTo(*state, state->root(), scale, progId);
    return addControlTo(*state, *model->block(), unitsIn(container, scale), progId);
}

PixelSize describedSize(const basic::Ref<vbide::VBForm>& form, const basic::Ref<vbide::VBControl>& control) {
    const auto model = basic::cast<ControlModel>(control);
    if (!model) return {};
    const auto& described = stateOf(form)->classOf(*model->block());
    return {described.width, described.height};
}

std::vector<ClassEvent> eventsOf(const basic::Ref<vbide::VBForm>& form, const basic::Ref<vbide::VBControl>& control) {
    const auto state = stateOf(form);
    const auto model = basic::cast<ControlModel>(control);
    return state->classOf(model ? *model->block() : state->root()).events;
}

RemovedControl removeControl(const basic::Ref<vbide::VBForm>& form, const basic::Ref<vbide::VBControl>& control) {
    return removeControlFrom(*stateOf(form), control);
}

void restoreControl(const basic::Ref<vbide::VBForm>& form, const RemovedControl& removed) {
    const auto state = stateOf(form);
    if (!state->holds(*removed.container)) throw hostError(basic::kAutomationError);
    removed.container->restoreObject(removed.block, removed.place);
    state->controlsChanged();
    state->raiseChanged();
}

} // namespace host
