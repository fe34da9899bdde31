#include "Apps/workbench/designer/form_view.h"
#include "Apps/workbench/designer/device_screen.h"
#include "Apps/workbench/designer/form_canvas.h"
#include "Apps/workbench/designer/form_reader.h"
#include "Apps/workbench/designer/new_control.h"
#include "Apps/workbench/designer/place_changes.h"
#include "Apps/workbench/events/event_handler.h"
#include "Basic/runtime_error.h"
#include "Host/model/forms/control_edits.h"
#include <QPointer>
#include <algorithm>
#include <utility>

namespace workbench {

FormView::FormView(vbide::Ref<vbide::VBComponent> component, DesignHistory& history, Callbacks callbacks)
    : component_(std::move(component)),
      history_(history),
      callbacks_(std::move(callbacks)),
      picture_(pictureOfForm(*component_)),
      deviceScreen_(deviceScreenOf(component_)),
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
    const auto isGone = [](const auto& control) {
        return basic::attempt([&] { (void)control->ClassName(); }).Number != 0;
    };
    if (std::erase_if(selection_, isGone) > 0) selectionChanged();
    canvas_->formChanged();
    callbacks_.formChanged();
}

void FormView::updateDeviceScreen() {
    const auto screen = deviceScreenOf(component_);
    if (std::exchange(deviceScreen_, screen) != screen) canvas_->formChanged();
}

QRectF FormView::shownPlace() const { return canvas_->shownPlace(); }

void FormView::place(const std::string& step, const std::vector<QRectF>& places) {
    const auto all = drawnSelections();
    std::vector<std::pair<Control, std::vector<DesignChange>>> changes;
    if (all.empty()) changes.emplace_back(nullptr, changesOfForm(picture_, places.back()));
    for (std::size_t i = 0; i < std::min(places.size(), all.size()); ++i) {
        const auto& drawn = *all[all.size() - 1 - i];
        changes.emplace_back(drawn.control, changesOfPlace(drawn, places[places.size() - 1 - i]));
    }
    change(step, [component = component_, changes] {
        for (const auto& [control, values] : changes)
            setAll(control ? control->Properties() : component->Properties(), values);
    });
}

void FormView::removeSelected(const std::string& step) {
    if (selection_.empty()) return;
    const auto controls = selection_;
    select(nullptr);
    change(step, [form = component_->Designer(), controls] {
        for (const auto& control : controls) host::removeControl(form, control);
    });
}

void FormView::add(const std::string& progId, const QRectF& place) {
    Control added;
    const QPointer<FormView> here(this);
    change("Add", [&, component = component_] {
        const auto* container = picture_.containerAt(place.topLeft());
        added = host::addControl(component->Designer(), container ? container->control : nullptr, progId);
        if (here) finish(added, place);
    });
    if (here && picture_.find(added)) select(added);
}

void FormView::finish(const Control& added, const QRectF& place) {
    picture_ = pictureOfForm(*component_);
    if (!picture_.find(added)) return; // an add-in removed it again
    setFontOfForm(component_->Properties(), added->Properties());
    picture_ = pictureOfForm(*component_); // the size depends on the font
    setAll(added->Properties(), changesOfNew(*picture_.find(added), withSize(added, place)));
}

/// A click has no size.
QRectF FormView::withSize(const Control& added, const QRectF& place) const {
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

void FormView::redo() {
    edit([&history = history_, component = component_] { history.redo(component); });
}

void FormView::change(const std::string& step, const std::function<void()>& act) {
    edit([&history = history_, component = component_, step, act] { history.record(component, step, act); });
}

void FormView::edit(const std::function<void()>& act) {
    const QPointer<FormView> here(this);
    const auto run = callbacks_.run;
    run(act);
    if (here) reload(); // the next key must find the new state
}

void FormView::openCode() { openCode(selected()); }

void FormView::openCode(const Control& control) {
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
