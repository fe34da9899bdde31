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

std::uint32_t hashOf(const TextBlock* key) {
    if (key && key->hash != 0) return key->hash;
    const std::uint32_t hash = foldedHash(unitsOf(key));
    // A text is shared, but its hash is no part of its value.
    if (key) const_cast<TextBlock*>(key)->hash = hash;
    return hash;
}

const TextBlock* keyIn(const Variant& key) {
    if (key.kind != kString) throw basic::RuntimeError(basic::kTypeMismatch);
    return key.text;
}

} // namespace

Collection::Node* Collection::findKey(const TextBlock* key, std::uint32_t hash) const {
    return keys_.find(hash, [&](const Node& node) { return equalFolded(unitsOf(node.key), unitsOf(key)); });
}

Collection::Node* Collection::at(std::int32_t index) {
    if (index < 1 || static_cast<std::size_t>(index) > count_) throw basic::RuntimeError(basic::kSubscriptOutOfRange);
    if (!isOrderValid_) {
        order_.clear();
        start_ = 0;
        for (Node* node = first_; node; node = node->next) order_.push_back(node);
        isOrderValid_ = true;
    }
    return order_[start_ + static_cast<std::size_t>(index) - 1];
}

Collection::Node* Collection::find(const Variant& index) {
    if (index.kind != kString) {
        if (!isNumeric(index)) throw basic::RuntimeError(basic::kTypeMismatch);
        return at(longOf(index, image::BaseType::Long));
    }
    Node* const found = findKey(index.text, hashOf(index.text));
    if (!found) throw basic::RuntimeError(basic::kInvalidProcedureCall);
    return found;
}

void Collection::insert(Node* node, Node* before) {
    node->next = before;
    node->previous = before ? before->previous : last_;
    (node->previous ? node->previous->next : first_) = node;
    (before ? before->previous : last_) = node;
    ++count_;
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
    const std::uint32_t hash = hasKey ? hashOf(keyIn(key)) : 0;
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
    if (node == last_)
        order_.pop_back();
    else if (node == first_)
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
    for (CollectionWalk* walk : walks_)
        if (walk->visited_ == node) walk->visited_ = node->previous;
    (node->previous ? node->previous->next : first_) = node->next;
    (node->next ? node->next->previous : last_) = node->previous;
    --count_;
    free(heap, node);
}

void Collection::free(Heap& heap, Node* node) {
    release(heap, node->key);
    release(heap, node->value);
    heap.free(node, kItemCharge);
}

void Collection::releaseMembers(Heap& heap) {
    for (CollectionWalk* walk : walks_) walk->visited_ = nullptr;
    count_ = start_ = 0;
    keys_.clear();
    order_.clear();
    isOrderValid_ = true;
    last_ = nullptr;
    for (Node* node = std::exchange(first_, nullptr); node;) {
        Node* const next = node->next;
        free(heap, node);
        node = next;
    }
}

Object* Collection::walk(Heap& heap) { return makeObject<CollectionWalk>(heap, *this); }

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

CollectionWalk::CollectionWalk(Collection& collection) : collection_(&collection) {
    collection.walks_.push_back(this);
    retain(collection_);
}

bool CollectionWalk::next(Heap& heap, Variant& element) {
    if (!collection_) return false;
    Collection::Node* const node = visited_ ? visited_->next : collection_->first_;
    if (!node) return false;
    visited_ = node;
    element = copyOf(heap, node->value);
    return true;
}

void CollectionWalk::releaseMembers(Heap& heap) {
    Collection* const collection = std::exchange(collection_, nullptr);
    if (!collection) return;
    std::erase(collection->walks_, this);
    release(heap, collection);
}

} // namespace tamarik
