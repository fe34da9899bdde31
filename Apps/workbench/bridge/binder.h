#pragma once
// Binds the controls of a form to the widgets with the same names.
#include "Add-in/platform/controls.h"
#include <QWidget>
#include <exception>
#include <functional>
#include <string>
#include <vector>

namespace workbench {

/// The connections of a form's window, released with it.
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
    /// Receives the errors of this window.
    const Failed& failed() const { return failed_; }
    void keep(fernwick::Subscription subscription) { kept_.push_back(std::move(subscription)); }
    /// Runs an action of the user and passes an error to the window, as no exception may cross Qt's loop.
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

/// Binds one control to its widget. Error 13 if the widget does not suit the kind of control.
void bind(fernwick::Control& control, QWidget& widget, Binding& binding);

/// Binds every control of a form to the widget with its name in `window`. Error 730, with the name, if there is none.
void bindControls(fernwick::Form& form, QWidget& window, Binding& binding);

} // namespace workbench
