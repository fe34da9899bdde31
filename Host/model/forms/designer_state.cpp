#include "Host/model/forms/designer_state.h"
#include "Basic/case_folding.h"
#include "Host/files/system_error.h"
#include "Host/model/forms/form_controls.h"
#include <utility>

namespace host {

DesignerState::DesignerState(std::shared_ptr<FormFile> form, basic::CodePage page, DesignerHooks given)
    : file(std::move(form)), codePage(std::move(page)), hooks(std::move(given)) {}

const ControlClass& DesignerState::classOf(const FormBlock& block) {
    const std::string name(block.type());
    auto& known = classes_[basic::foldCase(name)];
    if (!known && hooks.classes) known = hooks.classes(name);
    if (!known) known = builtInClass(name);
    return *known;
}

void DesignerState::checkText(std::string_view text) const {
    if (!codePage.tryEncode(text))
        throw hostError(basic::kInvalidProcedureCall,
                        "The text has a character that the code page of the project lacks.");
}

void DesignerState::set(FormBlock& block, std::string_view key, const std::string& literal, std::string_view comment) {
    checkText(literal);
    if (block.set(key, literal, comment)) raiseChanged();
}

void DesignerState::remove(FormBlock& block, std::string_view key) {
    if (block.remove(key)) raiseChanged();
}

std::string DesignerState::addResource(const std::string& record, bool isString) const {
    if (!hooks.addResource) throw hostError(basic::kPropertyOrMethodNotSupported);
    auto reference = hooks.addResource(record);
    reference.isString = isString;
    return resourceLiteral(reference);
}

void DesignerState::raiseChanged() const {
    if (hooks.changed) hooks.changed();
}

const std::vector<basic::Ref<vbide::VBControl>>& DesignerState::controls() {
    if (!listed_) listControls();
    return controls_;
}

basic::Ref<vbide::VBControl> DesignerState::controlOf(const FormBlock& block) {
    controls();
    const auto found = byBlock_.find(&block);
    return found == byBlock_.end() ? nullptr : found->second;
}

bool DesignerState::holds(const FormBlock& block) { return &block == &root() || controlOf(block); }

basic::Ref<vbide::VBControl> DesignerState::controlNamed(const std::string& name) {
    controls();
    const auto found = byName_.find(basic::foldCase(name));
    return found == byName_.end() ? nullptr : found->second;
}

void DesignerState::listControls() {
    controls_.clear();
    byName_.clear();
    const auto before = std::exchange(byBlock_, {});
    listControls(root(), before);
    listed_ = true;
}

/// A control keeps its object as long as its block is in the form.
void DesignerState::listControls(const FormBlock& container, const ControlsByBlock& before) {
    for (const auto& block : container.objects()) {
        const auto known = before.find(block.get());
        const auto control = known != before.end() ? known->second : basic::make<ControlModel>(weak_from_this(), block);
        controls_.push_back(control);
        byBlock_.emplace(block.get(), control);
        byName_.emplace(basic::foldCase(block->name()), control);
        listControls(*block, before);
    }
}

std::shared_ptr<DesignerState> liveDesigner(const std::weak_ptr<DesignerState>& state) {
    auto live = state.lock();
    if (!live) throw hostError(basic::kAutomationError, "The form has been removed.");
    return live;
}

std::shared_ptr<DesignerState> liveDesigner(const std::weak_ptr<DesignerState>& state, const FormBlock& block) {
    auto live = liveDesigner(state);
    if (!live->holds(block)) throw hostError(basic::kAutomationError, "The control has been removed.");
    return live;
}

} // namespace host
