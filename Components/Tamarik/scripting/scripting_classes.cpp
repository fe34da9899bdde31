#include "Components/Tamarik/scripting/scripting_classes.h"
#include "Components/Tamarik/natives/session.h"
#include "Components/Tamarik/scripting/dictionary.h"
#include "Components/Tamarik/scripting/file_system_object.h"
#include <bit>

namespace tamarik {

void addScriptingClasses(Natives& natives) {
    natives.addClass("FileSystemObject", [](Session& session) -> Object* {
        const double now = session.surroundings.now().days;
        return makeObject<FileSystemObject>(session.heap,
                                            static_cast<std::uint32_t>(std::bit_cast<std::uint64_t>(now) >> 8));
    });
    natives.addClass("Dictionary", [](Session& session) -> Object* { return makeObject<Dictionary>(session.heap); });
}

} // namespace tamarik
