#pragma once
// Ties the controls of a form to the widgets of a window that have their names.
#include "Add-in/platform/controls.h"
#include <QWidget>
#include <exception>
#include <functional>
#include <string>
#include <vector>

namespace workbench {

/// What lasts as long as a form's window stands.
class Binding {
public:
    using Failed = std::function<void(std::exception_ptr)>;
    explicit Binding(Failed failed) : failed_(std::move(failed)) {}
    Binding(const Binding&) = delete;

    /// Shows a property now and after each change.
    template <class T, class Show>
    void show(const fernwick::Property<T>& property, Show show) {
        show(property());
        keep(property.watch([show](const T& value) { show(value); }));
    }
    void keep(fernwick::Subscription subscription) { kept_.push_back(std::move(subscription)); }
    /// Does what the user asked for. What a handler lets out goes to the window, not into Qt's loop.
    template <class Act>
    void act(Act&& act) const {
        try {
            act();
        } catch (...) { failed_(std::current_exception()); }
    }

private:
    Failed failed_;
    std::vector<fernwick::Subscription> kept_;
};

/// Ties one control to its widget. Error 13 for a widget that is not of the control's kind.
void bind(fernwick::Control& control, QWidget& widget, Binding& binding);

/// Ties every control of a form to the widget of its name in `window`. Error 730, with the name, for a control
/// without a widget.
void bindControls(fernwick::Form& form, QWidget& window, Binding& binding);

} // namespace workbench
