#include "Apps/workbench/form_view.h"
#include "Apps/workbench/event_handlers.h"
#include "Apps/workbench/form_canvas.h"
#include "Basic/runtime_error.h"
#include <algorithm>

namespace workbench {

namespace {

/// The values that put a control there, in the units of its container.
std::vector<DesignChange> changesOfPlace(const DrawnControl& drawn, const QRectF& place) {
    const auto& was = drawn.place;
    std::vector<DesignChange> changes;
    const auto add = [&](const char* property, double before, double now, double unit) {
        if (before != now) changes.push_back({property, now / unit});
    };
    const auto at = place.translated(-drawn.origin), before = was.translated(-drawn.origin);
    if (drawn.look.kind == ControlKind::Line) {
        add("X1", before.left(), at.left(), drawn.unitX);
        add("Y1", before.top(), at.top(), drawn.unitY);
        add("X2", before.right(), at.right(), drawn.unitX);
        add("Y2", before.bottom(), at.bottom(), drawn.unitY);
        return changes;
    }
    add("Left", before.left(), at.left(), drawn.unitX);
    add("Top", before.top(), at.top(), drawn.unitY);
    add("Width", before.width(), at.width(), drawn.unitX);
    add("Height", before.height(), at.height(), drawn.unitY);
    return changes;
}

/// A form's size is that of its frame.
std::vector<DesignChange> changesOfForm(const FormPicture& form, const QRectF& inner) {
    std::vector<DesignChange> changes;
    const auto add = [&](const char* property, double before, double now, double frame) {
        if (before != now) changes.push_back({property, (now + frame) * kTwipsPerPixel});
    };
    add("Width", form.inner.width(), inner.width(), form.frame.left() + form.frame.right());
    add("Height", form.inner.height(), inner.height(), form.frame.top() + form.frame.bottom());
    return changes;
}

/// How far it is to go in a direction, with what lies aside counted double; negative for what lies behind.
double wayTo(const QPointF& from, const QPointF& to, const QPointF& direction) {
    const auto way = to - from;
    const double ahead = QPointF::dotProduct(way, direction);
    const double aside = std::abs(QPointF::dotProduct(way, QPointF(direction.y(), direction.x())));
    return ahead <= 0 || aside > 2 * ahead ? -1 : ahead + 2 * aside;
}

} // namespace

FormView::FormView(vbide::Ref<vbide::VBComponent> component, DesignHistory& history, Wishes wishes)
    : component_(std::move(component)),
      history_(history),
      wishes_(std::move(wishes)),
      picture_(pictureOfForm(*component_.shared())),
      canvas_(new FormCanvas(*this)) {
    setObjectName("formView");
    setWidget(canvas_);
    setFocusProxy(canvas_);
    setBackgroundRole(QPalette::Dark);
    setAccessibleName("Form");
    reload_.setSingleShot(true);
    reload_.setInterval(0); // a form changes by many lines at once
    connect(&reload_, &QTimer::timeout, this, [this] { reload(); });
    canvas_->formChanged();
}

void FormView::reload() {
    // of a form that has been removed the last picture stays until its window goes
    const auto failed = basic::attempt([this] { picture_ = pictureOfForm(*component_.shared()); });
    if (failed.Number != 0) return;
    const bool gone = selected_ && basic::attempt([this] { (void)selected_->ClassName(); }).Number != 0;
    if (gone) select(nullptr);
    canvas_->formChanged();
}

void FormView::select(const vbide::Ref<vbide::VBControl>& control) {
    if (control == selected_) return;
    selected_ = control;
    if (const auto* drawn = drawnSelection()) {
        const auto shown = canvas_->onCanvas(drawn->place.normalized()).toRect();
        ensureVisible(shown.center().x(), shown.center().y(), shown.width() / 2, shown.height() / 2);
    }
    canvas_->update();
    wishes_.selected();
}

void FormView::place(const QRectF& place) {
    const auto* drawn = drawnSelection();
    const auto changes = drawn ? changesOfPlace(*drawn, place) : changesOfForm(picture_, place);
    wishes_.run(
        [&] { history_.set(component_, drawn ? drawn->control->Properties() : component_->Properties(), changes); });
    reload(); // the next key goes on from there
}

void FormView::removeSelected() {
    if (!selected_) return;
    const auto control = selected_;
    select(nullptr);
    wishes_.run([&] { component_->Designer()->VBControls()->Remove(control); });
    reload();
}

void FormView::undo() {
    history_.undo(component_);
    reload();
}

void FormView::openCode() { openCode(selected_); }

void FormView::openCode(const vbide::Ref<vbide::VBControl>& control) {
    wishes_.run([&] { openHandler(*component_.shared(), control); });
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
    const DrawnControl* nearest = nullptr;
    double shortest = 0;
    for (const auto& candidate : picture_.controls) {
        const double way = wayTo(now->place.center(), candidate.place.center(), direction);
        if (way < 0 || (nearest && way >= shortest)) continue;
        nearest = &candidate;
        shortest = way;
    }
    if (nearest) select(nearest->control);
}

/// The dark ground round the form belongs to no control: a click there selects the form.
void FormView::mousePressEvent(QMouseEvent*) {
    select(nullptr);
    setFocus();
}

} // namespace workbench
