#include "Components/Tamarik/scripting/scripting_classes.h"
#include "Components/Tamarik/scripting/dictionary.h"

namespace tamarik {

void addScriptingClasses(Natives& natives) {
    natives.addClass("Dictionary", [](Session& session) -> Object* { return makeObject<Dictionary>(session.heap); });
}

} // namespace tamarik
