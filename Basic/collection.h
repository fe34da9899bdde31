#pragma once
// VB's Collection.
#include "Basic/case_folding.h"
#include "Basic/runtime_error.h"
#include "Basic/sequence.h"
#include "Basic/types.h"
#include <concepts>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <variant>
#include <vector>

namespace basic {

/// Identifies an item of a collection by its index, from 1, or by its key. Does not copy the key.
class CollectionIndex {
public:
    CollectionIndex(std::integral auto place) : index_(static_cast<std::int64_t>(place)) {}
    CollectionIndex(std::string_view key) : index_(key) {}
    CollectionIndex(const std::string& key) : index_(std::string_view(key)) {}
    CollectionIndex(const char* key) : index_(std::string_view(key)) {}

    const std::int64_t* place() const { return std::get_if<std::int64_t>(&index_); }
    std::string_view key() const { return std::get<std::string_view>(index_); }

private:
    std::variant<std::int64_t, std::string_view> index_;
};

/// Items in order, optionally with keys, which are case-insensitive. Lookup by key takes constant time, all other
/// operations on one item take logarithmic time. An index outside 1 to Count is error 9, an unknown key is error 5. A
/// failed call changes nothing.
template <class T>
class Collection {
public:
    Long Count() const noexcept { return static_cast<Long>(items_.size()); }

    /// Appends an item, or inserts it before or after another one. Error 457 for a duplicate key, 5 if both before
    /// and after are given.
    void Add(T item, std::optional<std::string> key = std::nullopt,
             std::optional<CollectionIndex> before = std::nullopt,
             std::optional<CollectionIndex> after = std::nullopt) {
        if (before && after) throw RuntimeError(kInvalidProcedureCall);
        std::size_t place = items_.size();
        if (before) place = items_.placeOf(find(*before));
        if (after) place = items_.placeOf(find(*after)) + 1;
        if (!key) return void(items_.insert(place, Entry{std::move(item), nullptr}));
        const auto [position, isNew] = keys_.try_emplace(*std::move(key), nullptr);
        if (!isNew) throw RuntimeError(kKeyAlreadyAssociated);
        position->second = items_.insert(place, Entry{std::move(item), &position->first});
    }

    const T& Item(CollectionIndex index) const { return find(index)->value.item; }
    T& Item(CollectionIndex index) { return find(index)->value.item; }

    /// True if there is such an item. VB code finds out by suppressing an error.
    bool contains(std::string_view key) const { return keys_.find(key) != keys_.end(); }

    void Remove(CollectionIndex index) {
        Node* const node = find(index);
        if (node->value.key) keys_.erase(keys_.find(*node->value.key));
        items_.erase(node);
    }

    void clear() {
        keys_.clear();
        items_.clear();
    }

    /// Returns a copy of the items, which can be iterated while the collection changes.
    std::vector<T> items() const {
        std::vector<T> copy;
        copy.reserve(items_.size());
        for (const Node* node = items_.first(); node; node = items_.next(node)) copy.push_back(node->value.item);
        return copy;
    }

    Collection() = default;
    Collection(const Collection&) = delete; // collections are shared by Ref, as in VB
    Collection& operator=(const Collection&) = delete;

private:
    struct Entry;
    using Node = typename Sequence<Entry>::Node;
    using Keys = std::unordered_map<std::string, Node*, NoCaseHash, NoCaseEqual>;
    struct Entry {
        T item;
        const std::string* key; // in keys_; null without a key
    };

    Node* find(CollectionIndex index) const {
        if (const std::int64_t* place = index.place()) {
            if (*place < 1 || *place > Count()) throw RuntimeError(kSubscriptOutOfRange);
            return items_.at(static_cast<std::size_t>(*place - 1));
        }
        const auto found = keys_.find(index.key());
        if (found == keys_.end()) throw RuntimeError(kInvalidProcedureCall);
        return found->second;
    }

    Sequence<Entry> items_;
    Keys keys_;
};

} // namespace basic
