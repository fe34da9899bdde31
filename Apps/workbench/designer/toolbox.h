#pragma once
// The controls that can be added to a form.
#include "Apps/workbench/designer/offered_controls.h"
#include <QListWidget>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace workbench {

/// A list of control classes. The user draws the selected one onto the form with the mouse; a double click or the Enter
/// key adds it at once.
class Toolbox final : public QListWidget {
public:
    explicit Toolbox(std::function<void(const std::string& progId)> add);

    /// Lists these and the language's own classes in groups. With controls of devices these are first, and the other
    /// groups say that they do not stay on the project's forms.
    void offer(const OfferedControls& offered);
    /// The selected class as named in a form's text; "" for the pointer.
    std::string tool() const;
    /// Selects the pointer.
    void putBack();

private:
    void addGroup(const QString& title, const std::vector<std::string>& classes, bool stays);

    std::optional<OfferedControls> offered_;
};

} // namespace workbench
