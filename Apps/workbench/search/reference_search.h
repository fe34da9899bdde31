#pragma once
#include "Apps/workbench/assist/program_task.h"
#include "Apps/workbench/assist/project_insight.h"
#include "Apps/workbench/search/search_results.h"

namespace workbench {

/// Lists all references to a name among the search results.
class ReferenceSearch {
public:
    /// Both outlive this.
    ReferenceSearch(ProjectInsight& insight, SearchResults& results)
        : insight_(insight), results_(results), task_(insight.workers()) {}

    /// Searches the project of a place for the name there. Returns false if the place has no source.
    bool start(const CodePlace& place);

private:
    ProjectInsight& insight_;
    SearchResults& results_;
    ProgramTask task_;
};

} // namespace workbench
