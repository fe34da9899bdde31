#pragma once
// Looks through the code of a project as the host holds it, whether a window shows it or not.
#include "Add-in/platform/host_project.h"
#include "Apps/workbench/code/code_pattern.h"
#include <optional>

namespace workbench {

enum class FindScope { Procedure, Module, Project };

/// A part of a line of a component's code. Lines and columns count from 0.
struct CodePlace {
    vbide::Ref<vbide::VBComponent> component;
    int line = 0, column = 0, length = 0;
};

struct Found {
    CodePlace place;
    /// The search came to the end of what it looks through, and went on at its other end.
    bool wentRound = false;
};

/// The next hit behind `from`, or before it. In a project the modules follow one another as it lists them. `from` itself
/// is found when it is the only one.
std::optional<Found> findNext(const CodePattern& pattern, FindScope scope, const CodePlace& from, bool backwards);

/// All hits of one module, in the order of its code.
struct ModuleHits {
    vbide::Ref<vbide::VBComponent> component;
    std::vector<CodePlace> places;
};
/// The modules that have any.
std::vector<ModuleHits> findAll(const CodePattern& pattern, FindScope scope, const CodePlace& from);

/// Lines from 0, the last one included.
struct LineRange {
    int first = 0, last = 0;
};
/// The procedure in which a line stands; the declarations above the first one where it stands in none.
LineRange procedureAround(vbide::CodeModule& module, int line);

} // namespace workbench
