#pragma once
#include "Apps/workbench/search/search_run.h"
#include <QTreeWidget>

namespace workbench {

/// The matches of a search. Lines follow edits; a line that was changed or removed is shown as outdated.
class ResultList final : public QTreeWidget {
public:
    using Component = vbide::Ref<vbide::VBComponent>;

    /// Calls `show` with a match that the user chooses.
    explicit ResultList(std::function<void(const CodePlace&)> show);

    void add(std::vector<Match> matches);
    void removeAll();
    /// Looks for the lines of a module again.
    void update(const Component& component);
    void remove(const std::function<bool(const Component&)>& isRemoved);
    int count() const { return topLevelItemCount(); }
    /// The number of modules with matches.
    int modules() const { return modules_; }

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    class Row;
    Row* row(int index) const;
    void choose(QTreeWidgetItem* item);

    std::function<void(const CodePlace&)> show_;
    int modules_ = 0;
};

} // namespace workbench
