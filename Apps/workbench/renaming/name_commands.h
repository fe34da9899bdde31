#pragma once
#include "Apps/workbench/search/reference_search.h"

namespace workbench {

/// The commands of the name at the cursor of the code window in front. They do nothing if there is none.
class NameCommands {
public:
    /// All of them outlive this. `showResults` shows the search results.
    NameCommands(ProjectInsight& insight, CodeWindows& windows, SearchResults& results,
                 std::function<void()> showResults)
        : insight_(insight), windows_(windows), references_(insight, results), showResults_(std::move(showResults)) {}

    void findReferences();
    void rename(QWidget* parent);

private:
    ProjectInsight& insight_;
    CodeWindows& windows_;
    ReferenceSearch references_;
    std::function<void()> showResults_;
};

} // namespace workbench
