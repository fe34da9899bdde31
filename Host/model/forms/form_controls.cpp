#include "Host/model/forms/form_controls.h"
#include "Basic/case_folding.h"
#include "Host/files/property_value.h"
#include "Host/files/system_error.h"
#include "Host/model/forms/block_properties.h"
#include "Host/model/forms/form_geometry.h"
#include "Host/model/forms/form_places.h"
#include <algorithm>

namespace host {
namespace {

constexpr int kNewWidth = 1215, kNewHeight = 495; // twips

std::string classPart(std::string_view type) {
    const auto point = type.rfind('.');
    return std::string(point == std::string_view::npos ? type : type.substr(point + 1));
}

/// What the names of new controls begin with: some of the language's own classes have a shorter one.
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
    for (int number = 1;; ++number) {
        auto name = stem + std::to_string(number);
        if (!state.controlNamed(name) && !basic::equalNoCase(name, state.root().name())) return name;
    }
}

std::vector<basic::Ref<vbide::VBControl>> controlsIn(DesignerState& state, const FormBlock& container) {
    std::vector<basic::Ref<vbide::VBControl>> out;
    for (const auto& block : container.objects()) out.push_back(state.controlOf(*block));
    return out;
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

basic::Ref<vbide::VBControl> addTo(DesignerState& state, FormBlock& container, const TwipsPerUnit& scale,
                                   const std::string& progId) {
    const auto type = state.hooks.classOfProgId ? state.hooks.classOfProgId(progId) : progId;
    if (type.find('.') == std::string::npos || type.find_first_of(" \t\r\n") != std::string::npos)
        throw hostError(basic::kCantCreateObject);
    state.checkText(type);
    const auto block = container.addObject(type, freeControlName(state, nameStem(classPart(type))));
    const auto tabIndex = nextTabIndex(state);
    block->set("Height", singleLiteral(kNewHeight / scale.y));
    block->set("Left", "0");
    block->set("TabIndex", integerLiteral(tabIndex));
    block->set("Top", "0");
    block->set("Width", singleLiteral(kNewWidth / scale.x));
    if (const auto line = state.hooks.objectLine ? state.hooks.objectLine(type) : std::nullopt)
        state.file->addObject(*line);
    state.controlsChanged();
    state.tellChanged();
    auto control = state.controlOf(*block);
    if (state.hooks.controlAdded) state.hooks.controlAdded(control);
    return control;
}

RemovedControl takeOff(DesignerState& state, const basic::Ref<vbide::VBControl>& control) {
    const auto model = basic::cast<ControlModel>(control);
    auto container = model ? containerOf(state.file->root(), *model->block()) : nullptr;
    if (!container) throw hostError(basic::kInvalidProcedureCall, "The control is not on this form.");
    const auto place = container->removeObject(*model->block()).value_or(0);
    state.controlsChanged();
    state.tellChanged();
    if (state.hooks.controlRemoved) state.hooks.controlRemoved(control);
    return {std::move(container), model->block(), place};
}

std::shared_ptr<DesignerState> stateOf(const basic::Ref<vbide::VBForm>& form) {
    const auto model = basic::cast<FormModel>(form);
    if (!model) throw hostError(basic::kInvalidProcedureCall);
    return model->state();
}

} // namespace

ControlModel::ControlModel(std::weak_ptr<DesignerState> state, std::shared_ptr<FormBlock> block)
    : state_(std::move(state)), block_(std::move(block)) {}

std::shared_ptr<DesignerState> ControlModel::live() const {
    auto state = liveDesigner(state_);
    if (!state->holds(*block_)) throw hostError(basic::kAutomationError, "The control has been removed.");
    return state;
}

std::string ControlModel::ClassName() const {
    live();
    return classPart(block_->type());
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
    const auto state = liveDesigner(state_);
    if (index < 1 || std::size_t(index) > state->controls().size()) throw hostError(basic::kSubscriptOutOfRange);
    return state->controls()[std::size_t(index) - 1];
}

basic::Ref<vbide::VBControl> ControlsModel::Item(const std::string& name) const {
    auto control = liveDesigner(state_)->controlNamed(name);
    if (!control) throw hostError(basic::kSubscriptOutOfRange, "There is no control \"" + name + "\".");
    return control;
}

std::vector<basic::Ref<vbide::VBControl>> ControlsModel::items() const { return liveDesigner(state_)->controls(); }

basic::Ref<vbide::VBControl> ControlsModel::Add(const std::string& progId) {
    const auto state = liveDesigner(state_);
    return addTo(*state, state->root(), FormGeometry(*state).scale(), progId);
}

void ControlsModel::Remove(const basic::Ref<vbide::VBControl>& control) { takeOff(*liveDesigner(state_), control); }

basic::Ref<vbide::VBControl> addControl(const basic::Ref<vbide::VBForm>& form,
                                        const basic::Ref<vbide::VBControl>& container, const std::string& progId) {
    const auto state = stateOf(form);
    const auto scale = FormGeometry(*state).scale();
    const auto model = basic::cast<ControlModel>(container);
    if (!model) return addTo(*state, state->root(), scale, progId);
    return addTo(*state, *model->block(), unitsIn(container, scale), progId);
}

RemovedControl removeControl(const basic::Ref<vbide::VBForm>& form, const basic::Ref<vbide::VBControl>& control) {
    return takeOff(*stateOf(form), control);
}

void restoreControl(const basic::Ref<vbide::VBForm>& form, const RemovedControl& removed) {
    const auto state = stateOf(form);
    if (!state->holds(*removed.container)) throw hostError(basic::kAutomationError);
    removed.container->restoreObject(removed.block, removed.place);
    state->controlsChanged();
    state->tellChanged();
    if (state->hooks.controlAdded) state->hooks.controlAdded(state->controlOf(*removed.block));
}

basic::Ref<vbide::VBControls> FormModel::VBControls() const {
    liveDesigner(state_);
    return basic::make<ControlsModel>(state_);
}

std::vector<basic::Ref<vbide::VBControl>> FormModel::ContainedVBControls() const {
    const auto state = liveDesigner(state_);
    return controlsIn(*state, state->root());
}

} // namespace host
