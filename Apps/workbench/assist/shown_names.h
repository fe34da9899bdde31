#pragma once
// Names of sources as places of code windows.
#include "Apps/workbench/assist/project_insight.h"
#include "Apps/workbench/code/code_finder.h"
#include "Components/QLToolkit/insight/references.h"
#include <QString>

namespace workbench {

/// A name in a line of a code window.
struct ShownName {
    std::size_t source = 0;
    int line = 0, column = 0, length = 0; ///< from 0
    QString text;                         ///< of the whole line
    bool isDeclaration = false;
};

/// Leaves out names in lines that code windows do not show.
std::vector<ShownName> shownNames(const qltoolkit::ProgramInput& input, const std::vector<qltoolkit::Reference>& names);

/// Where a place of a code window is in the sources; nothing if its component has none.
std::optional<qltoolkit::NamePlace> sourcePlace(const ProjectInsight::Program& program, const CodePlace& place);

} // namespace workbench
