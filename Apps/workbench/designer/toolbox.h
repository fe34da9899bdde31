#pragma once
// The controls that a form can be given.
#include <QListWidget>
#include <functional>
#include <string>
#include <vector>

namespace workbench {

/// A list of control classes. The one that is picked is drawn onto the form with the mouse; a double click or the Enter
/// key adds it at once.
class Toolbox final : public QListWidget {
public:
    explicit Toolbox(std::function<void(const std::string& progId)> add);

    /// The language's own classes, and these behind them.
    void offer(const std::vector<std::string>& more);
    /// The class that is picked as a form's text names it; "" for the pointer.
    std::string tool() const;
    /// Picks the pointer.
    void putBack();

private:
    std::vector<std::string> offered_;
};

} // namespace workbench
