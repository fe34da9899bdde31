#include "Host/model/forms/control_names.h"
#include "Basic/case_folding.h"
#include "Host/files/property_value.h"
#include "Host/model/code/names.h"
#include "Host/model/forms/form_controls.h"
#include <algorithm>

namespace host {
namespace {

constexpr double kLargestIndex = 32767;

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

} // namespace

std::string classNameOf(std::string_view type) {
    const auto point = type.rfind('.');
    return std::string(point == std::string_view::npos ? type : type.substr(point + 1));
}

std::string freeControlName(DesignerState& state, std::string_view type,
                            const std::function<bool(const std::string&)>& isTaken) {
    return firstFreeName(nameStem(classNameOf(type)), [&](const std::string& name) {
        return state.controlNamed(name) || basic::equalNoCase(name, state.root().name()) || (isTaken && isTaken(name));
    });
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

std::optional<long> indexOf(const FormBlock& block) {
    const auto value = parsePropertyValue(block.literal("Index").value_or(""));
    const bool isIndex =
        value.kind == PropertyValue::Kind::Integer && value.number >= 0 && value.number <= kLargestIndex;
    return isIndex ? std::optional(long(value.number)) : std::nullopt;
}

NewNames::NewNames(DesignerState& state, const Blocks& added, const std::vector<std::string>& arrays) : state_(state) {
    for (const auto& name : arrays) arrays_.insert(basic::foldCase(name));
    for (const auto& control : state.controls()) {
        const auto block = static_cast<const ControlModel&>(*control).block();
        const auto folded = basic::foldCase(block->name());
        present_.try_emplace(folded, block);
        if (const auto index = indexOf(*block)) indexes_[folded].insert(*index);
    }
    for (const auto& block : added) taken_.insert(basic::foldCase(block->name()));
}

void NewNames::give(FormBlock& block) {
    const auto folded = basic::foldCase(block.name());
    const auto found = present_.find(folded);
    if (found == present_.end()) {
        if (isInUse(block)) return rename(block);
        given_.insert(folded);
        if (const auto index = indexOf(block)) indexes_[folded].insert(*index);
        return;
    }
    auto& present = *found->second;
    if (!basic::equalNoCase(present.type(), block.type())) return rename(block);
    if (!indexOf(present) && arrays_.contains(folded)) {
        present.set("Index", "0");
        indexes_[folded].insert(0);
    }
    indexOf(present) ? join(block) : rename(block);
}

/// Whether a name that no control had before is the form's, or was given to an added control.
bool NewNames::isInUse(const FormBlock& block) const {
    const auto folded = basic::foldCase(block.name());
    if (basic::equalNoCase(block.name(), state_.root().name())) return true;
    const auto used = indexes_.find(folded);
    const auto index = indexOf(block);
    return given_.contains(folded) && (!index || used == indexes_.end() || used->second.contains(*index));
}

/// A control that was cut from its array gets its index back.
void NewNames::join(FormBlock& block) {
    auto& indexes = indexes_[basic::foldCase(block.name())];
    auto index = indexOf(block).value_or(-1);
    if (index < 0 || indexes.contains(index)) index = *indexes.rbegin() + 1;
    indexes.insert(index);
    block.set("Index", integerLiteral(index));
}

/// Members of one control array get the same name.
void NewNames::rename(FormBlock& block) {
    const auto folded = basic::foldCase(block.name());
    const auto known = renamed_.find(folded);
    if (known != renamed_.end() && indexOf(block)) return block.name(known->second);
    const auto name =
        freeControlName(state_, block.type(), [&](const auto& free) { return taken_.contains(basic::foldCase(free)); });
    renamed_[folded] = name;
    taken_.insert(basic::foldCase(name));
    block.name(name);
}

} // namespace host
