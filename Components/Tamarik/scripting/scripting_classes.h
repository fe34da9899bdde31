#pragma once
// The library Scripting: dictionaries and files.
#include "Components/Tamarik/natives/natives.h"

namespace tamarik {

/// Adds the classes that New and CreateObject can make.
void addScriptingClasses(Natives& natives);

} // namespace tamarik
