#include "Components/Tamarik/scripting/dictionary.h"
#include "Basic/runtime_error.h"
#include "Components/Tamarik/scripting/dictionary_key.h"
#include <utility>

namespace tamarik {

namespace {

/// Of an item, with its share of the table.
constexpr std::uint64_t kItemCharge = 80;

} // namespace

void Dictionary::ignoreCase(bool ignores) {
    if (items_.count() != 0) throw basic::RuntimeError(basic::kInvalidProcedureCall);
    ignoresCase_ = ignores;
}

Dictionary::Node* Dictionary::find(Heap& heap, const Variant& key, std::uint32_t hash) const {
    return keys_.find(hash, [&](const Node& node) { return equalKeys(heap, node.key, key, ignoresCase_); });
}

Dictionary::Node& Dictionary::at(Heap& heap, const Variant& key) const {
    Node* const found = find(heap, key, keyHash(key));
    if (!found) throw basic::RuntimeError(kElementNotFound, "Element not found");
    return *found;
}

Dictionary::Node& Dictionary::append(Heap& heap, const Variant& key, std::uint32_t hash, const Variant& item) {
    auto* const node = static_cast<Node*>(heap.allocate(sizeof(Node), kItemCharge));
    try {
        node->value = copyOf(heap, item);
    } catch (...) {
        heap.free(node, kItemCharge);
        throw;
    }
    node->key = sharedOf(key);
    node->hash = hash;
    keys_.add(hash, node);
    items_.insert(node, nullptr);
    return *node;
}

bool Dictionary::exists(Heap& heap, const Variant& key) const { return find(heap, key, keyHash(key)) != nullptr; }

void Dictionary::add(Heap& heap, const Variant& key, const Variant& item) {
    const std::uint32_t hash = keyHash(key);
    if (find(heap, key, hash)) throw basic::RuntimeError(basic::kKeyAlreadyAssociated);
    append(heap, key, hash, item);
}

const Variant& Dictionary::item(Heap& heap, const Variant& key) {
    const std::uint32_t hash = keyHash(key);
    Node* const found = find(heap, key, hash);
    return (found ? *found : append(heap, key, hash, {})).value;
}

void Dictionary::setItem(Heap& heap, const Variant& key, const Variant& item) {
    const std::uint32_t hash = keyHash(key);
    Node* const found = find(heap, key, hash);
    if (!found)
        append(heap, key, hash, item);
    else
        release(heap, std::exchange(found->value, copyOf(heap, item)));
}

void Dictionary::rename(Heap& heap, const Variant& key, const Variant& newKey) {
    Node& node = at(heap, key);
    const std::uint32_t hash = keyHash(newKey);
    if (find(heap, newKey, hash)) throw basic::RuntimeError(basic::kKeyAlreadyAssociated);
    keys_.remove(node.hash, &node);
    keys_.add(hash, &node);
    node.hash = hash;
    release(heap, std::exchange(node.key, sharedOf(newKey)));
}

void Dictionary::remove(Heap& heap, const Variant& key) {
    Node& node = at(heap, key);
    keys_.remove(node.hash, &node);
    items_.remove(&node);
    free(heap, &node);
}

void Dictionary::free(Heap& heap, Node* node) {
    release(heap, node->key);
    release(heap, node->value);
    heap.free(node, kItemCharge);
}

void Dictionary::releaseMembers(Heap& heap) {
    keys_.clear();
    items_.clear([&](Node* node) { free(heap, node); });
}

Object* Dictionary::walk(Heap& heap) { return makeObject<ListWalk<Node>>(heap, *this, items_); }

} // namespace tamarik
