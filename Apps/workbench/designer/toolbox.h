#pragma once
// The controls that can be added to a form.
#include <QListWidget>
#include <functional>
#include <string>
#include <vector>

namespace workbench {

/// A list of control classes. The user draws the selected one onto the form with the mouse; a double click or the Enter
/// key adds it at once.
class Toolbox final : public QListWidget {
public:
    explicit Toolbox(std::function<void(const std::string& progId)> add);

    /// Lists these and the language's own classes; those of devices first.
    void offer(const std::vector<std::string>& more);
    /// The selected class as named in a form's text; "" for the pointer.
    std::string tool() const;
    /// Selects the pointer.
    void putBack();

private:
    std::vector<std::string> offered_;
};

} // namespace workbench
