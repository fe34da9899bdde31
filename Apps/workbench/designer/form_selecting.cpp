// What is selected on a form.
#include "Apps/workbench/designer/form_canvas.h"
#include "Apps/workbench/designer/form_view.h"
#include <algorithm>

namespace workbench {

bool FormView::isSelected(const Control& control) const {
    return std::find(selection_.begin(), selection_.end(), control) != selection_.end();
}

std::vector<const DrawnControl*> FormView::drawnSelections() const {
    std::vector<const DrawnControl*> all;
    for (const auto& control : selection_)
        if (const auto* drawn = picture_.find(control)) all.push_back(drawn);
    return all;
}

std::vector<const DrawnControl*> FormView::drawnBesideLeader() const {
    auto all = drawnSelections();
    std::erase(all, drawnSelection());
    return all;
}

void FormView::select(const Control& control) { select(control ? std::vector{control} : std::vector<Control>()); }

void FormView::select(std::vector<Control> controls) {
    if (controls == selection_) return;
    selection_ = std::move(controls);
    selectionChanged();
}

void FormView::selectionChanged() {
    canvas_->cancelDrag(); // which moves what was selected
    const auto* drawn = drawnSelection();
    canvas_->setAccessibleDescription(drawn ? drawn->name : picture_.caption);
    if (drawn) {
        const auto shown = canvas_->onCanvas(drawn->place.normalized()).toRect();
        ensureVisible(shown.center().x(), shown.center().y(), shown.width() / 2, shown.height() / 2);
    }
    canvas_->redraw();
    callbacks_.selected();
}

void FormView::selectAlso(const Control& control) {
    const auto *drawn = picture_.find(control), *leader = drawnSelection();
    if (!drawn || !leader || drawn->container != leader->container) return select(control);
    auto controls = selection_;
    if (std::erase(controls, control) == 0) controls.push_back(control);
    select(std::move(controls));
}

void FormView::lead(const Control& control) {
    if (!isSelected(control)) return select(control);
    auto controls = selection_;
    std::erase(controls, control);
    controls.push_back(control);
    select(std::move(controls));
}

void FormView::selectTouched(const QRectF& place, const Control& container, bool extends) {
    const auto* around = picture_.find(container);
    const int within = around ? int(around - picture_.controls.data()) : -1;
    const auto* leader = drawnSelection();
    std::vector<Control> controls;
    if (extends && leader && leader->container == within) controls = selection_;
    for (const auto& drawn : picture_.controls) {
        const bool isNew = std::find(controls.begin(), controls.end(), drawn.control) == controls.end();
        // a line may have no height
        const bool isTouched = drawn.clip.intersects(place.adjusted(0, 0, 1, 1));
        if (drawn.container == within && isNew && isTouched) controls.push_back(drawn.control);
    }
    select(std::move(controls));
}

} // namespace workbench
