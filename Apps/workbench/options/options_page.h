#pragma once
#include <QWidget>
#include <functional>

namespace workbench {

/// A page of the options dialog. What the user changes there is stored only by store().
class OptionsPage : public QWidget {
public:
    virtual void showStored() = 0;
    virtual void showUsual() = 0;
    virtual void store() const = 0;
    /// Why the page cannot be stored; empty if it can.
    virtual QString problem() const { return {}; }
    /// Called after each change by the user.
    std::function<void()> changed = [] {};
};

} // namespace workbench
