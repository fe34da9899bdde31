#pragma once
// Whether a component still has the host's default name: a word in any letter case, followed by a number.
#include "Add-in/platform/host_project.h"

namespace fernwick {

/// "Form1": a form.
bool IsDefaultFormName(const vbide::VBComponent& component);
/// "Module1": a standard module.
bool IsDefaultModuleName(const vbide::VBComponent& component);
/// "Class1": a class module.
bool IsDefaultClassName(const vbide::VBComponent& component);

} // namespace fernwick
