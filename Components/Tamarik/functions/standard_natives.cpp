#include "Components/Tamarik/functions/standard_natives.h"
#include "Components/Tamarik/library/library_natives.h"
#include "Components/Tamarik/scripting/scripting_classes.h"

namespace tamarik {

Natives standardNatives() {
    Natives natives;
    addPrintNatives(natives);
    addLibrary(natives);
    addObjectNatives(natives);
    addParamArrayNatives(natives);
    addScriptingClasses(natives);
    return natives;
}

} // namespace tamarik
