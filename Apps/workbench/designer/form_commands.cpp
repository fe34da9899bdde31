#include "Apps/workbench/designer/form_commands.h"
#include "Apps/workbench/designer/form_view.h"
#include "Host/model/forms/control_order.h"
#include <algorithm>
#include <cmath>

namespace workbench {

namespace {

/// The units of forms that count in pixels or twips; larger ones have decimals.
double smallestStep(double pixelsPerUnit) {
    const double unit = std::abs(pixelsPerUnit);
    return unit > 0 ? std::min(unit, 1.0) : 1.0;
}

ArrangementSpace spaceOf(const FormView& view) {
    const auto& leader = *view.drawnSelection();
    const auto& form = view.picture();
    QRectF inner({}, form.inner);
    if (leader.container >= 0) {
        const auto& around = form.controls[std::size_t(leader.container)].place;
        const auto border = leader.origin - around.topLeft();
        inner = around.adjusted(border.x(), border.y(), -border.x(), -border.y());
    }
    return {inner,
            {leader.origin, view.callbacks().grid().pixels},
            {smallestStep(leader.unitX), smallestStep(leader.unitY)}};
}

std::vector<ArrangedControl> controlsOf(const FormView& view) {
    std::vector<ArrangedControl> controls;
    for (const auto* drawn : view.drawnSelections()) {
        const auto kind = drawn->look.kind;
        controls.push_back({drawn->place, kind != ControlKind::Hidden && kind != ControlKind::Line});
    }
    return controls;
}

/// For the history.
const char* nameOf(Arrangement how) {
    if (how <= Arrangement::AlignToGrid) return "Align";
    if (how <= Arrangement::SizeToGrid) return "Size";
    return how < Arrangement::CentreAcross ? "Space" : "Center";
}

} // namespace

bool canArrange(const FormView& view, Arrangement how) {
    return !isLocked(view) && view.drawnSelections().size() >= fewestFor(how);
}

void arrange(FormView& view, Arrangement how) {
    if (canArrange(view, how)) view.place(nameOf(how), arranged(how, controlsOf(view), spaceOf(view)));
}

bool hasSelection(const FormView& view) { return view.drawnSelection() != nullptr; }

void bringToFront(FormView& view) {
    view.change("Bring to Front", [form = view.component()->Designer(), controls = view.selection()] {
        host::bringToFront(form, controls);
    });
}

void sendToBack(FormView& view) {
    view.change("Send to Back", [form = view.component()->Designer(), controls = view.selection()] {
        host::sendToBack(form, controls);
    });
}

void selectAll(FormView& view) {
    const auto* leader = view.drawnSelection();
    const int container = leader ? leader->container : -1;
    std::vector<FormView::Control> controls;
    for (const auto& drawn : view.picture().controls)
        if (drawn.container == container) controls.push_back(drawn.control);
    view.select(std::move(controls));
}

bool isLocked(const FormView& view) { return view.picture().isLocked; }

void switchLock(FormView& view) {
    const bool locks = !isLocked(view);
    view.change(locks ? "Lock Controls" : "Unlock Controls",
                [component = view.component(), locks] { component->Properties()->Item("LockControls")->Value(locks); });
}

} // namespace workbench
