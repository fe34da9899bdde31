#pragma once
// The functions of the runtime.
#include "Components/Tamarik/natives/natives.h"

namespace tamarik {

/// Adds Debug.PrintItem, PrintZone (a comma), PrintTab, PrintBlanks, PrintLine and Assert.
void addPrintNatives(Natives& natives);
/// Adds Err, which returns the object, and the class Collection.
/// Adds ParamArray.Pass and ParamArray.IsAssigned.
void addParamArrayNatives(Natives& natives);
void addObjectNatives(Natives& natives);
/// All of them.
[[nodiscard]] Natives standardNatives();

} // namespace tamarik
