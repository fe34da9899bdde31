#include "Host/model/forms/control_order.h"
#include "Basic/case_folding.h"
#include "Host/model/forms/control_edits.h"
#include "Host/model/forms/form_controls.h"
#include <algorithm>

namespace host {
namespace {

using Controls = std::vector<basic::Ref<vbide::VBControl>>;
using Items = std::vector<FormBlock::Item>;

/// A block that the file ends in must stay at its end.
bool isMovable(const FormBlock::Item& item) {
    return item.isObject() && !basic::equalNoCase(item.block->type(), "VB.Menu") && item.block->isClosed();
}

Items::iterator placeIn(Items& items, bool front) {
    if (front) return std::find_if(items.begin(), items.end(), isMovable);
    return std::find_if(items.rbegin(), items.rend(), isMovable).base();
}

/// Returns true if the order changed.
bool moveWithin(FormBlock& container, const std::vector<const FormBlock*>& blocks, bool front) {
    const auto before = container.content();
    auto now = before;
    const auto isRest = [&](const auto& item) {
        return !isMovable(item) || std::find(blocks.begin(), blocks.end(), item.block.get()) == blocks.end();
    };
    const auto moved = std::stable_partition(now.items.begin(), now.items.end(), isRest);
    const Items chosen(moved, now.items.end());
    now.items.erase(moved, now.items.end());
    if (std::none_of(now.items.begin(), now.items.end(), isMovable)) return false;
    now.items.insert(placeIn(now.items, front), chosen.begin(), chosen.end());
    if (now == before) return false;
    container.content(now);
    return true;
}

void move(const basic::Ref<vbide::VBForm>& form, const Controls& controls, bool front) {
    const auto state = stateOf(form);
    std::vector<const FormBlock*> blocks;
    for (const auto& control : controls)
        if (const auto model = basic::cast<ControlModel>(control)) blocks.push_back(model->block().get());
    bool changed = moveWithin(state->root(), blocks, front);
    state->root().eachBlockWithin([&](const auto& block) { changed = moveWithin(*block, blocks, front) || changed; });
    if (!changed) return;
    state->controlsChanged();
    state->raiseChanged();
}

} // namespace

void bringToFront(const basic::Ref<vbide::VBForm>& form, const Controls& controls) { move(form, controls, true); }

void sendToBack(const basic::Ref<vbide::VBForm>& form, const Controls& controls) { move(form, controls, false); }

} // namespace host
