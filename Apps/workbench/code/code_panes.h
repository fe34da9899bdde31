#pragma once
// The one or two panes of a code window.
#include "Apps/workbench/editing/code_input.h"
#include <QSplitter>
#include <functional>
#include <vector>

namespace workbench {

/// Both panes show the same text, each with its own cursor, scroll position and folds. The user divides the window by
/// the grip above the scroll bar.
class CodePanes final : public QSplitter {
public:
    using Make = std::function<CodeInput*()>;

    explicit CodePanes(Make make);
    ~CodePanes() override;

    /// The lower pane, which is always there.
    CodeInput& main() const { return *main_; }
    /// The one that has the focus, or had it last.
    CodeInput& active() const { return *active_; }
    bool isSplit() const { return upper_ != nullptr; }
    void setSplit(bool split);
    void showOtherPane();
    std::vector<CodeInput*> all() const;
    /// Calls `act` for each pane, now and when one is added.
    void each(std::function<void(CodeInput&)> act);
    /// Divides the window at this distance from its top.
    void splitAt(int y);

    /// Called when another pane is active.
    std::function<void()> activated = [] {};
    /// Called when the window was split or joined.
    std::function<void()> splitChanged = [] {};

protected:
    QSplitterHandle* createHandle() override;

private:
    void add(CodeInput& pane);
    void activate(CodeInput& pane);
    void removeUpper();

    Make make_;
    std::vector<std::function<void(CodeInput&)>> forEach_;
    CodeInput *main_, *upper_ = nullptr, *active_;
};

} // namespace workbench
