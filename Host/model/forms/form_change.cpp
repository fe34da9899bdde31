#include "Host/model/forms/form_change.h"
#include "Host/model/forms/control_names.h"
#include "Host/model/forms/form_controls.h"
#include <algorithm>
#include <unordered_map>
#include <unordered_set>

namespace host {
namespace {

using Item = FormBlock::Item;
using Items = std::vector<Item>;

std::unordered_set<const FormBlock*> blocksOf(DesignerState& state) {
    std::unordered_set<const FormBlock*> blocks{&state.root()};
    state.root().eachBlockWithin([&](const auto& block) { blocks.insert(block.get()); });
    return blocks;
}

bool isSameThing(const Item& a, const Item& b) {
    if (a.block || b.block) return a.block == b.block;
    return a.key.empty() ? a.line == b.line : a.key == b.key;
}

template <class List>
auto findIn(List& items, const Item& item) {
    return std::find_if(items.begin(), items.end(), [&](const auto& one) { return isSameThing(one, item); });
}

/// Inserts an item of a list after the one that precedes it there.
void insertAsIn(const Items& list, std::size_t index, Items& items) {
    auto at = items.begin();
    for (auto before = index; before > 0 && at == items.begin(); --before)
        if (const auto found = findIn(items, list[before - 1]); found != items.end()) at = found + 1;
    items.insert(at, list[index]);
}

/// Makes the change from one list to another in a list that may have other changes.
Items changed(const Items& from, const Items& to, Items now) {
    if (now == from) return to;
    std::erase_if(now,
                  [&](const auto& item) { return findIn(from, item) != from.end() && findIn(to, item) == to.end(); });
    for (std::size_t i = 0; i < to.size(); ++i) {
        const auto before = findIn(from, to[i]);
        const auto present = findIn(now, to[i]);
        if (before != from.end() && present != now.end() && *before != to[i]) *present = to[i];
        if (before == from.end() && present == now.end()) insertAsIn(to, i, now);
    }
    return now;
}

FormBlock::Content changed(const FormBlock::Content& from, const FormBlock::Content& to, FormBlock::Content now) {
    if (now.firstLine == from.firstLine) now.firstLine = to.firstLine;
    if (now.lastLine == from.lastLine) now.lastLine = to.lastLine;
    now.items = changed(from.items, to.items, std::move(now.items));
    return now;
}

/// The controls of a form with their names, to report what became of them.
class NamedControls {
public:
    explicit NamedControls(DesignerState& state) : state_(state) {
        for (const auto& control : state.controls()) controls_.push_back({control, nameOf(control), indexOf(control)});
    }

    void reportChanges() const {
        for (const auto& [control, name, index] : controls_) {
            if (!state_.holds(blockOf(control))) {
                if (state_.hooks.controlRemoved) state_.hooks.controlRemoved(control);
            } else if (nameOf(control) != name && state_.hooks.controlRenamed) {
                state_.hooks.controlRenamed(control, name, index);
            }
        }
    }

private:
    using Control = basic::Ref<vbide::VBControl>;
    struct Named {
        Control control;
        std::string name;
        int index;
    };

    static const FormBlock& blockOf(const Control& control) {
        return *static_cast<const ControlModel&>(*control).block();
    }
    static std::string nameOf(const Control& control) { return std::string(blockOf(control).name()); }
    static int indexOf(const Control& control) { return int(host::indexOf(blockOf(control)).value_or(-1)); }

    DesignerState& state_;
    std::vector<Named> controls_;
};

/// Adds the Object lines that the controls need, as an undone addition may have brought one that is in use since.
void keepNeededObjectLines(DesignerState& state) {
    if (!state.hooks.objectLine) return;
    for (const auto& control : state.controls()) {
        const std::string type(static_cast<const ControlModel&>(*control).block()->type());
        if (const auto line = state.hooks.objectLine(type)) state.file->addObject(*line);
    }
}

} // namespace

FormSnapshot snapshotOf(const basic::Ref<vbide::VBForm>& form) {
    FormSnapshot snapshot{stateOf(form), {}, {}};
    snapshot.before = snapshot.state->file->linesBefore();
    const auto keep = [&](const auto& block) { snapshot.blocks.push_back({block, block->content()}); };
    keep(snapshot.state->file->root());
    snapshot.state->root().eachBlockWithin(keep);
    return snapshot;
}

FormChange::FormChange(const FormSnapshot& before, const FormSnapshot& after)
    : state_(after.state), linesBefore_(before.before), linesAfter_(after.before) {
    if (before.state != after.state) return; // the form was read again
    std::unordered_map<const FormBlock*, const FormBlock::Content*> contents;
    for (const auto& one : before.blocks) contents[one.block.get()] = &one.content;
    for (const auto& one : after.blocks) {
        const auto found = contents.find(one.block.get());
        if (found != contents.end() && *found->second != one.content)
            blocks_.push_back({one.block, *found->second, one.content});
    }
}

bool FormChange::hasEffect() const {
    const auto state = state_.lock();
    if (!state) return false;
    const auto held = blocksOf(*state);
    return std::any_of(blocks_.begin(), blocks_.end(), [&](const auto& one) { return held.contains(one.block.get()); });
}

void FormChange::apply(bool back) const {
    const auto state = liveDesigner(state_);
    const NamedControls before(*state);
    const auto held = blocksOf(*state);
    for (const auto& one : blocks_) {
        const auto &from = back ? one.after : one.before, &to = back ? one.before : one.after;
        if (held.contains(one.block.get())) one.block->content(changed(from, to, one.block->content()));
    }
    state->controlsChanged();
    if (linesBefore_ != linesAfter_ && state->file->linesBefore() == (back ? linesAfter_ : linesBefore_)) {
        state->file->linesBefore(back ? linesBefore_ : linesAfter_);
        keepNeededObjectLines(*state);
    }
    state->raiseChanged();
    before.reportChanges();
}

} // namespace host
