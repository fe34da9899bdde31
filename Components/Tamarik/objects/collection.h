#pragma once
// The Collection class.
#include "Components/Tamarik/objects/item_list.h"
#include "Components/Tamarik/objects/key_table.h"
#include <vector>

namespace tamarik {

/// Items in order, optionally with keys, which ignore case. Items at the ends are added and removed, and items found by key or
/// index, in constant time.
class Collection final : public LibraryObject {
public:
    [[nodiscard]] std::string_view className() const override { return "Collection"; }
    [[nodiscard]] std::span<const LibraryMember> members() const override;
    [[nodiscard]] std::string_view defaultMember() const override { return "Item"; }
    [[nodiscard]] Object* walk(Heap& heap) override;
    void releaseMembers(Heap& heap) override;

    [[nodiscard]] std::int32_t count() const { return static_cast<std::int32_t>(items_.count()); }
    /// Adds a copy. `key`, `before` and `after` may be Missing. Errors 5, 9, 13, 457.
    void add(Heap& heap, const Variant& item, const Variant& key, const Variant& before, const Variant& after);
    /// A number is an index from 1, a text a key. Error 9 for an unknown index, 5 for an unknown key, 13 for others.
    [[nodiscard]] const Variant& item(const Variant& index);
    void remove(Heap& heap, const Variant& index);

private:
    struct Node {
        Variant value;
        TextBlock* key;
        Node *previous, *next;
        std::uint32_t hash; ///< 0 without a key

        [[nodiscard]] const Variant& shown() const { return value; }
    };

    [[nodiscard]] Node* find(const Variant& index);
    [[nodiscard]] Node* findKey(const TextBlock* key, std::uint32_t hash) const;
    [[nodiscard]] Node* at(std::int32_t index);
    void insert(Node* node, Node* before);
    void forgetPlace(Node* node);
    void free(Heap& heap, Node* node);

    ItemList<Node> items_;
    KeyTable<Node> keys_;
    std::vector<Node*> order_; ///< from start_ on, if it is valid
    std::size_t start_ = 0;
    bool isOrderValid_ = true;
};

} // namespace tamarik
