#include "Apps/workbench/designer/form_view.h"
#include "Apps/workbench/base/text.h"
#include "Apps/workbench/designer/event_handlers.h"
#include "Apps/workbench/designer/form_canvas.h"
#include "Basic/runtime_error.h"
#include "Host/model/forms/control_edits.h"
#include <QPointer>
#include <algorithm>
#include <cmath>

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

/// What a new control is given: its place, and its name to show.
std::vector<DesignChange> changesOfNew(const DrawnControl& drawn, const QRectF& place) {
    const bool hasSize = place.width() > 0 && place.height() > 0 && drawn.look.kind != ControlKind::Hidden;
    auto there = place;
    if (!hasSize) there.setSize(drawn.place.size());
    auto changes = changesOfPlace(drawn, there);
    const PropertyReader read(drawn.control->Properties());
    for (const auto* shown : {"Caption", "Text"})
        if (read.has(shown) && read.text(shown).isEmpty()) changes.push_back({shown, text(drawn.name)});
    return changes;
}

/// The innermost container at a place, null for the form itself.
const DrawnControl* containerAt(const FormPicture& form, const QPointF& place) {
    const auto* drawn = form.at(place);
    while (drawn && !isContainer(drawn->control->ProgId()))
        drawn = drawn->container < 0 ? nullptr : &form.controls[std::size_t(drawn->container)];
    return drawn;
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
    reload_.setInterval(0); // a form changes by many lines at once
    connect(&reload_, &QTimer::timeout, this, [this] { reload(); });
    canvas_->formChanged();
}

void FormView::reload() {
    reload_.stop();
    // of a form that has been removed the last picture stays until its window goes
    const auto failed = basic::attempt([this] { picture_ = pictureOfForm(*component_); });
    if (failed.Number != 0) return;
    const bool gone = selected_ && basic::attempt([this] { (void)selected_->ClassName(); }).Number != 0;
    if (gone) select(nullptr);
    canvas_->formChanged();
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
        const auto* container = containerAt(picture_, place.topLeft());
        added = host::addControl(component->Designer(), container ? container->control : nullptr, progId);
    });
    if (here && added && picture_.find(added)) finish(added, place); // else an add-in took it off again
}

void FormView::finish(const vbide::Ref<vbide::VBControl>& added, const QRectF& place) {
    edit([this, added, place, component = component_] {
        for (const auto& change : changesOfNew(*picture_.find(added), place))
            added->Properties()->Item(change.property)->Value(change.value);
        const auto form = component->Designer();
        history_.did(component, [form, added] { host::removeControl(form, added); });
    });
    select(added);
}

void FormView::undo() {
    edit([&history = history_, component = component_] { history.undo(component); });
}

void FormView::edit(const std::function<void()>& act) {
    const QPointer<FormView> here(this);
    const auto run = callbacks_.run;
    run(act);
    if (here) reload(); // the next key goes on from there
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
