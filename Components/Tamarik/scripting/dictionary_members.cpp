// The members of the class Dictionary, as programs call them.
#include "Components/Tamarik/library/library_function.h"
#include "Components/Tamarik/scripting/dictionary.h"

namespace tamarik {

namespace {

Dictionary& dictionaryIn(LibraryObject& object) { return static_cast<Dictionary&>(object); }

/// An array from 0 on; of each item what `part` selects.
template <class Part>
void listParts(LibraryObject& object, MemberCall& call, Part part) {
    const Dictionary& items = dictionaryIn(object);
    Session& session = call.session;
    const Bounds bounds{0, items.count() - 1};
    HeldBlock<ArrayBlock> array(session.heap, makeArray(session.heap, {{image::BaseType::Variant}}, {&bounds, 1}));
    session.charge(std::uint64_t{array->size} * sizeof(Variant));
    Slot* to = array->as<Slot>();
    items.forEach([&](const Variant& key, const Variant& item) {
        variantAt(to) = copyOf(session.heap, part(key, item));
        to += 2;
    });
    call.result = ofArray(array.take());
}

void setCompareMode(LibraryObject& object, MemberCall& call) {
    dictionaryIn(object).ignoreCase(comparisonOf(longOf(call[0])) == basic::vbTextCompare);
}

} // namespace

std::span<const LibraryMember> Dictionary::members() const {
    using enum LibraryMember::Uses;
    static constexpr LibraryMember kMembers[] = {
        {"Item", "Key", Read,
         [](LibraryObject& object, MemberCall& call) {
             Heap& heap = call.session.heap;
             call.result = copyOf(heap, dictionaryIn(object).item(heap, call[0]));
         }},
        {"Item", "Key Value", Write,
         [](LibraryObject& object, MemberCall& call) {
             dictionaryIn(object).setItem(call.session.heap, call[0], call[1]);
         }},
        {"Exists", "Key", Read,
         [](LibraryObject& object, MemberCall& call) {
             call.result = ofBoolean(dictionaryIn(object).exists(call.session.heap, call[0]));
         }},
        {"Add", "Key Item", Read,
         [](LibraryObject& object, MemberCall& call) {
             dictionaryIn(object).add(call.session.heap, call[0], call[1]);
         }},
        {"Count", "", Read,
         [](LibraryObject& object, MemberCall& call) { call.result = ofNumber(dictionaryIn(object).count()); }},
        {"Key", "Key NewKey", Write,
         [](LibraryObject& object, MemberCall& call) {
             dictionaryIn(object).rename(call.session.heap, call[0], call[1]);
         }},
        {"Keys", "", Read,
         [](LibraryObject& object, MemberCall& call) {
             listParts(object, call, [](const Variant& key, const Variant&) -> const Variant& { return key; });
         }},
        {"Items", "", Read,
         [](LibraryObject& object, MemberCall& call) {
             listParts(object, call, [](const Variant&, const Variant& item) -> const Variant& { return item; });
         }},
        {"Remove", "Key", Read,
         [](LibraryObject& object, MemberCall& call) { dictionaryIn(object).remove(call.session.heap, call[0]); }},
        {"RemoveAll", "", Read,
         [](LibraryObject& object, MemberCall& call) { object.releaseMembers(call.session.heap); }},
        {"CompareMode", "", Read,
         [](LibraryObject& object, MemberCall& call) {
             call.result = ofNumber(dictionaryIn(object).ignoresCase() ? 1 : 0);
         }},
        {"CompareMode", "Mode", Write, &setCompareMode},
        {"_NewEnum", "", Read,
         [](LibraryObject& object, MemberCall& call) { call.result = ofObject(object.walk(call.session.heap)); }},
    };
    return kMembers;
}

} // namespace tamarik
