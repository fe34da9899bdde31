// Objects of the runtime.
#include "Components/Tamarik/functions/standard_natives.h"
#include "Components/Tamarik/natives/native_function.h"
#include "Components/Tamarik/objects/collection.h"
#include "Components/Tamarik/objects/err_object.h"

namespace tamarik {

namespace {

Object* errObject(Session& session) { return makeObject<ErrObject>(session.heap); }

std::int32_t erl(Session& session) { return session.erl; }

} // namespace

void addObjectNatives(Natives& natives) {
    natives.add("Err", native<&errObject>());
    natives.add("Erl", native<&erl>());
    natives.addClass("Collection", [](Session& session) -> Object* { return makeObject<Collection>(session.heap); });
}

} // namespace tamarik
