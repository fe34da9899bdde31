#pragma once
// Whether a component still has the name that the host gave it.
#include "Add-in/platform/host_project.h"

namespace fernwick {

/// "Form1": a form, and a number behind the word, whose letter case is ignored.
bool IsDefaultFormName(const vbide::VBComponent& component);
/// "Module1": a standard module.
bool IsDefaultModuleName(const vbide::VBComponent& component);
/// "Class1": a class module.
bool IsDefaultClassName(const vbide::VBComponent& component);

} // namespace fernwick
