// CreateObject, for the classes that devices have.
#include "Basic/utf16.h"
#include "Components/Tamarik/library/library_function.h"
#include "Components/Tamarik/library/library_natives.h"
#include "Components/Tamarik/text/letters.h"

namespace tamarik {

namespace {

Variant createObject(Session& session, std::u16string_view className, std::u16string_view) {
    constexpr std::u16string_view kClasses[]{u"Scripting.Dictionary", u"Scripting.FileSystemObject"};
    for (const auto name : kClasses) {
        if (compare(className, name, basic::vbTextCompare) != 0) continue;
        const auto maker = session.classes.find(basic::toUtf8(name.substr(name.find(u'.') + 1)));
        if (maker != session.classes.end()) return ofObject(maker->second(session));
    }
    throw basic::RuntimeError(basic::kCantCreateObject);
}

} // namespace

void addObjectMakers(Natives& natives) { natives.add("CreateObject", native<&createObject>()); }

} // namespace tamarik
