#pragma once
// Searches the code of a project in the host, whether a window shows it or not.
#include "Add-in/platform/host_project.h"
#include "Apps/workbench/code/code_pattern.h"
#include <QStringList>
#include <optional>

namespace workbench {

enum class FindScope { Procedure, Module, Project, AllProjects };

/// A part of a line of a component's code. Lines and columns count from 0.
struct CodePlace {
    vbide::Ref<vbide::VBComponent> component;
    int line = 0, column = 0, length = 0;
};

struct Found {
    CodePlace place;
    /// The search reached one end of its scope and continued from the other.
    bool wentRound = false;
};

/// Returns the next hit after `from`, or before it. Modules are searched in the order of the project. `from` itself is
/// found if it is the only hit.
std::optional<Found> findNext(const CodePattern& pattern, FindScope scope, const CodePlace& from, bool backwards);

/// Lines from 0, the last one included.
struct LineRange {
    int first = 0, last = 0;
};
/// The lines of one module to be searched.
struct Stretch {
    vbide::Ref<vbide::VBComponent> component;
    LineRange lines;
};
/// Returns what a search from a place covers, in the order of the projects and of their modules.
std::vector<Stretch> stretchesOf(FindScope scope, const CodePlace& from);
/// The hits in some lines of a text, whose lines are separated by LF.
std::vector<CodePlace> hitsOf(const CodePattern& pattern, const Stretch& stretch, const QStringList& text);

/// All hits of one module, in ascending order.
struct ModuleHits {
    vbide::Ref<vbide::VBComponent> component;
    std::vector<CodePlace> places;
};
/// Returns the modules that have any hits.
std::vector<ModuleHits> findAll(const CodePattern& pattern, FindScope scope, const CodePlace& from);

/// Returns the procedure that contains a line; the declarations at the top if none does.
LineRange procedureAround(vbide::CodeModule& module, int line);

} // namespace workbench
