#include "Apps/workbench/designer/form_view.h"
#include "Apps/workbench/designer/form_canvas.h"
#include "Apps/workbench/designer/form_reader.h"
#include "Apps/workbench/designer/new_control.h"
#include "Apps/workbench/designer/place_changes.h"
#include "Apps/workbench/events/event_handler.h"
#include "Basic/runtime_error.h"
#include "Host/model/forms/control_edits.h"
#include <QPointer>
#include <algorithm>

namespace workbench {

FormView::FormView(vbide::Ref<vbide::VBComponent> component, DesignHistory& history, Callbacks callbacks)
    : component_(std::move(component)),
      history_(history),
      callbacks_(std::move(callbacks)),
      picture_(pictureOfForm(*component_)),
      canvas_(new FormCanvas(*this)) {
    setObjectName("formView");
    setWidget(canvas_);
    setFocusProxy(canvas_);
    setBackgroundRole(QPalette::Dark);
    setAccessibleName("Form");
    reload_.setSingleShot(true);
    reload_.setInterval(0); // a form often changes by many lines at once
    connect(&reload_, &QTimer::timeout, this, [this] { reload(); });
    canvas_->formChanged();
}

void FormView::reload() {
    reload_.stop();
    // a removed form keeps its last picture until its window is closed
    const auto failed = basic::attempt([this] { picture_ = pictureOfForm(*component_); });
    if (failed.Number != 0) return;
    const bool gone = selected_ && basic::attempt([this] { (void)selected_->ClassName(); }).Number != 0;
    if (gone) select(nullptr);
    canvas_->formChanged();
    callbacks_.placeChanged();
}

void FormView::select(const vbide::Ref<vbide::VBControl>& control) {
    if (control == selected_) return;
    selected_ = control;
    const auto* drawn = drawnSelection();
    canvas_->setAccessibleDescription(drawn ? drawn->name : picture_.caption);
    if (drawn) {
        const auto shown = canvas_->onCanvas(drawn->place.normalized()).toRect();
        ensureVisible(shown.center().x(), shown.center().y(), shown.width() / 2, shown.height() / 2);
    }
    canvas_->update();
    callbacks_.selected();
}

QRectF FormView::shownPlace() const { return canvas_->shownPlace(); }

void FormView::place(const QRectF& place) {
    const auto* drawn = drawnSelection();
    const auto changes = drawn ? changesOfPlace(*drawn, place) : changesOfForm(picture_, place);
    const auto control = drawn ? drawn->control : nullptr;
    edit([&history = history_, component = component_, control, changes] {
        history.set(component, control ? control->Properties() : component->Properties(), changes);
    });
}

void FormView::removeSelected() {
    if (!selected_) return;
    const auto control = selected_;
    select(nullptr);
    edit([component = component_, &history = history_, control] {
        const auto form = component->Designer();
        const auto removed = host::removeControl(form, control);
        history.did(component, [form, removed] { host::restoreControl(form, removed); });
    });
}

void FormView::add(const std::string& progId, const QRectF& place) {
    vbide::Ref<vbide::VBControl> added;
    const QPointer<FormView> here(this);
    edit([&, component = component_] {
        const auto* container = picture_.containerAt(place.topLeft());
        added = host::addControl(component->Designer(), container ? container->control : nullptr, progId);
    });
    if (here && added && picture_.find(added)) finish(added, place); // else an add-in removed it again
}

void FormView::finish(const vbide::Ref<vbide::VBControl>& added, const QRectF& place) {
    edit([this, added, place, component = component_] {
        const auto form = component->Designer();
        setFontOfForm(component->Properties(), added->Properties());
        picture_ = pictureOfForm(*component); // the size depends on the font
        for (const auto& change : changesOfNew(*picture_.find(added), withSize(added, place)))
            added->Properties()->Item(change.property)->Value(change.value);
        history_.did(component, [form, added] { host::removeControl(form, added); });
    });
    select(added);
}

/// A click has no size.
QRectF FormView::withSize(const vbide::Ref<vbide::VBControl>& added, const QRectF& place) const {
    if (place.width() > 0 && place.height() > 0) return place;
    const auto& drawn = *picture_.find(added);
    const auto around =
        drawn.container < 0 ? QRectF({}, picture_.inner) : picture_.controls[std::size_t(drawn.container)].place;
    const auto room = QRectF(place.topLeft(), around.bottomRight()).size();
    return {place.topLeft(), usualSize(drawn, component_->Designer(), room)};
}

void FormView::undo() {
    edit([&history = history_, component = component_] { history.undo(component); });
}

void FormView::edit(const std::function<void()>& act) {
    const QPointer<FormView> here(this);
    const auto run = callbacks_.run;
    run(act);
    if (here) reload(); // the next key must find the new state
}

void FormView::openCode() { openCode(selected_); }

void FormView::openCode(const vbide::Ref<vbide::VBControl>& control) {
    callbacks_.run([&] { openHandler(*component_, control); });
}

void FormView::selectNext(int step) {
    const auto order = picture_.tabOrder();
    if (order.empty()) return;
    const auto now = std::find(order.begin(), order.end(), drawnSelection());
    const auto count = std::ptrdiff_t(order.size());
    const auto at = now == order.end() ? (step > 0 ? 0 : count - 1) : (now - order.begin() + step + count) % count;
    select(order[std::size_t(at)]->control);
}

void FormView::selectBeside(const QPointF& direction) {
    const auto* const now = drawnSelection();
    if (!now) return selectNext(direction.x() + direction.y() > 0 ? 1 : -1);
    if (const auto* nearest = picture_.beside(*now, direction)) select(nearest->control);
}

/// Called for a click outside of the form, which selects the form.
void FormView::mousePressEvent(QMouseEvent*) {
    select(nullptr);
    setFocus();
}

} // namespace workbench
