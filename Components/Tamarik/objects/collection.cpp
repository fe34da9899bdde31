#include "Components/Tamarik/objects/collection.h"
#include "Basic/runtime_error.h"
#include "Components/Tamarik/values/folding.h"
#include "Components/Tamarik/values/variant_conversion.h"
#include <algorithm>
#include <new>
#include <utility>

namespace tamarik {

namespace {

/// Of an item, with its share of the tables.
constexpr std::uint64_t kItemCharge = 64;
/// Places of removed items that the order may keep.
constexpr std::size_t kMostPlaces = 16;

const TextBlock* keyIn(const Variant& key) {
    if (key.kind != kString) throw basic::RuntimeError(basic::kTypeMismatch);
    return key.text;
}

} // namespace

Collection::Node* Collection::findKey(const TextBlock* key, std::uint32_t hash) const {
    return keys_.find(hash, [&](const Node& node) { return equalFolded(unitsOf(node.key), unitsOf(key)); });
}

Collection::Node* Collection::at(std::int32_t index) {
    if (index < 1 || static_cast<std::size_t>(index) > items_.count())
        throw basic::RuntimeError(basic::kSubscriptOutOfRange);
    if (!isOrderValid_) {
        order_.clear();
        start_ = 0;
        for (Node* node = items_.first(); node; node = node->next) order_.push_back(node);
        isOrderValid_ = true;
    }
    return order_[start_ + static_cast<std::size_t>(index) - 1];
}

Collection::Node* Collection::find(const Variant& index) {
    if (index.kind != kString) {
        if (!isNumeric(index)) throw basic::RuntimeError(basic::kTypeMismatch);
        return at(longOf(index, image::BaseType::Long));
    }
    Node* const found = findKey(index.text, foldedHash(index.text));
    if (!found) throw basic::RuntimeError(basic::kInvalidProcedureCall);
    return found;
}

void Collection::insert(Node* node, Node* before) {
    items_.insert(node, before);
    if (before) isOrderValid_ = false;
    if (!isOrderValid_) return;
    try {
        order_.push_back(node);
    } catch (const std::bad_alloc&) {
        // It is made again when an item is wanted by its index.
        isOrderValid_ = false;
    }
}

void Collection::add(Heap& heap, const Variant& item, const Variant& key, const Variant& before, const Variant& after) {
    if (!before.isMissing() && !after.isMissing()) throw basic::RuntimeError(basic::kInvalidProcedureCall);
    Node* place = nullptr;
    if (!before.isMissing()) place = find(before);
    if (!after.isMissing()) place = find(after)->next;
    const bool hasKey = !key.isMissing();
    const std::uint32_t hash = hasKey ? foldedHash(keyIn(key)) : 0;
    if (hasKey && findKey(key.text, hash)) throw basic::RuntimeError(basic::kKeyAlreadyAssociated);
    auto* const node = static_cast<Node*>(heap.allocate(sizeof(Node), kItemCharge));
    try {
        node->value = copyOf(heap, item);
        if (hasKey) keys_.add(hash, node);
    } catch (...) {
        release(heap, node->value);
        heap.free(node, kItemCharge);
        throw;
    }
    node->hash = hash;
    node->key = hasKey ? retain(key.text) : nullptr;
    insert(node, place);
}

const Variant& Collection::item(const Variant& index) { return find(index)->value; }

/// Keeps the order where an item at an end is removed.
void Collection::forgetPlace(Node* node) {
    if (!isOrderValid_) return;
    if (node == items_.last())
        order_.pop_back();
    else if (node == items_.first())
        ++start_;
    else
        isOrderValid_ = false;
    if (start_ > order_.size() / 2 + kMostPlaces) {
        order_.erase(order_.begin(), order_.begin() + static_cast<std::ptrdiff_t>(start_));
        start_ = 0;
    }
}

void Collection::remove(Heap& heap, const Variant& index) {
    Node* const node = find(index);
    if (node->hash != 0) keys_.remove(node->hash, node);
    forgetPlace(node);
    items_.remove(node);
    free(heap, node);
}

void Collection::free(Heap& heap, Node* node) {
    release(heap, node->key);
    release(heap, node->value);
    heap.free(node, kItemCharge);
}

void Collection::releaseMembers(Heap& heap) {
    items_.clear([&](Node* node) { free(heap, node); });
}

Object* Collection::walk(Heap& heap) { return makeObject<ListWalk<Node>>(heap, *this, items_); }

std::span<const LibraryMember> Collection::members() const {
    static constexpr LibraryMember kMembers[] = {
        {"Item", "Index", LibraryMember::Read,
         [](LibraryObject& object, MemberCall& call) {
             call.result = copyOf(call.session.heap, static_cast<Collection&>(object).item(call[0]));
         }},
        {"Add", "Item ? Key Before After", LibraryMember::Read,
         [](LibraryObject& object, MemberCall& call) {
             static_cast<Collection&>(object).add(call.session.heap, call[0], call[1], call[2], call[3]);
         }},
        {"Count", "", LibraryMember::Read,
         [](LibraryObject& object, MemberCall& call) {
             call.result = ofNumber(static_cast<Collection&>(object).count());
         }},
        {"Remove", "Index", LibraryMember::Read,
         [](LibraryObject& object, MemberCall& call) {
             static_cast<Collection&>(object).remove(call.session.heap, call[0]);
         }},
        {"_NewEnum", "", LibraryMember::Read,
         [](LibraryObject& object, MemberCall& call) { call.result = ofObject(object.walk(call.session.heap)); }},
    };
    return kMembers;
}

} // namespace tamarik
