#include "Host/model/forms/control_edits.h"
#include "Basic/case_folding.h"
#include "Host/files/property_value.h"
#include "Host/files/system_error.h"
#include "Host/model/code/names.h"
#include "Host/model/forms/form_controls.h"
#include "Host/model/forms/form_places.h"
#include <algorithm>

namespace host {
namespace {

constexpr int kNewWidth = 1215, kNewHeight = 495; // twips

/// The stem of the names of new controls. Some built-in classes have a short one.
std::string nameStem(const std::string& className) {
    static constexpr std::pair<std::string_view, std::string_view> kShort[] = {
        {"CommandButton", "Command"}, {"TextBox", "Text"},       {"CheckBox", "Check"},     {"OptionButton", "Option"},
        {"ComboBox", "Combo"},        {"ListBox", "List"},       {"PictureBox", "Picture"}, {"HScrollBar", "HScroll"},
        {"VScrollBar", "VScroll"},    {"DriveListBox", "Drive"}, {"DirListBox", "Dir"},     {"FileListBox", "File"}};
    for (const auto& [whole, stem] : kShort)
        if (className == whole) return std::string(stem);
    return className;
}

std::string freeControlName(DesignerState& state, const std::string& stem) {
    return firstFreeName(stem, [&](const std::string& name) {
        return state.controlNamed(name) || basic::equalNoCase(name, state.root().name());
    });
}

/// The container of a block, which is the form or a control on it.
std::shared_ptr<FormBlock> containerOf(const std::shared_ptr<FormBlock>& root, const FormBlock& block) {
    const auto inner = root->objects();
    if (std::any_of(inner.begin(), inner.end(), [&](const auto& b) { return b.get() == &block; })) return root;
    for (const auto& candidate : inner)
        if (auto found = containerOf(candidate, block)) return found;
    return nullptr;
}

long nextTabIndex(DesignerState& state) {
    long next = 0;
    for (const auto& control : state.controls()) {
        const auto literal = static_cast<const ControlModel&>(*control).block()->literal("TabIndex");
        const auto value = parsePropertyValue(literal.value_or(""));
        if (value.kind == PropertyValue::Kind::Integer && value.number < 1e6)
            next = std::max(next, long(value.number) + 1);
    }
    return next;
}

/// Writes the properties of a new control, in twips at the origin of its container.
void placeNewControl(FormBlock& block, const TwipsPerUnit& scale, long tabIndex) {
    block.set("Height", singleLiteral(kNewHeight / scale.y));
    block.set("Left", "0");
    block.set("TabIndex", integerLiteral(tabIndex));
    block.set("Top", "0");
    block.set("Width", singleLiteral(kNewWidth / scale.x));
}

std::shared_ptr<DesignerState> stateOf(const basic::Ref<vbide::VBForm>& form) {
    const auto model = basic::cast<FormModel>(form);
    if (!model) throw hostError(basic::kInvalidProcedureCall);
    return model->state();
}

} // namespace

std::string classNameOf(std::string_view type) {
    const auto point = type.rfind('.');
    return std::string(point == std::string_view::npos ? type : type.substr(point + 1));
}

basic::Ref<vbide::VBControl> addControlTo(DesignerState& state, FormBlock& container, const TwipsPerUnit& scale,
                                          const std::string& progId) {
    const auto type = state.hooks.classOfProgId ? state.hooks.classOfProgId(progId) : progId;
    if (type.find('.') == std::string::npos || type.find_first_of(" \t\r\n") != std::string::npos)
        throw hostError(basic::kCantCreateObject);
    state.checkText(type);
    const auto block = container.addObject(type, freeControlName(state, nameStem(classNameOf(type))));
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
